// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/SegmentGeometry.h"

#include "tests/support/LoggedTest.h"
#include "tests/support/SpecialNumbers.h"

#include <cmath>
#include <limits>
#include <ostream>
#include <string>

using namespace dxftest;

namespace
{

struct ProjectionRow {
    const char* name;
    QPointF point;
    QLineF line;
    QPointF foot;
    bool inside;
};

void PrintTo(const ProjectionRow& row, std::ostream* out)
{
    *out << row.name;
}

class ProjectionTest : public LoggedTest, public ::testing::WithParamInterface<ProjectionRow>
{
};

TEST_P(ProjectionTest, FindsTheFoot)
{
    const ProjectionRow& row = GetParam();
    bool inside = !row.inside;

    const QPointF foot = projection(row.point, row.line.p1(), row.line.p2(), &inside);

    EXPECT_DOUBLE_EQ(foot.x(), row.foot.x());
    EXPECT_DOUBLE_EQ(foot.y(), row.foot.y());
    EXPECT_EQ(inside, row.inside);
}

TEST_P(ProjectionTest, FindsTheSameFootWithoutAFlag)
{
    const ProjectionRow& row = GetParam();

    const QPointF foot = projection(row.point, row.line.p1(), row.line.p2(), nullptr);

    EXPECT_DOUBLE_EQ(foot.x(), row.foot.x());
    EXPECT_DOUBLE_EQ(foot.y(), row.foot.y());
}

const QLineF tenToTheRight(0, 0, 10, 0);

INSTANTIATE_TEST_SUITE_P(
    Table, ProjectionTest,
    ::testing::Values(
        ProjectionRow{"FootBetweenTheEnds", {5, 5}, tenToTheRight, {5, 0}, true},
        ProjectionRow{"FootBelowTheLine", {5, -5}, tenToTheRight, {5, 0}, true},
        ProjectionRow{"FootBehindTheEndIsNotClamped", {15, 3}, tenToTheRight, {15, 0}, false},
        ProjectionRow{"FootBeforeTheStartIsNotClamped", {-1, 0}, tenToTheRight, {-1, 0}, false},
        ProjectionRow{"FootOnTheStartCountsAsInside", {0, 7}, tenToTheRight, {0, 0}, true},
        ProjectionRow{"FootOnTheEndCountsAsInside", {10, 7}, tenToTheRight, {10, 0}, true},
        ProjectionRow{
            "FootJustBehindTheEndIsOutside", {10.000001, 7}, tenToTheRight, {10.000001, 0}, false},
        ProjectionRow{"FootJustBeforeTheStartIsOutside",
                      {-0.000001, 7},
                      tenToTheRight,
                      {-0.000001, 0},
                      false},
        ProjectionRow{"PointOnTheSegmentIsItsFoot", {4, 0}, tenToTheRight, {4, 0}, true},
        ProjectionRow{"DirectionMatters", {15, 3}, QLineF(10, 0, 20, 0), {15, 0}, true},
        ProjectionRow{"VerticalLine", {3, 4}, QLineF(1, 0, 1, 10), {1, 4}, true},
        ProjectionRow{"SlantedLine", {0, 2}, QLineF(0, 0, 2, 2), {1, 1}, true},
        ProjectionRow{
            "LineAwayFromTheOrigin", {104, 107}, QLineF(100, 104, 110, 104), {104, 104}, true},
        ProjectionRow{"ShortSegmentIsNotDegenerate",
                      {0.5e-100, 0},
                      QLineF(0, 0, 1e-100, 0),
                      {0.5e-100, 0},
                      true}),
    [](const auto& row) { return std::string(row.param.name); });

struct DistanceRow {
    const char* name;
    QPointF point;
    QLineF segment;
    double distance;
};

void PrintTo(const DistanceRow& row, std::ostream* out)
{
    *out << row.name;
}

class DistanceTest : public LoggedTest, public ::testing::WithParamInterface<DistanceRow>
{
};

TEST_P(DistanceTest, IsMeasuredToTheNearestPoint)
{
    const DistanceRow& row = GetParam();

    EXPECT_DOUBLE_EQ(distPointToSegment(row.point, row.segment), row.distance);
}

TEST_P(DistanceTest, IsTheSameForTheReversedSegment)
{
    const DistanceRow& row = GetParam();

    const double distance =
        distPointToSegment(row.point, QLineF(row.segment.p2(), row.segment.p1()));

    EXPECT_DOUBLE_EQ(distance, row.distance);
}

INSTANTIATE_TEST_SUITE_P(
    Table, DistanceTest,
    ::testing::Values(
        DistanceRow{"PerpendicularBetweenTheEnds", {5, 3}, tenToTheRight, 3},
        DistanceRow{"PerpendicularOnTheOtherSide", {5, -3}, tenToTheRight, 3},
        DistanceRow{"EndWhenTheFootIsBehindIt", {13, 4}, tenToTheRight, 5},
        DistanceRow{"StartWhenTheFootIsBeforeIt", {-3, 4}, tenToTheRight, 5},
        DistanceRow{"FootOnTheEnd", {10, 4}, tenToTheRight, 4},
        DistanceRow{"FootOnTheStart", {0, 4}, tenToTheRight, 4},
        DistanceRow{"PointOnTheSegment", {7, 0}, tenToTheRight, 0},
        DistanceRow{"PointOnTheExtension", {12, 0}, tenToTheRight, 2},
        DistanceRow{"SegmentOfZeroLength", {5, 6}, QLineF(2, 2, 2, 2), 5},
        DistanceRow{"PointOnASegmentOfZeroLength", {2, 2}, QLineF(2, 2, 2, 2), 0},
        DistanceRow{"SlantedSegment", {0, 2}, QLineF(0, 0, 2, 2), std::sqrt(2.0)},
        DistanceRow{"SegmentOfLength1eMinus200", {3, 4}, QLineF(0, 0, 1e-200, 0), 5},
        DistanceRow{"SegmentOfLength1eMinus200AtItsStart", {0, 0}, QLineF(0, 0, 1e-200, 0), 0}),
    [](const auto& row) { return std::string(row.param.name); });

class SegmentGeometryTest : public LoggedTest
{
};

TEST_F(SegmentGeometryTest, ZeroLengthProjectsToItsPoint)
{
    bool inside = true;

    EXPECT_EQ(projection({5, 6}, {2, 3}, {2, 3}, &inside), QPointF(2, 3));
    EXPECT_EQ(projection({5, 6}, {2, 3}, {2, 3}, nullptr), QPointF(2, 3));
}

TEST_F(SegmentGeometryTest, ZeroLengthLeavesTheFlagAsItWas)
{
    bool wasTrue = true;
    bool wasFalse = false;

    projection({5, 6}, {2, 3}, {2, 3}, &wasTrue);
    projection({5, 6}, {2, 3}, {2, 3}, &wasFalse);

    EXPECT_TRUE(wasTrue);
    EXPECT_FALSE(wasFalse);
}

TEST_F(SegmentGeometryTest, FootIsOutsideIfTheSquaredLengthUnderflows)
{
    bool inside = true;

    projection({0.5e-200, 1}, {0, 0}, {1e-200, 0}, &inside);

    EXPECT_FALSE(inside) << "neither an infinite nor an undefined parameter lies between 0 and 1";
}

TEST_F(SegmentGeometryTest, SmallSegmentFarFromTheOriginIsProjectedOnto)
{
    bool inside = false;
    const double x = 3e6;

    const QPointF foot = projection({x + 0.5e-8, 7}, {x, 5}, {x + 1e-8, 5}, &inside);

    EXPECT_TRUE(inside);
    EXPECT_EQ(foot.y(), 5.0);
}

TEST_F(SegmentGeometryTest, UndefinedCoordinatesAreNeverInside)
{
    for (const QLineF& line :
         {QLineF(notANumber, 0, 10, 0), QLineF(0, 0, notANumber, 0), QLineF(0, notANumber, 10, 0),
          QLineF(0, 0, 10, notANumber), QLineF(notANumber, notANumber, notANumber, notANumber)}) {
        bool inside = true;

        const QPointF foot = projection({5, 5}, line.p1(), line.p2(), &inside);

        EXPECT_FALSE(inside);
        EXPECT_TRUE(std::isnan(foot.x()) || std::isnan(foot.y()));
    }
}

TEST_F(SegmentGeometryTest, UndefinedPointIsNeverInside)
{
    bool inside = true;

    projection({notANumber, 5}, {0, 0}, {10, 0}, &inside);

    EXPECT_FALSE(inside);
    EXPECT_TRUE(std::isnan(distPointToSegment({notANumber, 5}, tenToTheRight)));
}

TEST_F(SegmentGeometryTest, UndefinedStartGivesTheDistanceToTheEnd)
{
    EXPECT_DOUBLE_EQ(distPointToSegment({13, 4}, QLineF(notANumber, 0, 10, 0)), 5.0);
}

TEST_F(SegmentGeometryTest, UndefinedEndGivesAnUndefinedDistance)
{
    // The distance to the start is taken only if it is less than that to the end.
    EXPECT_TRUE(std::isnan(distPointToSegment({3, 4}, QLineF(0, 0, notANumber, 0))));
}

TEST_F(SegmentGeometryTest, EndsAtInfinityLeaveTheOtherEnd)
{
    EXPECT_DOUBLE_EQ(distPointToSegment({13, 4}, QLineF(10, 0, infinity, 0)), 5.0);
    EXPECT_DOUBLE_EQ(distPointToSegment({-3, 4}, QLineF(-infinity, 0, 0, 0)), 5.0);
}

TEST_F(SegmentGeometryTest, DividesByTheSquareOfTheComputedLength)
{
#ifdef __FP_FAST_FMA
    GTEST_SKIP() << "the compiler may contract the library's expressions and ours differently";
#endif
    // For most directions the square of the length and the dot product differ in the last bits. The
    // foot must be computed with the square of the length.
    const QPointF a(0.1, 0.2);
    int differing = 0;
    for (int i = 1; i <= 1000; ++i) {
        const QPointF b(0.1 + 0.37 * i, 0.2 + 0.11 * i * i);
        const QPointF p(1.3 * i, -0.7 * i);
        const double length = QLineF(a, b).length();
        const QPointF d = b - a;
        const double along = (p.x() - a.x()) * d.x() + (p.y() - a.y()) * d.y();
        const double t = along / (length * length);

        const QPointF foot = projection(p, a, b, nullptr);

        ASSERT_EQ(foot.x(), a.x() + t * d.x()) << i;
        ASSERT_EQ(foot.y(), a.y() + t * d.y()) << i;
        differing += t != along / (d.x() * d.x() + d.y() * d.y());
    }
    EXPECT_GT(differing, 0) << "the rows do not tell the two formulas apart";
}

} // namespace
