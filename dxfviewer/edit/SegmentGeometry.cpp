// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/SegmentGeometry.h"

#include <QLineF>
#include <QPointF>

#include <cmath>

namespace
{

/// Looks like a fuzzy comparison with zero, but only an exact zero passes. This is intended: a very
/// short segment is projected onto like any other.
bool isZero(double length)
{
    return 0.0 >= std::abs(length) * 1e12;
}

double distance(const QPointF& a, const QPointF& b)
{
    return QLineF(a, b).length();
}

} // namespace

QPointF projection(QPointF const& p, QPointF const& a, QPointF const& b, bool* inside)
{
    const double length = distance(a, b);
    if (isZero(length))
        return a;

    const QPointF d = b - a;
    const double t = ((p.x() - a.x()) * d.x() + (p.y() - a.y()) * d.y()) / (length * length);
    if (inside)
        *inside = t >= 0.0 && t <= 1.0;
    return QPointF(a.x() + t * d.x(), a.y() + t * d.y());
}

double distPointToSegment(QPointF const& p, QLineF const& segment)
{
    bool inside = false;
    const QPointF foot = projection(p, segment.p1(), segment.p2(), &inside);
    if (inside)
        return distance(foot, p);

    const double toStart = distance(p, segment.p1());
    const double toEnd = distance(p, segment.p2());
    return toStart < toEnd ? toStart : toEnd;
}
