// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/DXFAdapter.h"

#include "dxfviewer/io/Utf8.h"
#include "dxfviewer/model/DXFAttributes.h"
#include "dxfviewer/model/DXFLayer.h"
#include "dxfviewer/model/DXFLineType.h"
#include "dxfviewer/model/DXFPolyline.h"

#include <string>

using dxfviewer::decoded;
using dxfviewer::encoded;

namespace
{

constexpr bool inModelSpace = false;
constexpr bool layerIsOn = false;
constexpr bool vertexFlag = true;
constexpr double noElevation = 0.0;

/// Most line types are by layer, and share one text.
QString decodedLineType(const std::string& text)
{
    return text == "BYLAYER" ? QStringLiteral("BYLAYER") : decoded(text);
}

} // namespace

QSharedPointer<DXFAttributes> DXFAdapter::makeAttributes(const DL_Attributes& attributes)
{
    // The getter of the line type answers "BYLAYER" when there is none.
    return QSharedPointer<DXFAttributes>::create(
        decoded(attributes.getLayer()), attributes.getColor(), attributes.getColor24(),
        attributes.getWidth(), decodedLineType(attributes.getLinetype()),
        attributes.getLinetypeScale(), attributes.getHandle(), inModelSpace);
}

DL_Attributes DXFAdapter::makeAttributes(QSharedPointer<DXFAttributes> attributes)
{
    return DL_Attributes(encoded(attributes->layerName()), attributes->color(),
                         attributes->color24(), attributes->width(),
                         encoded(attributes->lineType()), attributes->handle());
}

QSharedPointer<DXFLineType> DXFAdapter::makeLineType(const DL_LinetypeData& data)
{
    return QSharedPointer<DXFLineType>::create(decoded(data.name), decoded(data.description),
                                               data.flags, data.numberOfDashes, data.patternLength,
                                               data.pattern);
}

DL_LinetypeData DXFAdapter::makeLineType(QSharedPointer<DXFLineType> lineType)
{
    return DL_LinetypeData(encoded(lineType->name()), encoded(lineType->description()),
                           lineType->flags(), lineType->numberOfDashes(), lineType->patternLength(),
                           lineType->pattern());
}

QSharedPointer<DXFLayer> DXFAdapter::makeLayer(const DL_LayerData& data)
{
    return QSharedPointer<DXFLayer>::create(decoded(data.name),
                                            QFlags<DXFLayer::Flag>(QFlag(data.flags)));
}

DL_LayerData DXFAdapter::makeLayer(QSharedPointer<DXFLayer> layer)
{
    return DL_LayerData(encoded(layer->name()), static_cast<int>(layer->flags()), layerIsOn);
}

QSharedPointer<DXFPolyline> DXFAdapter::makePolyline(const DL_PolylineData& data)
{
    return QSharedPointer<DXFPolyline>::create(data.m, data.n,
                                               static_cast<unsigned int>(data.flags));
}

DL_PolylineData DXFAdapter::makePolyline(QSharedPointer<DXFPolyline> polyline)
{
    return DL_PolylineData(polyline->vertexNumber(), static_cast<int>(polyline->mVertices()),
                           static_cast<int>(polyline->nVertices()),
                           static_cast<int>(polyline->flags()), noElevation);
}

DXFVertex DXFAdapter::makeVertex(const DL_VertexData& data)
{
    return DXFVertex(data.x, data.y, data.z, vertexFlag, data.bulge);
}

DL_VertexData DXFAdapter::makeVertex(DXFVertex vertex)
{
    return DL_VertexData(vertex.x(), vertex.y(), vertex.z(), vertex.bulge());
}
