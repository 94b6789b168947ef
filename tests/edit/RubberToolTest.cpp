// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/RubberTool.h"

#include "tests/edit/RubberToolFixture.h"
#include "tests/edit/SceneEvents.h"
#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/MetaMethods.h"

#include <gmock/gmock.h>

#include <QGraphicsEllipseItem>
#include <QGraphicsView>
#include <QSignalSpy>
#include <QTimer>

#include <memory>

using namespace dxftest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

// What the tool is

TEST_F(RubberToolTest, InterfaceHasOneSignalAndNothingElse)
{
    const QMetaObject& meta = ISelectionTool::staticMetaObject;

    EXPECT_STREQ(meta.className(), "ISelectionTool");
    EXPECT_STREQ(meta.superClass()->className(), "QObject");
    EXPECT_THAT(ownMethodsOf(meta), ElementsAre("public signal void requestDelete()"));
    EXPECT_EQ(meta.propertyCount() - meta.propertyOffset(), 0);
}

TEST_F(RubberToolTest, EraserHasOnePrivateSlotAndNothingElse)
{
    const QMetaObject& meta = *tool->metaObject();

    EXPECT_STREQ(meta.className(), "RubberTool");
    EXPECT_EQ(meta.superClass(), &ISelectionTool::staticMetaObject);
    EXPECT_THAT(ownMethodsOf(meta), ElementsAre("private slot void emitDeleteRequest()"));
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

TEST_F(RubberToolTest, NewMarkerHasNoParentAndNoScene)
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

TEST_F(RubberToolTest, MarkerMayOutliveTheTool)
{
    QGraphicsItem* marker = tool->getMarker();

    tool.reset();

    EXPECT_THAT(scene.items(), ElementsAre(marker));
}

TEST_F(RubberToolTest, ToolMayOutliveTheMarker)
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

// Events that do nothing

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

TEST_F(RubberToolTest, HandleMouseEventIgnoresADoubleClick)
{
    QSignalSpy requests(tool.get(), SIGNAL(requestDelete()));
    QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMouseDoubleClick);
    event.setPos(onFirst);
    event.setButtons(Qt::LeftButton);

    tool->handleMouseEvent(event);

    EXPECT_THAT(selection(), IsEmpty());
    EXPECT_THAT(requests, IsEmpty());
}

TEST_F(RubberToolTest, OtherEventsAreTakenAndDoNothing)
{
    QSignalSpy requests(tool.get(), SIGNAL(requestDelete()));

    for (int type : {0, 6, 7, 8, 9, 154, 159, 161 + 2, 164, 168, 1000, 2000}) {
        QEvent event{QEvent::Type(type)};
        EXPECT_TRUE(tool->handle(event)) << type;
    }

    EXPECT_EQ(tool->getMarker()->pos(), QPointF(0, 0));
    EXPECT_THAT(requests, IsEmpty());
}

// The scale

TEST_F(RubberToolTest, ScaleIsTheHorizontalOneOfTheView)
{
    view.setTransform(QTransform::fromScale(2, 8));

    EXPECT_EQ(tool->getViewScaleFactor(), 2.0);
}

TEST_F(RubberToolTest, ScaleIgnoresRotation)
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

} // namespace
