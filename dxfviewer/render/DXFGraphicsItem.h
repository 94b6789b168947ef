// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

#include <QAbstractGraphicsShapeItem>
#include <QRectF>
#include <QSharedPointer>

#include <memory>

class DXFDocument;
class QPen;

/**
 * Paints a whole document as one item of a graphics scene.
 *
 * Item coordinates are drawing units. Every segment is drawn with a cosmetic pen in its entity's
 * colour, dark yellow while it is hovered, red while it is selected. Only the bounding rectangle is
 * cached. It stays as it was when the document was set: erasing does not shrink it.
 */
class DXFVIEWER_EXPORT DXFGraphicsItem : public QAbstractGraphicsShapeItem
{
public:
    /// An item without a document, which paints nothing.
    explicit DXFGraphicsItem(QGraphicsItem* parent = nullptr);
    ~DXFGraphicsItem() override;

    /// The document shown; null before setDocument().
    QSharedPointer<DXFDocument> document() const;
    /// Shows a document, and sets it up if that has not been done.
    void setDocument(QSharedPointer<DXFDocument> document);

    /// Computes the bounding rectangle again, without repainting. Warns if there is no document.
    /// The scene is not told: its index may still point at the item after the item has been removed
    /// and destroyed. For an item in a scene call setDocument(document()) instead.
    void refresh();

    /// Draws every segment with exactly this pen from now on, whatever its entity or state.
    void setOverridePen(const QPen& pen);
    /// Returns to the pens of the entities.
    void resetOverridePen();

    /// Expires when the item is destroyed. A scene may destroy it while others still point at it.
    std::weak_ptr<const void> lifeToken() const { return m_lifeToken; }

    /// Where the document's segments lay at the last refresh(), in drawing units. A single
    /// segment that runs to the left or upwards leaves a negative width or height.
    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    QRectF m_rect;
    QSharedPointer<DXFDocument> m_document;
    std::unique_ptr<QPen> m_overridePen;
    std::shared_ptr<const void> m_lifeToken;
};
