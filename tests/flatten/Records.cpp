// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/flatten/Records.h"

#include "dxfviewer/flatten/FlatteningReader.h"

#include <QLineF>

#include <algorithm>

namespace dxftest
{

QString key(const char* name)
{
    return QString::fromLatin1(name);
}

QByteArray records(const char* lines)
{
    QByteArray text;
    const auto all = QByteArray(lines).split('\n');
    for (const QByteArray& line : all) {
        auto words = line.simplified().split(' ');
        if (words.first().isEmpty())
            continue;
        words.prepend("0");
        for (QByteArray& word : words)
            text += word.replace('~', ' ') + '\n';
    }
    return text;
}

QByteArray drawingOf(const Parts& parts)
{
    return records("SECTION 2 TABLES") + records(parts.tables) + records("ENDSEC\nSECTION 2 BLOCKS")
           + records(parts.blocks) + records("ENDSEC\nSECTION 2 ENTITIES") + records(parts.entities)
           + records("ENDSEC\nEOF");
}

QSharedPointer<DXFPolyline> Flattened::polyline(int index) const
{
    const auto entities = document->entities();
    EXPECT_LT(index, entities.size());
    return index < entities.size() ? entities[index].dynamicCast<DXFPolyline>()
                                   : QSharedPointer<DXFPolyline>::create(0U, 0U, 0U);
}

QVector<QPointF> Flattened::points(int index) const
{
    QVector<QPointF> result;
    const auto chain = polyline(index);
    for (const DXFVertex& vertex : chain->vertices())
        result.append(QPointF(vertex.x(), vertex.y()));
    return result;
}

QVector<QVector<QPointF>> Flattened::chains() const
{
    QVector<QVector<QPointF>> result;
    for (int i = 0; i < count(); ++i)
        result.append(points(i));
    return result;
}

QSharedPointer<DXFAttributes> Flattened::attributes(int index) const
{
    return polyline(index)->attributes();
}

double Flattened::length() const
{
    double sum = 0.0;
    for (int i = 0; i < count(); ++i)
        sum += lengthOf(points(i));
    return sum;
}

QRectF Flattened::box() const
{
    QVector<QPointF> all;
    for (int i = 0; i < count(); ++i)
        all += points(i);
    if (all.isEmpty())
        return {};
    const auto byX = [](const QPointF& a, const QPointF& b) {
        return a.x() < b.x();
    };
    const auto byY = [](const QPointF& a, const QPointF& b) {
        return a.y() < b.y();
    };
    const auto [left, right] = std::minmax_element(all.cbegin(), all.cend(), byX);
    const auto [bottom, top] = std::minmax_element(all.cbegin(), all.cend(), byY);
    return QRectF(QPointF(left->x(), bottom->y()), QPointF(right->x(), top->y()));
}

Flattened flattened(const QByteArray& text, const FlatteningOptions& options)
{
    Flattened result;
    result.document = QSharedPointer<DXFDocument>::create();
    FlatteningReader reader(*result.document, options);
    result.isRead = reader.load(text);
    result.shown = reader.shown();
    result.skipped = reader.skipped();
    result.elsewhere = reader.elsewhere();
    result.invisible = reader.invisible();
    return result;
}

Flattened flattened(const Parts& parts, const FlatteningOptions& options)
{
    return flattened(drawingOf(parts), options);
}

double lengthOf(const QVector<QPointF>& points)
{
    double sum = 0.0;
    for (int i = 1; i < points.size(); ++i)
        sum += QLineF(points[i - 1], points[i]).length();
    return sum;
}

::testing::AssertionResult areNear(const QVector<QVector<QPointF>>& actual,
                                   const QVector<QVector<QPointF>>& expected, double tolerance)
{
    if (actual.size() != expected.size())
        return ::testing::AssertionFailure()
               << actual.size() << " chains instead of " << expected.size();
    for (int i = 0; i < actual.size(); ++i) {
        if (actual[i].size() != expected[i].size())
            return ::testing::AssertionFailure() << "chain " << i << " has " << actual[i].size()
                                                 << " points instead of " << expected[i].size();
        for (int j = 0; j < actual[i].size(); ++j) {
            // A NaN fails this comparison too.
            if (!(QLineF(actual[i][j], expected[i][j]).length() <= tolerance))
                return ::testing::AssertionFailure()
                       << "point " << j << " of chain " << i << " is "
                       << ::testing::PrintToString(actual[i][j]) << " instead of "
                       << ::testing::PrintToString(expected[i][j]);
        }
    }
    return ::testing::AssertionSuccess();
}

} // namespace dxftest
