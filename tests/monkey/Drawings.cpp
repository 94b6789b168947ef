// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/monkey/Drawings.h"

#include <array>
#include <limits>

namespace dxftest
{

namespace
{

QByteArray group(int code, const QByteArray& value)
{
    return QByteArray::number(code) + '\n' + value + '\n';
}

QByteArray polyline(const QVector<QPointF>& points, bool closed)
{
    QByteArray text = group(0, "LWPOLYLINE") + group(8, "0")
                      + group(90, QByteArray::number(points.size()))
                      + group(70, closed ? "1" : "0");
    for (const QPointF& point : points)
        text += group(10, QByteArray::number(point.x(), 'g', 17))
                + group(20, QByteArray::number(point.y(), 'g', 17));
    return text;
}

QByteArray drawing(const QByteArray& entities)
{
    return group(0, "SECTION") + group(2, "ENTITIES") + entities + group(0, "ENDSEC")
           + group(0, "EOF");
}

/// Zigzags and rings, so close together that a stroke meets several.
QByteArray field(double size, const QPointF& origin)
{
    constexpr int rows = 6;
    constexpr int columns = 12;
    QByteArray text;
    for (int row = 0; row < rows; ++row) {
        QVector<QPointF> points;
        for (int column = 0; column < columns; ++column)
            points.append(origin + QPointF(column, row + 0.5 * (column % 2)) * size);
        text += polyline(points, row % 3 == 0);
    }
    return text;
}

} // namespace

QByteArray goodDrawing(int which)
{
    constexpr int drawings = 9;
    switch (which % drawings) {
    case 0:
    case 1:
        return drawing(field(10, QPointF()));
    case 2:
        return drawing(polyline({{0, 0}, {100, 0}, {100, 100}, {0, 100}}, true));
    case 3:
        return drawing(field(1e-9, QPointF(1e6, 1e6)));
    case 4:
        return drawing(field(1e12, QPointF(-1e15, 1e15)));
    case 5:
        return drawing(polyline({{1e300, -1e300}, {-1e300, 1e300}, {0, 0}}, true)
                       + field(1, QPointF()));
    case 6:
        return drawing(polyline({{1e-300, 0}, {0, 1e-300}, {1e-300, 1e-300}}, true));
    case 7:
        return drawing(QByteArray());
    default:
        // The end of an IMAGE lists the polyline before it again. The last polyline has no vertex.
        return drawing(field(5, QPointF(-20, -20)) + group(0, "IMAGE") + group(0, "IMAGE")
                       + group(0, "POLYLINE") + group(0, "VERTEX") + group(10, "1")
                       + group(0, "SEQEND") + group(0, "LWPOLYLINE"));
    }
}

QByteArray badDrawing(int which)
{
    constexpr int drawings = 6;
    switch (which % drawings) {
    case 0:
        return QByteArray();
    case 1:
        return QByteArray("no drawing at all");
    case 2:
        return QByteArray(5000, 'x');
    case 3:
        return goodDrawing(0).left(700);
    case 4:
        return drawing(group(0, "LWPOLYLINE") + group(90, "1073741825") + group(10, "1"));
    default:
        return QByteArray(100, '\0');
    }
}

QVector<QPointF> oddPoints(int which)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double most = std::numeric_limits<double>::max();
    constexpr double least = std::numeric_limits<double>::denorm_min();
    const std::array<QVector<QPointF>, 8> lists{{
        {},
        {{1, 1}},
        {{0, 0}, {0, 0}, {0, 0}},
        {{0, 0}, {nan, 1}, {20, nan}, {30, 0}},
        {{0, 0}, {infinity, 1}, {20, -infinity}, {30, 0}},
        {{-most, -most}, {most, most}, {-most, most}},
        {{least, least}, {-least, 0}, {0, -0.0}},
        {{0, 0}, {40, 10}, {80, 0}, {80, 40}, {0, 40}},
    }};
    return lists[static_cast<std::size_t>(which) % lists.size()];
}

} // namespace dxftest
