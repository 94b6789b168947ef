// SPDX-License-Identifier: GPL-2.0-or-later

#include "PictureFormats.h"
#include "Picture.h"

#include "dxfviewer/model/DXFDocument.h"
#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"

#include <QImage>

namespace
{

using PictureFormatsTest = dxftest::LoggedTest;

TEST_F(PictureFormatsTest, EachSuffixHasItsFormat)
{
    const Picture picture(
        dxftest::makeDocument({dxftest::makePolyline({{0, 0}, {200, 0}, {200, 100}})}), Qt::white);
    ASSERT_EQ(picture.fault(), QString());
    ASSERT_EQ(pictureSuffixes(),
              QStringList({QStringLiteral("png"), QStringLiteral("svg"), QStringLiteral("pdf")}));

    const QImage image = QImage::fromData(pictureFile(picture, QStringLiteral("png")), "PNG");
    EXPECT_EQ(image.size(), picture.size());
    EXPECT_THAT(pictureFile(picture, QStringLiteral("svg")).toStdString(),
                testing::HasSubstr("<svg "));
    EXPECT_TRUE(pictureFile(picture, QStringLiteral("pdf")).startsWith("%PDF"));
}

} // namespace
