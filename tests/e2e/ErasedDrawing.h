// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QLineF>
#include <QPointF>
#include <QVector>

#include <cstddef>
#include <vector>

namespace dxftest
{

/**
 * What should be left of a drawing after strokes of the eraser, computed without the library.
 *
 * It keeps the state after every batch that erased anything, as the undo history does.
 */
class ErasedDrawing
{
public:
    struct Polyline {
        /// The vertices, as they would be saved.
        QVector<QPointF> points;
        bool isClosed = false;
        /// The lines on the screen.
        QVector<QLineF> lines;
        /// The entries of a polyline that is listed several times have the same number.
        int object = 0;
    };
    using State = std::vector<Polyline>;

    void add(const QVector<QPointF>& points, bool isClosed);
    /// Lists the polyline at the index once more.
    void repeat(int index);

    /// Erases all segments that a disc around any of the points touches. True if there are any.
    bool erase(const QVector<QPointF>& centers, double radius);

    /// How often something was erased.
    std::size_t batches() const { return m_states.size() - 1; }
    /// The drawing after so many batches.
    const State& stateAfter(std::size_t batches) const { return m_states.at(batches); }
    const State& current() const { return m_states.back(); }

private:
    std::vector<State> m_states{State()};
    int m_objects = 0;
};

/// The state as an undo restores it: every polyline is listed once.
ErasedDrawing::State withoutRepetitions(const ErasedDrawing::State& state);

/// The lines on the screen after such polylines are saved and read again.
QVector<QLineF> linesWhenReadAgain(const ErasedDrawing::State& state);

/// The lines on the screen.
QVector<QLineF> linesOf(const ErasedDrawing::State& state);

} // namespace dxftest
