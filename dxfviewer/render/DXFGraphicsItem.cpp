// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/render/DXFGraphicsItem.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/PolylineAccess.h"
#include "dxfviewer/model/Polylines.h"

#include <QDebug>
#include <QPainter>

#include <array>
#include <utility>

using dxfviewer::asPolyline;
using dxfviewer::PolylineAccess;

namespace
{

QRectF rectOf(const QLineF& line)
{
    return QRectF(line.x1(), line.y1(), line.dx(), line.dy());
}

/**
 * Unites the rectangles of lines just as QRectF::operator| does, rounding included.
 *
 * What lies inside the bounds, as most lines do, is passed over, unless rounding still moves the
 * bounds: uniting computes the far edge from the extent and the extent from the far edge.
 */
class Bounds
{
public:
    const QRectF& rect() const { return m_rect; }

    void unite(const QLineF& line)
    {
        if (m_isSteady && isWithin(line.x1(), line.dx(), m_rect.left(), m_rect.right())
            && isWithin(line.y1(), line.dy(), m_rect.top(), m_rect.bottom()))
            return;
        m_rect = m_rect | rectOf(line);
        m_isSteady = isExtent(m_rect.width(), m_rect.left(), m_rect.right())
                     && isExtent(m_rect.height(), m_rect.top(), m_rect.bottom());
    }

private:
    static bool isWithin(double start, double extent, double from, double to)
    {
        const double end = start + extent;
        return start > from && start < to && end > from && end < to;
    }

    static bool isExtent(double extent, double from, double to)
    {
        return extent >= 0.0 && to - from == extent;
    }

    QRectF m_rect{0, 0, 0, 0};
    bool m_isSteady = false;
};

enum class Look { Plain, Hovered, Selected };

Look lookOf(const Segment& segment)
{
    if (segment.isSelected())
        return Look::Selected;
    return segment.isHovered() ? Look::Hovered : Look::Plain;
}

QColor colorOf(Look look, const QColor& entityColor)
{
    switch (look) {
    case Look::Selected:
        return Qt::red;
    case Look::Hovered:
        return Qt::darkYellow;
    case Look::Plain:
        break;
    }
    return entityColor;
}

void drawSegment(QPainter& painter, const Segment& segment)
{
    const QLineF line = segment.line();
    painter.drawLines(&line, 1);
}

void drawSegments(QPainter& painter, const QVector<Segment>& segments)
{
    for (const Segment& segment : segments)
        drawSegment(painter, segment);
}

/// The pens of one painting. Making a pen, and even handing it to the painter, costs as much as
/// drawing a short line with it. So pens are kept, the last one of each of some colours, and the
/// painter gets one only when the next segment needs another.
class EntityPens
{
public:
    explicit EntityPens(QPainter& painter)
        : m_painter(painter)
    {
    }

    void use(int width, const QColor& color)
    {
        if (m_inUse && m_inUse->isFor(width, color))
            return;
        Kept& kept = m_kept[slotOf(width, color)];
        if (!kept.isFor(width, color))
            kept = {width, color, newPen(width, color)};
        m_painter.setPen(kept.pen);
        m_inUse = &kept;
    }

private:
    static constexpr std::size_t slotCount = 64;

    struct Kept {
        int width = 0;
        QColor color;
        QPen pen = Qt::NoPen;

        bool isFor(int wantedWidth, const QColor& wantedColor) const
        {
            return width == wantedWidth && color == wantedColor && pen.style() != Qt::NoPen;
        }
    };

    static QPen newPen(int width, const QColor& color)
    {
        QPen pen;
        pen.setWidth(width);
        pen.setColor(color);
        pen.setCosmetic(true);
        return pen;
    }

    static std::size_t slotOf(int width, const QColor& color)
    {
        constexpr unsigned scatter = 2654435769U;
        constexpr unsigned shift = 26;
        return ((color.rgba() + static_cast<unsigned>(width)) * scatter) >> shift;
    }

    QPainter& m_painter;
    std::array<Kept, slotCount> m_kept;
    const Kept* m_inUse = nullptr;
};

void drawEntity(QPainter& painter, EntityPens& pens, const DXFEntity& entity,
                const QVector<Segment>& segments)
{
    bool isFirst = true;
    Look current = Look::Plain;
    for (const Segment& segment : segments) {
        const Look look = lookOf(segment);
        if (isFirst || look != current)
            pens.use(entity.lineWidth(), colorOf(look, entity.color()));
        isFirst = false;
        current = look;
        drawSegment(painter, segment);
    }
}

} // namespace

DXFGraphicsItem::DXFGraphicsItem(QGraphicsItem* parent)
    : QAbstractGraphicsShapeItem(parent)
    , m_lifeToken(std::make_shared<const bool>(true))
{
}

DXFGraphicsItem::~DXFGraphicsItem() = default;

QSharedPointer<DXFDocument> DXFGraphicsItem::document() const
{
    return m_document;
}

void DXFGraphicsItem::setDocument(QSharedPointer<DXFDocument> document)
{
    prepareGeometryChange();
    m_document = std::move(document);
    refresh();
}

void DXFGraphicsItem::refresh()
{
    m_rect = QRectF(0, 0, 0, 0);
    if (!m_document) {
        qWarning("DXFGraphicsItem:: cannot render blank document");
        return;
    }

    m_document->setup();
    Bounds bounds;
    const auto entities = m_document->entities();
    for (const auto& entity : entities) {
        const DXFPolyline* polyline = asPolyline(entity);
        if (!polyline)
            continue;
        for (const Segment& segment : PolylineAccess::segments(*polyline))
            bounds.unite(segment.line());
    }
    m_rect = bounds.rect();
}

void DXFGraphicsItem::setOverridePen(const QPen& pen)
{
    m_overridePen = std::make_unique<QPen>(pen);
    update();
}

void DXFGraphicsItem::resetOverridePen()
{
    m_overridePen.reset();
    update();
}

QRectF DXFGraphicsItem::boundingRect() const
{
    return m_rect;
}

void DXFGraphicsItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/,
                            QWidget* /*widget*/)
{
    if (!m_document || !painter)
        return;

    painter->save();
    if (m_overridePen)
        painter->setPen(*m_overridePen);
    EntityPens pens(*painter);
    const auto entities = m_document->entities();
    for (const auto& entity : entities) {
        const DXFPolyline* polyline = asPolyline(entity);
        if (!polyline)
            continue;
        const auto segments = polyline->segments();
        if (m_overridePen)
            drawSegments(*painter, segments);
        else
            drawEntity(*painter, pens, *entity, segments);
    }
    painter->restore();
}
