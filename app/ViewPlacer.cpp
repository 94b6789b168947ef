// SPDX-License-Identifier: GPL-2.0-or-later

#include "ViewPlacer.h"

#include "Extent.h"

#include <QGraphicsView>
#include <QPointF>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace
{

void scroll(QScrollBar& bar, double distance)
{
    const double value = std::round(bar.value() + distance);
    bar.setValue(static_cast<int>(
        std::clamp(value, double(bar.minimum()), double(std::max(bar.minimum(), bar.maximum())))));
}

} // namespace

ViewPlacer::ViewPlacer(QGraphicsView& view)
    : m_view(&view)
{
}

QGraphicsView* ViewPlacer::view() const
{
    return m_view;
}

double ViewPlacer::scale() const
{
    return m_view->transform().m11();
}

void ViewPlacer::setScale(double wanted, bool isMirrored, const QPointF& origin)
{
    const double scale = std::max(wanted, leastScale);
    // The coordinates of a survey times the scale would not fit into the numbers of the scroll
    // bars.
    const QTransform transform = QTransform::fromTranslate(-origin.x(), -origin.y())
                                 * QTransform::fromScale(scale, isMirrored ? -scale : scale);
    const auto anchor = m_view->transformationAnchor();
    const QScopedValueRollback<bool> guard(m_isMoving, true);
    m_view->setTransformationAnchor(QGraphicsView::NoAnchor);
    m_view->setTransform(transform);
    m_view->setTransformationAnchor(anchor);
}

QPointF ViewPlacer::sceneAt(const QPointF& place) const
{
    return m_view->viewportTransform().inverted().map(place);
}

QPointF ViewPlacer::middle() const
{
    return QRectF(m_view->viewport()->rect()).center();
}

void ViewPlacer::bring(const QPointF& scenePoint, const QPointF& place)
{
    const QPointF distance = m_view->viewportTransform().map(scenePoint) - place;
    const QScopedValueRollback<bool> guard(m_isMoving, true);
    scroll(*m_view->horizontalScrollBar(), distance.x());
    scroll(*m_view->verticalScrollBar(), distance.y());
}
