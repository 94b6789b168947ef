// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/render/DXFGraphicsItem.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/PolylineAccess.h"
#include "dxfviewer/model/Polylines.h"
#include "dxfviewer/render/DocumentPainter.h"

#include <QDebug>
#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>
#include <limits>
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
    dxfviewer::DocumentPainter(*painter, m_overridePen.get()).draw(*m_document);
    painter->restore();
}
