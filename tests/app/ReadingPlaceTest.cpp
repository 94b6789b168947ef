// SPDX-License-Identifier: GPL-2.0-or-later

#include "ReadingPlace.h"
#include "Cancelled.h"
#include "ReadingWatch.h"

#include <gtest/gtest.h>

namespace
{

constexpr int groups = 1000;

TEST(ReadingPlaceTest, EachGroupIsTwoLines)
{
    const QByteArray content = "0\nSECTION\n2\nENTITIES\n";
    ReadingWatch watch;
    ReadingPlace place(content, watch);
    EXPECT_EQ(place.share(), 0.0);

    place.noteGroup(7);
    EXPECT_EQ(place.share(), 10.0 / static_cast<double>(content.size()));
    place.noteGroup(8);
    EXPECT_EQ(place.share(), 1.0);
}

TEST(ReadingPlaceTest, MoreGroupsThanLinesDoNoHarm)
{
    const QByteArray content = "0\nEOF";
    ReadingWatch watch;
    ReadingPlace place(content, watch);
    for (int group = 0; group < groups; ++group)
        place.noteGroup(3);

    EXPECT_EQ(place.share(), 1.0);
}

TEST(ReadingPlaceTest, WithoutLinesTheSizesOfTheValuesCount)
{
    const QByteArray content(100, '\0');
    ReadingWatch watch;
    ReadingPlace place(content, watch);

    place.noteGroup(8);
    EXPECT_EQ(place.share(), 0.1);
    place.noteGroup(1000);
    EXPECT_EQ(place.share(), 1.0);
}

TEST(ReadingPlaceTest, AnEmptyTextIsReadCompletely)
{
    const QByteArray content;
    ReadingWatch watch;
    ReadingPlace place(content, watch);
    place.noteGroup(1);

    EXPECT_EQ(place.share(), 1.0);
}

TEST(ReadingPlaceTest, ReportsToTheWatch)
{
    const QByteArray content = QByteArray("0\nEOF\n").repeated(2 * groups);
    ReadingWatch watch;
    ReadingPlace place(content, watch);
    for (int group = 0; group < groups; ++group)
        place.noteGroup(3);

    EXPECT_GT(watch.share(), 0.3);
    EXPECT_LE(watch.share(), place.share());
}

TEST(ReadingPlaceTest, ThrowsWhenTheReadIsCancelled)
{
    const QByteArray content;
    ReadingWatch watch;
    const ReadingPlace place(content, watch);
    EXPECT_NO_THROW(place.goOn());

    watch.cancel();

    EXPECT_THROW(place.goOn(), Cancelled);
}

} // namespace
