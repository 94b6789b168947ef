// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QEvent>
#include <QVector>
#include <Qt>

class QGraphicsView;
class QPointF;

namespace dxftest
{

/**
 * A mouse over a graphics view, which is moved in scene coordinates.
 *
 * Its events go to the view's viewport, as those of a real one do. The buttons that are held are
 * remembered, so that moves carry them. Moves without any reach the view only if its viewport
 * tracks the mouse.
 */
class SceneMouse
{
public:
    explicit SceneMouse(QGraphicsView& view);

    void press(const QPointF& scenePoint, Qt::MouseButton button = Qt::LeftButton);
    void doubleClick(const QPointF& scenePoint, Qt::MouseButton button = Qt::LeftButton);
    void move(const QPointF& scenePoint);
    void release(const QPointF& scenePoint, Qt::MouseButton button = Qt::LeftButton);

    /// Press at the first point, moves to the others, release at the last.
    void drag(const QVector<QPointF>& scenePoints, Qt::MouseButton button = Qt::LeftButton);

    /// Turns the wheel; 120 is one notch away from the user.
    void wheel(const QPointF& scenePoint, int angle);

    Qt::KeyboardModifiers modifiers = Qt::NoModifier;

private:
    void send(QEvent::Type type, const QPointF& scenePoint, Qt::MouseButton button);

    QGraphicsView& m_view;
    Qt::MouseButtons m_held = Qt::NoButton;
};

} // namespace dxftest
