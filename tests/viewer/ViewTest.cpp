// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/viewer/View.h"

#include "tests/support/AtMessage.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/Patience.h"
#include "tests/support/SceneMouse.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QGraphicsScene>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include <climits>
#include <cmath>
#include <limits>
#include <memory>
#include <ostream>
#include <string>

using namespace dxftest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

const QString initialisationText = QStringLiteral("we need to calculate scale factor");

double scaleOfLevel(double level)
{
    return std::pow(2.0, (level - 250.0) / 50.0);
}

class ViewTest : public LoggedTest
{
protected:
    ViewTest()
    {
        view.resize(200, 150);
        view.scene()->setSceneRect(-1000, -1000, 2000, 2000);
    }

    /// Expects the transform to be a pure scale, that of the level.
    void expectLevel(double level)
    {
        const QTransform transform = view.transform();
        EXPECT_NEAR(transform.m11() / scaleOfLevel(level), 1.0, 1e-12);
        EXPECT_EQ(transform, QTransform::fromScale(transform.m11(), transform.m11()));
    }

    /// Turns the wheel over the view; true if the event was accepted.
    bool turnWheel(const QPoint& angle, Qt::KeyboardModifiers modifiers)
    {
        QWidget* viewport = view.viewport();
        const QPoint position = viewport->rect().center();
        QWheelEvent event(position, viewport->mapToGlobal(position), QPoint(), angle, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        event.ignore();
        QApplication::sendEvent(viewport, &event);
        return event.isAccepted();
    }

    bool sendKey(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QKeyEvent event(type, key, modifiers);
        event.ignore();
        QApplication::sendEvent(&view, &event);
        return event.isAccepted();
    }

    View view;
};

// What the view is

TEST_F(ViewTest, HasOnePublicSlotAndNothingElse)
{
    const QMetaObject& meta = *view.metaObject();

    EXPECT_STREQ(meta.className(), "View");
    EXPECT_EQ(meta.superClass(), &QGraphicsView::staticMetaObject);
    EXPECT_THAT(ownMethodsOf(meta), ::testing::ElementsAre("public slot void zoomCalc(int)"));
    EXPECT_EQ(meta.propertyCount() - meta.propertyOffset(), 0);
}

TEST_F(ViewTest, OwnsASceneOfItsOwn)
{
    ASSERT_NE(view.scene(), nullptr);
    EXPECT_EQ(view.scene()->parent(), &view);
}

TEST_F(ViewTest, SceneIsDestroyedWithTheView)
{
    auto other = std::make_unique<View>();
    const QPointer<QGraphicsScene> scene = other->scene();

    other.reset();

    EXPECT_EQ(scene, nullptr);
}

TEST_F(ViewTest, IsSetUpForZoomingUnderTheMouse)
{
    EXPECT_EQ(view.transformationAnchor(), QGraphicsView::AnchorUnderMouse);
    EXPECT_TRUE(view.testAttribute(Qt::WA_MouseTracking));
    EXPECT_TRUE(view.isInteractive());
}

TEST_F(ViewTest, BackgroundIsSteelBlueAtHalfBrightness)
{
    const QColor color = QColor(70, 130, 180).darker(200);

    EXPECT_EQ(view.backgroundBrush(), QBrush(color, Qt::SolidPattern));
    EXPECT_NEAR(color.value(), 90, 1);
}

TEST_F(ViewTest, OtherPropertiesAreThoseOfAnyView)
{
    const QGraphicsView plain;

    EXPECT_EQ(view.dragMode(), plain.dragMode());
    EXPECT_EQ(view.renderHints(), plain.renderHints());
    EXPECT_EQ(view.resizeAnchor(), plain.resizeAnchor());
    EXPECT_TRUE(view.transform().isIdentity());
    EXPECT_EQ(view.parent(), nullptr);
}

TEST_F(ViewTest, TakesAParent)
{
    QWidget parent;

    const auto* child = new View(&parent);

    EXPECT_EQ(child->parentWidget(), &parent);
}

TEST_F(ViewTest, ConstructionLogsNothing)
{
    EXPECT_THAT(takeDebugMessages(), IsEmpty());
}

// Zoom steps

struct LevelRow {
    const char* name;
    QTransform before;
    int increment;
    double level;
};

void PrintTo(const LevelRow& row, std::ostream* out)
{
    *out << row.name;
}

class FirstStepTest : public ViewTest, public ::testing::WithParamInterface<LevelRow>
{
};

TEST_P(FirstStepTest, StartsFromTheTransform)
{
    view.setTransform(GetParam().before);

    view.zoomCalc(GetParam().increment);

    expectLevel(GetParam().level);
    EXPECT_THAT(takeDebugMessages(), ElementsAre(initialisationText));
}

INSTANTIATE_TEST_SUITE_P(
    Table, FirstStepTest,
    ::testing::Values(LevelRow{"IdentityIn", QTransform(), 120, 260},
                      LevelRow{"IdentityOut", QTransform(), -120, 240},
                      LevelRow{"SizeOfTheIncrementIsIgnoredIn", QTransform(), 1, 260},
                      LevelRow{"SizeOfTheIncrementIsIgnoredOut", QTransform(), -100000, 240},
                      LevelRow{"ZeroIsAStepOut", QTransform(), 0, 240},
                      LevelRow{"HalfScaleIn", QTransform::fromScale(0.5, 0.5), 120, 210},
                      LevelRow{"DoubleScaleOut", QTransform::fromScale(2, 2), -120, 290},
                      LevelRow{"OnlyTheWidthCounts", QTransform::fromScale(0.5, 8), 120, 210},
                      LevelRow{"MirroredCountsAsPlain", QTransform::fromScale(-2, 2), 120, 310},
                      LevelRow{"TranslationIsDiscarded", QTransform::fromTranslate(33, 44), 120,
                               260},
                      LevelRow{"RotationWidensTheUnit", QTransform().rotate(45), 120, 285},
                      LevelRow{"NoWidthMeansScaleOne", QTransform(0, 0, 0, 4, 0, 0), 120, 260},
                      LevelRow{"NoHeightMeansScaleOne", QTransform(4, 0, 0, 0, 0, 0), 120, 260}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(ViewTest, FiveStepsDoubleTheScale)
{
    for (int i = 0; i < 5; ++i)
        view.zoomCalc(1);

    EXPECT_NEAR(view.transform().m11(), 2.0, 1e-12);
}

TEST_F(ViewTest, FiveStepsOutHalveTheScale)
{
    for (int i = 0; i < 5; ++i)
        view.zoomCalc(-1);

    EXPECT_NEAR(view.transform().m11(), 0.5, 1e-12);
}

TEST_F(ViewTest, EveryLevelHasItsScale)
{
    for (int step = 1; step <= 40; ++step) {
        view.zoomCalc(1);
        expectLevel(250.0 + 10.0 * step);
    }
}

TEST_F(ViewTest, LevelIsTakenFromTheTransformOnce)
{
    for (int i = 0; i < 24; ++i)
        view.zoomCalc(-1);
    for (int i = 0; i < 30; ++i)
        view.zoomCalc(1);

    EXPECT_THAT(takeDebugMessages(), ElementsAre(initialisationText));
}

TEST_F(ViewTest, LevelZeroIsInitialisedAgain)
{
    for (int i = 0; i < 25; ++i)
        view.zoomCalc(-1);
    expectLevel(0);
    EXPECT_THAT(takeDebugMessages(), ElementsAre(initialisationText));

    view.zoomCalc(-1);

    EXPECT_THAT(takeDebugMessages(), ElementsAre(initialisationText));
    expectLevel(-10);
    view.zoomCalc(-1);
    expectLevel(-20);
    EXPECT_THAT(takeDebugMessages(), IsEmpty());
}

TEST_F(ViewTest, LevelZeroIsInitialisedFromTheCurrentTransform)
{
    for (int i = 0; i < 25; ++i)
        view.zoomCalc(-1);
    view.setTransform(QTransform::fromScale(4, 4));

    view.zoomCalc(1);

    expectLevel(360);
}

TEST_F(ViewTest, LevelCloseToZeroIsNotInitialisedAgain)
{
    // A step out from here leads to a level that is less than 1e-12 above zero.
    const double scale = scaleOfLevel(10.0 + 3e-13);
    view.setTransform(QTransform::fromScale(scale, scale));
    view.zoomCalc(-1);
    takeDebugMessages();
    view.setTransform(QTransform::fromScale(4, 4));

    view.zoomCalc(1);

    EXPECT_THAT(takeDebugMessages(), IsEmpty());
    expectLevel(10);
}

TEST_F(ViewTest, StepIgnoresATransformThatTheHostSets)
{
    view.zoomCalc(1);
    view.setTransform(QTransform::fromScale(0.01, 0.01).rotate(30));

    view.zoomCalc(1);

    expectLevel(270);
}

TEST_F(ViewTest, StepIgnoresAFit)
{
    view.zoomCalc(1);
    view.fitInView(QRectF(0, 0, 20000, 10), Qt::KeepAspectRatio);

    view.zoomCalc(-1);

    expectLevel(250);
}

TEST_F(ViewTest, SlotCanBeInvokedByName)
{
    ASSERT_TRUE(QMetaObject::invokeMethod(&view, "zoomCalc", Q_ARG(int, 120)));

    expectLevel(260);
}

// The wheel

struct WheelRow {
    const char* name;
    QPoint angle;
    double level;
};

void PrintTo(const WheelRow& row, std::ostream* out)
{
    *out << row.name;
}

class WheelTest : public ViewTest, public ::testing::WithParamInterface<WheelRow>
{
};

TEST_P(WheelTest, StepsAlongTheAxisWithTheLargerDelta)
{
    EXPECT_TRUE(turnWheel(GetParam().angle, Qt::ControlModifier));

    expectLevel(GetParam().level);
}

INSTANTIATE_TEST_SUITE_P(
    Table, WheelTest,
    ::testing::Values(WheelRow{"Up", {0, 120}, 260}, WheelRow{"Down", {0, -120}, 240},
                      WheelRow{"AFractionOfANotchUp", {0, 1}, 260},
                      WheelRow{"SeveralNotchesAreOneStep", {0, -1200}, 240},
                      WheelRow{"Left", {120, 0}, 260}, WheelRow{"Right", {-120, 0}, 240},
                      WheelRow{"HorizontalIsLarger", {121, -120}, 260},
                      WheelRow{"HorizontalIsLargerTheOtherWay", {-121, 120}, 240},
                      WheelRow{"TieGoesToTheVertical", {120, -120}, 240},
                      WheelRow{"TieGoesToTheVerticalTheOtherWay", {-120, 120}, 260},
                      WheelRow{"VerticalIsLarger", {119, -120}, 240},
                      WheelRow{"VerticalIsLargerTheOtherWay", {-119, 120}, 260},
                      WheelRow{"AsFarUpAsCanBe", {INT_MIN + 1, INT_MAX}, 260},
                      WheelRow{"AsFarDownAsCanBe", {INT_MAX, INT_MIN}, 240},
                      WheelRow{"AsFarRightAsCanBe", {INT_MIN, INT_MAX}, 240},
                      WheelRow{"NotTurnedAtAll", {0, 0}, 240}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(ViewTest, WheelWithControlAndOtherKeysZooms)
{
    turnWheel({0, 120}, Qt::ControlModifier | Qt::ShiftModifier);

    expectLevel(260);
}

class ShownViewTest : public ViewTest
{
protected:
    void SetUp() override
    {
        view.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&view, patienceMs));
        takeDebugMessages();
    }
};

TEST_F(ShownViewTest, WheelWithoutControlScrolls)
{
    const int before = view.verticalScrollBar()->value();

    turnWheel({0, -120}, Qt::NoModifier);

    EXPECT_GT(view.verticalScrollBar()->value(), before);
    EXPECT_TRUE(view.transform().isIdentity());
    EXPECT_THAT(takeDebugMessages(), IsEmpty());
    view.zoomCalc(1);
    expectLevel(260);
}

TEST_F(ShownViewTest, WheelWithShiftAloneDoesNotZoom)
{
    turnWheel({0, 120}, Qt::ShiftModifier);

    EXPECT_TRUE(view.transform().isIdentity());
}

// Over a drawing seen from very near, scroll bars get ranges at which their style would divide by
// zero.

TEST_F(ShownViewTest, ScrollBarsOfTheWidestRangeArePainted)
{
    for (QScrollBar* bar : {view.horizontalScrollBar(), view.verticalScrollBar()}) {
        bar->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        bar->setPageStep(1);

        EXPECT_FALSE(bar->grab().isNull());
        EXPECT_GT(bar->maximum(), 2'000'000'000);
        EXPECT_LT(bar->minimum(), -2'000'000'000);
    }
}

TEST_F(ShownViewTest, ScrollBarsOfHalfTheWidestRangeArePainted)
{
    for (QScrollBar* bar : {view.horizontalScrollBar(), view.verticalScrollBar()}) {
        bar->setRange(std::numeric_limits<int>::min(), 0);

        EXPECT_FALSE(bar->grab().isNull());
        EXPECT_EQ(bar->minimum(), std::numeric_limits<int>::min());
        EXPECT_EQ(bar->maximum(), -1);
    }
}

TEST_F(ShownViewTest, OtherKeysScroll)
{
    const int before = view.verticalScrollBar()->value();

    sendKey(QEvent::KeyPress, Qt::Key_Down);

    EXPECT_GT(view.verticalScrollBar()->value(), before);
    EXPECT_EQ(view.dragMode(), QGraphicsView::NoDrag);
}

// Keys

TEST_F(ViewTest, ControlDragsByHandUntilItIsReleased)
{
    EXPECT_TRUE(sendKey(QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier));
    EXPECT_EQ(view.dragMode(), QGraphicsView::ScrollHandDrag);

    EXPECT_TRUE(sendKey(QEvent::KeyRelease, Qt::Key_Control));
    EXPECT_EQ(view.dragMode(), QGraphicsView::NoDrag);
}

TEST_F(ShownViewTest, LeftDragPansWhileControlIsHeld)
{
    SceneMouse mouse(view);
    const auto scrolled = [this] {
        return QPoint(view.horizontalScrollBar()->value(), view.verticalScrollBar()->value());
    };
    const QPoint before = scrolled();

    mouse.drag({{0, 0}, {-20, -30}});
    EXPECT_EQ(scrolled(), before);

    sendKey(QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier);
    mouse.drag({{0, 0}, {-20, -30}});
    EXPECT_EQ(scrolled(), before + QPoint(20, 30));
}

TEST_F(ViewTest, OtherKeysLeaveTheDragMode)
{
    sendKey(QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier);

    sendKey(QEvent::KeyPress, Qt::Key_A, Qt::ControlModifier);
    sendKey(QEvent::KeyRelease, Qt::Key_A, Qt::ControlModifier);

    EXPECT_EQ(view.dragMode(), QGraphicsView::ScrollHandDrag);
}

TEST_F(ViewTest, OtherKeysWithControlHeldDoNotStartDragging)
{
    sendKey(QEvent::KeyPress, Qt::Key_Shift, Qt::ControlModifier);

    EXPECT_EQ(view.dragMode(), QGraphicsView::NoDrag);
}

TEST_F(ViewTest, LosingTheFocusKeepsTheDragMode)
{
    sendKey(QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier);

    QFocusEvent event(QEvent::FocusOut);
    QApplication::sendEvent(&view, &event);

    EXPECT_EQ(view.dragMode(), QGraphicsView::ScrollHandDrag);
}

/// Records the keys that reach the scene.
class KeyScene : public QGraphicsScene
{
public:
    QVector<QEvent::Type> events;

protected:
    void keyPressEvent(QKeyEvent* event) override { events.append(event->type()); }
    void keyReleaseEvent(QKeyEvent* event) override { events.append(event->type()); }
};

TEST_F(ViewTest, OtherKeysReachTheSceneAndControlDoesNot)
{
    KeyScene scene;
    view.setScene(&scene);

    sendKey(QEvent::KeyPress, Qt::Key_Control);
    sendKey(QEvent::KeyRelease, Qt::Key_Control);
    EXPECT_THAT(scene.events, IsEmpty());

    sendKey(QEvent::KeyPress, Qt::Key_A);
    sendKey(QEvent::KeyRelease, Qt::Key_A);
    EXPECT_THAT(scene.events, ElementsAre(QEvent::KeyPress, QEvent::KeyRelease));
}

// A host that acts inside a message handler

class ActingLogViewTest : public LoggedTest
{
};

TEST_F(ActingLogViewTest, ViewMayBeDestroyedAtItsFirstStep)
{
    auto view = std::make_unique<View>();
    const AtMessage end("we need to calculate scale factor", [&] { view.reset(); });

    view->zoomCalc(1);

    EXPECT_TRUE(end.hasActed());
}

} // namespace
