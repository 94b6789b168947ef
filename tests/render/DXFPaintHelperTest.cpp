// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/render/DXFPaintHelper.h"

#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/OtherEntity.h"

#include <QMap>

#include <limits>

using namespace dxftest;

namespace
{

constexpr auto colorWarning = "Color BYBLOCK not supported";
constexpr auto widthWarning = "LineWidth BYBLOCK not supported";

const QMap<int, QColor>& knownColors()
{
    static const QMap<int, QColor> colors{
        {0, Qt::black},    {1, Qt::darkRed},         {2, Qt::darkYellow},  {3, Qt::darkGreen},
        {4, Qt::darkCyan}, {5, Qt::darkBlue},        {6, Qt::darkMagenta}, {7, Qt::lightGray},
        {8, Qt::darkGray}, {15, QColor(117, 59, 2)}, {23, Qt::red},        {121, Qt::green},
        {131, Qt::cyan},   {163, Qt::blue},          {221, Qt::magenta},   {250, Qt::black},
        {252, Qt::gray},
    };
    return colors;
}

/// An entity of a kind that does not matter here.
QSharedPointer<DXFEntity> entityOn(const QString& layerName, int color, int color24, int width)
{
    auto entity = QSharedPointer<OtherEntity>::create();
    entity->setAttributes(makeAttributes(layerName, color, color24, width));
    return entity;
}

const QString walls = QStringLiteral("Walls");

class DXFPaintHelperTest : public LoggedTest
{
protected:
    QColor colorOf(const QSharedPointer<DXFEntity>& entity) { return helper.lineColor(entity); }
    int widthOf(const QSharedPointer<DXFEntity>& entity) { return helper.lineWidth(entity); }

    DXFDocument document;
    DXFPaintHelper helper{document};
};

TEST_F(DXFPaintHelperTest, SeventeenNumbersHaveColoursAndAllOthersAreBlack)
{
    expectWarning(colorWarning);

    for (int number = -300; number <= 600; ++number)
        EXPECT_EQ(getColor(number, -1), knownColors().value(number, QColor(Qt::black))) << number;
}

TEST_F(DXFPaintHelperTest, NumberFifteenIsOpaqueBrown)
{
    EXPECT_EQ(getColor(15, -1).rgba(), qRgba(117, 59, 2, 255));
}

TEST_F(DXFPaintHelperTest, ExtremeNumbersAreBlack)
{
    EXPECT_EQ(getColor(std::numeric_limits<int>::min(), -1), QColor(Qt::black));
    EXPECT_EQ(getColor(std::numeric_limits<int>::max(), -1), QColor(Qt::black));
}

TEST_F(DXFPaintHelperTest, ByBlockColourIsBlackAfterAWarning)
{
    expectWarning(colorWarning);

    EXPECT_EQ(getColor(0, -1), QColor(Qt::black));
}

TEST_F(DXFPaintHelperTest, TrueColourWinsOverTheNumber)
{
    EXPECT_EQ(getColor(1, 0xff0000), QColor(255, 0, 0));
    EXPECT_EQ(getColor(0, 0x00ff00), QColor(0, 255, 0));
    EXPECT_EQ(getColor(256, 0x123456), QColor(0x12, 0x34, 0x56));
    EXPECT_EQ(getColor(7, 0), QColor(0, 0, 0));
}

TEST_F(DXFPaintHelperTest, TrueColourIsOpaqueWhateverItsHighBits)
{
    EXPECT_EQ(getColor(1, 0x7f0000ff).rgba(), qRgba(0, 0, 255, 255));
    EXPECT_EQ(getColor(1, -2).rgba(), qRgba(255, 255, 254, 255));
    EXPECT_EQ(getColor(1, std::numeric_limits<int>::min()).rgba(), qRgba(0, 0, 0, 255));
}

TEST_F(DXFPaintHelperTest, WidthIsZeroForZeroAndOneForAllOthers)
{
    expectWarning(widthWarning);

    for (int width = -300; width <= 300; ++width)
        EXPECT_EQ(getLineWidth(width), width == 0 ? 0 : 1) << width;
    EXPECT_EQ(getLineWidth(std::numeric_limits<int>::min()), 1);
    EXPECT_EQ(getLineWidth(std::numeric_limits<int>::max()), 1);
}

TEST_F(DXFPaintHelperTest, ByBlockWidthIsOneAfterAWarning)
{
    expectWarning(widthWarning);

    EXPECT_EQ(getLineWidth(-2), 1);
}

TEST_F(DXFPaintHelperTest, LayerHasTheColourOfItsAttributes)
{
    EXPECT_EQ(helper.lineColor(makeLayer(walls, 3)), QColor(Qt::darkGreen));
    EXPECT_EQ(helper.lineColor(makeLayer(walls, 3, 0x0000ff)), QColor(0, 0, 255));
}

TEST_F(DXFPaintHelperTest, ByLayerColourOfALayerIsBlack)
{
    document.addLayer(makeLayer(walls, 3));

    EXPECT_EQ(helper.lineColor(makeLayer(walls, 256)), QColor(Qt::black));
}

TEST_F(DXFPaintHelperTest, ByBlockColourOfALayerIsBlackAfterAWarning)
{
    expectWarning(colorWarning);

    EXPECT_EQ(helper.lineColor(makeLayer(walls, 0)), QColor(Qt::black));
}

TEST_F(DXFPaintHelperTest, LayerHasTheWidthOfItsAttributes)
{
    EXPECT_EQ(helper.lineWidth(makeLayer(walls, 3, -1, 0)), 0);
    EXPECT_EQ(helper.lineWidth(makeLayer(walls, 3, -1, 25)), 1);
    EXPECT_EQ(helper.lineWidth(makeLayer(walls, 3, -1, -1)), 1);
}

TEST_F(DXFPaintHelperTest, LayerWithoutAttributesIsBlackAndOneWide)
{
    const auto layer = QSharedPointer<DXFLayer>::create(walls, QFlags<DXFLayer::Flag>());

    EXPECT_EQ(helper.lineColor(layer), QColor(Qt::black));
    EXPECT_EQ(helper.lineWidth(layer), 1);
}

TEST_F(DXFPaintHelperTest, NullIsBlackAndOneWide)
{
    EXPECT_EQ(helper.lineColor(QSharedPointer<DXFLayer>()), QColor(Qt::black));
    EXPECT_EQ(helper.lineWidth(QSharedPointer<DXFLayer>()), 1);
    EXPECT_EQ(helper.lineColor(QSharedPointer<DXFEntity>()), QColor(Qt::black));
    EXPECT_EQ(helper.lineWidth(QSharedPointer<DXFEntity>()), 1);
}

TEST_F(DXFPaintHelperTest, EntityHasItsOwnColour)
{
    document.addLayer(makeLayer(walls, 3));

    EXPECT_EQ(colorOf(entityOn(walls, 1, -1, 0)), QColor(Qt::darkRed));
    EXPECT_EQ(colorOf(entityOn(walls, 1, 0x0000ff, 0)), QColor(0, 0, 255));
    EXPECT_EQ(colorOf(entityOn(walls, 257, -1, 0)), QColor(Qt::black));
    EXPECT_EQ(colorOf(entityOn(walls, -256, -1, 0)), QColor(Qt::black));
}

TEST_F(DXFPaintHelperTest, ByBlockColourOfAnEntityIsNotThatOfTheLayer)
{
    document.addLayer(makeLayer(walls, 3));
    expectWarning(colorWarning);

    EXPECT_EQ(colorOf(entityOn(walls, 0, -1, 0)), QColor(Qt::black));
}

TEST_F(DXFPaintHelperTest, ByLayerColourIgnoresTheEntitysTrueColour)
{
    document.addLayer(makeLayer(walls, 3));

    EXPECT_EQ(colorOf(entityOn(walls, 256, 0x0000ff, 0)), QColor(Qt::darkGreen));
}

TEST_F(DXFPaintHelperTest, ByLayerColourTakesTheLayersTrueColour)
{
    document.addLayer(makeLayer(walls, 3, 0x010203));

    EXPECT_EQ(colorOf(entityOn(walls, 256, -1, 0)), QColor(1, 2, 3));
}

TEST_F(DXFPaintHelperTest, ByLayerIsNotFollowedTwice)
{
    document.addLayer(makeLayer(walls, 256, -1, -1));

    EXPECT_EQ(colorOf(entityOn(walls, 256, -1, -1)), QColor(Qt::black));
    EXPECT_EQ(widthOf(entityOn(walls, 256, -1, -1)), 1);
}

TEST_F(DXFPaintHelperTest, ByLayerTakesTheLayerOfExactlyThatName)
{
    document.addLayer(makeLayer(QStringLiteral("WALLS"), 1, -1, 25));
    document.addLayer(makeLayer(walls, 2, -1, 0));
    document.addLayer(makeLayer(QStringLiteral("walls"), 3, -1, 25));

    EXPECT_EQ(colorOf(entityOn(walls, 256, -1, -1)), QColor(Qt::darkYellow));
    EXPECT_EQ(widthOf(entityOn(walls, 256, -1, -1)), 0);
}

TEST_F(DXFPaintHelperTest, LayersAddedAfterTheHelperAreFound)
{
    const auto entity = entityOn(walls, 256, -1, -1);
    ASSERT_EQ(colorOf(entity), QColor(Qt::black));

    document.addLayer(makeLayer(walls, 3, -1, 0));

    EXPECT_EQ(colorOf(entity), QColor(Qt::darkGreen));
    EXPECT_EQ(widthOf(entity), 0);
}

TEST_F(DXFPaintHelperTest, EntityOnAMissingLayerIsBlackAndOneWide)
{
    document.addLayer(makeLayer(walls, 3, -1, 0));

    EXPECT_EQ(colorOf(entityOn(QStringLiteral("walls"), 256, 0xff0000, -1)), QColor(Qt::black));
    EXPECT_EQ(widthOf(entityOn(QStringLiteral("walls"), 256, 0xff0000, -1)), 1);
}

TEST_F(DXFPaintHelperTest, EntityWithoutAttributesIsBlackAndOneWide)
{
    const auto entity = QSharedPointer<OtherEntity>::create();

    EXPECT_EQ(colorOf(entity), QColor(Qt::black));
    EXPECT_EQ(widthOf(entity), 1);
}

TEST_F(DXFPaintHelperTest, EntityHasItsOwnWidth)
{
    document.addLayer(makeLayer(walls, 3, -1, 25));

    EXPECT_EQ(widthOf(entityOn(walls, 1, -1, 0)), 0);
    EXPECT_EQ(widthOf(entityOn(walls, 1, -1, 25)), 1);
}

TEST_F(DXFPaintHelperTest, OnlyByLayerWidthIsThatOfTheLayer)
{
    document.addLayer(makeLayer(walls, 3, -1, 0));

    EXPECT_EQ(widthOf(entityOn(walls, 1, -1, -1)), 0);
    EXPECT_EQ(widthOf(entityOn(walls, 1, -1, -3)), 1);
}

TEST_F(DXFPaintHelperTest, ByBlockWidthOfAnEntityIsOneAfterAWarning)
{
    document.addLayer(makeLayer(walls, 3, -1, 0));
    expectWarning(widthWarning);

    EXPECT_EQ(widthOf(entityOn(walls, 1, -1, -2)), 1);
}

TEST_F(DXFPaintHelperTest, ByBlockOfTheLayerWarnsAtTheEntity)
{
    document.addLayer(makeLayer(walls, 0, -1, -2));
    expectWarning(widthWarning);
    expectWarning(colorWarning);

    EXPECT_EQ(widthOf(entityOn(walls, 256, -1, -1)), 1);
    EXPECT_EQ(colorOf(entityOn(walls, 256, -1, -1)), QColor(Qt::black));
}

TEST_F(DXFPaintHelperTest, WarningsAreRepeatedAtEveryResolution)
{
    const auto entity = entityOn(walls, 0, -1, -2);
    expectWarning(colorWarning, 3);
    expectWarning(widthWarning, 2);

    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(colorOf(entity), QColor(Qt::black));
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(widthOf(entity), 1);
}

TEST_F(DXFPaintHelperTest, ResolvingChangesNothing)
{
    document.addLayer(makeLayer(walls, 3, -1, 0));
    const auto entity = entityOn(walls, 256, -1, -1);
    document.addEntity(entity);

    helper.lineColor(entity);
    helper.lineWidth(entity);

    EXPECT_FALSE(entity->color().isValid());
    EXPECT_EQ(entity->lineWidth(), 0);
    EXPECT_EQ(document.layers().size(), 1);
    EXPECT_EQ(document.entities().size(), 1);
}

} // namespace
