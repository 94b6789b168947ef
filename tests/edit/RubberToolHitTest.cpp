// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/RubberTool.h"

#include "tests/edit/RubberToolFixture.h"
#include "tests/edit/SceneEvents.h"
#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/OtherEntity.h"
#include "tests/support/SpecialNumbers.h"

#include <gmock/gmock.h>

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QSignalSpy>

#include <cmath>
#include <limits>
#include <random>

using namespace dxftest;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

namespace
{

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

TEST_F(RubberToolTest, SkipsNullAndOtherEntities)
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

    /// A test that finds nothing, or everything, would say little. So it must find some segments
    /// and miss others.
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

TEST_F(HitTestPropertyTest, RandomSegmentsFollowTheRule)
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

TEST_F(HitTestPropertyTest, SegmentsThatTouchTheRadiusFollowTheRule)
{
    // The distances are exactly the radius, and the nearest numbers on both sides of it.
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

TEST_F(HitTestPropertyTest, SegmentsThatTouchTheRadiusFarFromTheOriginFollowTheRule)
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

TEST_F(HitTestPropertyTest, HardNumbersFollowTheRule)
{
    const double hard[] = {0.0,    -0.0,    1.0,      -5.0,       5e-324,   1e-310,
                           1e-200, -1e-160, 1e-154,   3e6,        -1e15,    1e153,
                           1e154,  1e300,   -1.7e308, notANumber, infinity, -infinity};
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

TEST_F(HitTestPropertyTest, TinyDistancesAtEnormousZoomFollowTheRule)
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

TEST_F(HitTestPropertyTest, UndefinedAndInfiniteRadiusFollowTheRule)
{
    addSegment({0, 0}, {10, 0});
    addSegment({notANumber, 0}, {10, 0});
    addSegment({0, 0}, {notANumber, 0});
    addSegment({infinity, 0}, {10, 0});
    addSegment({1e300, 1e300}, {-1e300, 1e300});
    start();

    for (const double scale : {notANumber, 0.0, -0.0, infinity, -infinity}) {
        view.setTransform(QTransform(scale, 0, 0, 1, 0, 0));
        for (const QPointF& pos : {QPointF(0, 0), QPointF(notANumber, 0), QPointF(infinity, 1),
                                   QPointF(5e300, -5e300), QPointF(5, 1e9)})
            compareAt(pos);
    }
    expectBothKinds();
}

} // namespace
