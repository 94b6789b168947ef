// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/Curves.h"

#include "tests/flatten/TracedCurves.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace dxftest;
using namespace dxfviewer;

namespace
{

struct Box {
    double left = 1e300, right = -1e300, bottom = 1e300, top = -1e300;

    explicit Box(const Points& points)
    {
        for (const Point3& point : points) {
            left = std::min(left, point.x);
            right = std::max(right, point.x);
            bottom = std::min(bottom, point.y);
            top = std::max(top, point.y);
        }
    }
    double size() const { return std::hypot(right - left, top - bottom); }
};

/// The largest distance between the sides of two boxes.
double difference(const Box& a, const Box& b)
{
    return std::max({std::abs(a.left - b.left), std::abs(a.right - b.right),
                     std::abs(a.bottom - b.bottom), std::abs(a.top - b.top)});
}

/// So many more steps than the curves under test that the result counts as exact.
const double fineStep = usualStep / 200.0;

TEST(SweepTest, GoesCounterClockwiseFromStartToEnd)
{
    EXPECT_NEAR(sweepBetween(radians(350), radians(10)), radians(20), 1e-12);
    EXPECT_NEAR(sweepBetween(radians(10), radians(350)), radians(340), 1e-12);
    EXPECT_NEAR(sweepBetween(radians(-90), radians(720)), radians(90), 1e-12);
}

TEST(SweepTest, AnglesThatAreEqualButForRoundingAreAFullTurnApart)
{
    EXPECT_EQ(sweepBetween(1.0, 1.0), fullTurn);
    EXPECT_EQ(sweepBetween(0.0, fullTurn), fullTurn);
    EXPECT_EQ(sweepBetween(0.0, fullTurn + 1e-12), fullTurn);
    EXPECT_EQ(sweepBetween(0.0, fullTurn - 1e-12), fullTurn);
    EXPECT_EQ(sweepBetween(0.0, 4 * fullTurn), fullTurn);
}

TEST(StepsTest, AreNotTooLongAndAtLeastTwo)
{
    EXPECT_EQ(stepsOf(fullTurn, usualStep), 64);
    EXPECT_EQ(stepsOf(-fullTurn, usualStep), 64);
    EXPECT_EQ(stepsOf(radians(90), usualStep), 16);
    EXPECT_EQ(stepsOf(radians(91), usualStep), 17);
    EXPECT_EQ(stepsOf(1e-9, usualStep), 2);
}

TEST(ArcTest, LengthAndBoxAreNearlyExact)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> number(-10.0, 10.0);
    for (int i = 0; i < 500; ++i) {
        const double angle = number(random);
        const double radius = std::abs(number(random)) + 0.01;
        const Ring ring{{number(random), number(random), 0},
                        {radius * std::cos(angle), radius * std::sin(angle), 0},
                        {-radius * std::sin(angle), radius * std::cos(angle), 0}};
        const double start = number(random);
        const double sweep = i % 10 == 0 ? fullTurn : fullTurn * std::abs(number(random)) / 10.0;
        Points coarse;
        appendArc(coarse, ring, start, sweep, usualStep);
        Points fine;
        appendArc(fine, ring, start, sweep, fineStep);

        EXPECT_NEAR(lengthOf(coarse), radius * sweep, closeness * radius * sweep);
        EXPECT_LE(difference(Box(coarse), Box(fine)), closeness * Box(fine).size())
            << sweep << " from " << start;
        for (const Point3& point : coarse)
            EXPECT_NEAR(length(point - ring.center), radius, 1e-9);
    }
}

TEST(ArcTest, EllipsesAreNearlyExact)
{
    std::mt19937 random(8);
    std::uniform_real_distribution<double> number(0.01, 10.0);
    for (int i = 0; i < 200; ++i) {
        const Ring ring{{}, {number(random), 0, 0}, {0, number(random), 0}};
        const double sweep = i % 2 == 0 ? fullTurn : fullTurn * number(random) / 10.0;
        const double start = number(random);
        Points coarse;
        appendArc(coarse, ring, start, sweep, usualStep);
        Points fine;
        appendArc(fine, ring, start, sweep, fineStep);

        EXPECT_NEAR(lengthOf(coarse), lengthOf(fine), closeness * lengthOf(fine));
        EXPECT_LE(difference(Box(coarse), Box(fine)), closeness * Box(fine).size());
    }
}

TEST(BulgeTest, IsTheTangentOfAQuarterOfTheSweep)
{
    std::mt19937 random(9);
    std::uniform_real_distribution<double> number(-5.0, 5.0);
    for (int i = 0; i < 500; ++i) {
        const Point3 from{number(random), number(random), 0};
        const Point3 to{number(random), number(random), 0};
        const double bulge = std::pow(number(random), 3);
        Points points{from};
        appendBulge(points, from, to, bulge, usualStep);

        const double sweep = 4.0 * std::atan(std::abs(bulge));
        const double radius = length(to - from) / 2.0 / std::sin(sweep / 2.0);
        EXPECT_NEAR(lengthOf(points), radius * sweep, closeness * radius * sweep);
        EXPECT_EQ(points.back(), to);
        EXPECT_EQ(static_cast<int>(points.size()) - 1, stepsOf(sweep, usualStep));
        // The middle of the arc is to the right of the chord if the bulge is positive.
        if (points.size() % 2 == 1) {
            const Point3 middle = points[points.size() / 2] - (from + to) * 0.5;
            const Point3 right = normalized({to.y - from.y, from.x - to.x, 0}, {});
            EXPECT_NEAR(dot(middle, right), bulge * length(to - from) / 2.0, 1e-6);
        }
    }
}

TEST(BulgeTest, IsStraightWithoutAngleOrLength)
{
    for (const double bulge : {0.0, 1e-13, -1e-300}) {
        Points points;
        appendBulge(points, {0, 0, 0}, {4, 3, 0}, bulge, usualStep);
        EXPECT_EQ(points, Points({{4, 3, 0}}));
    }
    Points points;
    appendBulge(points, {4, 3, 0}, {4, 3, 0}, 1.0, usualStep);
    EXPECT_EQ(points, Points({{4, 3, 0}}));
}

TEST(BulgeTest, VeryFlatAndVeryRoundArcsAreExact)
{
    Points flat;
    appendBulge(flat, {0, 0, 0}, {1, 0, 0}, 1e-9, usualStep);
    EXPECT_NEAR(lengthOf(flat), 0.5, 1e-9);
    EXPECT_NEAR(flat.front().y, -0.5e-9, 1e-12);
    Points round;
    appendBulge(round, {0, 0, 0}, {1, 0, 0}, 1e3, usualStep);
    EXPECT_NEAR(Box(round).bottom, -500.0, 1.0);
}

} // namespace
