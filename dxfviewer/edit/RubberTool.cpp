// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/RubberTool.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/EntityWalk.h"
#include "dxfviewer/model/PolylineAccess.h"
#include "dxfviewer/model/Polylines.h"

#include <QBrush>
#include <QEvent>
#include <QGraphicsEllipseItem>
#include <QGraphicsScene>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QLineF>
#include <QPointF>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <utility>

using dxfviewer::asPolyline;
using dxfviewer::EntityWalk;
using dxfviewer::PolylineAccess;
using dxfviewer::PolylineSummary;

namespace
{

constexpr double eraserRadiusPx = 5.0;
constexpr int deleteIntervalMs = 50;

// How much rounding may change a distance: by a share of the coordinates that go into it. If
// squares fall below the smallest number, by all of a very small distance.
constexpr double relativeSlack = 1e-12;
constexpr double absoluteSlack = 1e-150;

/**
 * With a few comparisons, decides for most segments that they are not under the eraser, and for
 * most polylines that none of their segments is.
 *
 * A segment is far away only if its extent in x or in y is outside the radius by more than rounding
 * could explain. Every other segment, NaN and infinities included, is not far away, and the exact
 * distance decides.
 */
class Reach
{
public:
    Reach(const QPointF& center, double radius)
        : m_center(center)
        , m_radius(radius + absoluteSlack)
    {
    }

    bool isFarFrom(const PolylineAccess::Bounds& bounds) const
    {
        return isBeyond(m_center.x(), bounds.left, bounds.right)
               || isBeyond(m_center.y(), bounds.top, bounds.bottom);
    }

    bool isFarFrom(const QLineF& line) const
    {
        return isBeyond(m_center.x(), line.x1(), line.x2())
               || isBeyond(m_center.y(), line.y1(), line.y2());
    }

private:
    bool isBeyond(double center, double from, double to) const
    {
        const double gap = std::max(std::min(from, to) - center, center - std::max(from, to));
        const double size = std::abs(center) + std::abs(from) + std::abs(to) + std::abs(m_radius);
        return gap > m_radius + relativeSlack * size;
    }

    QPointF m_center;
    double m_radius;
};

bool isLeftHeld(const QGraphicsSceneMouseEvent& event)
{
    return event.buttons().testFlag(Qt::LeftButton);
}

} // namespace

/// The eraser's disc. It tells the tool when its owner destroys it.
class RubberTool::Marker : public QGraphicsEllipseItem
{
public:
    explicit Marker(RubberTool& tool)
        : QGraphicsEllipseItem(-eraserRadiusPx, -eraserRadiusPx, 2 * eraserRadiusPx,
                               2 * eraserRadiusPx)
        , m_tool(&tool)
    {
        setFlag(QGraphicsItem::ItemIgnoresTransformations);
        setBrush(QBrush(Qt::red, Qt::SolidPattern));
    }

    ~Marker() override
    {
        if (m_tool)
            m_tool->m_marker = nullptr;
    }

private:
    QPointer<RubberTool> m_tool;
};

RubberTool::RubberTool(QSharedPointer<DXFDocument> document)
    : m_document(std::move(document))
{
    connect(&m_deleteTimer, SIGNAL(timeout()), this, SLOT(emitDeleteRequest()));
    m_deleteTimer.setInterval(deleteIntervalMs);
}

RubberTool::~RubberTool() = default;

QVector<int> RubberTool::itemsUnderMouse(QPointF pos) const
{
    QVector<int> ids;
    if (!m_document)
        return ids;

    const double radius = eraserRadiusPx / getViewScaleFactor();
    const Reach reach(pos, radius);
    const auto isConcerned = [&reach](const PolylineSummary& polyline) {
        return !reach.isFarFrom(polyline.bounds);
    };
    EntityWalk(*m_document).look(isConcerned, [&](const QSharedPointer<DXFEntity>& entity) {
        const DXFPolyline* polyline = asPolyline(entity);
        if (!polyline || reach.isFarFrom(PolylineAccess::bounds(*polyline)))
            return;
        for (const Segment& segment : PolylineAccess::segments(*polyline)) {
            const QLineF line = segment.line();
            if (!reach.isFarFrom(line) && radius > distPointToSegment(pos, line))
                ids.append(segment.id());
        }
    });
    return ids;
}

double RubberTool::getViewScaleFactor() const
{
    const QGraphicsScene* scene = m_marker ? m_marker->scene() : nullptr;
    if (!scene)
        return 0.0;
    const auto views = scene->views();
    return views.isEmpty() ? 0.0 : views.first()->transform().m11();
}

void RubberTool::enable()
{
    if (!m_deleteTimer.isActive())
        m_deleteTimer.start();
}

void RubberTool::disable()
{
    m_deleteTimer.stop();
}

void RubberTool::handleMouseEvent(QGraphicsSceneMouseEvent& event)
{
    switch (event.type()) {
    case QEvent::GraphicsSceneMousePress:
        if (isLeftHeld(event))
            enable();
        break;
    case QEvent::GraphicsSceneMouseMove:
        if (!isLeftHeld(event)) {
            disable();
            break;
        }
        m_collectedIds += itemsUnderMouse(event.pos());
        if (m_document)
            m_document->setSelected(m_collectedIds);
        break;
    case QEvent::GraphicsSceneMouseRelease:
        disable();
        emitDeleteRequest();
        break;
    default:
        break;
    }
}

bool RubberTool::handle(QEvent& event)
{
    switch (event.type()) {
    case QEvent::GraphicsSceneMouseMove:
    case QEvent::GraphicsSceneMousePress:
    case QEvent::GraphicsSceneMouseRelease: {
        auto& mouseEvent = static_cast<QGraphicsSceneMouseEvent&>(event);
        const QPointer<RubberTool> self(this);
        handleMouseEvent(mouseEvent);
        if (self)
            moveMarker(mouseEvent.pos());
        break;
    }
    case QEvent::GraphicsSceneHoverEnter:
    case QEvent::GraphicsSceneHoverMove:
    case QEvent::GraphicsSceneHoverLeave:
        moveMarker(static_cast<QGraphicsSceneHoverEvent&>(event).pos());
        break;
    default:
        break;
    }
    return true;
}

QGraphicsItem* RubberTool::getMarker()
{
    if (!m_marker)
        m_marker = new Marker(*this);
    return m_marker;
}

void RubberTool::moveMarker(const QPointF& pos)
{
    if (m_marker)
        m_marker->setPos(pos);
}

void RubberTool::emitDeleteRequest()
{
    // A slot may end edit mode and destroy this tool.
    const QPointer<RubberTool> self(this);
    Q_EMIT requestDelete();
    if (self)
        m_collectedIds.clear();
}
