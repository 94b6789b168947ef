// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/monkey/Invariants.h"

#include "fuzz/Drawing.h"

#include "dxfviewer/edit/DXFEditor.h"
#include "dxfviewer/model/DXFPolyline.h"
#include "dxfviewer/render/DXFGraphicsItem.h"
#include "tests/support/Builders.h"

#include <QGraphicsScene>
#include <QSet>

#include <algorithm>

namespace dxftest
{

namespace
{

template <typename Item>
QList<Item*> itemsIn(const QGraphicsScene& scene)
{
    QList<Item*> found;
    const auto items = scene.items();
    for (QGraphicsItem* item : items) {
        if (auto* wanted = dynamic_cast<Item*>(item))
            found.append(wanted);
    }
    return found;
}

bool same(double a, double b)
{
    return a == b || (a != a && b != b);
}

bool same(const QPointF& a, const QPointF& b)
{
    return same(a.x(), b.x()) && same(a.y(), b.y());
}

/// The last segment may be the one that closes the polyline, which runs from the first vertex to
/// the last.
bool chains(const QVector<Segment>& segments)
{
    for (int i = 1; i < segments.size(); ++i) {
        const QLineF before = segments[i - 1].line();
        const QLineF line = segments[i].line();
        const bool closes = i + 1 == segments.size() && same(line.p2(), before.p2());
        if (!same(line.p1(), before.p2()) && !closes)
            return false;
    }
    return true;
}

QString problemOf(const DXFPolyline& polyline)
{
    const auto segments = polyline.segments();
    // Without segments it was not set up, or has too few vertices.
    if (segments.isEmpty())
        return QString();
    if (!chains(segments))
        return QStringLiteral("the segments of a polyline do not chain");

    const auto& vertices = polyline.vertices();
    const bool hasClosing = polyline.isClosed() && segments.size() == vertices.size();
    if (segments.size() + 1 != vertices.size() && !hasClosing)
        return QStringLiteral("%1 segments do not go with %2 vertices")
            .arg(segments.size())
            .arg(vertices.size());
    for (int i = 0; i < segments.size(); ++i) {
        const DXFVertex& end = vertices[std::min<int>(i + 1, int(vertices.size()) - 1)];
        if (!same(segments[i].line().p2(), QPointF(end.x(), end.y())))
            return QStringLiteral("a segment does not end at its vertex");
    }
    return QString();
}

bool addId(int id, QSet<int>& ids)
{
    if (id <= 0 || ids.contains(id))
        return false;
    ids.insert(id);
    return true;
}

} // namespace

QList<DXFEditor*> overlaysIn(const QGraphicsScene& scene)
{
    return itemsIn<DXFEditor>(scene);
}

QList<DXFGraphicsItem*> documentItemsIn(const QGraphicsScene& scene)
{
    return itemsIn<DXFGraphicsItem>(scene);
}

QString problemOf(const DXFDocument& document)
{
    QSet<int> ids;
    for (const DXFPolyline* polyline : dxffuzz::polylinesOf(document)) {
        const QString problem = problemOf(*polyline);
        if (!problem.isEmpty())
            return problem;
        const auto segments = polyline->segments();
        bool unique = addId(polyline->id(), ids);
        for (const Segment& segment : segments)
            unique = addId(segment.id(), ids) && unique;
        if (!unique)
            return QStringLiteral("an id is there twice");
    }
    return QString();
}

QString problemOfSelection(const DXFDocument& document, const QVector<int>& ids)
{
    QVector<int> expected;
    for (const DXFPolyline* polyline : polylinesOf(document)) {
        if (ids.contains(polyline->id()))
            expected.append(polyline->id());
        const auto segments = polyline->segments();
        for (const Segment& segment : segments) {
            if (ids.contains(segment.id()))
                expected.append(segment.id());
        }
    }
    return document.selectedIDs() == expected ? QString()
                                              : QStringLiteral("the selection is not what was set");
}

QString problemOfSaving(const DXFDocument& document, const QByteArray& saved)
{
    const auto again = DXFDocument::load(saved);
    if (!again)
        return QStringLiteral("what was saved cannot be read");
    return dxffuzz::survivedWriting(dxffuzz::shapesOf(document), dxffuzz::shapesOf(*again))
               ? QString()
               : QStringLiteral("what was saved reads differently");
}

} // namespace dxftest
