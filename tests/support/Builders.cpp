// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/support/Builders.h"

#include "dxfviewer/model/IDeletable.h"
#include "dxfviewer/model/Polylines.h"

namespace dxftest
{

namespace
{

constexpr unsigned int closedFlag = 1;

} // namespace

QSharedPointer<DXFAttributes> makeAttributes(const QString& layerName, int color, int color24,
                                             int width)
{
    return QSharedPointer<DXFAttributes>::create(layerName, color, color24, width,
                                                 QStringLiteral("CONTINUOUS"), 1.0, -1, false);
}

QSharedPointer<DXFLayer> makeLayer(const QString& name, int color, int color24, int width)
{
    auto layer = QSharedPointer<DXFLayer>::create(name, QFlags<DXFLayer::Flag>());
    layer->setAttributes(makeAttributes(name, color, color24, width));
    return layer;
}

QSharedPointer<DXFPolyline> makePolyline(const QVector<QPointF>& points, bool closed)
{
    auto polyline = QSharedPointer<DXFPolyline>::create(0U, 0U, closed ? closedFlag : 0U);
    for (const QPointF& point : points)
        polyline->appendPoint(DXFVertex(point.x(), point.y(), 0.0, true, 0.0));
    return polyline;
}

QSharedPointer<DXFDocument> makeDocument(const QList<QSharedPointer<DXFEntity>>& entities)
{
    auto document = QSharedPointer<DXFDocument>::create();
    for (const auto& entity : entities)
        document->addEntity(entity);
    return document;
}

QVector<DXFPolyline*> polylinesOf(const DXFDocument& document)
{
    QVector<DXFPolyline*> polylines;
    const auto entities = document.entities();
    for (const auto& entity : entities) {
        if (auto* polyline = dxfviewer::asPolyline(entity))
            polylines.append(polyline);
    }
    return polylines;
}

QSharedPointer<DXFPolyline> polylineAt(const QSharedPointer<DXFDocument>& document, int index)
{
    auto polyline = document->entities().value(index).dynamicCast<DXFPolyline>();
    if (!polyline)
        qFatal("no polyline at %d", index);
    return polyline;
}

QVector<QPointF> pointsOf(const DXFPolyline& polyline)
{
    QVector<QPointF> points;
    for (const DXFVertex& vertex : polyline.vertices())
        points.append(QPointF(vertex.x(), vertex.y()));
    return points;
}

QVector<QLineF> linesOf(const QVector<Segment>& segments)
{
    QVector<QLineF> lines;
    for (const Segment& segment : segments)
        lines.append(segment.line());
    return lines;
}

QVector<QLineF> linesOf(const DXFPolyline& polyline)
{
    return linesOf(polyline.segments());
}

QVector<QLineF> linesOf(const QSharedPointer<DXFDocument>& document)
{
    QVector<QLineF> lines;
    for (const DXFPolyline* polyline : polylinesOf(*document))
        lines.append(linesOf(*polyline));
    return lines;
}

QVector<int> segmentIdsOf(const DXFPolyline& polyline)
{
    QVector<int> ids;
    const auto segments = polyline.segments();
    for (const Segment& segment : segments)
        ids.append(segment.id());
    return ids;
}

QVector<int> segmentIdsOf(const QSharedPointer<DXFDocument>& document)
{
    QVector<int> ids;
    for (const DXFPolyline* polyline : polylinesOf(*document))
        ids.append(segmentIdsOf(*polyline));
    return ids;
}

int highestId()
{
    return IDeletable().id();
}

} // namespace dxftest
