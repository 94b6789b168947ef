// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/DXFEntity.h"

#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/OtherEntity.h"

using namespace dxftest;

namespace
{

class DXFEntityTest : public LoggedTest
{
protected:
    OtherEntity entity;
};

TEST_F(DXFEntityTest, StartsWithoutColourWidthAndAttributes)
{
    EXPECT_FALSE(entity.color().isValid());
    EXPECT_EQ(entity.lineWidth(), 0);
    EXPECT_TRUE(entity.attributes().isNull());
    EXPECT_FALSE(entity.isSelected());
    EXPECT_FALSE(entity.isHovered());
}

TEST_F(DXFEntityTest, ColourAndWidthAreReturnedAsSet)
{
    entity.setColor(QColor(1, 2, 3, 4));
    entity.setLineWidth(-7);

    EXPECT_EQ(entity.color(), QColor(1, 2, 3, 4));
    EXPECT_EQ(entity.lineWidth(), -7);
}

TEST_F(DXFEntityTest, AttributesAreSharedNotCopied)
{
    const auto attributes = makeAttributes(QStringLiteral("0"), 1);

    entity.setAttributes(attributes);

    EXPECT_EQ(entity.attributes().data(), attributes.data());
}

TEST_F(DXFEntityTest, NewAttributesReleaseTheOldOnes)
{
    auto attributes = makeAttributes(QStringLiteral("0"), 1);
    const QWeakPointer<DXFAttributes> old = attributes;
    entity.setAttributes(attributes);
    attributes.reset();

    entity.setAttributes(makeAttributes(QStringLiteral("0"), 2));

    EXPECT_TRUE(old.isNull());
    EXPECT_EQ(entity.attributes()->color(), 2);

    entity.setAttributes({});

    EXPECT_TRUE(entity.attributes().isNull());
}

TEST_F(DXFEntityTest, DestructionReleasesTheAttributes)
{
    auto attributes = makeAttributes(QStringLiteral("0"), 1);
    const QWeakPointer<DXFAttributes> held = attributes;
    DXFEntity* dying = new OtherEntity;
    dying->setAttributes(attributes);
    attributes.reset();
    ASSERT_FALSE(held.isNull());

    delete dying;

    EXPECT_TRUE(held.isNull());
}

TEST_F(DXFEntityTest, CopySharesTheAttributesAndHasColourAndWidth)
{
    entity.setAttributes(makeAttributes(QStringLiteral("0"), 1));
    entity.setColor(Qt::green);
    entity.setLineWidth(1);

    const OtherEntity copy(entity);

    EXPECT_EQ(copy.attributes().data(), entity.attributes().data());
    EXPECT_EQ(copy.color(), QColor(Qt::green));
    EXPECT_EQ(copy.lineWidth(), 1);
}

} // namespace
