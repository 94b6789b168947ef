// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/RecordCounts.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <tuple>
#include <utility>
#include <vector>

using dxfviewer::AnnouncedCount;
using dxfviewer::RecordCounts;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

namespace
{

using Codes = std::vector<std::pair<int, int>>;

/// The codes of the counts of a kind of record, each with the code of its items.
Codes codesOf(const char* kind)
{
    RecordCounts counts;
    counts.beginRecord(kind);
    Codes codes;
    for (const AnnouncedCount& count : counts)
        codes.emplace_back(count.countCode(), count.itemCode());
    return codes;
}

bool isSound(RecordCounts& counts)
{
    return std::all_of(counts.begin(), counts.end(),
                       [](const AnnouncedCount& count) { return count.isSound(); })
           && (!counts.hatchLoops() || counts.hatchLoops()->isSound());
}

/// dxflib has read the record as it is.
void endRecord(RecordCounts& counts)
{
    for (AnnouncedCount& count : counts)
        count.endRecord(count.count());
}

void addRecord(RecordCounts& counts, const char* kind,
               const std::vector<std::pair<int, const char*>>& groups)
{
    counts.beginRecord(kind);
    for (const auto& [code, value] : groups)
        counts.addGroup(code, value);
}

TEST(RecordCountsTest, KindsOfRecordsHaveTheirCounts)
{
    EXPECT_THAT(codesOf("LWPOLYLINE"), ElementsAre(Pair(90, 10)));
    EXPECT_THAT(codesOf("SPLINE"), ElementsAre(Pair(72, 40), Pair(73, 10), Pair(74, 11)));
    EXPECT_THAT(codesOf("LEADER"), ElementsAre(Pair(76, 10)));
    for (const char* kind : {"", "LINE", "POLYLINE", "HATCH", "lwpolyline", "SPLINE "})
        EXPECT_THAT(codesOf(kind), IsEmpty()) << kind;
}

TEST(RecordCountsTest, WithoutARecordEverythingIsSound)
{
    RecordCounts counts;

    EXPECT_TRUE(isSound(counts));
    EXPECT_EQ(counts.begin(), counts.end());
}

TEST(RecordCountsTest, AddGroupReturnsTheAnnouncedCount)
{
    RecordCounts counts;
    counts.beginRecord("SPLINE");

    EXPECT_EQ(counts.addGroup(73, "4"), counts.begin() + 1);
    EXPECT_EQ(counts.addGroup(10, "1"), nullptr);
    EXPECT_EQ(counts.addGroup(70, "1"), nullptr);
    EXPECT_EQ(counts.addGroup(90, "1"), nullptr);
    EXPECT_EQ((counts.begin() + 1)->count(), 4);
}

TEST(RecordCountsTest, AnnouncementReplacesAPositiveOne)
{
    RecordCounts counts;
    counts.beginRecord("LEADER");

    EXPECT_FALSE(counts.addGroup(76, "0")->replacesOne());
    EXPECT_FALSE(counts.addGroup(76, "3")->replacesOne());
    EXPECT_TRUE(counts.addGroup(76, "0")->replacesOne());
    EXPECT_FALSE(counts.addGroup(76, "1")->replacesOne());
    EXPECT_TRUE(counts.addGroup(76, "1")->replacesOne());

    counts.beginRecord("LEADER");
    EXPECT_FALSE(counts.addGroup(76, "1")->replacesOne());
}

TEST(RecordCountsTest, ItemsBeforeTheLastAnnouncementDoNotCount)
{
    RecordCounts counts;
    addRecord(counts, "LWPOLYLINE", {{10, "1"}, {10, "2"}, {90, "2"}, {10, "3"}});

    EXPECT_FALSE(isSound(counts));
    EXPECT_EQ(counts.begin()->soundCount(), 1);
}

TEST(RecordCountsTest, SoundCountIsAtMostTheNumberOfItems)
{
    for (const auto& [announced, sound] : std::vector<std::pair<const char*, int>>{
             {"0", 0}, {"1", 1}, {"2", 2}, {"3", 2}, {"-1", 0}, {"2147483648", 0}}) {
        RecordCounts counts;
        addRecord(counts, "LWPOLYLINE", {{90, announced}, {10, "1"}, {10, "2"}});

        EXPECT_EQ(counts.begin()->soundCount(), sound) << announced;
        EXPECT_EQ(isSound(counts), counts.begin()->count() == sound) << announced;
    }
}

TEST(RecordCountsTest, ItemsWithoutACountAreNotSound)
{
    RecordCounts counts;
    addRecord(counts, "LWPOLYLINE", {{10, "1"}, {10, "2"}});

    EXPECT_FALSE(isSound(counts));
    EXPECT_EQ(counts.begin()->soundCount(), 2);
}

TEST(RecordCountsTest, CountIsCarriedToTheNextRecordOfTheKind)
{
    RecordCounts counts;
    addRecord(counts, "LWPOLYLINE", {{90, "1"}, {10, "1"}});
    endRecord(counts);

    addRecord(counts, "LEADER", {});
    EXPECT_TRUE(isSound(counts));
    endRecord(counts);
    addRecord(counts, "LWPOLYLINE", {});
    EXPECT_FALSE(isSound(counts));
    endRecord(counts);
    addRecord(counts, "LWPOLYLINE", {});
    EXPECT_TRUE(isSound(counts));
}

TEST(RecordCountsTest, RepairedCountIsCarried)
{
    RecordCounts counts;
    addRecord(counts, "LWPOLYLINE", {{90, "5"}});
    counts.begin()->endRecord(0);

    addRecord(counts, "LWPOLYLINE", {});

    EXPECT_TRUE(isSound(counts));
}

TEST(RecordCountsTest, LoopsOfAHatchAreCarriedUntilTheNextBegins)
{
    RecordCounts counts;
    addRecord(counts, "HATCH", {{92, "2"}});
    EXPECT_TRUE(isSound(counts));
    endRecord(counts);

    addRecord(counts, "HATCH", {{70, "1"}});
    EXPECT_FALSE(isSound(counts));
    addRecord(counts, "LINE", {});
    EXPECT_TRUE(isSound(counts));
    addRecord(counts, "HATCH", {{92, "0"}});
    EXPECT_TRUE(isSound(counts));
    addRecord(counts, "HATCH", {});
    EXPECT_TRUE(isSound(counts));
}

TEST(RecordCountsTest, OnlyPolylineLoopsAndLoopsOfEdgesAreCarried)
{
    for (const auto& [code, value, carried] :
         std::vector<std::tuple<int, const char*, bool>>{{92, "0", false},
                                                         {92, "1", false},
                                                         {92, "2", true},
                                                         {92, "7", true},
                                                         {93, "0", true}}) {
        RecordCounts counts;
        addRecord(counts, "HATCH", {{code, value}});

        addRecord(counts, "HATCH", {});

        EXPECT_EQ(isSound(counts), !carried) << code << ' ' << value;
        EXPECT_NE(counts.hatchLoops(), nullptr);
    }
}

TEST(RecordCountsTest, OtherRecordsHaveNoLoops)
{
    RecordCounts counts;
    EXPECT_EQ(counts.hatchLoops(), nullptr);

    counts.beginRecord("HATCH");
    counts.beginRecord("SPLINE");

    EXPECT_EQ(counts.hatchLoops(), nullptr);
}

} // namespace
