// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/IDeletable.h"

#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"

#include <cstdlib>
#include <iostream>

using namespace dxftest;

namespace
{

class IDeletableTest : public LoggedTest
{
};

using IDeletableDeathTest = IDeletableTest;

TEST_F(IDeletableTest, StartsNeitherSelectedNorHovered)
{
    const IDeletable object;

    EXPECT_FALSE(object.isSelected());
    EXPECT_FALSE(object.isHovered());
}

TEST_F(IDeletableTest, SelectedAndHoveredAreIndependent)
{
    IDeletable object;

    object.setSelected(true);

    EXPECT_TRUE(object.isSelected());
    EXPECT_FALSE(object.isHovered());

    object.setHovered(true);
    object.setSelected(false);

    EXPECT_FALSE(object.isSelected());
    EXPECT_TRUE(object.isHovered());
}

TEST_F(IDeletableTest, FirstCallOfIdAssignsTheNextId)
{
    const int highest = IDeletable().id();
    const IDeletable object;

    const int id = object.id();

    EXPECT_EQ(id, highest + 1);
    EXPECT_EQ(object.id(), id);
}

TEST_F(IDeletableTest, IdsAreAtLeastOne)
{
    EXPECT_GE(IDeletable().id(), 1);
}

// A process of its own runs only this test.
TEST_F(IDeletableDeathTest, FirstIdOfAProcessIsOne)
{
    ::testing::GTEST_FLAG(death_test_style) = "threadsafe";

    EXPECT_EXIT(
        {
            const IDeletable first;
            std::cerr << "first id " << first.id() << ", second " << IDeletable().id() << std::endl;
            std::_Exit(EXIT_SUCCESS);
        },
        ::testing::ExitedWithCode(EXIT_SUCCESS), "first id 1, second 2\n");
}

TEST_F(IDeletableTest, ConstructionAssignsNoId)
{
    const int highest = IDeletable().id();
    const IDeletable neverAsked;
    const IDeletable asked;

    EXPECT_EQ(asked.id(), highest + 1);
}

TEST_F(IDeletableTest, IdsFollowTheOrderOfTheCallsOfId)
{
    const IDeletable first;
    const IDeletable second;

    const int secondId = second.id();
    const int firstId = first.id();

    EXPECT_EQ(firstId, secondId + 1);
}

TEST_F(IDeletableTest, EntitiesAndSegmentsShareTheCounter)
{
    const DXFPolyline polyline(0, 0, 0);
    const Segment segment;
    const IDeletable plain;

    const int id = polyline.id();

    EXPECT_EQ(segment.id(), id + 1);
    EXPECT_EQ(plain.id(), id + 2);
}

TEST_F(IDeletableTest, RegeneratedIdIsTheNextOfTheCounter)
{
    IDeletable object;
    const int old = object.id();
    const int highest = IDeletable().id();

    const int result = object.regenerateID();

    EXPECT_EQ(result, highest + 1);
    EXPECT_EQ(object.id(), result);
    EXPECT_NE(result, old);
}

TEST_F(IDeletableTest, RegeneratingWithoutAnIdTakesOneId)
{
    const int highest = IDeletable().id();
    IDeletable object;

    EXPECT_EQ(object.regenerateID(), highest + 1);
    EXPECT_EQ(IDeletable().id(), highest + 2);
}

TEST_F(IDeletableTest, ReplacedIdsAreNotUsedAgain)
{
    IDeletable object;
    const int old = object.id();

    object.regenerateID();

    EXPECT_GT(IDeletable().id(), old + 1);
}

TEST_F(IDeletableTest, CopyHasTheIdAndTheFlags)
{
    IDeletable original;
    original.setSelected(true);
    original.setHovered(true);
    const int id = original.id();

    const IDeletable copy(original);
    IDeletable assigned;
    assigned = original;

    EXPECT_EQ(copy.id(), id);
    EXPECT_TRUE(copy.isSelected());
    EXPECT_TRUE(copy.isHovered());
    EXPECT_EQ(assigned.id(), id);
    EXPECT_TRUE(assigned.isSelected());
    EXPECT_TRUE(assigned.isHovered());
}

TEST_F(IDeletableTest, CopyOfAnObjectWithoutIdGetsItsOwn)
{
    const IDeletable original;
    const IDeletable copy(original);

    EXPECT_NE(original.id(), copy.id());
}

TEST_F(IDeletableTest, RegeneratingTheCopyLeavesTheOriginal)
{
    const IDeletable original;
    const int id = original.id();
    IDeletable copy(original);

    copy.regenerateID();

    EXPECT_EQ(original.id(), id);
    EXPECT_NE(copy.id(), id);
}

} // namespace
