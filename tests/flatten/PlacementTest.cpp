// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/Placement.h"

#include "dxfviewer/flatten/Curves.h"

#include <gtest/gtest.h>

#include <limits>

using namespace dxfviewer;

namespace
{

void expectNear(const Point3& actual, const Point3& expected)
{
    EXPECT_NEAR(actual.x, expected.x, 1e-12);
    EXPECT_NEAR(actual.y, expected.y, 1e-12);
    EXPECT_NEAR(actual.z, expected.z, 1e-12);
}

TEST(PlacementTest, InnerPlacementComesFirst)
{
    const Placement both =
        moved({10, 20, 30}) * turned(radians(90)) * scaled({2, 3, 4}) * moved({1, 1, 1});

    expectNear(both.map({0, 0, 0}), {7, 22, 34});
    expectNear(both.map({1, 0, 0}), {7, 24, 34});
    expectNear(both.mapVector({1, 0, 0}), {0, 2, 0});
}

TEST(ExtrusionTest, UpwardsLeavesPointsUnchanged)
{
    for (const Point3& direction : {Point3{0, 0, 1}, Point3{0, 0, 5}, Point3{0, 0, 0},
                                    Point3{std::numeric_limits<double>::infinity(), 0, 0},
                                    Point3{std::numeric_limits<double>::quiet_NaN(), 0, 1}})
        EXPECT_EQ(extruded(direction).map({1, 2, 3}), Point3({1, 2, 3}));
}

TEST(ExtrusionTest, DownwardsMirrors)
{
    expectNear(extruded({0, 0, -1}).map({1, 2, 3}), {-1, 2, -3});
}

TEST(ExtrusionTest, ObliqueDirectionHasAHorizontalXAxis)
{
    const Placement placement = extruded({1, 2, 2});

    expectNear(placement.zAxis, {1.0 / 3, 2.0 / 3, 2.0 / 3});
    expectNear(placement.xAxis, normalized({-2, 1, 0}, {}));
    expectNear(placement.yAxis, cross(placement.zAxis, placement.xAxis));
}

TEST(ExtrusionTest, NearlyVerticalDirectionTakesItsXAxisFromY)
{
    const double limit = 1.0 / 64.0;
    const double inside = limit - 1e-6;
    const double outside = limit + 1e-6;
    const auto upright = [](double x, double y) {
        return extruded({x, y, std::sqrt(1 - x * x - y * y)});
    };

    EXPECT_NEAR(upright(inside, inside).xAxis.y, 0.0, 1e-12);
    EXPECT_NEAR(upright(outside, 0).xAxis.z, 0.0, 1e-12);
    EXPECT_NEAR(upright(outside, 0).xAxis.y, 1.0, 1e-12);
    EXPECT_NEAR(upright(0, outside).xAxis.z, 0.0, 1e-12);
}

} // namespace
