// SPDX-License-Identifier: GPL-2.0-or-later

#include "MiddleButtonPan.h"

#include "QtVersions.h"

#include <QGraphicsView>
#include <QMouseEvent>
#include <QScrollBar>

MiddleButtonPan::MiddleButtonPan(QGraphicsView& view, QObject* parent)
    : QObject(parent)
    , m_view(&view)
{
    view.viewport()->installEventFilter(this);
}

MiddleButtonPan::~MiddleButtonPan() = default;

bool MiddleButtonPan::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
        return takeButton(static_cast<const QMouseEvent&>(*event));
    case QEvent::MouseMove:
        return takeMove(static_cast<const QMouseEvent&>(*event));
    default:
        return QObject::eventFilter(watched, event);
    }
}

bool MiddleButtonPan::takeButton(const QMouseEvent& event)
{
    if (event.button() != Qt::MiddleButton)
        return false;
    // If a second button is pressed during a stroke of the eraser, neither this class nor the
    // eraser takes it.
    m_isPanning = event.type() != QEvent::MouseButtonRelease && event.buttons() == Qt::MiddleButton;
    m_place = placeOf(event);
    return true;
}

bool MiddleButtonPan::takeMove(const QMouseEvent& event)
{
    // The release may have gone to another window.
    if (!event.buttons().testFlag(Qt::MiddleButton))
        m_isPanning = false;
    if (!m_isPanning || !m_view)
        return false;
    const QPoint distance = m_place - placeOf(event);
    m_place = placeOf(event);
    for (const auto& [bar, pixels] : {std::pair(m_view->horizontalScrollBar(), distance.x()),
                                      std::pair(m_view->verticalScrollBar(), distance.y())})
        bar->setValue(bar->value() + pixels);
    return true;
}
