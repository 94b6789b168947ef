// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/IdSet.h"

#include <gtest/gtest.h>

#include <limits>

using dxfviewer::IdSet;

namespace
{

constexpr int least = std::numeric_limits<int>::min();
constexpr int greatest = std::numeric_limits<int>::max();

TEST(IdSetTest, EmptySetContainsNothing)
{
    const IdSet ids{QVector<int>()};

    for (int id : {least, -1, 0, 1, greatest})
        EXPECT_FALSE(ids.contains(id)) << id;
}

TEST(IdSetTest, OneIdContainsItselfOnly)
{
    for (int id : {least, -1, 0, 7, greatest}) {
        const IdSet ids({id});

        for (int other : {least, least + 1, -2, -1, 0, 1, 6, 7, 8, greatest - 1, greatest}) {
            EXPECT_EQ(ids.contains(other), other == id) << id << ' ' << other;
        }
    }
}

TEST(IdSetTest, OrderAndRepetitionDoNotMatter)
{
    const IdSet ids({9, 3, 9, 5, 3});

    for (int id = 0; id < 12; ++id)
        EXPECT_EQ(ids.contains(id), id == 3 || id == 5 || id == 9) << id;
}

TEST(IdSetTest, IdsNextToTheEndsAreNotContained)
{
    const IdSet ids({100, 200});

    EXPECT_FALSE(ids.contains(99));
    EXPECT_TRUE(ids.contains(100));
    EXPECT_FALSE(ids.contains(101));
    EXPECT_FALSE(ids.contains(199));
    EXPECT_TRUE(ids.contains(200));
    EXPECT_FALSE(ids.contains(201));
}

/// The ids lie so far apart that one bit for each id between them would take too much memory.
TEST(IdSetTest, FewIdsFarApartAreFound)
{
    for (const int gap : {1 << 22, 1 << 23, (1 << 23) + 1, 1 << 24, 1 << 29}) {
        const IdSet ids({-5, -5 + gap, -5 + 2 * gap});

        for (int id : {-5, -5 + gap, -5 + 2 * gap}) {
            EXPECT_TRUE(ids.contains(id)) << gap;
            EXPECT_FALSE(ids.contains(id - 1)) << gap;
            EXPECT_FALSE(ids.contains(id + 1)) << gap;
        }
    }
}

TEST(IdSetTest, IdsMaySpanAllInts)
{
    const IdSet ids({0, greatest, least});

    for (int id : {least, 0, greatest})
        EXPECT_TRUE(ids.contains(id)) << id;
    for (int id : {least + 1, -1, 1, greatest - 1})
        EXPECT_FALSE(ids.contains(id)) << id;
}

} // namespace
