// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

#include <QSharedPointer>

class DXFDocument;
class DXFEntity;
class DXFLayer;
class QColor;

/**
 * The colour on the screen of a DXF colour number (group 62) and true colour (group 420).
 *
 * A true colour other than -1 decides alone. Of the colour numbers seventeen are known; every
 * other one is black. By-block (0) is not supported: it is black after a warning.
 */
DXFVIEWER_EXPORT QColor getColor(int color, int color24);

/**
 * The pen width in device pixels, 0 or 1, of a DXF line weight (group 370).
 *
 * By-block (-2) is not supported: it is 1 after a warning.
 */
DXFVIEWER_EXPORT int getLineWidth(int width);

/**
 * Resolves the colours and line widths of layers and entities, following by-layer to the
 * document's layers.
 *
 * By-layer is followed one level only. A layer or an entity without attributes is black and 1 wide.
 * So is a by-layer entity on a layer that the document does not hold.
 */
class DXFVIEWER_EXPORT DXFPaintHelper
{
public:
    /// The document must outlive the helper.
    explicit DXFPaintHelper(const DXFDocument& document);

    QColor lineColor(QSharedPointer<DXFLayer> layer);
    /// For colour number 256 the layer's colour; the entity's own true colour is then ignored.
    QColor lineColor(QSharedPointer<DXFEntity> entity);

    int lineWidth(QSharedPointer<DXFLayer> layer);
    /// For line weight -1 the layer's width.
    int lineWidth(QSharedPointer<DXFEntity> entity);

private:
    const DXFDocument& m_document;
};
