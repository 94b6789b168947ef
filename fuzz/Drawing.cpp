// SPDX-License-Identifier: GPL-2.0-or-later

#include "fuzz/Drawing.h"

#include "dxfviewer/model/Polylines.h"

#include <QSet>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace dxffuzz
{

namespace
{

// Half of the last written decimal, and the rounding when a decimal number is read.
constexpr double writtenPrecision = 0.6e-16;
constexpr double relativePrecision = 1e-15;

void discard(QtMsgType, const QMessageLogContext&, const QString&) {}

bool sameNumber(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

bool survived(double written, double read)
{
    const double expected = std::isfinite(written) ? written : 0.0;
    return std::abs(read - expected) <= writtenPrecision + relativePrecision * std::abs(expected);
}

template <typename Compare>
bool matches(const QVector<Shape>& a, const QVector<Shape>& b, Compare compare)
{
    return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend(),
                      [compare](const Shape& one, const Shape& other) {
                          return one.isClosed == other.isClosed
                                 && std::equal(one.numbers.cbegin(), one.numbers.cend(),
                                               other.numbers.cbegin(), other.numbers.cend(),
                                               compare);
                      });
}

} // namespace

void silenceLog()
{
    qInstallMessageHandler(discard);
}

void require(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "broken promise: %s\n", what);
    std::abort();
}

QByteArray textOf(const uint8_t* data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size));
}

QVector<DXFPolyline*> polylinesOf(const DXFDocument& document)
{
    QVector<DXFPolyline*> polylines;
    QSet<const DXFEntity*> seen;
    const auto entities = document.entities();
    for (const auto& entity : entities) {
        DXFPolyline* polyline = dxfviewer::asPolyline(entity);
        if (!polyline || seen.contains(polyline))
            continue;
        seen.insert(polyline);
        polylines.append(polyline);
    }
    return polylines;
}

QVector<Shape> shapesOf(const DXFDocument& document)
{
    QVector<Shape> shapes;
    const auto entities = document.entities();
    for (const auto& entity : entities) {
        const DXFPolyline* polyline = dxfviewer::asPolyline(entity);
        if (!polyline)
            continue;
        Shape shape{polyline->isClosed(), {}};
        for (const DXFVertex& vertex : polyline->vertices())
            shape.numbers << vertex.x() << vertex.y() << vertex.z() << vertex.bulge();
        shapes.append(shape);
    }
    return shapes;
}

bool areIdentical(const QVector<Shape>& a, const QVector<Shape>& b)
{
    return matches(a, b, sameNumber);
}

bool survivedWriting(const QVector<Shape>& written, const QVector<Shape>& read)
{
    QVector<Shape> expected = written;
    expected.erase(std::remove_if(expected.begin(), expected.end(),
                                  [](const Shape& shape) { return shape.numbers.isEmpty(); }),
                   expected.end());
    return matches(expected, read, survived);
}

QVector<QLineF> linesOf(const DXFDocument& document)
{
    QVector<QLineF> lines;
    for (const DXFPolyline* polyline : polylinesOf(document)) {
        const auto segments = polyline->segments();
        for (const Segment& segment : segments)
            lines.append(segment.line());
    }
    return lines;
}

void requireBounded(const DXFDocument& document, const QByteArray& text)
{
    qint64 vertices = 0;
    for (const DXFPolyline* polyline : polylinesOf(document))
        vertices += polyline->vertexNumber();
    // A vertex takes at least one group. A group takes two line feeds, except the last one.
    const qint64 lines = text.count('\n') + 1;
    require(vertices <= lines, "there are more vertices than lines");
    require(document.entities().size() <= lines, "there are more entities than lines");
}

} // namespace dxffuzz
