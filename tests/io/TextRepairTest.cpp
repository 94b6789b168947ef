// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/TextRepair.h"

#include "tests/io/CallRecorder.h"
#include "tests/io/DrawingText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

using namespace dxftest;
using dxfviewer::repaired;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

bool isSound(const std::string& text)
{
    return !repaired(text);
}

/// The repaired form of a text that needs it.
std::string repairedText(const std::string& text)
{
    const auto result = repaired(text);
    EXPECT_TRUE(result);
    return result.value_or(text);
}

std::vector<std::string> parsedRepaired(const std::vector<Group>& entities, const char* callback)
{
    return parsed(repairedText(drawingOf(entities)), callback);
}

/// The values of the groups with this code in the repaired drawing.
std::vector<std::string> repairedValues(const std::vector<Group>& entities, int code)
{
    std::vector<std::string> values;
    for (const Group& group : groupsOf(repairedText(drawingOf(entities)))) {
        if (group.code == code)
            values.push_back(group.value);
    }
    return values;
}

void expectPromisesKept(const std::string& text)
{
    const std::string result = repaired(text).value_or(text);

    EXPECT_LE(result.size(), 3 * text.size() + 3);
    EXPECT_TRUE(isSound(result));
}

TEST(TextRepairTest, TextWithoutGroupsIsSound)
{
    for (const char* text : {"", "0", "0\n", "0\nLINE", "0\nLINE\n", "not a drawing"})
        EXPECT_TRUE(isSound(text)) << text;
}

TEST(TextRepairTest, GeneratedDrawingsAreSound)
{
    for (unsigned seed = 0; seed < 50; ++seed)
        EXPECT_TRUE(isSound(textOf(DrawingGenerator(seed).makeDrawing(20)))) << seed;
}

TEST(TextRepairTest, ZeroByteIsNotSoundAnywhere)
{
    const std::string text = drawingOf({{0, "LINE"}});
    for (std::size_t at = 0; at <= text.size(); ++at)
        EXPECT_FALSE(isSound(std::string(text).insert(at, 1, '\0'))) << at;
    EXPECT_FALSE(isSound(std::string(1, '\0')));
}

TEST(TextRepairTest, LineLengthIsLimited)
{
    for (const std::size_t length : {1023U, 1024U}) {
        const std::string line(length, ' ');
        const bool sound = length == 1023;

        EXPECT_EQ(isSound(line + "\nx\n"), sound);
        EXPECT_EQ(isSound("1\n" + line + '\n'), sound);
        EXPECT_EQ(isSound("1\n" + line), sound);
        EXPECT_EQ(isSound("1\nx\n" + line), sound);
    }
}

TEST(TextRepairTest, BlankRealIsNotSound)
{
    for (const int code : {10, 59, 110, 149, 210, 239, 1010, 1059}) {
        EXPECT_FALSE(isSound(textOf({{code, " \r"}}))) << code;
        EXPECT_TRUE(isSound(textOf({{code, "0"}}))) << code;
    }
}

TEST(TextRepairTest, BareVersionCommentIsNotSound)
{
    EXPECT_FALSE(isSound(textOf({{999, "dxflib"}})));
    EXPECT_FALSE(isSound(textOf({{999, "dxflib\r\r"}})));
    EXPECT_TRUE(isSound(textOf({{999, "dxflib 3"}})));
    EXPECT_TRUE(isSound(textOf({{998, "dxflib"}})));
}

TEST(TextRepairTest, CountMayNotExceedWhatTheRecordHolds)
{
    for (const char* end : {"", "0\nEOF\n"}) {
        const std::string point = "10\n1\n20\n2\n";
        EXPECT_TRUE(isSound("0\nLWPOLYLINE\n90\n1\n" + point + end)) << end;
        EXPECT_FALSE(isSound("0\nLWPOLYLINE\n90\n2\n" + point + end)) << end;
        EXPECT_FALSE(isSound("0\nLWPOLYLINE\n90\n-1\n" + point + end)) << end;
    }
}

TEST(TextRepairTest, MissingCountMattersOnlyWhereTheRecordEnds)
{
    const std::string record = "0\nLWPOLYLINE\n10\n1\n20\n2\n";

    EXPECT_TRUE(isSound(record));
    EXPECT_FALSE(isSound(record + "0\nEOF\n"));
}

TEST(TextRepairTest, SecondCountIsSoundOnlyAfterAZero)
{
    const std::string points = "10\n1\n10\n2\n0\nEOF\n";

    EXPECT_FALSE(isSound("0\nLWPOLYLINE\n90\n1\n90\n2\n" + points));
    EXPECT_TRUE(isSound("0\nLWPOLYLINE\n90\n0\n90\n2\n" + points));
}

TEST(TextRepairTest, CarriageReturnCountsAsPartOfALine)
{
    EXPECT_TRUE(isSound(drawingOf({{1, std::string(1022, 'c') + '\r'}})));
    EXPECT_FALSE(isSound(drawingOf({{1, std::string(1023, 'c') + '\r'}})));
}

TEST(TextRepairTest, BlankTextAndIntegerAreSound)
{
    for (const int code : {1, 9, 60, 109, 150, 209, 240, 1009, 1060})
        EXPECT_TRUE(isSound(drawingOf({{0, "LINE"}, {code, ""}}))) << code;
}

TEST(TextRepairTest, LowerCountIsSound)
{
    EXPECT_TRUE(isSound(drawingOf({{0, "LWPOLYLINE"}, {90, "1"}, {10, "1"}, {10, "2"}})));
}

TEST(TextRepairTest, RecordsWithoutItemsNeedNoCounts)
{
    EXPECT_TRUE(
        isSound(drawingOf({{0, "LWPOLYLINE"}, {0, "SPLINE"}, {0, "LEADER"}, {0, "HATCH"}})));
    EXPECT_TRUE(isSound(drawingOf({{0, "HATCH"}, {92, "1"}, {0, "HATCH"}})));
    EXPECT_FALSE(isSound(drawingOf({{0, "HATCH"}, {92, "2"}, {0, "HATCH"}})));
    EXPECT_FALSE(isSound(drawingOf({{0, "HATCH"}, {93, "2"}, {0, "HATCH"}})));
    EXPECT_TRUE(isSound(drawingOf({{0, "HATCH"}, {93, "2"}, {0, "HATCH"}, {92, "0"}})));
}

TEST(TextRepairTest, SettingNamedLikeARecordCountsAsARecord)
{
    EXPECT_FALSE(isSound(drawingOf({{9, "LWPOLYLINE"}, {90, "99"}})));
}

TEST(TextRepairTest, NamesOfRecordsAreComparedAsDxflibDoes)
{
    EXPECT_FALSE(isSound("0\nLWPOLYLINE\r\n90\n9\n"));
    EXPECT_FALSE(isSound("0\nLWPOLYLINE\r\r\n90\n9\n"));
    EXPECT_TRUE(isSound("0\n LWPOLYLINE\n90\n9\n"));
    EXPECT_TRUE(isSound("0\nLWPOLYLINE \n90\n9\n"));
}

TEST(TextRepairTest, CodesAreReadAsDxflibDoes)
{
    for (const char* code : {"90", " 90", "\t90\r", "+90", "90x", "0090", "4294967386"})
        EXPECT_FALSE(isSound("0\nLWPOLYLINE\n" + std::string(code) + "\n9\n")) << code;
    for (const char* code : {"9 0", "-90", "x90", "90000"})
        EXPECT_TRUE(isSound("0\nLWPOLYLINE\n" + std::string(code) + "\n9\n")) << code;
}

TEST(TextRepairTest, GarbageCodeEndsARecord)
{
    EXPECT_TRUE(isSound("0\nLWPOLYLINE\nwhat\n\n90\n9\n"));
}

TEST(TextRepairTest, PromisesAreKeptForDamagedDrawings)
{
    int damaged = 0;
    for (unsigned seed = 0; seed < 600; ++seed) {
        DrawingGenerator generator(seed);
        auto groups = generator.makeDrawing(12);
        generator.damage(groups);
        std::string text = textOf(groups);
        if (seed % 3 == 0)
            text.resize(text.size() - static_cast<std::size_t>(generator.number(0, 9)));

        expectPromisesKept(text);
        damaged += isSound(text) ? 0 : 1;
        const std::string result = repaired(text).value_or(text);
        const auto lines = static_cast<std::size_t>(std::count(result.begin(), result.end(), '\n'));
        EXPECT_LE(parsed(result).size(), 3 * lines + 10) << seed;

        ASSERT_FALSE(::testing::Test::HasFailure()) << "seed " << seed;
    }
    EXPECT_GT(damaged, 200);
}

TEST(TextRepairTest, LinesBeforeAndAfterAFlawStay)
{
    const auto groups = DrawingGenerator(1).makeDrawing(20);
    for (std::size_t i = 0; i <= groups.size(); ++i) {
        auto flawed = groups;
        flawed.insert(flawed.begin() + static_cast<std::ptrdiff_t>(i), {999, "dxflib"});

        EXPECT_EQ(repairedText(textOf(flawed)), textOf(groups)) << i;
    }
}

TEST(TextRepairTest, LongLineIsCut)
{
    for (const std::size_t length : {1024U, 1025U, 2000U, 5000U}) {
        const std::vector<Group> groups{{999, std::string(length, 'c')}};

        EXPECT_THAT(repairedValues(groups, 999), ElementsAre(std::string(1023, 'c')));
    }
}

TEST(TextRepairTest, EndOfATextChangesOnlyWithOtherLines)
{
    const std::string text = drawingOf({{0, "LINE"}});
    for (const auto& [end, repairedEnd] :
         {std::pair("999\nx", "999\nx\n"), std::pair("999\n", "999\n\n"), std::pair("999", ""),
          std::pair("\n", "\n\n")}) {
        EXPECT_TRUE(isSound(text + end)) << end;
        EXPECT_EQ(repairedText("999\ndxflib\n" + text + end), text + repairedEnd) << end;
    }
}

TEST(TextRepairTest, LineIsNotCutInsideAUtf8Sequence)
{
    const std::vector<Group> groups{{1, std::string(1022, 'c') + "\xc3\xa4\xc3\xa4"}};

    EXPECT_THAT(repairedValues(groups, 1), ElementsAre(std::string(1022, 'c')));
}

TEST(TextRepairTest, LineThatIsNotUtf8IsCutAnywhere)
{
    const std::vector<Group> groups{{1, std::string(2000, '\xa4')}};

    EXPECT_THAT(repairedValues(groups, 1), ElementsAre(std::string(1023, '\xa4')));
}

TEST(TextRepairTest, LongLineWithoutLineEndIsRepaired)
{
    expectPromisesKept(std::string(3000, 'x'));
    expectPromisesKept(std::string(3000, '\r'));
    expectPromisesKept("0\n" + std::string(3000, 'x'));
    EXPECT_FALSE(isSound(std::string(1024, 'x')));
    EXPECT_TRUE(isSound(std::string(1023, 'x')));
}

TEST(TextRepairTest, LineEndsAtItsFirstZeroByte)
{
    std::vector<Group> groups{{1, std::string("ab\0cd", 5)}, {2, std::string("\0x", 2)}};

    EXPECT_THAT(repairedValues(groups, 1), ElementsAre("ab"));
}

TEST(TextRepairTest, BlankRealBecomesZero)
{
    for (const int code : {10, 59, 110, 149, 210, 239, 1010, 1059}) {
        for (const char* blank : {"", " ", "\t\r", " \v\f "}) {
            const std::vector<Group> groups{{0, "LINE"}, {code, blank}};

            EXPECT_FALSE(isSound(drawingOf(groups))) << code;
            EXPECT_THAT(repairedValues(groups, code), ElementsAre("0")) << code;
        }
    }
}

TEST(TextRepairTest, BareVersionCommentIsDropped)
{
    EXPECT_THAT(parsedRepaired({{999, "dxflib"}, {999, "x"}}, "addComment"),
                ElementsAre("addComment x "));
    EXPECT_FALSE(isSound(drawingOf({{999, "dxflib\r"}})));
    EXPECT_TRUE(isSound(drawingOf({{999, "dxflib 3.2.1.0"}, {999, "dxfli"}, {1, "dxflib"}})));
}

TEST(TextRepairTest, CountsAreLoweredToWhatTheRecordHolds)
{
    for (const char* count : {"1073741825", "100000000", "2147483647", "2", "4294967295", "-1",
                              "-2147483648", "-536870911"}) {
        const bool negative = count[0] == '-' || std::string(count) == "4294967295";
        const char* sound = negative ? "0" : "1";

        EXPECT_THAT(repairedValues({{0, "LWPOLYLINE"}, {90, count}, {10, "1"}, {20, "2"}}, 90),
                    ElementsAre(sound))
            << count;
        EXPECT_THAT(repairedValues({{0, "LEADER"}, {76, count}, {10, "1"}, {20, "2"}}, 76),
                    ElementsAre(sound))
            << count;
        const std::vector<Group> spline{{0, "SPLINE"}, {72, count}, {73, count}, {74, count},
                                        {40, "1"},     {10, "1"},   {11, "2"}};
        for (const int code : {72, 73, 74})
            EXPECT_THAT(repairedValues(spline, code), ElementsAre(sound)) << count;
    }
}

TEST(TextRepairTest, OnlyTheLastCountOfARecordStays)
{
    const std::vector<Group> groups{{0, "LWPOLYLINE"}, {90, "2"}, {10, "1"},
                                    {10, "2"},         {90, "9"}, {10, "3"}};

    EXPECT_THAT(repairedValues(groups, 90), ElementsAre("0", "1"));
}

TEST(TextRepairTest, CountOfAnUnfinishedRecordIsLowered)
{
    const std::string text = "0\nLWPOLYLINE\n90\n100000000";

    EXPECT_EQ(repairedText(text), "0\nLWPOLYLINE\n90\n0\n");
}

/// dxflib never delivers such a record, and a second repair would change a text with an added
/// count.
TEST(TextRepairTest, UnfinishedRecordGetsNoCount)
{
    const std::string unfinished = "0\nLWPOLYLINE\n10\n1\n20\n2\n";

    EXPECT_EQ(repairedText("999\ndxflib\n" + unfinished), unfinished);
    EXPECT_EQ(repairedText("999\ndxflib\n0\nHATCH\n92\n2\n0\nHATCH\n70\n1\n"),
              "0\nHATCH\n92\n2\n0\nHATCH\n70\n1\n");
}

TEST(TextRepairTest, MissingVertexCountIsAdded)
{
    const std::vector<Group> groups{{0, "LWPOLYLINE"}, {10, "1"}, {20, "2"}, {10, "3"}, {20, "4"}};

    EXPECT_THAT(repairedValues(groups, 90), ElementsAre("2"));
    EXPECT_THAT(parsedRepaired(groups, "addVertex"),
                ElementsAre("addVertex 1 2 0 0 ", "addVertex 3 4 0 0 "));
}

TEST(TextRepairTest, NothingIsCarriedOverToTheNextRecord)
{
    const std::vector<Group> groups{
        {0, "LWPOLYLINE"}, {90, "1"}, {10, "1"}, {20, "1"}, {0, "LWPOLYLINE"},
        {0, "LEADER"},     {76, "1"}, {10, "1"}, {20, "1"}, {0, "LEADER"},
        {0, "SPLINE"},     {72, "1"}, {73, "1"}, {74, "1"}, {40, "1"},
        {10, "1"},         {20, "1"}, {11, "1"}, {21, "1"}, {0, "SPLINE"},
        {0, "HATCH"},      {92, "0"}, {93, "1"}, {72, "1"}, {0, "HATCH"}};

    EXPECT_THAT(parsedRepaired(groups, "addVertex").size(), 1U);
    EXPECT_THAT(parsedRepaired(groups, "addLeaderVertex").size(), 1U);
    EXPECT_THAT(parsedRepaired(groups, "addKnot").size(), 1U);
    EXPECT_THAT(parsedRepaired(groups, "addControlPoint").size(), 1U);
    EXPECT_THAT(parsedRepaired(groups, "addFitPoint").size(), 1U);
    EXPECT_THAT(parsedRepaired(groups, "addHatchLoop").size(), 1U);
    EXPECT_THAT(parsedRepaired(groups, "endEntity").size(), 8U);
}

TEST(TextRepairTest, EverythingElseIsDeliveredInTheSameOrder)
{
    for (unsigned seed = 0; seed < 50; ++seed) {
        DrawingGenerator generator(seed);
        auto groups = generator.makeDrawing(40);
        const auto expected = parsed(textOf(groups));
        // These changes make the text unsound, but dxflib still delivers the same calls.
        groups.insert(groups.begin(), {999, "dxflib"});
        for (Group& group : groups) {
            if (group.code == 90)
                group.value = "2000000000";
        }

        EXPECT_EQ(parsed(repairedText(textOf(groups))), expected) << seed;
    }
}

TEST(TextRepairTest, RepairOfManyCountsAndRecordsStaysSmall)
{
    std::string text;
    for (int i = 0; i < 20000; ++i)
        text += "90\n2000000000\n";
    const std::string counts = "0\nLWPOLYLINE\n" + text + "0\nEOF\n";
    std::string splines = drawingOf(
        {{0, "SPLINE"}, {72, "1"}, {73, "1"}, {74, "1"}, {40, "1"}, {10, "1"}, {11, "1"}});
    for (int i = 0; i < 20000; ++i)
        splines += "0\nSPLINE\n";

    expectPromisesKept(counts);
    expectPromisesKept(splines);
    EXPECT_LT(parsed(repairedText(splines)).size(), 100000U);
}

} // namespace
