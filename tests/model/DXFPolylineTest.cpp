// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/DXFPolyline.h"

#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <random>

using namespace dxftest;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Property;

namespace
{

constexpr QPointF a(1, 2);
constexpr QPointF b(3, 4);
constexpr QPointF c(5, 0);
constexpr QPointF d(-7, 9);

QVector<Segment> chainOf(const QVector<QLineF>& lines)
{
    QVector<Segment> segments;
    for (const QLineF& line : lines)
        segments.append(Segment(line));
    return segments;
}

/// Compares bit by bit: zeros of different sign, and different NaNs, are different.
bool sameBits(double left, double right)
{
    return std::memcmp(&left, &right, sizeof left) == 0;
}

bool sameBits(const QPointF& left, const QPointF& right)
{
    return sameBits(left.x(), right.x()) && sameBits(left.y(), right.y());
}

/// Whether two coordinates are so close that the chain counts as closed.
bool coordinatesCoincide(double left, double right)
{
    const double difference = std::fabs(left - right);
    if (left == 0.0 || right == 0.0)
        return difference <= 1e-12;
    return difference * 1e12 <= std::min(std::fabs(left), std::fabs(right));
}

class DXFPolylineTest : public LoggedTest
{
};

TEST_F(DXFPolylineTest, StartsEmptyAndUnflagged)
{
    const DXFPolyline polyline(2, 3, 8);

    EXPECT_EQ(polyline.mVertices(), 2U);
    EXPECT_EQ(polyline.nVertices(), 3U);
    EXPECT_EQ(polyline.flags(), 8U);
    EXPECT_EQ(polyline.vertexNumber(), 0);
    EXPECT_TRUE(polyline.vertices().isEmpty());
    EXPECT_TRUE(polyline.segments().isEmpty());
    EXPECT_FALSE(polyline.isSelected());
    EXPECT_FALSE(polyline.isHovered());
    EXPECT_FALSE(polyline.color().isValid());
    EXPECT_EQ(polyline.lineWidth(), 0);
    EXPECT_TRUE(polyline.attributes().isNull());
}

TEST_F(DXFPolylineTest, ConstructionAssignsNoId)
{
    const int highest = highestId();
    const DXFPolyline polyline(0, 0, 0);

    EXPECT_EQ(highestId(), highest + 1);
    EXPECT_EQ(polyline.id(), highest + 2);
}

TEST_F(DXFPolylineTest, TypeIsZero)
{
    DXFPolyline polyline(0, 0, 0);

    EXPECT_EQ(polyline.type(), 0);
}

TEST_F(DXFPolylineTest, ColourAndWidthAreThoseOfTheEntity)
{
    DXFPolyline polyline(0, 0, 0);
    DXFEntity& entity = polyline;

    entity.setColor(Qt::red);
    entity.setLineWidth(4);

    EXPECT_EQ(polyline.color(), QColor(Qt::red));
    EXPECT_EQ(polyline.lineWidth(), 4);
}

TEST_F(DXFPolylineTest, OnlyTheLowestFlagBitMeansClosed)
{
    EXPECT_FALSE(DXFPolyline(0, 0, 0).isClosed());
    EXPECT_TRUE(DXFPolyline(0, 0, 1).isClosed());
    EXPECT_FALSE(DXFPolyline(0, 0, 0xfffffffe).isClosed());
    EXPECT_TRUE(DXFPolyline(0, 0, 0xffffffff).isClosed());
}

TEST_F(DXFPolylineTest, AppendedVerticesKeepOrderZAndBulge)
{
    DXFPolyline polyline(0, 0, 0);

    polyline.appendPoint(DXFVertex(1, 2, 3, true, 0.5));
    polyline.appendPoint(DXFVertex(4, 5, 6, true, -1));

    ASSERT_EQ(polyline.vertexNumber(), 2);
    EXPECT_EQ(polyline.vertices().at(0).x(), 1);
    EXPECT_EQ(polyline.vertices().at(0).y(), 2);
    EXPECT_EQ(polyline.vertices().at(0).z(), 3);
    EXPECT_EQ(polyline.vertices().at(0).bulge(), 0.5);
    EXPECT_EQ(polyline.vertices().at(1).x(), 4);
    EXPECT_EQ(polyline.vertices().at(1).bulge(), -1);
}

TEST_F(DXFPolylineTest, AppendingMakesNoSegments)
{
    const auto polyline = makePolyline({a, b, c});

    EXPECT_THAT(linesOf(*polyline), IsEmpty());
}

TEST_F(DXFPolylineTest, StringHasCountsAndHexFlags)
{
    DXFPolyline polyline(4, 4000000000U, 0xabU);
    polyline.appendPoint(DXFVertex());

    EXPECT_EQ(polyline.toString(), QStringLiteral("[POLYLINE vertexNumber: 1, mVertices: 4, "
                                                  "nVertices 4000000000, flags: ab]"));
}

TEST_F(DXFPolylineTest, StringHasFlagsUnsigned)
{
    EXPECT_EQ(
        DXFPolyline(0, 0, 0xffffffffU).toString(),
        QStringLiteral("[POLYLINE vertexNumber: 0, mVertices: 0, nVertices 0, flags: ffffffff]"));
}

TEST_F(DXFPolylineTest, FewerThanTwoVerticesMakeNoSegments)
{
    for (bool closed : {false, true}) {
        const auto empty = makePolyline({}, closed);
        const auto single = makePolyline({a}, closed);

        empty->setup();
        single->setup();

        EXPECT_THAT(linesOf(*empty), IsEmpty());
        EXPECT_THAT(linesOf(*single), IsEmpty());
    }
}

TEST_F(DXFPolylineTest, OpenPolylineHasASegmentBetweenNeighbours)
{
    const auto polyline = makePolyline({a, b, c});

    polyline->setup();

    EXPECT_THAT(linesOf(*polyline), ElementsAre(QLineF(a, b), QLineF(b, c)));
}

TEST_F(DXFPolylineTest, ClosingSegmentRunsFromTheFirstVertexToTheLast)
{
    const auto polyline = makePolyline({a, b, c}, true);

    polyline->setup();

    EXPECT_THAT(linesOf(*polyline), ElementsAre(QLineF(a, b), QLineF(b, c), QLineF(a, c)));
}

TEST_F(DXFPolylineTest, TwoClosedVerticesMakeOneSegment)
{
    const auto polyline = makePolyline({a, b}, true);

    polyline->setup();

    EXPECT_THAT(linesOf(*polyline), ElementsAre(QLineF(a, b)));
}

TEST_F(DXFPolylineTest, RepeatedVertexMakesASegmentWithoutLength)
{
    const auto polyline = makePolyline({a, a, b});

    polyline->setup();

    EXPECT_THAT(linesOf(*polyline), ElementsAre(QLineF(a, a), QLineF(a, b)));
}

TEST_F(DXFPolylineTest, SegmentsIgnoreZAndBulge)
{
    DXFPolyline polyline(0, 0, 0);
    polyline.appendPoint(DXFVertex(1, 2, 30, true, 1));
    polyline.appendPoint(DXFVertex(3, 4, -30, true, -1));

    polyline.setup();

    EXPECT_THAT(linesOf(polyline), ElementsAre(QLineF(1, 2, 3, 4)));
}

TEST_F(DXFPolylineTest, SegmentsGetConsecutiveIdsAtOnce)
{
    const auto polyline = makePolyline({a, b, c}, true);
    const int highest = highestId();

    polyline->setup();

    EXPECT_EQ(highestId(), highest + 4);
    EXPECT_THAT(segmentIdsOf(*polyline), ElementsAre(highest + 1, highest + 2, highest + 3));
}

TEST_F(DXFPolylineTest, NewSegmentsAreNeitherSelectedNorHovered)
{
    const auto polyline = makePolyline({a, b, c}, true);
    polyline->setSelected(true);
    polyline->setHovered(true);

    polyline->setup();

    EXPECT_THAT(polyline->segments(), Each(Property(&Segment::isSelected, false)));
    EXPECT_THAT(polyline->segments(), Each(Property(&Segment::isHovered, false)));
}

TEST_F(DXFPolylineTest, SecondSetupKeepsTheSegments)
{
    const auto polyline = makePolyline({a, b, c});
    polyline->setup();
    const auto ids = segmentIdsOf(*polyline);
    polyline->setSelectedSegments({ids.at(1)});

    polyline->setup();

    EXPECT_EQ(segmentIdsOf(*polyline), ids);
    EXPECT_TRUE(polyline->segments().at(1).isSelected());
}

TEST_F(DXFPolylineTest, VertexAfterSetupGetsNoSegment)
{
    const auto polyline = makePolyline({a, b});
    polyline->setup();
    const auto ids = segmentIdsOf(*polyline);

    polyline->appendPoint(DXFVertex(c.x(), c.y(), 0, true, 0));
    polyline->setup();

    EXPECT_EQ(polyline->vertexNumber(), 3);
    EXPECT_THAT(linesOf(*polyline), ElementsAre(QLineF(a, b)));
    EXPECT_EQ(segmentIdsOf(*polyline), ids);
}

TEST_F(DXFPolylineTest, SetupOfAnEmptyPolylineCountsAsItsSetup)
{
    const auto polyline = makePolyline({});
    polyline->setup();

    polyline->appendPoint(DXFVertex(1, 1, 0, true, 0));
    polyline->appendPoint(DXFVertex(2, 2, 0, true, 0));
    polyline->setup();

    EXPECT_THAT(linesOf(*polyline), IsEmpty());
}

TEST_F(DXFPolylineTest, ReturnedSegmentsDoNotFollowTheNextChange)
{
    const auto polyline = makePolyline({a, b, c});
    polyline->setup();
    const auto before = polyline->segments();

    polyline->setSelectedSegments(segmentIdsOf(*polyline));

    EXPECT_THAT(before, Each(Property(&Segment::isSelected, false)));
    EXPECT_THAT(polyline->segments(), Each(Property(&Segment::isSelected, true)));
}

TEST_F(DXFPolylineTest, SelectingSelectsTheListedAndDeselectsTheOthers)
{
    const auto polyline = makePolyline({a, b, c, d});
    polyline->setup();
    const auto ids = segmentIdsOf(*polyline);
    polyline->setSelectedSegments({ids.at(0)});

    polyline->setSelectedSegments({ids.at(2), ids.at(1)});

    EXPECT_FALSE(polyline->segments().at(0).isSelected());
    EXPECT_TRUE(polyline->segments().at(1).isSelected());
    EXPECT_TRUE(polyline->segments().at(2).isSelected());
    EXPECT_THAT(polyline->segments(), Each(Property(&Segment::isHovered, false)));
    EXPECT_FALSE(polyline->isSelected());
}

TEST_F(DXFPolylineTest, HoveringHoversTheListedAndNoOthers)
{
    const auto polyline = makePolyline({a, b, c, d});
    polyline->setup();
    const auto ids = segmentIdsOf(*polyline);
    polyline->setHoveredSegments({ids.at(0)});

    polyline->setHoveredSegments({ids.at(2), ids.at(1)});

    EXPECT_FALSE(polyline->segments().at(0).isHovered());
    EXPECT_TRUE(polyline->segments().at(1).isHovered());
    EXPECT_TRUE(polyline->segments().at(2).isHovered());
    EXPECT_THAT(polyline->segments(), Each(Property(&Segment::isSelected, false)));
    EXPECT_FALSE(polyline->isHovered());
}

TEST_F(DXFPolylineTest, EmptyListClearsTheFlagOfEverySegment)
{
    const auto polyline = makePolyline({a, b, c});
    polyline->setup();
    polyline->setSelectedSegments(segmentIdsOf(*polyline));
    polyline->setHoveredSegments(segmentIdsOf(*polyline));

    polyline->setSelectedSegments({});

    EXPECT_THAT(polyline->segments(), Each(Property(&Segment::isSelected, false)));
    EXPECT_THAT(polyline->segments(), Each(Property(&Segment::isHovered, true)));

    polyline->setHoveredSegments({});

    EXPECT_THAT(polyline->segments(), Each(Property(&Segment::isHovered, false)));
}

TEST_F(DXFPolylineTest, IdsAreNoPositionsAndForeignIdsMatchNothing)
{
    const auto polyline = makePolyline({a, b, c});
    polyline->setup();
    const int highest = highestId();

    polyline->setSelectedSegments({0, -1, polyline->id(), highest + 1000,
                                   std::numeric_limits<int>::min(),
                                   std::numeric_limits<int>::max()});

    EXPECT_THAT(polyline->segments(), Each(Property(&Segment::isSelected, false)));
}

TEST_F(DXFPolylineTest, SelectingAssignsMissingIds)
{
    DXFPolyline polyline(0, 0, 0);
    polyline.setSegments(chainOf({QLineF(a, b), QLineF(b, c)}));
    const int highest = highestId();

    polyline.setSelectedSegments({});

    EXPECT_EQ(highestId(), highest + 3);
    EXPECT_THAT(segmentIdsOf(polyline), ElementsAre(highest + 1, highest + 2));
}

TEST_F(DXFPolylineTest, HoveringAssignsMissingIds)
{
    DXFPolyline polyline(0, 0, 0);
    polyline.setSegments(chainOf({QLineF(a, b), QLineF(b, c)}));
    const int highest = highestId();

    polyline.setHoveredSegments({});

    EXPECT_EQ(highestId(), highest + 3);
    EXPECT_THAT(segmentIdsOf(polyline), ElementsAre(highest + 1, highest + 2));
}

TEST_F(DXFPolylineTest, MissingIdsAreAssignedInOrderWhateverIsSelected)
{
    const QVector<QLineF> lines{QLineF(a, b), QLineF(b, c), QLineF(c, a), QLineF(a, c)};
    for (const int selected : {-1, 0, 1, 2, 3}) {
        QVector<Segment> chain = chainOf(lines);
        if (selected >= 0)
            chain[selected].setSelected(true);
        DXFPolyline polyline(0, 0, 0);
        polyline.setSegments(chain);
        const int highest = highestId();

        polyline.setSelectedSegments({});

        EXPECT_THAT(segmentIdsOf(polyline),
                    ElementsAre(highest + 1, highest + 2, highest + 3, highest + 4))
            << selected;
    }
}

TEST_F(DXFPolylineTest, PolylinesThatShareAListWithoutIdsGetTheirOwnIds)
{
    const auto chain = chainOf({QLineF(a, b), QLineF(b, c)});
    DXFPolyline first(0, 0, 0);
    first.setSegments(chain);
    DXFPolyline second(0, 0, 0);
    second.setSegments(chain);
    const int highest = highestId();

    first.setSelectedSegments({});
    second.setHoveredSegments({});

    EXPECT_THAT(segmentIdsOf(first), ElementsAre(highest + 1, highest + 2));
    EXPECT_THAT(segmentIdsOf(second), ElementsAre(highest + 3, highest + 4));
    EXPECT_EQ(chain.first().id(), highest + 5);
}

TEST_F(DXFPolylineTest, SelectingAgainAssignsNoFurtherIds)
{
    DXFPolyline polyline(0, 0, 0);
    polyline.setSegments(chainOf({QLineF(a, b), QLineF(b, c)}));
    polyline.setSelectedSegments({});
    const auto ids = segmentIdsOf(polyline);

    polyline.setSelectedSegments({ids.last()});

    EXPECT_EQ(segmentIdsOf(polyline), ids);
    EXPECT_TRUE(polyline.segments().last().isSelected());
}

TEST_F(DXFPolylineTest, SelectingTheSameAgainKeepsTheListShared)
{
    const auto polyline = makePolyline({a, b, c});
    polyline->setup();
    const auto ids = segmentIdsOf(*polyline);
    polyline->setSelectedSegments({ids.at(0)});
    polyline->setHoveredSegments({ids.at(1)});
    const auto before = polyline->segments();

    polyline->setSelectedSegments({ids.at(0)});
    polyline->setHoveredSegments({ids.at(1)});

    EXPECT_EQ(polyline->segments().constData(), before.constData());
}

TEST_F(DXFPolylineTest, CloneIsACopyWithAnIdOfItsOwn)
{
    const auto polyline = makePolyline({a, b, c}, true);
    polyline->setup();
    polyline->setAttributes(makeAttributes(QStringLiteral("0"), 1));
    polyline->setColor(Qt::cyan);
    polyline->setLineWidth(1);
    polyline->setSelected(true);
    polyline->setHovered(true);
    polyline->setSelectedSegments({segmentIdsOf(*polyline).at(1)});
    polyline->setHoveredSegments({segmentIdsOf(*polyline).at(2)});
    const int id = polyline->id();
    const int highest = highestId();

    const std::unique_ptr<DXFPolyline> copy(polyline->clone());

    EXPECT_EQ(polyline->id(), id);
    EXPECT_EQ(copy->id(), highest + 1);
    EXPECT_EQ(highestId(), highest + 2);
    EXPECT_EQ(segmentIdsOf(*copy), segmentIdsOf(*polyline));
    EXPECT_EQ(linesOf(*copy), linesOf(*polyline));
    EXPECT_EQ(pointsOf(*copy), pointsOf(*polyline));
    EXPECT_EQ(copy->flags(), 1U);
    EXPECT_EQ(copy->attributes().data(), polyline->attributes().data());
    EXPECT_EQ(copy->color(), QColor(Qt::cyan));
    EXPECT_EQ(copy->lineWidth(), 1);
    EXPECT_TRUE(copy->isSelected());
    EXPECT_TRUE(copy->isHovered());
    EXPECT_TRUE(copy->segments().at(1).isSelected());
    EXPECT_FALSE(copy->segments().at(2).isSelected());
    EXPECT_TRUE(copy->segments().at(2).isHovered());
}

TEST_F(DXFPolylineTest, CloneHasCountsFlagsZAndBulges)
{
    DXFPolyline polyline(5, 6, 0x80);
    polyline.appendPoint(DXFVertex(1, 2, 3, true, 4));

    const std::unique_ptr<DXFPolyline> copy(polyline.clone());

    EXPECT_EQ(copy->mVertices(), 5U);
    EXPECT_EQ(copy->nVertices(), 6U);
    EXPECT_EQ(copy->flags(), 0x80U);
    ASSERT_EQ(copy->vertexNumber(), 1);
    EXPECT_EQ(copy->vertices().at(0).z(), 3);
    EXPECT_EQ(copy->vertices().at(0).bulge(), 4);
}

TEST_F(DXFPolylineTest, CloneOfASetUpPolylineIsSetUp)
{
    const auto polyline = makePolyline({a, b, c});
    polyline->setup();

    const std::unique_ptr<DXFPolyline> copy(polyline->clone());
    copy->setup();

    EXPECT_EQ(segmentIdsOf(*copy), segmentIdsOf(*polyline));
}

TEST_F(DXFPolylineTest, CloneOfANewPolylineIsNotSetUp)
{
    const auto polyline = makePolyline({a, b, c});

    const std::unique_ptr<DXFPolyline> copy(polyline->clone());
    copy->setup();

    EXPECT_THAT(linesOf(*polyline), IsEmpty());
    EXPECT_THAT(linesOf(*copy), ElementsAre(QLineF(a, b), QLineF(b, c)));
}

TEST_F(DXFPolylineTest, CloneAndOriginalChangeIndependently)
{
    const auto polyline = makePolyline({a, b, c});
    polyline->setup();
    const std::unique_ptr<DXFPolyline> copy(polyline->clone());

    copy->setSelectedSegments(segmentIdsOf(*copy));
    copy->appendPoint(DXFVertex(9, 9, 9, true, 9));
    copy->setSegments(chainOf({QLineF(c, d)}));

    EXPECT_THAT(polyline->segments(), Each(Property(&Segment::isSelected, false)));
    EXPECT_EQ(pointsOf(*polyline), QVector<QPointF>({a, b, c}));
    EXPECT_THAT(linesOf(*polyline), ElementsAre(QLineF(a, b), QLineF(b, c)));
}

TEST_F(DXFPolylineTest, CloneIsMadeThroughTheEntity)
{
    const auto polyline = makePolyline({a, b});
    DXFEntity& entity = *polyline;

    const std::unique_ptr<DXFEntity> copy(entity.clone());

    ASSERT_EQ(copy->type(), 0);
    EXPECT_EQ(pointsOf(static_cast<DXFPolyline&>(*copy)), QVector<QPointF>({a, b}));
}

TEST_F(DXFPolylineTest, ChainBecomesVerticesWithoutZAndBulge)
{
    DXFPolyline polyline(3, 4, 0);
    polyline.appendPoint(DXFVertex(a.x(), a.y(), 8, true, 1));
    polyline.appendPoint(DXFVertex(b.x(), b.y(), 8, true, 1));
    polyline.appendPoint(DXFVertex(c.x(), c.y(), 8, true, 1));

    polyline.setSegments(chainOf({QLineF(a, b), QLineF(b, c)}));

    EXPECT_EQ(pointsOf(polyline), QVector<QPointF>({a, b, c}));
    EXPECT_THAT(polyline.vertices(), Each(Property(&DXFVertex::z, 0.0)));
    EXPECT_THAT(polyline.vertices(), Each(Property(&DXFVertex::bulge, 0.0)));
    EXPECT_EQ(polyline.mVertices(), 0U);
    EXPECT_EQ(polyline.nVertices(), 0U);
    EXPECT_FALSE(polyline.isClosed());
}

TEST_F(DXFPolylineTest, BulgesAreLostEvenWhereThePointsStay)
{
    for (int bent = 0; bent < 2; ++bent) {
        DXFPolyline polyline(0, 0, 0);
        polyline.appendPoint(DXFVertex(a.x(), a.y(), 0, true, bent == 0 ? 0.5 : 0));
        polyline.appendPoint(DXFVertex(b.x(), b.y(), 0, true, bent == 1 ? 0.5 : 0));

        polyline.setSegments(chainOf({QLineF(a, b)}));

        EXPECT_THAT(polyline.vertices(), Each(Property(&DXFVertex::bulge, 0.0)));
    }
}

TEST_F(DXFPolylineTest, HeightsAreLostEvenWhereThePointsStay)
{
    for (int raised = 0; raised < 2; ++raised) {
        DXFPolyline polyline(0, 0, 0);
        polyline.appendPoint(DXFVertex(a.x(), a.y(), raised == 0 ? 3 : 0, true, 0));
        polyline.appendPoint(DXFVertex(b.x(), b.y(), raised == 1 ? 3 : 0, true, 0));

        polyline.setSegments(chainOf({QLineF(a, b)}));

        EXPECT_THAT(polyline.vertices(), Each(Property(&DXFVertex::z, 0.0)));
    }
}

TEST_F(DXFPolylineTest, ZerosKeepTheSignThatTheChainGives)
{
    const auto polyline = makePolyline({QPointF(0.0, 0.0), QPointF(-0.0, 1)});

    polyline->setSegments(chainOf({QLineF(QPointF(-0.0, 0.0), QPointF(0.0, 1))}));

    EXPECT_TRUE(sameBits(pointsOf(*polyline).at(0), QPointF(-0.0, 0.0)));
    EXPECT_TRUE(sameBits(pointsOf(*polyline).at(1), QPointF(0.0, 1)));
}

TEST_F(DXFPolylineTest, GivenSegmentsKeepIdsAndFlagsUntilTheNextSetup)
{
    auto chain = chainOf({QLineF(a, b), QLineF(b, c)});
    chain[0].setSelected(true);
    chain[1].setHovered(true);
    const int firstId = chain.at(0).id();
    const int secondId = chain.at(1).id();
    DXFPolyline polyline(0, 0, 0);

    polyline.setSegments(chain);

    EXPECT_THAT(segmentIdsOf(polyline), ElementsAre(firstId, secondId));
    EXPECT_TRUE(polyline.segments().at(0).isSelected());
    EXPECT_TRUE(polyline.segments().at(1).isHovered());

    const int highest = highestId();
    polyline.setup();

    EXPECT_THAT(segmentIdsOf(polyline), ElementsAre(highest + 1, highest + 2));
    EXPECT_THAT(polyline.segments(), Each(Property(&Segment::isSelected, false)));
    EXPECT_THAT(polyline.segments(), Each(Property(&Segment::isHovered, false)));
}

TEST_F(DXFPolylineTest, SettingTheOwnSegmentsMakesTheNextSetupRenewThem)
{
    const auto polyline = makePolyline({a, b, c});
    polyline->setup();
    const auto ids = segmentIdsOf(*polyline);

    polyline->setSegments(polyline->segments());

    EXPECT_EQ(segmentIdsOf(*polyline), ids);

    polyline->setup();

    EXPECT_THAT(linesOf(*polyline), ElementsAre(QLineF(a, b), QLineF(b, c)));
    EXPECT_GT(segmentIdsOf(*polyline).at(0), ids.at(1));
}

TEST_F(DXFPolylineTest, GapIsBridged)
{
    DXFPolyline polyline(0, 0, 0);
    const auto chain = chainOf({QLineF(a, b), QLineF(c, d)});

    polyline.setSegments(chain);

    EXPECT_EQ(pointsOf(polyline), QVector<QPointF>({a, b, d}));
    EXPECT_THAT(linesOf(polyline), ElementsAre(QLineF(a, b), QLineF(c, d)));

    polyline.setup();

    EXPECT_THAT(linesOf(polyline), ElementsAre(QLineF(a, b), QLineF(b, d)));
}

TEST_F(DXFPolylineTest, EmptyChainLeavesVerticesAndFlags)
{
    DXFPolyline polyline(3, 4, 0x81);
    polyline.appendPoint(DXFVertex(1, 2, 3, true, 0.5));
    polyline.appendPoint(DXFVertex(4, 5, 6, true, 0));
    polyline.appendPoint(DXFVertex(7, 7, 7, true, 0));
    polyline.setup();
    const auto lines = linesOf(polyline);
    const auto ids = segmentIdsOf(polyline);

    polyline.setSegments({});

    EXPECT_THAT(linesOf(polyline), IsEmpty());
    EXPECT_EQ(polyline.mVertices(), 0U);
    EXPECT_EQ(polyline.nVertices(), 0U);
    EXPECT_EQ(polyline.flags(), 0x81U);
    EXPECT_EQ(polyline.vertexNumber(), 3);
    EXPECT_EQ(polyline.vertices().at(0).bulge(), 0.5);

    polyline.setup();

    EXPECT_EQ(linesOf(polyline), lines);
    EXPECT_GT(segmentIdsOf(polyline).at(0), ids.at(2));
}

TEST_F(DXFPolylineTest, ClosedChainKeepsItsFirstPointTwiceAndGetsAClosingSegmentWithoutLength)
{
    DXFPolyline polyline(0, 0, 0);

    polyline.setSegments(chainOf({QLineF(a, b), QLineF(b, c), QLineF(c, a)}));

    EXPECT_TRUE(polyline.isClosed());
    EXPECT_EQ(pointsOf(polyline), QVector<QPointF>({a, b, c, a}));

    polyline.setup();

    EXPECT_THAT(linesOf(polyline),
                ElementsAre(QLineF(a, b), QLineF(b, c), QLineF(c, a), QLineF(a, a)));
}

TEST_F(DXFPolylineTest, OpenChainClearsTheClosedBitOnly)
{
    DXFPolyline polyline(0, 0, 0xffffffffU);

    polyline.setSegments(chainOf({QLineF(a, b)}));

    EXPECT_EQ(polyline.flags(), 0xfffffffeU);
}

TEST_F(DXFPolylineTest, ClosedChainSetsTheClosedBitOnly)
{
    DXFPolyline polyline(0, 0, 0x80U);

    polyline.setSegments(chainOf({QLineF(a, b), QLineF(b, a)}));

    EXPECT_EQ(polyline.flags(), 0x81U);
}

TEST_F(DXFPolylineTest, SegmentWithoutLengthIsAClosedChain)
{
    DXFPolyline polyline(0, 0, 0);

    polyline.setSegments(chainOf({QLineF(a, a)}));

    EXPECT_TRUE(polyline.isClosed());
}

TEST_F(DXFPolylineTest, ChangedChainAfterTheSameListIsUsed)
{
    auto chain = chainOf({QLineF(a, b), QLineF(b, c)});
    DXFPolyline polyline(0, 0, 0);
    polyline.setSegments(chain);
    polyline.setSegments(chain);
    chain[1].setLine(QLineF(b, a));

    polyline.setSegments(chain);

    EXPECT_EQ(pointsOf(polyline), QVector<QPointF>({a, b, a}));
    EXPECT_TRUE(polyline.isClosed());
}

TEST_F(DXFPolylineTest, SameChainAgainDropsAnAppendedVertex)
{
    const auto chain = chainOf({QLineF(a, b), QLineF(b, c)});
    DXFPolyline polyline(0, 0, 0);
    polyline.setSegments(chain);
    polyline.appendPoint(DXFVertex(d.x(), d.y(), 0, true, 0));

    polyline.setSegments(chain);

    EXPECT_EQ(pointsOf(polyline), QVector<QPointF>({a, b, c}));
}

TEST_F(DXFPolylineTest, ReferenceToTheVerticesStaysValid)
{
    const auto polyline = makePolyline({a, b, c}, true);
    const auto& vertices = polyline->vertices();

    polyline->setup();
    ASSERT_EQ(vertices.size(), 3);
    EXPECT_EQ(vertices.last().x(), c.x());

    polyline->setSegments(chainOf({QLineF(a, d)}));
    ASSERT_EQ(vertices.size(), 2);
    EXPECT_EQ(vertices.last().y(), d.y());

    polyline->setSegments({});
    EXPECT_EQ(vertices.size(), 2);

    *polyline = *makePolyline({a, b, c, d});
    EXPECT_EQ(vertices.size(), 4);
}

TEST_F(DXFPolylineTest, ReferenceToTheVerticesStaysValidAfterAnAssignment)
{
    DXFPolyline source(0, 0, 0);
    source.setSegments(chainOf({QLineF(a, b), QLineF(b, c)}));
    DXFPolyline polyline(0, 0, 0);
    const auto& vertices = polyline.vertices();

    polyline = source;

    ASSERT_EQ(vertices.size(), 3);
    EXPECT_EQ(vertices.last().x(), c.x());
}

TEST_F(DXFPolylineTest, VerticesAreTheSameAfterTheSetup)
{
    for (const bool closed : {false, true}) {
        const auto polyline = makePolyline({a, b, c}, closed);
        polyline->setup();

        EXPECT_EQ(polyline->vertexNumber(), 3);
        EXPECT_EQ(pointsOf(*polyline), QVector<QPointF>({a, b, c}));
    }
}

TEST_F(DXFPolylineTest, VertexAppendedAfterTheSetupFollowsTheOthers)
{
    for (const bool closed : {false, true}) {
        const auto polyline = makePolyline({a, b, c}, closed);
        polyline->setup();

        polyline->appendPoint(DXFVertex(d.x(), d.y(), 0, true, 0));

        EXPECT_EQ(polyline->vertexNumber(), 4);
        EXPECT_EQ(pointsOf(*polyline), QVector<QPointF>({a, b, c, d}));
    }
}

struct Closing {
    const char* name;
    QPointF start;
    QPointF end;
    bool closed;
};

void PrintTo(const Closing& closing, std::ostream* out)
{
    *out << closing.name;
}

class ClosedBitTest : public LoggedTest, public ::testing::WithParamInterface<Closing>
{
};

TEST_P(ClosedBitTest, FollowsTheEndsOfTheChain)
{
    const Closing& closing = GetParam();
    DXFPolyline polyline(0, 0, closing.closed ? 0 : 1);

    polyline.setSegments(chainOf({QLineF(closing.start, d), QLineF(d, closing.end)}));

    EXPECT_EQ(polyline.isClosed(), closing.closed);
}

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(
    Ends, ClosedBitTest,
    ::testing::Values(
        Closing{"EqualEndsClose", a, a, true}, Closing{"DifferentEndsDoNot", a, b, false},
        Closing{"XAloneDiffers", QPointF(1, 2), QPointF(3, 2), false},
        Closing{"YAloneDiffers", QPointF(1, 2), QPointF(1, 3), false},
        Closing{"JustWithinTheRelativeLimit", QPointF(1, 1), QPointF(1 + 1e-13, 1 - 1e-13), true},
        Closing{"JustOutsideTheRelativeLimitInX", QPointF(1, 1), QPointF(1 + 2e-12, 1), false},
        Closing{"JustOutsideTheRelativeLimitInY", QPointF(1, 1), QPointF(1, 1 - 2e-12), false},
        Closing{"LimitGrowsWithTheCoordinates", QPointF(1e9, -1e9), QPointF(1e9 + 5e-4, -1e9),
                true},
        Closing{"LimitShrinksWithTheCoordinates", QPointF(1e-9, 1), QPointF(1e-9 + 1e-20, 1),
                false},
        Closing{"LimitFromZeroIsAbsolute", QPointF(0, 5e-13), QPointF(-5e-13, 0), true},
        Closing{"LimitFromZeroIsInclusive", QPointF(0, 0), QPointF(1e-12, -1e-12), true},
        Closing{"OutsideTheLimitFromZero", QPointF(0, 0), QPointF(1.1e-12, 0), false},
        Closing{"TinyOppositesDiffer", QPointF(1e-300, 1), QPointF(-1e-300, 1), false},
        Closing{"ZerosOfEitherSignCoincide", QPointF(0.0, -0.0), QPointF(-0.0, 0.0), true},
        Closing{"OppositeSignsDiffer", QPointF(1, 1), QPointF(-1, 1), false},
        Closing{"NaNCoincidesWithNothing", QPointF(nan, 1), QPointF(nan, 1), false},
        Closing{"NaNDiffersFromZero", QPointF(1, nan), QPointF(1, 0), false},
        Closing{"InfinityCoincidesWithNothing", QPointF(infinity, 1), QPointF(infinity, 1), false},
        Closing{"InfinityDiffersFromFinite", QPointF(1, infinity), QPointF(1, 1), false}),
    [](const auto& tested) { return std::string(tested.param.name); });

/// Random chains whose ends often differ by a little less or more than the tolerance.
class ChainSource
{
public:
    explicit ChainSource(unsigned seed)
        : m_random(seed)
    {
    }

    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(m_random); }
    bool oneIn(int n) { return upTo(n - 1) == 0; }

    QVector<Segment> chain()
    {
        QVector<Segment> segments;
        QPointF from = point();
        const int count = 1 + upTo(5);
        for (int i = 0; i < count; ++i) {
            const QPointF to = point();
            segments.append(Segment(QLineF(oneIn(5) ? point() : from, to)));
            from = to;
        }
        if (oneIn(2)) {
            const QPointF start = segments.first().line().p1();
            segments.last().setLine(
                QLineF(segments.last().line().p1(), QPointF(near(start.x()), near(start.y()))));
        }
        for (Segment& segment : segments) {
            segment.setSelected(oneIn(3));
            segment.setHovered(oneIn(3));
        }
        return segments;
    }

private:
    double coordinate()
    {
        static const double special[] = {0.0,    -0.0, 1.0,      -1.0,      1e-12, -1e-12,   1e300,
                                         5e-324, nan,  infinity, -infinity, 1e6,   1.0 / 3.0};
        if (oneIn(2))
            return special[upTo(int(std::size(special)) - 1)];
        return std::uniform_real_distribution<double>(-1000, 1000)(m_random);
    }

    QPointF point() { return QPointF(coordinate(), coordinate()); }

    double near(double value)
    {
        static const double offsets[] = {0.0, 1e-13, 9e-13, 1e-12, 1.1e-12, 2e-12};
        const double offset = offsets[upTo(int(std::size(offsets)) - 1)] * (oneIn(2) ? 1 : -1);
        return oneIn(2) ? value + offset : value * (1 + offset);
    }

    std::mt19937 m_random;
};

void expectMadeOf(const DXFPolyline& polyline, const QVector<Segment>& chain)
{
    ASSERT_EQ(polyline.vertices().size(), chain.size() + 1);
    EXPECT_TRUE(sameBits(pointsOf(polyline).first(), chain.first().line().p1()));
    for (int i = 0; i < chain.size(); ++i)
        EXPECT_TRUE(sameBits(pointsOf(polyline).at(i + 1), chain.at(i).line().p2())) << i;
    EXPECT_THAT(polyline.vertices(), Each(Property(&DXFVertex::z, 0.0)));
    EXPECT_THAT(polyline.vertices(), Each(Property(&DXFVertex::bulge, 0.0)));
    EXPECT_EQ(polyline.mVertices(), 0U);
    EXPECT_EQ(polyline.nVertices(), 0U);

    const QPointF start = chain.first().line().p1();
    const QPointF end = chain.last().line().p2();
    EXPECT_EQ(polyline.isClosed(),
              coordinatesCoincide(start.x(), end.x()) && coordinatesCoincide(start.y(), end.y()));

    const auto segments = polyline.segments();
    ASSERT_EQ(segments.size(), chain.size());
    for (int i = 0; i < chain.size(); ++i) {
        EXPECT_EQ(segments.at(i).id(), chain.at(i).id());
        EXPECT_EQ(segments.at(i).isSelected(), chain.at(i).isSelected());
        EXPECT_EQ(segments.at(i).isHovered(), chain.at(i).isHovered());
        EXPECT_TRUE(sameBits(segments.at(i).line().p1(), chain.at(i).line().p1()));
        EXPECT_TRUE(sameBits(segments.at(i).line().p2(), chain.at(i).line().p2()));
    }
}

void expectSetUpFromItsVertices(const DXFPolyline& polyline, int highestIdBefore)
{
    const auto points = pointsOf(polyline);
    const auto segments = polyline.segments();
    const auto open = points.size() - 1;
    ASSERT_EQ(segments.size(), polyline.isClosed() && open > 1 ? open + 1 : open);
    for (int i = 0; i < segments.size(); ++i) {
        const bool closing = i == open;
        EXPECT_TRUE(sameBits(segments.at(i).line().p1(), closing ? points.first() : points.at(i)));
        EXPECT_TRUE(
            sameBits(segments.at(i).line().p2(), closing ? points.last() : points.at(i + 1)));
        EXPECT_EQ(segments.at(i).id(), highestIdBefore + 1 + i);
    }
}

TEST_F(DXFPolylineTest, RandomChainsFollowTheRules)
{
    ChainSource source(20240117);
    for (int round = 0; round < 2000; ++round) {
        SCOPED_TRACE(round);
        DXFPolyline polyline(7, 8, static_cast<unsigned>(source.upTo(3)));
        polyline.appendPoint(DXFVertex(source.upTo(3), 0, source.upTo(1), true, source.upTo(1)));

        for (int step = source.upTo(3); step >= 0; --step) {
            const unsigned otherFlags = polyline.flags() & ~1U;
            const auto chain = source.oneIn(4) && !polyline.segments().isEmpty()
                                   ? polyline.segments()
                                   : source.chain();

            polyline.setSegments(chain);
            if (source.oneIn(3))
                polyline.setSegments(chain);

            expectMadeOf(polyline, chain);
            EXPECT_EQ(polyline.flags() & ~1U, otherFlags);

            if (source.oneIn(2)) {
                const int highest = highestId();
                polyline.setup();
                expectSetUpFromItsVertices(polyline, highest);
            }
            if (source.oneIn(3))
                polyline.setSelectedSegments({segmentIdsOf(polyline).last()});
            if (source.oneIn(4))
                polyline.appendPoint(DXFVertex(1, 2, 0, true, 0));
        }
        if (HasFailure())
            return;
    }
}

} // namespace
