// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QObject>
#include <QPointer>

#include <deque>

class DXFDocument;
class DXFEditor;
class QAction;
class QGraphicsView;
class QUndoCommand;
class QUndoStack;

/**
 * Undo and Redo that take back whole strokes of the eraser, from press to release.
 *
 * On the stack of edit mode each 50 ms of a stroke is a step of its own, and ten steps are kept.
 * This class marks where strokes begin, moves the stack from mark to mark, and lets the stack keep
 * as many steps as fit into an amount of memory.
 */
class StrokeHistory : public QObject
{
    Q_OBJECT

public:
    /// Presses are those on the view's viewport.
    explicit StrokeHistory(QGraphicsView& view, QObject* parent = nullptr);
    /// The same with another amount of memory for the steps.
    StrokeHistory(QGraphicsView& view, qint64 memoryBytes, QObject* parent = nullptr);

    /// Serves a new period of edit mode, whose stack must still be empty, until the stack is
    /// destroyed.
    void follow(DXFEditor& editor, const DXFDocument& document);

    /// Whether the drawing holds steps of this period of edit mode, be it ones that can no longer
    /// be undone.
    bool hasSteps() const { return m_place > 0; }

    QAction* undoAction() const { return m_undo; }
    QAction* redoAction() const { return m_redo; }

public Q_SLOTS:
    void undo();
    void redo();

Q_SIGNALS:
    /// The current stroke, or the one that undo has just taken back in part, has lost its
    /// beginning: that can no longer be undone.
    void beginningLost();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Places on the stack are counted from the first step of the period of edit mode, so that they
    // stay valid when the stack drops its oldest steps.
    using Place = qint64;

    void onIndexChanged(int index);
    bool isPush(int index) const;
    void onPush(int index);
    void forget();
    void beginStroke();
    void moveTo(Place place);
    Place current() const;
    void updateActions();

    qint64 m_memoryBytes;
    QAction* m_undo;
    QAction* m_redo;
    QPointer<QUndoStack> m_stack;
    /// Where strokes begin, in ascending order.
    std::deque<Place> m_marks;
    Place m_dropped = 0;
    /// The place after the last signal of the stack.
    Place m_place = 0;
    const QUndoCommand* m_nextStep = nullptr;
    bool m_hasToldOfLoss = false;
};
