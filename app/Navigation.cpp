// SPDX-License-Identifier: GPL-2.0-or-later

#include "Navigation.h"

#include "Extent.h"
#include "Keys.h"

#include <QAction>
#include <QGraphicsView>
#include <QMenu>
#include <QPointF>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace
{

// Shares of the drawing's longer side, added on each side.
constexpr double fitMargin = 0.03;
constexpr double scrollMargin = 1.0;

constexpr double keyFactor = 1.25;
constexpr double wheelNotch = 120.0;
constexpr double doublingsPerNotch = 0.2;

// Scroll bars count pixels in 32 bits.
constexpr double mostPixels = 2e8;
constexpr double leastZoom = 0.05;

} // namespace

Navigation::Navigation(QGraphicsView& view, QObject* parent)
    : QObject(parent)
    , m_placer(view)
    , m_pan(view)
    , m_asStored(new QAction(tr("As &Stored (y Downwards)"), this))
    , m_bounds(withExtent(QRectF()))
{
    // A scroll bar that comes and goes would change the size of the viewport.
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    view.viewport()->installEventFilter(this);
    for (QScrollBar* bar : {view.horizontalScrollBar(), view.verticalScrollBar()})
        connect(bar, &QScrollBar::valueChanged, this, &Navigation::noteScroll);
    m_asStored->setCheckable(true);
    connect(m_asStored, &QAction::toggled, this, &Navigation::setAsStored);
}

Navigation::~Navigation() = default;

void Navigation::addActionsTo(QMenu& menu)
{
    QAction* in = menu.addAction(tr("Zoom &In"), this, &Navigation::zoomIn);
    // On keyboards where plus needs Shift, the user presses the key of the equals sign.
    in->setShortcuts(
        keysOf({QStringLiteral("Ctrl++"), QStringLiteral("Ctrl+=")}, {QKeySequence::ZoomIn}));
    QAction* out = menu.addAction(tr("Zoom &Out"), this, &Navigation::zoomOut);
    out->setShortcuts(keysOf({QStringLiteral("Ctrl+-")}, {QKeySequence::ZoomOut}));
    QAction* fitted = menu.addAction(tr("&Fit in Window"), this, &Navigation::fit);
    fitted->setShortcut(QKeySequence::fromString(QStringLiteral("Ctrl+0")));
    menu.addSeparator();
    menu.addAction(m_asStored);
}

void Navigation::showDrawing(const QRectF& bounds)
{
    if (!m_placer.view())
        return;
    m_bounds = withExtent(bounds);
    m_placer.view()->setSceneRect(grown(m_bounds, scrollMargin));
    fit();
}

double Navigation::zoom() const
{
    return m_placer.view() ? m_placer.scale() / scaleThatFits() : 1.0;
}

void Navigation::setAsStored(bool isAsStored)
{
    if (m_isAsStored == isAsStored || !m_placer.view())
        return;
    m_isAsStored = isAsStored;
    m_asStored->setChecked(isAsStored);
    const QPointF center = m_placer.middle();
    const QPointF scenePoint = m_placer.sceneAt(center);
    setScale(m_placer.scale());
    m_placer.bring(scenePoint, center);
    Q_EMIT asStoredChanged(isAsStored);
}

void Navigation::zoomIn()
{
    zoomAtCenter(keyFactor);
}

void Navigation::zoomOut()
{
    zoomAtCenter(1.0 / keyFactor);
}

void Navigation::fit()
{
    if (!m_placer.view())
        return;
    setScale(scaleThatFits());
    m_placer.bring(m_bounds.center(), m_placer.middle());
    m_isFitted = true;
    Q_EMIT zoomChanged();
}

bool Navigation::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Wheel)
        return takeWheel(static_cast<const QWheelEvent&>(*event));
    // The view does not have the new size yet.
    if (event->type() == QEvent::Resize && m_isFitted)
        QMetaObject::invokeMethod(this, &Navigation::fit, Qt::QueuedConnection);
    else if (event->type() == QEvent::Resize)
        Q_EMIT zoomChanged();
    return QObject::eventFilter(watched, event);
}

bool Navigation::takeWheel(const QWheelEvent& event)
{
    if (!event.modifiers().testFlag(Qt::ControlModifier))
        return false;
    const QPoint turn = event.angleDelta();
    const double notches = (turn.y() != 0 ? turn.y() : turn.x()) / wheelNotch;
    zoomAt(event.position(), std::exp2(notches * doublingsPerNotch));
    return true;
}

/// Any other scrolling comes from the user, who wants to see that part.
void Navigation::noteScroll()
{
    if (!m_placer.isMoving())
        m_isFitted = false;
}

void Navigation::zoomAtCenter(double factor)
{
    if (m_placer.view())
        zoomAt(m_placer.middle(), factor);
}

/// Zooms, and keeps the point at this place of the window where it is.
void Navigation::zoomAt(const QPointF& place, double factor)
{
    if (!m_placer.view())
        return;
    const QPointF scenePoint = m_placer.sceneAt(place);
    const double fitting = scaleThatFits();
    const double most = mostPixels / std::max(m_bounds.width(), m_bounds.height());
    const double wanted = m_placer.scale() * factor;
    setScale(std::clamp(wanted, leastZoom * fitting, std::max(most, fitting)));
    m_placer.bring(scenePoint, place);
    m_isFitted = false;
    Q_EMIT zoomChanged();
}

void Navigation::setScale(double wanted)
{
    m_placer.setScale(wanted, !m_isAsStored, m_bounds.center());
}

double Navigation::scaleThatFits() const
{
    const QRectF wanted = grown(m_bounds, fitMargin);
    const QSize size = m_placer.view()->viewport()->size();
    return std::max({std::min(size.width() / wanted.width(), size.height() / wanted.height()),
                     1.0 / std::max(wanted.width(), wanted.height())});
}
