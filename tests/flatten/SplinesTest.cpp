// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/Splines.h"

#include "dxfviewer/flatten/Curves.h"
#include "dxfviewer/flatten/Fineness.h"
#include "dxfviewer/io/WorkMeter.h"
#include "tests/flatten/TracedCurves.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace dxftest;
using namespace dxfviewer;

namespace
{

constexpr std::size_t plenty = 10'000'000;

bool appendTo(Points& points, const Spline& spline, double step, std::size_t mostPoints)
{
    WorkMeter meter;
    return appendSpline(points, spline, Fineness{step, mostPoints, meter});
}

Points traced(const Spline& spline, double step = usualStep)
{
    Points points;
    EXPECT_TRUE(appendTo(points, spline, step, plenty));
    return points;
}

bool isDrawn(const Spline& spline)
{
    Points points;
    return appendTo(points, spline, usualStep, plenty);
}

Spline cubic(const Points& controlPoints)
{
    Spline spline;
    spline.controlPoints = controlPoints;
    return spline;
}

/// A circle of radius 1 as a spline of the second degree.
Spline circle()
{
    const double half = std::sqrt(0.5);
    Spline spline;
    spline.degree = 2;
    spline.knots = {0, 0, 0, 1, 1, 2, 2, 3, 3, 4, 4, 4};
    spline.weights = {1, half, 1, half, 1, half, 1, half, 1};
    spline.controlPoints = {{1, 0, 0},   {1, 1, 0},  {0, 1, 0},  {-1, 1, 0}, {-1, 0, 0},
                            {-1, -1, 0}, {0, -1, 0}, {1, -1, 0}, {1, 0, 0}};
    return spline;
}

TEST(SplinesTest, WeightsMakeACircle)
{
    const Points points = traced(circle());

    for (const Point3& point : points)
        EXPECT_NEAR(length(point), 1.0, 1e-12);
    EXPECT_NEAR(lengthOf(points), fullTurn, closeness * fullTurn);
    EXPECT_LT(points.size(), 200U);
}

TEST(SplinesTest, SplineOfDegreeOneIsItsControlPolygon)
{
    Spline spline;
    spline.degree = 1;
    spline.controlPoints = {{0, 0, 0}, {4, 0, 0}, {4, 3, 0}};
    spline.knots = {0, 0, 1, 2, 2};

    EXPECT_EQ(traced(spline), spline.controlPoints);
}

TEST(SplinesTest, SplineOfOneSpanIsABezierCurve)
{
    Spline spline = cubic({{0, 0, 0}, {1, 3, 1}, {4, 3, 2}, {5, 0, 3}});
    spline.knots = {0, 0, 0, 0, 1, 1, 1, 1};

    const Points points = traced(spline);

    EXPECT_EQ(points.front(), spline.controlPoints.front());
    EXPECT_EQ(points.back(), spline.controlPoints.back());
    // z grows evenly with the parameter, so it gives the parameter of each point.
    for (const Point3& point : points) {
        const double t = point.z / 3.0;
        EXPECT_NEAR(point.x, 3 * t * (1 - t) * (1 - t) + 12 * t * t * (1 - t) + 5 * t * t * t,
                    1e-12);
        EXPECT_NEAR(point.y, 9 * t * (1 - t), 1e-12);
    }
}

TEST(SplinesTest, UnclampedKnotsLimitTheDomain)
{
    // The points are evenly spaced on a line and the knots are uniform. So the curve runs from the
    // mean of the first three points to the mean of the last three.
    Spline spline = cubic({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}, {4, 0, 0}});
    spline.knots = {0, 1, 2, 3, 4, 5, 6, 7, 8};

    const Points points = traced(spline);

    EXPECT_NEAR(points.front().x, 1.0, 1e-12);
    EXPECT_NEAR(points.back().x, 3.0, 1e-12);
}

TEST(SplinesTest, MissingOrWrongKnotsBecomeUniform)
{
    const Points controlPoints{{0, 0, 0}, {1, 3, 0}, {4, 3, 0}, {5, 0, 0}, {7, 1, 0}};
    Spline sound = cubic(controlPoints);
    sound.knots = {0, 0, 0, 0, 1, 2, 2, 2, 2};
    const Points expected = traced(sound);
    for (const std::vector<double>& knots :
         {std::vector<double>{}, {1, 2, 3}, {9, 8, 7, 6, 5, 4, 3, 2, 1}, std::vector<double>(9)}) {
        Spline spline = cubic(controlPoints);
        spline.knots = knots;
        EXPECT_EQ(traced(spline), expected);
    }
}

TEST(SplinesTest, WrongNumberOfWeightsIsIgnored)
{
    Spline spline = cubic({{0, 0, 0}, {1, 3, 0}, {4, 3, 0}, {5, 0, 0}});
    const Points expected = traced(spline);
    spline.weights = {1, 5};

    EXPECT_EQ(traced(spline), expected);
}

TEST(SplinesTest, TooFewPointsLowerTheDegree)
{
    EXPECT_EQ(traced(cubic({{0, 0, 0}, {4, 3, 0}})), Points({{0, 0, 0}, {4, 3, 0}}));
    EXPECT_FALSE(isDrawn(cubic({{1, 1, 0}})));
    EXPECT_FALSE(isDrawn({}));
}

TEST(SplinesTest, DegreeOutOfRangeIsNotDrawn)
{
    Spline spline = cubic(Points(100));
    for (std::size_t i = 0; i < spline.controlPoints.size(); ++i)
        spline.controlPoints[i] = {static_cast<double>(i), 0, 0};
    for (const int degree : {0, -1, 33, 1000000, std::numeric_limits<int>::min()}) {
        spline.degree = degree;
        EXPECT_FALSE(isDrawn(spline)) << degree;
    }
    spline.degree = 32;
    EXPECT_TRUE(isDrawn(spline));
}

TEST(SplinesTest, PeriodicSplineIsClosed)
{
    // Most programs write it like this, with the first points again at the end.
    Spline wrapped =
        cubic({{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0}, {0, 0, 0}, {4, 0, 0}, {4, 4, 0}});
    wrapped.isPeriodic = true;
    wrapped.isClosed = true;
    for (int i = 0; i < 11; ++i)
        wrapped.knots.push_back(i);
    // The same spline, with each point once.
    Spline bare = cubic({{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0}});
    bare.isPeriodic = true;

    const Points expected = traced(wrapped);
    const Points points = traced(bare);

    EXPECT_LT(length(expected.front() - expected.back()), 1e-12);
    EXPECT_EQ(points, expected);
    bare.knots = wrapped.knots;
    EXPECT_EQ(traced(bare), expected);
}

TEST(SplinesTest, LengthIsNearThatOfFinerSteps)
{
    std::mt19937 random(10);
    std::uniform_real_distribution<double> number(-10.0, 10.0);
    for (int i = 0; i < 200; ++i) {
        Spline spline;
        spline.degree = 2 + i % 4;
        const int count = spline.degree + 1 + i % 9;
        for (int j = 0; j < count; ++j) {
            spline.controlPoints.push_back({number(random), number(random), 0});
            spline.weights.push_back(i % 2 == 0 ? 1.0 : std::abs(number(random)) + 0.1);
        }
        const Points coarse = traced(spline);
        const double exact = lengthOf(traced(spline, usualStep / 30.0));

        EXPECT_NEAR(lengthOf(coarse), exact, closeness * exact) << i;
    }
}

/// A path whose curve of a degree bends at a few of its many spans only.
Spline path(int degree, int legs)
{
    constexpr int pointsOfLeg = 40;
    Spline spline;
    spline.degree = degree;
    for (int leg = 0; leg < legs; ++leg) {
        for (int i = 0; i < pointsOfLeg; ++i)
            spline.controlPoints.push_back({1.0 * (leg * pointsOfLeg + i), leg % 2 * 1.0 * i, 0});
    }
    return spline;
}

TEST(SplinesTest, StraightSpansOfAnyDegreeAreOneSegmentEach)
{
    for (const int degree : {3, 5, 32}) {
        const Spline spline = path(degree, 1);

        const Points points = traced(spline);

        EXPECT_EQ(points.size(),
                  spline.controlPoints.size() + 1 - static_cast<std::size_t>(degree));
        EXPECT_EQ(points.front(), spline.controlPoints.front());
        EXPECT_NEAR(lengthOf(points), 39.0, 1e-9);
    }
}

TEST(SplinesTest, BendsOfAHighDegreeAreNearThoseOfFinerSteps)
{
    for (const int degree : {5, 9, 20, 32}) {
        const Spline spline = path(degree, 4);
        const double exact = lengthOf(traced(spline, usualStep / 30.0));

        EXPECT_NEAR(lengthOf(traced(spline)), exact, closeness * exact) << degree;
    }
}

TEST(SplinesTest, PointsThatGoBackAreNotStraight)
{
    Spline spline = cubic({{0, 0, 0}, {9, 0, 0}, {9, 0, 0}, {9, 0, 0}, {0, 0, 0}, {1, 0, 0}});
    spline.degree = 5;
    const double exact = lengthOf(traced(spline, usualStep / 30.0));

    EXPECT_GT(exact, 11.0);
    EXPECT_NEAR(lengthOf(traced(spline)), exact, closeness * exact);
}

TEST(SplinesTest, WeightsBelowZeroAreNotStraight)
{
    Spline spline = cubic({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}});
    spline.degree = 2;
    spline.weights = {1, -0.5, 1};
    const double exact = lengthOf(traced(spline, usualStep / 30.0));

    EXPECT_GT(exact, 2.1);
    EXPECT_NEAR(lengthOf(traced(spline)), exact, closeness * exact);
}

TEST(SplinesTest, StopsAtTheLimitOfPoints)
{
    Spline spline = cubic(Points(1000));
    for (std::size_t i = 0; i < spline.controlPoints.size(); ++i)
        spline.controlPoints[i] = {static_cast<double>(i), static_cast<double>(i % 2), 0};
    Points points;

    appendTo(points, spline, usualStep, 50);

    EXPECT_GE(points.size(), 50U);
    EXPECT_LT(points.size(), 60U);
}

Spline fitted(const Points& fitPoints)
{
    Spline spline;
    spline.fitPoints = fitPoints;
    return spline;
}

TEST(FitPointsTest, CurveGoesSmoothlyThroughThem)
{
    const Points fit{{0, 0, 0}, {4, 2, 0}, {5, 5, 0}, {9, 5, 0}, {10, 0, 0}};

    const Points points = traced(fitted(fit));

    for (const Point3& point : fit)
        EXPECT_NE(std::find(points.begin(), points.end(), point), points.end());
    for (std::size_t i = 2; i < points.size(); ++i) {
        const Point3 before = points[i - 1] - points[i - 2];
        const Point3 after = points[i] - points[i - 1];
        EXPECT_LT(std::atan2(length(cross(before, after)), dot(before, after)), 2 * usualStep);
    }
}

TEST(FitPointsTest, CurveThroughPointsOnALineIsStraight)
{
    const Points points = traced(fitted({{0, 0, 0}, {1, 1, 0}, {5, 5, 0}, {6, 6, 0}}));

    for (const Point3& point : points)
        EXPECT_NEAR(point.x, point.y, 1e-12);
    EXPECT_NEAR(lengthOf(points), 6 * std::sqrt(2.0), 1e-9);
}

TEST(FitPointsTest, TangentsGiveTheDirectionAtTheEnds)
{
    Spline spline = fitted({{0, 0, 0}, {4, 0, 0}});
    spline.startTangent = {0, 7, 0};
    spline.endTangent = {0, -3, 0};

    const Points points = traced(spline, usualStep / 10);

    const Point3 start = normalized(points[1] - points[0], {});
    const Point3 end = normalized(points.back() - points[points.size() - 2], {});
    EXPECT_NEAR(start.y, 1.0, 0.01);
    EXPECT_NEAR(end.y, -1.0, 0.01);
}

TEST(FitPointsTest, ClosedCurveThroughACircleIsNearlyACircle)
{
    Points fit;
    for (int i = 0; i < 12; ++i)
        fit.push_back({std::cos(i * fullTurn / 12), std::sin(i * fullTurn / 12), 0});
    Spline spline = fitted(fit);
    spline.isClosed = true;

    const Points points = traced(spline);

    EXPECT_EQ(points.front(), points.back());
    for (const Point3& point : points)
        EXPECT_NEAR(length(point), 1.0, 0.001);
    EXPECT_NEAR(lengthOf(points), fullTurn, closeness * fullTurn);
    // The first point may be given again at the end.
    spline.fitPoints.push_back(spline.fitPoints.front());
    EXPECT_EQ(traced(spline), points);
}

TEST(FitPointsTest, RepeatedPointsCountOnce)
{
    EXPECT_EQ(traced(fitted({{0, 0, 0}, {0, 0, 0}, {4, 3, 0}, {4, 3, 0}})).size(), 2U);
    EXPECT_FALSE(isDrawn(fitted({{1, 1, 0}, {1, 1, 0}})));
    EXPECT_FALSE(isDrawn(fitted({{1, 1, 0}})));
}

} // namespace
