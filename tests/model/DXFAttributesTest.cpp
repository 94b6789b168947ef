// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/DXFAttributes.h"

#include "tests/support/LoggedTest.h"

#include <limits>
#include <utility>

using namespace dxftest;

namespace
{

class DXFAttributesTest : public LoggedTest
{
};

TEST_F(DXFAttributesTest, EachValueIsReturnedAsGiven)
{
    const DXFAttributes attributes(QStringLiteral("Walls"), 3, 0x123456, 25,
                                   QStringLiteral("DASHED"), 0.5, 77, true);

    EXPECT_EQ(attributes.layerName(), QStringLiteral("Walls"));
    EXPECT_EQ(attributes.color(), 3);
    EXPECT_EQ(attributes.color24(), 0x123456);
    EXPECT_EQ(attributes.width(), 25);
    EXPECT_EQ(attributes.lineType(), QStringLiteral("DASHED"));
    EXPECT_EQ(attributes.lineTypeScale(), 0.5);
    EXPECT_EQ(attributes.handle(), 77);
    EXPECT_TRUE(attributes.inPaperSpace());
}

TEST_F(DXFAttributesTest, NothingIsValidated)
{
    constexpr int least = std::numeric_limits<int>::min();
    const DXFAttributes attributes(QString(), -1000, least, least, QString(), -2.0, least, false);

    EXPECT_EQ(attributes.layerName(), QString());
    EXPECT_EQ(attributes.color(), -1000);
    EXPECT_EQ(attributes.color24(), least);
    EXPECT_EQ(attributes.width(), least);
    EXPECT_EQ(attributes.lineType(), QString());
    EXPECT_EQ(attributes.lineTypeScale(), -2.0);
    EXPECT_EQ(attributes.handle(), least);
    EXPECT_FALSE(attributes.inPaperSpace());
}

TEST_F(DXFAttributesTest, StringHasEveryValueAndOneForPaperSpace)
{
    const DXFAttributes attributes(QStringLiteral("Walls"), 256, -1, -2, QStringLiteral("DASHED"),
                                   2.5, 31, true);

    EXPECT_EQ(attributes.toString(),
              QStringLiteral("[ATTRIBUTE layerName: Walls, color: 256, color24: -1, width: -2, "
                             "linetype: DASHED, linetypescale: 2.5, handle: 31, inpaperspace 1]"));
}

TEST_F(DXFAttributesTest, StringHasZeroOutsidePaperSpace)
{
    const DXFAttributes attributes(QString(), 0, 0x0000ff, 0, QString(), 1.0, -1, false);

    EXPECT_EQ(attributes.toString(),
              QStringLiteral("[ATTRIBUTE layerName: , color: 0, color24: 255, width: 0, "
                             "linetype: , linetypescale: 1, handle: -1, inpaperspace 0]"));
}

TEST_F(DXFAttributesTest, StringHasTheScaleInItsShortForm)
{
    const std::pair<double, const char*> forms[] = {{1e-7, "1e-07"},
                                                    {0.25, "0.25"},
                                                    {1234567.0, "1.23457e+06"},
                                                    {1e20, "1e+20"},
                                                    {0.1 + 0.2, "0.3"}};
    for (const auto& [scale, form] : forms) {
        const DXFAttributes attributes(QString(), 0, 0, 0, QString(), scale, 0, false);

        EXPECT_TRUE(attributes.toString().contains(
            QStringLiteral("linetypescale: %1, handle").arg(QLatin1String(form))))
            << form;
    }
}

TEST_F(DXFAttributesTest, PlaceholdersInNamesAreReplacedByLaterValues)
{
    const DXFAttributes attributes(QStringLiteral("%2"), 3, -1, 25, QStringLiteral("%6 %8"), 2.5,
                                   31, true);

    EXPECT_EQ(attributes.toString(),
              QStringLiteral("[ATTRIBUTE layerName: 3, color: 3, color24: -1, width: 25, "
                             "linetype: 2.5 1, linetypescale: 2.5, handle: 31, inpaperspace 1]"));
}

} // namespace
