// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/RubberTool.h"

#include "tests/edit/RubberToolFixture.h"
#include "tests/edit/SceneEvents.h"
#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"

#include <gmock/gmock.h>

#include <QEventLoop>
#include <QGraphicsItem>
#include <QPointer>
#include <QSignalSpy>
#include <QTimer>

using namespace dxftest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

// Buttons

TEST_F(RubberToolTest, PressCollectsNothing)
{
    sendMouse(*tool, QEvent::GraphicsSceneMousePress, onFirst, Qt::LeftButton);

    EXPECT_THAT(selection(), IsEmpty());
}

TEST_F(RubberToolTest, PressOfTheLeftButtonStartsTheTimer)
{
    const QTimer* timer = findTimer();
    ASSERT_NE(timer, nullptr);

    press();

    EXPECT_TRUE(timer->isActive());
}

TEST_F(RubberToolTest, PressOfAnotherButtonDoesNotStartTheTimer)
{
    const QTimer* timer = findTimer();
    ASSERT_NE(timer, nullptr);

    press(Qt::RightButton | Qt::MiddleButton);

    EXPECT_FALSE(timer->isActive());
}

TEST_F(RubberToolTest, PressOfAnotherButtonWithTheLeftHeldStartsTheTimer)
{
    const QTimer* timer = findTimer();
    ASSERT_NE(timer, nullptr);

    press(Qt::LeftButton | Qt::RightButton);

    EXPECT_TRUE(timer->isActive());
}

TEST_F(RubberToolTest, PressOfAnotherButtonDoesNotStopTheTimer)
{
    const QTimer* timer = findTimer();
    ASSERT_NE(timer, nullptr);
    press();

    press(Qt::RightButton);

    EXPECT_TRUE(timer->isActive());
}

TEST_F(RubberToolTest, MoveWithTheLeftButtonSelectsWhatIsUnderThePointer)
{
    move(onSecond);

    EXPECT_THAT(selection(), ElementsAre(ids[1]));
}

TEST_F(RubberToolTest, MoveDoesNotStartTheTimer)
{
    const QTimer* timer = findTimer();
    ASSERT_NE(timer, nullptr);

    move(onFirst);

    EXPECT_FALSE(timer->isActive());
}

TEST_F(RubberToolTest, MovesAddUp)
{
    move(onSecond);
    move(onNothing);
    move(onFirst);

    EXPECT_THAT(selection(), ElementsAre(ids[0], ids[1]));
}

TEST_F(RubberToolTest, MoveOverNothingDeselectsWhatTheToolDidNotCollect)
{
    document->setSelected({ids[2]});

    move(onNothing);

    EXPECT_THAT(selection(), IsEmpty());
}

TEST_F(RubberToolTest, MovingTwiceOverASegmentSelectsItOnce)
{
    move(onFirst);
    move(onFirst);

    EXPECT_THAT(selection(), ElementsAre(ids[0]));
}

TEST_F(RubberToolTest, MoveWithoutTheLeftButtonStopsTheTimerAndCollectsNothing)
{
    const QTimer* timer = findTimer();
    ASSERT_NE(timer, nullptr);
    press();

    move(onFirst, Qt::RightButton);

    EXPECT_FALSE(timer->isActive());
    EXPECT_THAT(selection(), IsEmpty());
}

TEST_F(RubberToolTest, MoveWithoutTheLeftButtonKeepsWhatIsCollected)
{
    move(onFirst);

    move(onNothing, Qt::NoButton);

    EXPECT_THAT(selection(), ElementsAre(ids[0]));
    move(onSecond);
    EXPECT_THAT(selection(), ElementsAre(ids[0], ids[1]));
}

TEST_F(RubberToolTest, ReleaseAsksForDeletionAtOnce)
{
    QSignalSpy requests(tool.get(), SIGNAL(requestDelete()));
    press();

    release();

    EXPECT_EQ(requests.count(), 1);
}

TEST_F(RubberToolTest, ReleaseOfAnyButtonAsksForDeletion)
{
    QSignalSpy requests(tool.get(), SIGNAL(requestDelete()));
    press();

    for (const Qt::MouseButtons stillHeld :
         {Qt::MouseButtons(Qt::LeftButton), Qt::LeftButton | Qt::RightButton,
          Qt::MouseButtons(Qt::MiddleButton), Qt::MouseButtons(Qt::NoButton)})
        release(stillHeld);

    EXPECT_EQ(requests.count(), 4);
}

TEST_F(RubberToolTest, ReleaseStopsTheTimerBeforeItAsks)
{
    const QTimer* timer = findTimer();
    ASSERT_NE(timer, nullptr);
    bool wasActive = true;
    QObject::connect(tool.get(), &ISelectionTool::requestDelete,
                     [&] { wasActive = timer->isActive(); });
    press();

    release();

    EXPECT_FALSE(wasActive);
}

TEST_F(RubberToolTest, ReleaseWithoutPressAsksForDeletion)
{
    QSignalSpy requests(tool.get(), SIGNAL(requestDelete()));

    release();

    EXPECT_EQ(requests.count(), 1);
}

TEST_F(RubberToolTest, ReleaseForgetsWhatWasCollected)
{
    move(onFirst);
    release();

    move(onSecond);

    EXPECT_THAT(selection(), ElementsAre(ids[1]));
}

TEST_F(RubberToolTest, ClickWithoutMovementSelectsNothing)
{
    QVector<int> selectionAtRequest{-1};
    QObject::connect(tool.get(), &ISelectionTool::requestDelete,
                     [&] { selectionAtRequest = selection(); });

    sendMouse(*tool, QEvent::GraphicsSceneMousePress, onFirst, Qt::LeftButton);
    sendMouse(*tool, QEvent::GraphicsSceneMouseRelease, onFirst, Qt::NoButton);

    EXPECT_THAT(selectionAtRequest, IsEmpty());
}

TEST_F(RubberToolTest, CollectedIdsAreForgottenAfterTheRequest)
{
    bool isNested = false;
    QVector<int> selectionInside;
    QObject::connect(tool.get(), &ISelectionTool::requestDelete, [&] {
        if (std::exchange(isNested, true))
            return;
        move(onSecond);
        selectionInside = selection();
    });
    move(onFirst);

    release();
    move(onThird);

    EXPECT_THAT(selectionInside, ElementsAre(ids[0], ids[1]));
    EXPECT_THAT(selection(), ElementsAre(ids[2]));
}

TEST_F(RubberToolTest, LogsNothing)
{
    press();
    move(onFirst);
    release();

    EXPECT_THAT(takeDebugMessages(), IsEmpty());
}

// The timer

TEST_F(RubberToolTest, TimerTicksEvery50Milliseconds)
{
    const QTimer* timer = findTimer();

    ASSERT_NE(timer, nullptr);
    EXPECT_EQ(timer->interval(), 50);
    EXPECT_FALSE(timer->isSingleShot());
    EXPECT_EQ(timer->parent(), nullptr);
}

TEST_F(RubberToolTest, NewToolDoesNotTick)
{
    RubberTool other(document);
    QSignalSpy othersRequests(&other, SIGNAL(requestDelete()));
    QSignalSpy requests(tool.get(), SIGNAL(requestDelete()));
    tool->enable();

    // After two ticks of this tool, the other one would have ticked too if it ran.
    ASSERT_TRUE(eventually([&] { return requests.count() >= 2; }));

    EXPECT_THAT(othersRequests, IsEmpty());
}

TEST_F(RubberToolTest, TicksAskForDeletionWhileTheButtonIsHeld)
{
    QSignalSpy requests(tool.get(), SIGNAL(requestDelete()));
    press();

    EXPECT_TRUE(requests.wait(patienceMs));
    EXPECT_TRUE(requests.wait(patienceMs));
    EXPECT_TRUE(requests.wait(patienceMs)) << "although nothing was collected";
}

TEST_F(RubberToolTest, TickForgetsWhatWasCollected)
{
    QSignalSpy requests(tool.get(), SIGNAL(requestDelete()));
    press();
    move(onFirst);
    ASSERT_TRUE(requests.wait(patienceMs));

    move(onSecond);

    EXPECT_THAT(selection(), ElementsAre(ids[1]));
}

TEST_F(RubberToolTest, SlotAsksForDeletionAndForgets)
{
    QSignalSpy requests(tool.get(), SIGNAL(requestDelete()));
    move(onFirst);

    ASSERT_TRUE(QMetaObject::invokeMethod(tool.get(), "emitDeleteRequest", Qt::DirectConnection));

    EXPECT_EQ(requests.count(), 1);
    move(onSecond);
    EXPECT_THAT(selection(), ElementsAre(ids[1]));
}

TEST_F(RubberToolTest, SecondPressKeepsThePhaseOfTheTimer)
{
    QTimer* timer = findTimer();
    ASSERT_NE(timer, nullptr);
    press();
    const int id = timer->timerId();
    ASSERT_TRUE(eventually([&] { return timer->remainingTime() < 40; }));
    const int remaining = timer->remainingTime();

    press();

    EXPECT_TRUE(timer->isActive());
    EXPECT_LE(timer->remainingTime(), remaining);
    EXPECT_EQ(timer->timerId(), id);
}

TEST_F(RubberToolTest, EnableAndDisableAreIdempotent)
{
    QTimer* timer = findTimer();
    ASSERT_NE(timer, nullptr);

    tool->enable();
    const int id = timer->timerId();
    tool->enable();
    EXPECT_EQ(timer->timerId(), id);

    tool->disable();
    EXPECT_FALSE(timer->isActive());
    tool->disable();
    EXPECT_FALSE(timer->isActive());
}

TEST_F(RubberToolTest, DestructionStopsTheTimer)
{
    const QPointer<QTimer> timer = findTimer();
    ASSERT_NE(timer, nullptr);
    tool->enable();

    tool.reset();

    EXPECT_EQ(timer, nullptr);
}

// What a slot of the request may do

TEST_F(RubberToolTest, SlotMayDeleteTheToolAtATick)
{
    const QPointer<RubberTool> alive = tool.get();
    QObject::connect(tool.get(), &ISelectionTool::requestDelete, [&] { tool.reset(); });
    press();
    move(onFirst);

    EXPECT_TRUE(eventually([&] { return alive.isNull(); }));
}

TEST_F(RubberToolTest, SlotMayDeleteTheToolAtTheRelease)
{
    RubberTool* raw = tool.release();
    const QPointer<RubberTool> alive = raw;
    QObject::connect(raw, &ISelectionTool::requestDelete, [raw] { delete raw; });
    QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMouseRelease);

    EXPECT_TRUE(raw->handle(event));

    EXPECT_TRUE(alive.isNull());
}

TEST_F(RubberToolTest, SlotMayDeleteTheMarkerAtTheRelease)
{
    QObject::connect(tool.get(), &ISelectionTool::requestDelete, [&] { delete tool->getMarker(); });

    release();

    EXPECT_THAT(scene.items(), IsEmpty());
}

TEST_F(RubberToolTest, SlotMayRunAnEventLoopOfItsOwn)
{
    int requests = 0;
    bool sawMove = false;
    QObject::connect(tool.get(), &ISelectionTool::requestDelete, [&] {
        if (++requests > 1)
            return;
        QEventLoop dialog;
        QTimer::singleShot(0, &dialog, [&] {
            sawMove = move(onSecond);
            dialog.quit();
        });
        dialog.exec();
    });
    press();

    EXPECT_TRUE(eventually([&] { return requests >= 3; }));

    EXPECT_TRUE(sawMove);
}

} // namespace
