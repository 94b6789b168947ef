// SPDX-License-Identifier: GPL-2.0-or-later

#include "Extent.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

TEST(ExtentTest, MarginIsAShareOfTheLongerSide)
{
    EXPECT_EQ(grown(QRectF(10, 20, 100, 40), 0.25), QRectF(-15, -5, 150, 90));
    EXPECT_EQ(grown(QRectF(10, 20, 40, 100), 0.25), QRectF(-15, -5, 90, 150));
}

TEST(ExtentTest, RectangleWithAnExtentStays)
{
    for (const QRectF& rect : {QRectF(1, 2, 3, 4), QRectF(3e6, 5e5, 0, 10),
                               QRectF(-1e-6, 0, 2e-6, 1e-6), QRectF(0, 0, 1e12, 0)})
        EXPECT_EQ(withExtent(rect), rect);
}

TEST(ExtentTest, NegativeExtentsBecomePositive)
{
    EXPECT_EQ(withExtent(QRectF(10, 5, -10, -5)), QRectF(0, 0, 10, 5));
}

TEST(ExtentTest, PointBecomesAUnitAroundIt)
{
    EXPECT_EQ(withExtent(QRectF(7, 8, 0, 0)), QRectF(6.5, 7.5, 1, 1));
    EXPECT_EQ(withExtent(QRectF()), QRectF(-0.5, -0.5, 1, 1));
    // So far from the origin the view cannot tell this extent from none.
    EXPECT_EQ(withExtent(QRectF(3e9, 0, 1e-3, 0)).width(), 1.0);
}

TEST(ExtentTest, ViewsShowWhatTheLeastScaleAllows)
{
    for (const QRectF& rect : {QRectF(), QRectF(1, 2, 3, 4), QRectF(0, 0, 1e13, 1e13),
                               QRectF(1e13, 0, -1e13, 1), QRectF(-3e20, 5e20, 1e12, 1)})
        EXPECT_TRUE(fitsIntoView(rect));
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    for (const QRectF& rect :
         {QRectF(-1e300, -1e300, 2e300, 2e300), QRectF(0, 0, 1.1e13, 1), QRectF(0, 0, 1, -1.1e13),
          QRectF(0, 1e300, 1, 1), QRectF(0, 0, infinity, 1), QRectF(0, nan, 1, 1)})
        EXPECT_FALSE(fitsIntoView(rect));
}

TEST(ExtentTest, RectangleThatIsNotFiniteBecomesAUnitAtTheOrigin)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    for (const QRectF& rect : {QRectF(0, 0, infinity, 1), QRectF(-infinity, 0, 1, 1),
                               QRectF(0, nan, 1, 1), QRectF(0, 0, nan, nan)})
        EXPECT_EQ(withExtent(rect), QRectF(0, 0, 1, 1));
}

} // namespace
