// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/render/DXFPaintHelper.h"

#include "dxfviewer/model/DXFAttributes.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFEntity.h"
#include "dxfviewer/model/DXFLayer.h"
#include "dxfviewer/model/SpecialValues.h"

#include <QColor>
#include <QDebug>

namespace
{

using namespace dxfviewer;

constexpr int thinWidth = 1;
constexpr Qt::GlobalColor unresolvedColor = Qt::black;

/// The low numbers are the dark colours; the bright ones come later. This is intended.
QColor colorOfNumber(int color)
{
    switch (color) {
    case 1:
        return Qt::darkRed;
    case 2:
        return Qt::darkYellow;
    case 3:
        return Qt::darkGreen;
    case 4:
        return Qt::darkCyan;
    case 5:
        return Qt::darkBlue;
    case 6:
        return Qt::darkMagenta;
    case 7:
        return Qt::lightGray;
    case 8:
        return Qt::darkGray;
    case 15:
        return QColor(117, 59, 2);
    case 23:
        return Qt::red;
    case 121:
        return Qt::green;
    case 131:
        return Qt::cyan;
    case 163:
        return Qt::blue;
    case 221:
        return Qt::magenta;
    case 252:
        return Qt::gray;
    default:
        return Qt::black;
    }
}

} // namespace

QColor getColor(int color, int color24)
{
    if (color24 != noTrueColor)
        return QColor(static_cast<QRgb>(color24));
    if (color == byBlockColor)
        qWarning("Color BYBLOCK not supported");
    return colorOfNumber(color);
}

int getLineWidth(int width)
{
    if (width == byBlockWidth)
        qWarning("LineWidth BYBLOCK not supported");
    return width == 0 ? 0 : thinWidth;
}

DXFPaintHelper::DXFPaintHelper(const DXFDocument& document)
    : m_document(document)
{
}

QColor DXFPaintHelper::lineColor(QSharedPointer<DXFLayer> layer)
{
    const auto attributes = layer ? layer->attributes() : nullptr;
    return attributes ? getColor(attributes->color(), attributes->color24())
                      : QColor(unresolvedColor);
}

QColor DXFPaintHelper::lineColor(QSharedPointer<DXFEntity> entity)
{
    const auto attributes = entity ? entity->attributes() : nullptr;
    if (!attributes)
        return QColor(unresolvedColor);
    if (attributes->color() == byLayerColor)
        return lineColor(m_document.getLayer(attributes->layerName()));
    return getColor(attributes->color(), attributes->color24());
}

int DXFPaintHelper::lineWidth(QSharedPointer<DXFLayer> layer)
{
    const auto attributes = layer ? layer->attributes() : nullptr;
    return attributes ? getLineWidth(attributes->width()) : thinWidth;
}

int DXFPaintHelper::lineWidth(QSharedPointer<DXFEntity> entity)
{
    const auto attributes = entity ? entity->attributes() : nullptr;
    if (!attributes)
        return thinWidth;
    if (attributes->width() == byLayerWidth)
        return lineWidth(m_document.getLayer(attributes->layerName()));
    return getLineWidth(attributes->width());
}
