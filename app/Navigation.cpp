// SPDX-License-Identifier: GPL-2.0-or-later

#include "Navigation.h"

#include "Extent.h"
#include "Keys.h"
#include "QtVersions.h"

#include <QAction>
#include <QGraphicsView>
#include <QMenu>
#include <QMouseEvent>
#include <QScopedValueRollback>
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

void scroll(QScrollBar& bar, double distance)
{
    const double value = std::round(bar.value() + distance);
    bar.setValue(static_cast<int>(
        std::clamp(value, double(bar.minimum()), double(std::max(bar.minimum(), bar.maximum())))));
}

} // namespace

Navigation::Navigation(QGraphicsView& view, QObject* parent)
    : QObject(parent)
    , m_view(&view)
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
    if (!m_view)
        return;
    m_bounds = withExtent(bounds);
    m_isPanning = false;
    m_view->setSceneRect(grown(m_bounds, scrollMargin));
    fit();
}

double Navigation::zoom() const
{
    return m_view ? m_view->transform().m11() / scaleThatFits() : 1.0;
}

void Navigation::setAsStored(bool isAsStored)
{
    if (m_isAsStored == isAsStored || !m_view)
        return;
    m_isAsStored = isAsStored;
    m_asStored->setChecked(isAsStored);
    const QPointF center = QRectF(m_view->viewport()->rect()).center();
    const QPointF scenePoint = sceneAt(center);
    setScale(m_view->transform().m11());
    bring(scenePoint, center);
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
    if (!m_view)
        return;
    setScale(scaleThatFits());
    bring(m_bounds.center(), QRectF(m_view->viewport()->rect()).center());
    m_isFitted = true;
    Q_EMIT zoomChanged();
}

bool Navigation::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Resize:
        // The view does not have the new size yet.
        if (m_isFitted)
            QMetaObject::invokeMethod(this, &Navigation::fit, Qt::QueuedConnection);
        else
            Q_EMIT zoomChanged();
        break;
    case QEvent::Wheel:
        return takeWheel(static_cast<const QWheelEvent&>(*event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return takeMouse(static_cast<const QMouseEvent&>(*event));
    default:
        break;
    }
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

/// Pans with the middle button, and leaves all other buttons to the view.
bool Navigation::takeMouse(const QMouseEvent& event)
{
    const QPoint place = placeOf(event);
    if (event.type() == QEvent::MouseMove) {
        if (!event.buttons().testFlag(Qt::MiddleButton))
            m_isPanning = false;
        if (!m_isPanning)
            return false;
        scrollBy(m_panPlace - place);
        m_isFitted = false;
        m_panPlace = place;
        return true;
    }
    if (event.button() != Qt::MiddleButton)
        return false;
    // If a second button is pressed during a stroke of the eraser, neither this class nor the
    // eraser takes it.
    m_isPanning = event.type() != QEvent::MouseButtonRelease && event.buttons() == Qt::MiddleButton;
    m_panPlace = place;
    return true;
}

/// Any other scrolling comes from the user, who wants to see that part.
void Navigation::noteScroll()
{
    if (!m_isMoving)
        m_isFitted = false;
}

void Navigation::zoomAtCenter(double factor)
{
    if (m_view)
        zoomAt(QRectF(m_view->viewport()->rect()).center(), factor);
}

/// Zooms, and keeps the point at this place of the window where it is.
void Navigation::zoomAt(const QPointF& place, double factor)
{
    if (!m_view)
        return;
    const QPointF scenePoint = sceneAt(place);
    const double fitting = scaleThatFits();
    const double most = mostPixels / std::max(m_bounds.width(), m_bounds.height());
    const double wanted = m_view->transform().m11() * factor;
    setScale(std::clamp(wanted, leastZoom * fitting, std::max(most, fitting)));
    bring(scenePoint, place);
    m_isFitted = false;
    Q_EMIT zoomChanged();
}

void Navigation::setScale(double wanted)
{
    const double scale = std::max(wanted, leastScale);
    // The drawing's middle becomes the origin: the coordinates of a survey times the scale would
    // not fit into the numbers of the scroll bars.
    const QPointF center = m_bounds.center();
    const QTransform transform = QTransform::fromTranslate(-center.x(), -center.y())
                                 * QTransform::fromScale(scale, m_isAsStored ? scale : -scale);
    const auto anchor = m_view->transformationAnchor();
    const QScopedValueRollback<bool> guard(m_isMoving, true);
    m_view->setTransformationAnchor(QGraphicsView::NoAnchor);
    m_view->setTransform(transform);
    m_view->setTransformationAnchor(anchor);
}

double Navigation::scaleThatFits() const
{
    const QRectF wanted = grown(m_bounds, fitMargin);
    const QSize size = m_view->viewport()->size();
    return std::max({std::min(size.width() / wanted.width(), size.height() / wanted.height()),
                     1.0 / std::max(wanted.width(), wanted.height())});
}

/// More exact than the view's own mapping, which uses whole pixels only.
QPointF Navigation::sceneAt(const QPointF& place) const
{
    return m_view->viewportTransform().inverted().map(place);
}

void Navigation::bring(const QPointF& scenePoint, const QPointF& place)
{
    scrollBy(m_view->viewportTransform().map(scenePoint) - place);
}

void Navigation::scrollBy(const QPointF& distance)
{
    const QScopedValueRollback<bool> guard(m_isMoving, true);
    scroll(*m_view->horizontalScrollBar(), distance.x());
    scroll(*m_view->verticalScrollBar(), distance.y());
}
