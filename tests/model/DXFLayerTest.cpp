// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/DXFLayer.h"

#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"

using namespace dxftest;

namespace
{

DXFLayer layerWithFlags(int flags)
{
    return DXFLayer(QStringLiteral("Walls"), QFlags<DXFLayer::Flag>(QFlag(flags)));
}

class DXFLayerTest : public LoggedTest
{
};

TEST_F(DXFLayerTest, NameAndFlagsAreReturnedAsGiven)
{
    const DXFLayer layer = layerWithFlags(70);

    EXPECT_EQ(layer.name(), QStringLiteral("Walls"));
    EXPECT_EQ(int(layer.flags()), 70);
}

TEST_F(DXFLayerTest, BitValuesAreThoseOfTheFile)
{
    EXPECT_EQ(int(DXFLayer::Frozen), 1);
    EXPECT_EQ(int(DXFLayer::Locked), 4);
}

TEST_F(DXFLayerTest, FlagOneIsFrozenOnly)
{
    EXPECT_TRUE(layerWithFlags(1).isFrozen());
    EXPECT_FALSE(layerWithFlags(1).isLocked());
}

TEST_F(DXFLayerTest, FlagFourIsLockedOnly)
{
    EXPECT_FALSE(layerWithFlags(4).isFrozen());
    EXPECT_TRUE(layerWithFlags(4).isLocked());
}

TEST_F(DXFLayerTest, FlagTwoIsNeither)
{
    EXPECT_FALSE(layerWithFlags(2).isFrozen());
    EXPECT_FALSE(layerWithFlags(2).isLocked());
}

TEST_F(DXFLayerTest, FlagFiveIsBoth)
{
    EXPECT_TRUE(layerWithFlags(5).isFrozen());
    EXPECT_TRUE(layerWithFlags(5).isLocked());
}

TEST_F(DXFLayerTest, OtherBitsDoNotMatter)
{
    EXPECT_TRUE(layerWithFlags(~4).isFrozen());
    EXPECT_FALSE(layerWithFlags(~4).isLocked());
    EXPECT_FALSE(layerWithFlags(~1).isFrozen());
    EXPECT_TRUE(layerWithFlags(~1).isLocked());
}

TEST_F(DXFLayerTest, StartsWithoutAttributes)
{
    EXPECT_TRUE(layerWithFlags(0).attributes().isNull());
}

TEST_F(DXFLayerTest, AttributesAreSharedAndReplaced)
{
    DXFLayer layer = layerWithFlags(0);
    auto attributes = makeAttributes(QStringLiteral("Walls"), 3);
    const QWeakPointer<DXFAttributes> old = attributes;

    layer.setAttributes(attributes);

    EXPECT_EQ(layer.attributes().data(), attributes.data());

    attributes.reset();
    layer.setAttributes(makeAttributes(QStringLiteral("Walls"), 4));

    EXPECT_TRUE(old.isNull());
    EXPECT_EQ(layer.attributes()->color(), 4);
}

TEST_F(DXFLayerTest, HasNoColourEvenWithAttributes)
{
    DXFLayer layer = layerWithFlags(5);
    EXPECT_FALSE(layer.getColor().isValid());

    layer.setAttributes(makeAttributes(QStringLiteral("Walls"), 3, 0xff0000));

    EXPECT_FALSE(layer.getColor().isValid());
}

TEST_F(DXFLayerTest, StringHasTheFlagsInLowerCaseHex)
{
    EXPECT_EQ(layerWithFlags(0).toString(), QStringLiteral("[LAYER name: Walls, flags: 0]"));
    EXPECT_EQ(layerWithFlags(5).toString(), QStringLiteral("[LAYER name: Walls, flags: 5]"));
    EXPECT_EQ(layerWithFlags(12).toString(), QStringLiteral("[LAYER name: Walls, flags: c]"));
    EXPECT_EQ(layerWithFlags(255).toString(), QStringLiteral("[LAYER name: Walls, flags: ff]"));
}

TEST_F(DXFLayerTest, StringKeepsPlaceholdersInTheName)
{
    const DXFLayer layer(QStringLiteral("%2"), DXFLayer::Locked);

    EXPECT_EQ(layer.toString(), QStringLiteral("[LAYER name: %2, flags: 4]"));
}

TEST_F(DXFLayerTest, StringHasTheFlagsUnsigned)
{
    EXPECT_EQ(layerWithFlags(-1).toString(),
              QStringLiteral("[LAYER name: Walls, flags: ffffffff]"));
}

} // namespace
