// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/support/Images.h"

#include <gmock/gmock.h>

#include <QColor>

using namespace dxftest;
using ::testing::HasSubstr;

namespace
{

QImage whitePicture()
{
    QImage picture(4, 3, QImage::Format_ARGB32);
    picture.fill(Qt::white);
    return picture;
}

TEST(ImagesTest, EqualPicturesMatch)
{
    EXPECT_TRUE(picturesMatch(whitePicture(), whitePicture()));
}

TEST(ImagesTest, FirstDifferentPixelIsNamed)
{
    QImage picture = whitePicture();
    picture.setPixelColor(2, 1, QColor(255, 250, 255));
    picture.setPixelColor(0, 2, Qt::black);

    const auto result = picturesMatch(picture, whitePicture());

    ASSERT_FALSE(result);
    EXPECT_THAT(result.message(), HasSubstr("pixel (2, 1)"));
}

TEST(ImagesTest, ToleranceIsPerChannelAndInclusive)
{
    QImage picture = whitePicture();
    picture.setPixelColor(2, 1, QColor(252, 251, 255));

    EXPECT_TRUE(picturesMatch(picture, whitePicture(), 4));
    EXPECT_FALSE(picturesMatch(picture, whitePicture(), 3));
}

TEST(ImagesTest, AlphaCounts)
{
    QImage picture = whitePicture();
    picture.setPixelColor(0, 0, QColor(255, 255, 255, 254));

    EXPECT_FALSE(picturesMatch(picture, whitePicture()));
}

TEST(ImagesTest, DifferentSizesDoNotMatch)
{
    EXPECT_FALSE(picturesMatch(whitePicture().copy(0, 0, 3, 3), whitePicture()));
}

} // namespace
