// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/support/SceneMouse.h"

#include <QApplication>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QPoint>
#include <QPointF>
#include <QWheelEvent>

namespace dxftest
{

SceneMouse::SceneMouse(QGraphicsView& view)
    : m_view(view)
{
}

void SceneMouse::press(const QPointF& scenePoint, Qt::MouseButton button)
{
    m_held |= button;
    send(QEvent::MouseButtonPress, scenePoint, button);
}

void SceneMouse::doubleClick(const QPointF& scenePoint, Qt::MouseButton button)
{
    press(scenePoint, button);
    release(scenePoint, button);
    m_held |= button;
    send(QEvent::MouseButtonDblClick, scenePoint, button);
    release(scenePoint, button);
}

void SceneMouse::move(const QPointF& scenePoint)
{
    send(QEvent::MouseMove, scenePoint, Qt::NoButton);
}

void SceneMouse::release(const QPointF& scenePoint, Qt::MouseButton button)
{
    m_held &= ~Qt::MouseButtons(button);
    send(QEvent::MouseButtonRelease, scenePoint, button);
}

void SceneMouse::drag(const QVector<QPointF>& scenePoints, Qt::MouseButton button)
{
    press(scenePoints.first(), button);
    for (const QPointF& point : scenePoints.mid(1))
        move(point);
    release(scenePoints.last(), button);
}

void SceneMouse::wheel(const QPointF& scenePoint, int angle)
{
    const QPoint position = m_view.mapFromScene(scenePoint);
    QWheelEvent event(position, m_view.viewport()->mapToGlobal(position), QPoint(),
                      QPoint(0, angle), m_held, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_view.viewport(), &event);
}

void SceneMouse::send(QEvent::Type type, const QPointF& scenePoint, Qt::MouseButton button)
{
    QWidget* viewport = m_view.viewport();
    const QPoint position = m_view.mapFromScene(scenePoint);
    const QPoint inWindow = viewport->mapTo(viewport->window(), position);
    QMouseEvent event(type, position, inWindow, viewport->mapToGlobal(position), button, m_held,
                      modifiers);
    QApplication::sendEvent(viewport, &event);
}

} // namespace dxftest
