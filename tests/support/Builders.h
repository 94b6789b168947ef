// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/model/DXFAttributes.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFLayer.h"
#include "dxfviewer/model/DXFPolyline.h"

#include <QLineF>
#include <QPointF>
#include <QSharedPointer>
#include <QString>
#include <QVector>

namespace dxftest
{

/// Attributes on a layer, with the values that matter on the screen. The other values are those of
/// a plain entity.
QSharedPointer<DXFAttributes> makeAttributes(const QString& layerName, int color, int color24 = -1,
                                             int width = 0);

/// A layer, neither frozen nor locked, with attributes.
QSharedPointer<DXFLayer> makeLayer(const QString& name, int color, int color24 = -1, int width = 0);

/// A polyline without attributes and, before its setup(), without segments.
QSharedPointer<DXFPolyline> makePolyline(const QVector<QPointF>& points, bool closed = false);

/// A document that is not set up yet.
QSharedPointer<DXFDocument> makeDocument(const QList<QSharedPointer<DXFEntity>>& entities);

/// The polylines of a document, one for each entry of its list.
QVector<DXFPolyline*> polylinesOf(const DXFDocument& document);

/// The entity at a place of the document's list, which must be a polyline.
QSharedPointer<DXFPolyline> polylineAt(const QSharedPointer<DXFDocument>& document, int index);

/// The vertices without z and bulge.
QVector<QPointF> pointsOf(const DXFPolyline& polyline);

/// The lines of all segments, in order.
QVector<QLineF> linesOf(const QVector<Segment>& segments);
QVector<QLineF> linesOf(const DXFPolyline& polyline);
QVector<QLineF> linesOf(const QSharedPointer<DXFDocument>& document);

/// The ids of all segments, in order.
QVector<int> segmentIdsOf(const DXFPolyline& polyline);
QVector<int> segmentIdsOf(const QSharedPointer<DXFDocument>& document);

/// The id of a new object: all others that exist have lower ones.
int highestId();

} // namespace dxftest
