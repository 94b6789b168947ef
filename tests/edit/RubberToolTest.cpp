// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/RubberTool.h"

#include "tests/edit/SceneEvents.h"
#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/OtherEntity.h"
#include "tests/support/Patience.h"

#include <gmock/gmock.h>

#include <QEventLoop>
#include <QGraphicsEllipseItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMetaMethod>
#include <QPen>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <cmath>
#include <limits>
#include <memory>
#include <random>

using namespace dxftest;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

namespace
{

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

/// Notes the timer of whose ticks it sees events.
class TimerWatch : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Timer) {
            if (auto* ticking = qobject_cast<QTimer*>(watched))
                timer = ticking;
        }
        return false;
    }

    QPointer<QTimer> timer;
};

/// A tool whose marker is in the scene of a view, over three segments far from each other.
class RubberToolTest : public LoggedTest
{
protected:
    RubberToolTest()
        : document(makeDocument({
            makePolyline({{0, 0}, {100, 0}}),
            makePolyline({{0, 1000}, {100, 1000}}),
            makePolyline({{0, 2000}, {100, 2000}}),
        }))
        , view(&scene)
        , tool(std::make_unique<RubberTool>(document))
    {
        document->setup();
        scene.addItem(tool->getMarker());
        ids = segmentIdsOf(document);
    }

    bool press(Qt::MouseButtons held = Qt::LeftButton)
    {
        return sendMouse(*tool, QEvent::GraphicsSceneMousePress, {}, held);
    }
    bool move(const QPointF& pos, Qt::MouseButtons held = Qt::LeftButton)
    {
        return sendMouse(*tool, QEvent::GraphicsSceneMouseMove, pos, held);
    }
    bool release(Qt::MouseButtons stillHeld = Qt::NoButton)
    {
        return sendMouse(*tool, QEvent::GraphicsSceneMouseRelease, {}, stillHeld);
    }

    /// The tool's timer, stopped.
    QTimer* findTimer()
    {
        TimerWatch watch;
        QSignalSpy requests(tool.get(), SIGNAL(requestDelete()));
        qApp->installEventFilter(&watch);
        tool->enable();
        requests.wait(patienceMs);
        tool->disable();
        return watch.timer;
    }

    QVector<int> selection() const { return document->selectedIDs(); }

    const QPointF onFirst = QPointF(50, 1);
    const QPointF onSecond = QPointF(50, 1001);
    const QPointF onThird = QPointF(50, 2001);
    const QPointF onNothing = QPointF(50, 500);

    QSharedPointer<DXFDocument> document;
    QGraphicsScene scene;
    QGraphicsView view;
    std::unique_ptr<RubberTool> tool;
    QVector<int> ids;
};

// What the tool is

TEST_F(RubberToolTest, InterfaceHasOneSignalAndNothingElse)
{
    const QMetaObject& meta = ISelectionTool::staticMetaObject;

    EXPECT_STREQ(meta.className(), "ISelectionTool");
    EXPECT_STREQ(meta.superClass()->className(), "QObject");
    ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 1);
    EXPECT_EQ(meta.method(meta.methodOffset()).methodSignature(), "requestDelete()");
    EXPECT_EQ(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
    EXPECT_EQ(meta.propertyCount() - meta.propertyOffset(), 0);
}

TEST_F(RubberToolTest, EraserHasOnePrivateSlotAndNothingElse)
{
    const QMetaObject& meta = *tool->metaObject();

    EXPECT_STREQ(meta.className(), "RubberTool");
    EXPECT_EQ(meta.superClass(), &ISelectionTool::staticMetaObject);
    ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod slot = meta.method(meta.methodOffset());
    EXPECT_EQ(slot.methodSignature(), "emitDeleteRequest()");
    EXPECT_EQ(slot.methodType(), QMetaMethod::Slot);
    EXPECT_EQ(slot.access(), QMetaMethod::Private);
    EXPECT_EQ(meta.propertyCount() - meta.propertyOffset(), 0);
}

TEST_F(RubberToolTest, HasNoParent)
{
    EXPECT_EQ(tool->parent(), nullptr);
}

TEST_F(RubberToolTest, SharesTheDocument)
{
    const QWeakPointer<DXFDocument> weak = document;
    document.reset();
    EXPECT_FALSE(weak.isNull());

    tool.reset();

    EXPECT_TRUE(weak.isNull());
}

// The marker

TEST_F(RubberToolTest, MarkerIsARedDiscOfRadiusFive)
{
    RubberTool other(document);
    const std::unique_ptr<QGraphicsItem> item(other.getMarker());

    const auto* disc = dynamic_cast<QGraphicsEllipseItem*>(item.get());

    ASSERT_NE(disc, nullptr);
    EXPECT_EQ(disc->type(), int(QGraphicsEllipseItem::Type));
    EXPECT_EQ(disc->rect(), QRectF(-5, -5, 10, 10));
    EXPECT_EQ(disc->startAngle(), 0);
    EXPECT_EQ(disc->spanAngle(), 360 * 16);
    EXPECT_EQ(disc->brush(), QBrush(Qt::red, Qt::SolidPattern));
    EXPECT_EQ(disc->pen(), QGraphicsEllipseItem().pen());
    EXPECT_EQ(disc->zValue(), 0.0);
    EXPECT_EQ(disc->pos(), QPointF(0, 0));
}

TEST_F(RubberToolTest, MarkerKeepsItsSizeAtEveryZoom)
{
    EXPECT_EQ(tool->getMarker()->flags(), QGraphicsItem::ItemIgnoresTransformations);
}

TEST_F(RubberToolTest, NewMarkerBelongsToNobody)
{
    RubberTool other(document);

    const std::unique_ptr<QGraphicsItem> marker(other.getMarker());

    EXPECT_EQ(marker->parentItem(), nullptr);
    EXPECT_EQ(marker->scene(), nullptr);
}

TEST_F(RubberToolTest, MarkerIsMadeOnce)
{
    EXPECT_EQ(tool->getMarker(), tool->getMarker());
}

TEST_F(RubberToolTest, MarkerOutlivesTheTool)
{
    QGraphicsItem* marker = tool->getMarker();

    tool.reset();

    EXPECT_THAT(scene.items(), ElementsAre(marker));
}

TEST_F(RubberToolTest, ToolOutlivesTheMarker)
{
    delete tool->getMarker();

    EXPECT_EQ(tool->getViewScaleFactor(), 0.0);
    EXPECT_TRUE(press());
    EXPECT_TRUE(move(onFirst));
    EXPECT_TRUE(sendHover(*tool, QEvent::GraphicsSceneHoverMove, {1, 2}));
    EXPECT_TRUE(release());
}

TEST_F(RubberToolTest, EventsBeforeTheMarkerIsMadeAreTaken)
{
    RubberTool other(document);

    EXPECT_TRUE(sendHover(other, QEvent::GraphicsSceneHoverMove, {1, 2}));
    EXPECT_TRUE(sendMouse(other, QEvent::GraphicsSceneMouseRelease, {1, 2}, Qt::NoButton));
}

class MarkerMoveTest : public RubberToolTest, public ::testing::WithParamInterface<QEvent::Type>
{
protected:
    bool send(QEvent::Type type, const QPointF& pos)
    {
        return isHover(type) ? sendHover(*tool, type, pos)
                             : sendMouse(*tool, type, pos, Qt::NoButton);
    }
};

TEST_P(MarkerMoveTest, MarkerFollowsThePointer)
{
    EXPECT_TRUE(send(GetParam(), {12.5, -7.25}));

    EXPECT_EQ(tool->getMarker()->pos(), QPointF(12.5, -7.25));
}

INSTANTIATE_TEST_SUITE_P(
    Events, MarkerMoveTest,
    ::testing::Values(QEvent::GraphicsSceneMouseMove, QEvent::GraphicsSceneMousePress,
                      QEvent::GraphicsSceneMouseRelease, QEvent::GraphicsSceneHoverEnter,
                      QEvent::GraphicsSceneHoverMove, QEvent::GraphicsSceneHoverLeave),
    eventName);

TEST_F(RubberToolTest, MarkerFollowsAfterTheButtonsAreHandled)
{
    tool->getMarker()->setPos(1, 1);
    QPointF posAtRequest;
    QObject::connect(tool.get(), &ISelectionTool::requestDelete,
                     [&] { posAtRequest = tool->getMarker()->pos(); });

    sendMouse(*tool, QEvent::GraphicsSceneMouseRelease, {30, 40}, Qt::NoButton);

    EXPECT_EQ(posAtRequest, QPointF(1, 1));
    EXPECT_EQ(tool->getMarker()->pos(), QPointF(30, 40));
}

TEST_F(RubberToolTest, HandlingTheButtonsAloneDoesNotMoveTheMarker)
{
    QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMouseMove);
    event.setPos(onFirst);
    event.setButtons(Qt::LeftButton);

    tool->handleMouseEvent(event);

    EXPECT_EQ(tool->getMarker()->pos(), QPointF(0, 0));
    EXPECT_THAT(selection(), ElementsAre(ids[0]));
}

// Events that mean nothing

TEST_F(RubberToolTest, DoubleClickNeitherMovesTheMarkerNorCollects)
{
    QSignalSpy requests(tool.get(), SIGNAL(requestDelete()));

    EXPECT_TRUE(sendMouse(*tool, QEvent::GraphicsSceneMouseDoubleClick, onFirst, Qt::LeftButton));

    EXPECT_EQ(tool->getMarker()->pos(), QPointF(0, 0));
    EXPECT_THAT(selection(), IsEmpty());
    EXPECT_THAT(requests, IsEmpty());
}

TEST_F(RubberToolTest, DoubleClickDoesNotStartTheTimer)
{
    const QTimer* timer = findTimer();
    ASSERT_NE(timer, nullptr);

    sendMouse(*tool, QEvent::GraphicsSceneMouseDoubleClick, onFirst, Qt::LeftButton);

    EXPECT_FALSE(timer->isActive());
}

TEST_F(RubberToolTest, DoubleClickHandedToTheButtonsMeansNothing)
{
    QSignalSpy requests(tool.get(), SIGNAL(requestDelete()));
    QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMouseDoubleClick);
    event.setPos(onFirst);
    event.setButtons(Qt::LeftButton);

    tool->handleMouseEvent(event);

    EXPECT_THAT(selection(), IsEmpty());
    EXPECT_THAT(requests, IsEmpty());
}

TEST_F(RubberToolTest, OtherEventsAreTakenAndMeanNothing)
{
    QSignalSpy requests(tool.get(), SIGNAL(requestDelete()));

    for (int type : {0, 6, 7, 8, 9, 154, 159, 161 + 2, 164, 168, 1000, 2000}) {
        QEvent event{QEvent::Type(type)};
        EXPECT_TRUE(tool->handle(event)) << type;
    }

    EXPECT_EQ(tool->getMarker()->pos(), QPointF(0, 0));
    EXPECT_THAT(requests, IsEmpty());
}

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

    release(Qt::LeftButton);

    EXPECT_EQ(requests.count(), 1);
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

TEST_F(RubberToolTest, CollectedIdsAreForgottenAfterTheRequestNotBefore)
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

// Pacing

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

    // Two ticks of a running tool leave a tool that was running as well no excuse.
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

// Whoever is asked may do anything

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

// The scale

TEST_F(RubberToolTest, ScaleIsTheHorizontalOneOfTheView)
{
    view.setTransform(QTransform::fromScale(2, 8));

    EXPECT_EQ(tool->getViewScaleFactor(), 2.0);
}

TEST_F(RubberToolTest, ScaleDisregardsRotation)
{
    view.setTransform(QTransform(0.5, 3, -3, 0.5, 0, 0));

    EXPECT_EQ(tool->getViewScaleFactor(), 0.5);
}

TEST_F(RubberToolTest, ScaleIsThatOfTheFirstView)
{
    QGraphicsView second(&scene);
    view.setTransform(QTransform::fromScale(3, 3));
    second.setTransform(QTransform::fromScale(7, 7));

    EXPECT_EQ(tool->getViewScaleFactor(), view.transform().m11());
}

TEST_F(RubberToolTest, ScaleWithoutAMarkerIsZero)
{
    EXPECT_EQ(RubberTool(document).getViewScaleFactor(), 0.0);
}

TEST_F(RubberToolTest, ScaleOfAMarkerOutsideAnySceneIsZero)
{
    const std::unique_ptr<QGraphicsItem> marker(tool->getMarker());
    scene.removeItem(marker.get());

    EXPECT_EQ(tool->getViewScaleFactor(), 0.0);
}

TEST_F(RubberToolTest, ScaleWithoutAViewIsZero)
{
    view.setScene(nullptr);

    EXPECT_EQ(tool->getViewScaleFactor(), 0.0);
}

// The hit test

TEST_F(RubberToolTest, FindsSegmentsNearerThanTheRadius)
{
    EXPECT_THAT(tool->itemsUnderMouse({50, 4.999}), ElementsAre(ids[0]));
    EXPECT_THAT(tool->itemsUnderMouse({50, 5.001}), IsEmpty());
}

TEST_F(RubberToolTest, SegmentAtTheRadiusIsNotTaken)
{
    EXPECT_THAT(tool->itemsUnderMouse({50, 5}), IsEmpty());
    EXPECT_THAT(tool->itemsUnderMouse({50, std::nextafter(5.0, 0.0)}), ElementsAre(ids[0]));
    EXPECT_THAT(tool->itemsUnderMouse({103, 4}), IsEmpty());
}

TEST_F(RubberToolTest, RadiusIsFiveDevicePixelsWhenZoomedIn)
{
    view.setTransform(QTransform::fromScale(2, 2));

    EXPECT_THAT(tool->itemsUnderMouse({50, 2.499}), ElementsAre(ids[0]));
    EXPECT_THAT(tool->itemsUnderMouse({50, 2.5}), IsEmpty());
}

TEST_F(RubberToolTest, RadiusIsFiveDevicePixelsWhenZoomedOut)
{
    view.setTransform(QTransform::fromScale(0.5, 0.5));

    EXPECT_THAT(tool->itemsUnderMouse({50, 9.999}), ElementsAre(ids[0]));
    EXPECT_THAT(tool->itemsUnderMouse({50, 10}), IsEmpty());
}

TEST_F(RubberToolTest, MirroredViewHasNoRadius)
{
    view.setTransform(QTransform::fromScale(-1, 1));

    EXPECT_THAT(tool->itemsUnderMouse({50, 0}), IsEmpty());
}

TEST_F(RubberToolTest, WithoutAViewEverythingIsUnderTheEraser)
{
    view.setScene(nullptr);

    EXPECT_THAT(tool->itemsUnderMouse({1e6, 1e6}), ElementsAreArray(ids));
    move({1e6, 1e6});
    EXPECT_THAT(selection(), ElementsAreArray(ids));
}

TEST_F(RubberToolTest, FindsSegmentsOfAPolylineInTheirOrder)
{
    auto star = makePolyline({{500, 0}, {500, 1}, {600, 1}, {500, 2}, {500, 3}, {500, 90}});
    star->setup();
    document->addEntity(star);
    const QVector<int> starIds = segmentIdsOf(*star);

    EXPECT_THAT(tool->itemsUnderMouse({500, 1.5}), ElementsAreArray(starIds));
    EXPECT_THAT(tool->itemsUnderMouse({560, 1.2}), ElementsAre(starIds[1], starIds[2]));
    EXPECT_THAT(tool->itemsUnderMouse({500, 60}), ElementsAre(starIds[4]));
}

TEST_F(RubberToolTest, FindsPolylinesInTheOrderOfTheDocument)
{
    const auto first = document->entities().first();
    document->deleteEntity(first);
    document->addEntity(first);
    view.setScene(nullptr);

    EXPECT_THAT(tool->itemsUnderMouse({}), ElementsAre(ids[1], ids[2], ids[0]));
}

TEST_F(RubberToolTest, PolylineListedTwiceIsFoundTwice)
{
    document->addEntity(document->entities().first());

    EXPECT_THAT(tool->itemsUnderMouse(onFirst), ElementsAre(ids[0], ids[0]));
}

TEST_F(RubberToolTest, HitTestSelectsNothing)
{
    tool->itemsUnderMouse(onFirst);

    EXPECT_THAT(selection(), IsEmpty());
}

TEST_F(RubberToolTest, PassesByNullAndForeignEntities)
{
    auto mixed = makeDocument({nullptr, QSharedPointer<OtherEntity>::create(-1),
                               QSharedPointer<OtherEntity>::create(7), makePolyline({{0, 0}}),
                               makePolyline({{0, 0}, {10, 0}})});
    mixed->setup();
    RubberTool other(mixed);

    EXPECT_THAT(other.itemsUnderMouse({}), ElementsAreArray(segmentIdsOf(mixed)));
    sendMouse(other, QEvent::GraphicsSceneMouseMove, {}, Qt::LeftButton);
    EXPECT_THAT(mixed->selectedIDs(), ElementsAreArray(segmentIdsOf(mixed)));
}

TEST_F(RubberToolTest, WithoutADocumentNothingIsFound)
{
    RubberTool other(nullptr);
    QSignalSpy requests(&other, SIGNAL(requestDelete()));

    EXPECT_THAT(other.itemsUnderMouse({}), IsEmpty());
    EXPECT_TRUE(sendMouse(other, QEvent::GraphicsSceneMousePress, {}, Qt::LeftButton));
    EXPECT_TRUE(sendMouse(other, QEvent::GraphicsSceneMouseMove, {}, Qt::LeftButton));
    EXPECT_TRUE(sendMouse(other, QEvent::GraphicsSceneMouseRelease, {}, Qt::NoButton));

    EXPECT_EQ(requests.count(), 1);
}

// The hit test against the plain formula

/// Compares what is found among many segments, at many places and scales, with the rule applied to
/// each segment in order.
class HitTestPropertyTest : public LoggedTest
{
protected:
    HitTestPropertyTest()
        : view(&scene)
    {
    }

    void addSegment(const QPointF& from, const QPointF& to)
    {
        document->addEntity(makePolyline({from, to}));
    }

    void compareAt(const QPointF& pos)
    {
        const double radius = 5.0 / view.transform().m11();
        QVector<int> expected;
        for (const DXFPolyline* polyline : polylinesOf(*document)) {
            const auto segments = polyline->segments();
            for (const Segment& segment : segments) {
                ++m_asked;
                if (radius > distPointToSegment(pos, segment.line()))
                    expected.append(segment.id());
            }
        }
        m_found += int(expected.size());

        ASSERT_EQ(tool.itemsUnderMouse(pos), expected)
            << "at " << ::testing::PrintToString(pos) << ", scale " << view.transform().m11();
    }

    /// Every comparison would be passed by finding nothing, or everything, if that was right.
    void expectBothKinds() const
    {
        EXPECT_GT(m_found, 0);
        EXPECT_LT(m_found, m_asked);
    }

    void start()
    {
        document->setup();
        scene.setSceneRect(0, 0, 100, 100);
        scene.addItem(tool.getMarker());
    }

    QSharedPointer<DXFDocument> document = QSharedPointer<DXFDocument>::create();
    QGraphicsScene scene;
    QGraphicsView view;
    RubberTool tool{document};

private:
    qint64 m_asked = 0;
    qint64 m_found = 0;
};

TEST_F(HitTestPropertyTest, RandomSegmentsAroundThePointer)
{
    for (const double center : {0.0, 3e6, -1e15}) {
        for (const double scale : {1.0, 0.013, 40.0}) {
            SCOPED_TRACE(center);
            std::mt19937 random(20);
            std::uniform_real_distribution<double> offset(-60 / scale, 60 / scale);
            document->setSelected({});
            const auto old = document->entities();
            for (const auto& entity : old)
                document->deleteEntity(entity);
            const auto somewhere = [&] {
                return QPointF(center + offset(random), -center + offset(random));
            };
            for (int i = 0; i < 200; ++i) {
                auto polyline = makePolyline({somewhere(), somewhere(), somewhere()}, i % 3 == 0);
                polyline->setup();
                document->addEntity(polyline);
            }
            if (!tool.getMarker()->scene())
                start();
            view.setTransform(QTransform::fromScale(scale, scale));

            for (int i = 0; i < 60; ++i)
                compareAt(somewhere());
        }
    }
    expectBothKinds();
}

TEST_F(HitTestPropertyTest, SegmentsThatTouchTheRadius)
{
    // Distances that are exactly the radius, and the nearest numbers on both sides.
    const double touching[] = {5.0, std::nextafter(5.0, 0.0), std::nextafter(5.0, 6.0)};
    for (const double d : touching) {
        for (const double sign : {1.0, -1.0}) {
            addSegment({-20, sign * d}, {20, sign * d});
            addSegment({sign * d, -20}, {sign * d, 20});
            addSegment({sign * d, 0}, {sign * 20, 0});
            addSegment({0, sign * d}, {0, sign * 20});
            addSegment({sign * d, 0}, {sign * 20, 7});
            addSegment({sign * d * 0.6, d * 0.8}, {sign * 30, 40});
            addSegment({sign * d * 0.6 - 8, d * 0.8 + sign * 6},
                       {sign * d * 0.6 + 8, d * 0.8 - sign * 6});
        }
    }
    addSegment({3, 4}, {30, 40});
    addSegment({3, 4}, {3, 4});
    addSegment({5, 0}, {5, 0});
    addSegment({1, 1}, {1, 1});
    start();

    for (const double scale : {1.0, std::nextafter(1.0, 2.0), std::nextafter(1.0, 0.0)}) {
        view.setTransform(QTransform::fromScale(scale, scale));
        compareAt({0, 0});
        compareAt({std::nextafter(0.0, 1.0), 0});
        compareAt({1e-16, -1e-16});
        compareAt({1e-15, 1e-15});
    }
    expectBothKinds();
}

TEST_F(HitTestPropertyTest, SegmentsThatTouchTheRadiusFarFromTheOrigin)
{
    std::mt19937 random(21);
    std::uniform_int_distribution<int> ulps(-3, 3);
    std::uniform_real_distribution<double> along(0.0, 6.283185307179586);
    const auto nudged = [&](double value) {
        const int steps = ulps(random);
        for (int i = 0; i < std::abs(steps); ++i)
            value = std::nextafter(value, steps > 0 ? infinity : -infinity);
        return value;
    };
    const QPointF centers[] = {{3e6, -3e6}, {1e15, 1e15}, {3e6, 0}, {0.1, 1e15}};
    for (const QPointF& c : centers) {
        for (int i = 0; i < 150; ++i) {
            const double angle = along(random);
            const QPointF normal(5 * std::cos(angle), 5 * std::sin(angle));
            const QPointF tangent(-normal.y() * 9, normal.x() * 9);
            const QPointF foot = c + normal;
            addSegment({nudged(foot.x()), nudged(foot.y())}, c + 4 * normal);
            addSegment({nudged((foot + tangent).x()), nudged((foot + tangent).y())},
                       foot - tangent);
        }
        addSegment({nudged(c.x() + 5), c.y() - 10}, {nudged(c.x() + 5), c.y() + 10});
        addSegment({c.x() - 10, nudged(c.y() - 5)}, {c.x() + 10, nudged(c.y() - 5)});
    }
    start();
    view.setTransform(QTransform());

    for (const QPointF& c : centers) {
        for (int i = 0; i < 20; ++i)
            compareAt({nudged(c.x()), nudged(c.y())});
    }
    expectBothKinds();
}

TEST_F(HitTestPropertyTest, EveryCombinationOfHardNumbers)
{
    const double hard[] = {0.0, -0.0,  1.0,   -5.0,  5e-324, 1e-310,   1e-200, -1e-160,  1e-154,
                           3e6, -1e15, 1e153, 1e154, 1e300,  -1.7e308, nan,    infinity, -infinity};
    std::mt19937 random(22);
    std::uniform_int_distribution<std::size_t> any(0, std::size(hard) - 1);
    const auto number = [&] {
        return hard[any(random)];
    };
    for (int i = 0; i < 3000; ++i)
        addSegment({number(), number()}, {number(), number()});
    start();

    for (const double scale : {1.0, 1e-3, 1e3, 1e-15, 5e200, 5e-200, 5e300, 5e-300, 1e150, 5e153,
                               5e154, 1e161, 5e162, 0.0, -0.0, -1.0, -1e300, 5e-324, infinity}) {
        view.setTransform(QTransform::fromScale(scale, scale));
        for (int i = 0; i < 30; ++i)
            compareAt({number(), number()});
    }
    expectBothKinds();
}

TEST_F(HitTestPropertyTest, TinyDistancesAtEnormousZoom)
{
    std::mt19937 random(23);
    std::uniform_real_distribution<double> factor(-12, 12);
    for (const double size : {1e-310, 1e-200, 1e-163, 1e-162, 1e-161, 1e-155, 1e-150, 1e-100}) {
        for (int i = 0; i < 40; ++i)
            addSegment({size * factor(random), size * factor(random)},
                       {size * factor(random), size * factor(random)});
    }
    start();

    for (const double size : {1e-307, 1e-200, 1e-163, 1e-162, 1e-161, 1e-155, 1e-150, 1e-100}) {
        view.setTransform(QTransform::fromScale(5 / size, 5 / size));
        for (int i = 0; i < 30; ++i)
            compareAt({size * factor(random), size * factor(random)});
    }
    expectBothKinds();
}

TEST_F(HitTestPropertyTest, UndefinedAndInfiniteRadius)
{
    addSegment({0, 0}, {10, 0});
    addSegment({nan, 0}, {10, 0});
    addSegment({0, 0}, {nan, 0});
    addSegment({infinity, 0}, {10, 0});
    addSegment({1e300, 1e300}, {-1e300, 1e300});
    start();

    for (const double scale : {nan, 0.0, -0.0, infinity, -infinity}) {
        view.setTransform(QTransform(scale, 0, 0, 1, 0, 0));
        for (const QPointF& pos : {QPointF(0, 0), QPointF(nan, 0), QPointF(infinity, 1),
                                   QPointF(5e300, -5e300), QPointF(5, 1e9)})
            compareAt(pos);
    }
    expectBothKinds();
}

} // namespace
