// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"
#include "dxfviewer/model/DXFVertex.h"

#include <QSharedPointer>

#include <dl_attributes.h>
#include <dl_entities.h>

class DXFAttributes;
class DXFLayer;
class DXFLineType;
class DXFPolyline;

/**
 * Converts the records of dxflib and the objects of the model into each other.
 *
 * Strings are UTF-8 on dxflib's side. Each conversion drops what the other side cannot hold; its
 * comment says what. No function accepts a null pointer.
 */
class DXFVIEWER_EXPORT DXFAdapter
{
public:
    /// An empty line type becomes "BYLAYER"; the paper-space flag is dropped.
    static QSharedPointer<DXFAttributes> makeAttributes(const DL_Attributes& attributes);
    /// The line-type scale and the paper-space flag are dropped.
    static DL_Attributes makeAttributes(QSharedPointer<DXFAttributes> attributes);

    /// The pattern's pointer is passed on, the pattern itself is not copied.
    static QSharedPointer<DXFLineType> makeLineType(const DL_LinetypeData& data);
    /// The record shares the line type's pattern and must not outlive it.
    static DL_LinetypeData makeLineType(QSharedPointer<DXFLineType> lineType);

    /// The off flag is dropped; the new layer has no attributes.
    static QSharedPointer<DXFLayer> makeLayer(const DL_LayerData& data);
    /// The attributes are dropped; the layer is on.
    static DL_LayerData makeLayer(QSharedPointer<DXFLayer> layer);

    /// The number of vertices and the elevation are dropped; the new polyline is empty.
    static QSharedPointer<DXFPolyline> makePolyline(const DL_PolylineData& data);
    /// The vertices are only counted, the attributes dropped; the elevation is 0.
    static DL_PolylineData makePolyline(QSharedPointer<DXFPolyline> polyline);

    /// Nothing is dropped; the vertex's flag is set.
    static DXFVertex makeVertex(const DL_VertexData& data);
    /// The flag is dropped.
    static DL_VertexData makeVertex(DXFVertex vertex);
};
