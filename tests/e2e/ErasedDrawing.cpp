// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/e2e/ErasedDrawing.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>

namespace dxftest
{

namespace
{

using Polyline = ErasedDrawing::Polyline;
using State = ErasedDrawing::State;

double distance(const QPointF& point, const QLineF& line)
{
    const QPointF along = line.p2() - line.p1();
    const QPointF toPoint = point - line.p1();
    const double squared = QPointF::dotProduct(along, along);
    const double share =
        squared > 0.0 ? std::clamp(QPointF::dotProduct(toPoint, along) / squared, 0.0, 1.0) : 0.0;
    const QPointF gap = toPoint - share * along;
    return std::hypot(gap.x(), gap.y());
}

bool isTouched(const QLineF& line, const QVector<QPointF>& centers, double radius)
{
    return std::any_of(centers.begin(), centers.end(),
                       [&](const QPointF& center) { return distance(center, line) < radius; });
}

bool meet(double a, double b)
{
    const double gap = std::abs(a - b);
    return a == 0.0 || b == 0.0 ? gap <= 1e-12 : gap * 1e12 <= std::min(std::abs(a), std::abs(b));
}

/// The lines from vertex to vertex, and a closing one from the first to the last.
QVector<QLineF> linesAlong(const QVector<QPointF>& points, bool isClosed)
{
    QVector<QLineF> lines;
    for (int i = 1; i < points.size(); ++i)
        lines.append(QLineF(points[i - 1], points[i]));
    if (isClosed && points.size() > 2)
        lines.append(QLineF(points.first(), points.last()));
    return lines;
}

Polyline pieceOf(const QVector<QLineF>& run, int object)
{
    Polyline piece;
    piece.object = object;
    piece.points.append(run.first().p1());
    for (const QLineF& line : run)
        piece.points.append(line.p2());
    const QPointF start = piece.points.first();
    const QPointF end = piece.points.last();
    piece.isClosed = meet(start.x(), end.x()) && meet(start.y(), end.y());
    piece.lines = run;
    return piece;
}

QVector<QVector<QLineF>> runsOf(const QVector<QLineF>& lines, const QVector<QPointF>& centers,
                                double radius)
{
    QVector<QVector<QLineF>> runs;
    bool isInRun = false;
    for (const QLineF& line : lines) {
        if (isTouched(line, centers, radius)) {
            isInRun = false;
            continue;
        }
        if (!isInRun)
            runs.append(QVector<QLineF>());
        isInRun = true;
        runs.last().append(line);
    }
    return runs;
}

} // namespace

void ErasedDrawing::add(const QVector<QPointF>& points, bool isClosed)
{
    m_states.back().push_back({points, isClosed, linesAlong(points, isClosed), m_objects++});
}

void ErasedDrawing::repeat(int index)
{
    State& state = m_states.back();
    const Polyline again = state[std::size_t(index)];
    state.push_back(again);
}

bool ErasedDrawing::erase(const QVector<QPointF>& centers, double radius)
{
    const State& before = m_states.back();
    const bool hitsAny = std::any_of(before.begin(), before.end(), [&](const Polyline& polyline) {
        return std::any_of(polyline.lines.begin(), polyline.lines.end(),
                           [&](const QLineF& line) { return isTouched(line, centers, radius); });
    });
    if (!hitsAny)
        return false;

    State kept;
    State cutOff;
    std::set<int> isCut;
    for (const Polyline& polyline : before) {
        const auto runs = runsOf(polyline.lines, centers, radius);
        if (runs.isEmpty())
            continue;
        kept.push_back(pieceOf(runs.first(), polyline.object));
        if (!isCut.insert(polyline.object).second)
            continue;
        for (int i = 1; i < runs.size(); ++i) {
            Polyline piece = pieceOf(runs[i], m_objects++);
            // The segments of a cut-off piece are made again from its vertices.
            piece.lines = linesAlong(piece.points, piece.isClosed);
            cutOff.push_back(piece);
        }
    }
    kept.insert(kept.end(), cutOff.begin(), cutOff.end());
    m_states.push_back(kept);
    return true;
}

State withoutRepetitions(const State& state)
{
    State once;
    std::set<int> listed;
    std::copy_if(
        state.begin(), state.end(), std::back_inserter(once),
        [&listed](const Polyline& polyline) { return listed.insert(polyline.object).second; });
    return once;
}

QVector<QLineF> linesWhenReadAgain(const ErasedDrawing::State& state)
{
    QVector<QLineF> lines;
    for (const Polyline& polyline : state)
        lines += linesAlong(polyline.points, polyline.isClosed);
    return lines;
}

QVector<QLineF> linesOf(const ErasedDrawing::State& state)
{
    QVector<QLineF> lines;
    for (const Polyline& polyline : state)
        lines += polyline.lines;
    return lines;
}

} // namespace dxftest
