// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/render/DXFGraphicsItem.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/EntityWalk.h"
#include "dxfviewer/model/PolylineAccess.h"
#include "dxfviewer/model/Polylines.h"
#include "dxfviewer/render/VisibleArea.h"

#include <QDebug>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

using dxfviewer::asPolyline;
using dxfviewer::PolylineAccess;
using dxfviewer::VisibleArea;

namespace
{

QRectF rectOf(const QLineF& line)
{
    return QRectF(line.x1(), line.y1(), line.dx(), line.dy());
}

/**
 * Unites the rectangles of lines just as QRectF::operator| does, rounding included.
 *
 * Most lines lie inside the bounds and are skipped. But while rounding still moves the bounds no
 * line is skipped: uniting computes the far edge from the extent and the extent from the far edge.
 */
class Bounds
{
public:
    const QRectF& rect() const { return m_rect; }

    void unite(const DXFPolyline& polyline)
    {
        if (m_isSteady && isWithin(PolylineAccess::bounds(polyline)))
            return;
        for (const Segment& segment : PolylineAccess::segments(polyline))
            unite(segment.line());
    }

private:
    void unite(const QLineF& line)
    {
        if (m_isSteady && isWithin(line.x1(), line.dx(), m_rect.left(), m_rect.right())
            && isWithin(line.y1(), line.dy(), m_rect.top(), m_rect.bottom()))
            return;
        m_rect = m_rect | rectOf(line);
        m_isSteady = isExtent(m_rect.width(), m_rect.left(), m_rect.right())
                     && isExtent(m_rect.height(), m_rect.top(), m_rect.bottom());
    }

    /// Whether no line in the polyline's bounds can move ours, even by rounding.
    bool isWithin(const PolylineAccess::Bounds& bounds) const
    {
        return isWellWithin(bounds.left, bounds.right, m_rect.left(), m_rect.right())
               && isWellWithin(bounds.top, bounds.bottom, m_rect.top(), m_rect.bottom());
    }

    static bool isWellWithin(double least, double greatest, double from, double to)
    {
        constexpr double rounding = 8 * std::numeric_limits<double>::epsilon();
        const double slack = rounding * std::max(std::abs(least), std::abs(greatest));
        return least - slack > from && greatest + slack < to;
    }

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

/// The pens of one painting. Making a pen costs as much as drawing a short line, and so does
/// handing it to the painter. So pens are kept in a small cache, and the painter gets one only when
/// the next segment needs another.
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
        Kept& kept = m_kept[entryOf(width, color)];
        if (!kept.isFor(width, color))
            kept = {width, color, newPen(width, color)};
        m_painter.setPen(kept.pen);
        m_inUse = &kept;
    }

private:
    static constexpr std::size_t entryCount = 64;

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

    static std::size_t entryOf(int width, const QColor& color)
    {
        constexpr unsigned scatter = 2654435769U;
        constexpr unsigned shift = 26;
        return ((color.rgba() + static_cast<unsigned>(width)) * scatter) >> shift;
    }

    QPainter& m_painter;
    std::array<Kept, entryCount> m_kept;
    const Kept* m_inUse = nullptr;
};

/// Draws the polylines of a document one by one.
class Drawing
{
public:
    Drawing(QPainter& painter, const QPen* overridePen)
        : m_painter(painter)
        , m_overridePen(overridePen)
        , m_pens(painter)
        , m_area(painter)
    {
        if (!overridePen)
            return;
        painter.setPen(*overridePen);
        m_area.setPen(*overridePen);
    }

    void draw(const DXFPolyline& polyline)
    {
        if (!m_overridePen)
            m_area.setCosmeticPen(polyline.lineWidth());
        const auto part = m_area.visiblePart(PolylineAccess::bounds(polyline));
        if (part == VisibleArea::Part::None)
            return;

        // A copy: the painter may be a host's own, and its calls may change the polyline.
        const auto segments = polyline.segments();
        bool hasPen = m_overridePen != nullptr;
        Look current = Look::Plain;
        for (const Segment& segment : segments) {
            if (part == VisibleArea::Part::Some && m_area.hides(segment.line()))
                continue;
            const Look look = lookOf(segment);
            if (!hasPen || (!m_overridePen && look != current))
                m_pens.use(polyline.lineWidth(), colorOf(look, polyline.color()));
            hasPen = true;
            current = look;
            drawSegment(m_painter, segment);
        }
    }

private:
    QPainter& m_painter;
    const QPen* m_overridePen;
    EntityPens m_pens;
    VisibleArea m_area;
};

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
        if (const DXFPolyline* polyline = asPolyline(entity))
            bounds.unite(*polyline);
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
    Drawing drawing(*painter, m_overridePen.get());
    dxfviewer::forEachEntity(m_document->entities(), [&](const QSharedPointer<DXFEntity>& entity) {
        if (const DXFPolyline* polyline = asPolyline(entity))
            drawing.draw(*polyline);
    });
    painter->restore();
}
