// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/support/SceneMouse.h"

#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"

#include <gmock/gmock.h>

#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsSceneWheelEvent>
#include <QGraphicsView>
#include <QTest>

using namespace dxftest;
using ::testing::ElementsAre;

namespace
{

class RecordingScene : public QGraphicsScene
{
public:
    using QGraphicsScene::QGraphicsScene;

    QVector<QEvent::Type> types;
    QVector<QPointF> positions;
    QVector<Qt::MouseButtons> buttons;
    int wheelAngle = 0;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override { record(*event); }
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override { record(*event); }
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override { record(*event); }
    void wheelEvent(QGraphicsSceneWheelEvent* event) override { wheelAngle += event->delta(); }

private:
    void record(const QGraphicsSceneMouseEvent& event)
    {
        types.append(event.type());
        positions.append(event.scenePos());
        buttons.append(event.buttons());
    }
};

class SceneMouseTest : public LoggedTest
{
protected:
    SceneMouseTest()
    {
        view.scale(2, 2);
        view.show();
    }

    RecordingScene scene{QRectF(0, 0, 100, 100)};
    QGraphicsView view{&scene};
    SceneMouse mouse{view};
};

TEST_F(SceneMouseTest, DragPressesMovesAndReleasesAtTheScenePoints)
{
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view, patienceMs));

    mouse.drag({QPointF(10, 20), QPointF(30, 40), QPointF(50, 60)});

    EXPECT_THAT(scene.types,
                ElementsAre(QEvent::GraphicsSceneMousePress, QEvent::GraphicsSceneMouseMove,
                            QEvent::GraphicsSceneMouseMove, QEvent::GraphicsSceneMouseRelease));
    EXPECT_THAT(scene.positions,
                ElementsAre(QPointF(10, 20), QPointF(30, 40), QPointF(50, 60), QPointF(50, 60)));
}

TEST_F(SceneMouseTest, MovesCarryTheHeldButtons)
{
    view.viewport()->setMouseTracking(true);

    mouse.press(QPointF(1, 1), Qt::RightButton);
    mouse.move(QPointF(2, 2));
    mouse.release(QPointF(2, 2), Qt::RightButton);
    mouse.move(QPointF(3, 3));

    EXPECT_THAT(scene.buttons,
                ElementsAre(Qt::MouseButtons(Qt::RightButton), Qt::MouseButtons(Qt::RightButton),
                            Qt::MouseButtons(Qt::NoButton), Qt::MouseButtons(Qt::NoButton)));
}

TEST_F(SceneMouseTest, WheelReachesTheScene)
{
    mouse.wheel(QPointF(10, 10), -120);

    EXPECT_EQ(scene.wheelAngle, -120);
}

} // namespace
