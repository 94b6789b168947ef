// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/viewer/View.h"

#include <QDebug>
#include <QGraphicsScene>
#include <QKeyEvent>
#include <QPointer>
#include <QScrollBar>
#include <QWheelEvent>

#include <cmath>
#include <limits>

namespace
{

// The zoom level at which a drawing unit is a device-independent pixel.
constexpr double unitScaleLevel = 250.0;
constexpr double levelStep = 10.0;
constexpr double exponentPerLevel = 0.02;
// 50 / ln 2: fifty levels double the scale.
constexpr double levelsPerLogScale = 72.13475204444816;

constexpr int backgroundDarkening = 200;

// The style of a scroll bar divides, in 32 bits, by range plus page and by twice the range. These
// are the widest sum that is not zero there, the range whose double is zero there, and the largest
// page of a widget.
constexpr qint64 widestScroll = std::numeric_limits<quint32>::max();
constexpr qint64 unpaintableRange = qint64(std::numeric_limits<int>::max()) + 1;
constexpr qint64 largestPagePx = QWIDGETSIZE_MAX;

double levelOf(const QTransform& transform)
{
    const QRectF unit = transform.mapRect(QRectF(0, 0, 1, 1));
    if (unit.width() <= 0.0 || unit.height() <= 0.0)
        return unitScaleLevel;
    return unitScaleLevel + levelsPerLogScale * std::log(unit.width());
}

double scaleOf(double level)
{
    return std::pow(2.0, (level - unitScaleLevel) * exponentPerLevel);
}

/// How far the wheel was turned along the axis with the larger turn, the vertical one if both are
/// equal.
int mainDelta(const QWheelEvent& event)
{
    const QPoint delta = event.angleDelta();
    return std::abs(qint64(delta.x())) > std::abs(qint64(delta.y())) ? delta.x() : delta.y();
}

/// Keeps a scroll bar from ranges that its style cannot paint. A drawing at a very large scale is
/// wider than an int can say, and the style's sums then become zero.
void repairRange(QScrollBar& bar)
{
    const qint64 range = qint64(bar.maximum()) - bar.minimum();
    const qint64 excess = range - (widestScroll - largestPagePx);
    if (excess > 0) {
        const int cut = static_cast<int>((excess + 1) / 2);
        bar.setRange(bar.minimum() + cut, bar.maximum() - cut);
    } else if (range == unpaintableRange) {
        bar.setMaximum(bar.maximum() - 1);
    }
}

} // namespace

View::View(QWidget* parent)
    : QGraphicsView(parent)
{
    setScene(new QGraphicsScene(this));
    setTransformationAnchor(QGraphicsView::AnchorUnderMouse);
    setBackgroundBrush(
        QBrush(QColor(QStringLiteral("steelblue")).darker(backgroundDarkening), Qt::SolidPattern));
    setAttribute(Qt::WA_MouseTracking);
    setInteractive(true);
    for (QScrollBar* bar : {horizontalScrollBar(), verticalScrollBar()})
        connect(bar, &QScrollBar::rangeChanged, bar, [bar] { repairRange(*bar); });
}

View::~View() = default;

void View::zoomCalc(int scaleIncrement)
{
    if (qFuzzyCompare(m_zoomLevel, 0.0)) {
        // A message handler may destroy the view.
        const QPointer<View> self(this);
        qDebug("we need to calculate scale factor");
        if (!self)
            return;
        m_zoomLevel = levelOf(transform());
    }
    m_zoomLevel += scaleIncrement > 0 ? levelStep : -levelStep;
    const double scale = scaleOf(m_zoomLevel);
    setTransform(QTransform::fromScale(scale, scale), false);
}

void View::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        zoomCalc(mainDelta(*event));
        event->accept();
    } else {
        QGraphicsView::wheelEvent(event);
    }
}

void View::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Control) {
        setDragMode(QGraphicsView::ScrollHandDrag);
        event->accept();
    } else {
        QGraphicsView::keyPressEvent(event);
    }
}

void View::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Control) {
        setDragMode(QGraphicsView::NoDrag);
        event->accept();
    } else {
        QGraphicsView::keyReleaseEvent(event);
    }
}
