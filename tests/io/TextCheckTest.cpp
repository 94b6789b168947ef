// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/TextCheck.h"

#include "tests/io/DrawingText.h"

#include <gtest/gtest.h>

#include <string>

using namespace dxftest;
using dxfviewer::isSound;

namespace
{

TEST(TextCheckTest, TextWithoutGroupsIsSound)
{
    for (const char* text : {"", "0", "0\n", "0\nLINE", "0\nLINE\n", "not a drawing"})
        EXPECT_TRUE(isSound(text)) << text;
}

TEST(TextCheckTest, GeneratedDrawingsAreSound)
{
    for (unsigned seed = 0; seed < 50; ++seed)
        EXPECT_TRUE(isSound(textOf(DrawingGenerator(seed).makeDrawing(20)))) << seed;
}

TEST(TextCheckTest, ZeroByteIsNotSoundAnywhere)
{
    const std::string text = drawingOf({{0, "LINE"}});
    for (std::size_t at = 0; at <= text.size(); ++at)
        EXPECT_FALSE(isSound(std::string(text).insert(at, 1, '\0'))) << at;
}

TEST(TextCheckTest, LineLengthIsLimited)
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

TEST(TextCheckTest, BlankRealIsNotSound)
{
    for (const int code : {10, 59, 110, 149, 210, 239, 1010, 1059}) {
        EXPECT_FALSE(isSound(textOf({{code, " \r"}}))) << code;
        EXPECT_TRUE(isSound(textOf({{code, "0"}}))) << code;
    }
}

TEST(TextCheckTest, BareVersionCommentIsNotSound)
{
    EXPECT_FALSE(isSound(textOf({{999, "dxflib"}})));
    EXPECT_FALSE(isSound(textOf({{999, "dxflib\r\r"}})));
    EXPECT_TRUE(isSound(textOf({{999, "dxflib 3"}})));
    EXPECT_TRUE(isSound(textOf({{998, "dxflib"}})));
}

TEST(TextCheckTest, CountMayNotExceedWhatTheRecordHolds)
{
    for (const char* end : {"", "0\nEOF\n"}) {
        const std::string point = "10\n1\n20\n2\n";
        EXPECT_TRUE(isSound("0\nLWPOLYLINE\n90\n1\n" + point + end)) << end;
        EXPECT_FALSE(isSound("0\nLWPOLYLINE\n90\n2\n" + point + end)) << end;
        EXPECT_FALSE(isSound("0\nLWPOLYLINE\n90\n-1\n" + point + end)) << end;
    }
}

TEST(TextCheckTest, MissingCountMattersOnlyWhereTheRecordEnds)
{
    const std::string record = "0\nLWPOLYLINE\n10\n1\n20\n2\n";

    EXPECT_TRUE(isSound(record));
    EXPECT_FALSE(isSound(record + "0\nEOF\n"));
}

TEST(TextCheckTest, SecondCountIsSoundOnlyAfterAZero)
{
    const std::string points = "10\n1\n10\n2\n0\nEOF\n";

    EXPECT_FALSE(isSound("0\nLWPOLYLINE\n90\n1\n90\n2\n" + points));
    EXPECT_TRUE(isSound("0\nLWPOLYLINE\n90\n0\n90\n2\n" + points));
}

TEST(TextCheckTest, CarriageReturnCountsAsPartOfALine)
{
    EXPECT_TRUE(isSound(drawingOf({{1, std::string(1022, 'c') + '\r'}})));
    EXPECT_FALSE(isSound(drawingOf({{1, std::string(1023, 'c') + '\r'}})));
}

TEST(TextCheckTest, BlankTextAndIntegerAreSound)
{
    for (const int code : {1, 9, 60, 109, 150, 209, 240, 1009, 1060})
        EXPECT_TRUE(isSound(drawingOf({{0, "LINE"}, {code, ""}}))) << code;
}

TEST(TextCheckTest, LowerCountIsSound)
{
    EXPECT_TRUE(isSound(drawingOf({{0, "LWPOLYLINE"}, {90, "1"}, {10, "1"}, {10, "2"}})));
}

TEST(TextCheckTest, RecordsWithoutItemsNeedNoCounts)
{
    EXPECT_TRUE(
        isSound(drawingOf({{0, "LWPOLYLINE"}, {0, "SPLINE"}, {0, "LEADER"}, {0, "HATCH"}})));
    EXPECT_TRUE(isSound(drawingOf({{0, "HATCH"}, {92, "1"}, {0, "HATCH"}})));
    EXPECT_FALSE(isSound(drawingOf({{0, "HATCH"}, {92, "2"}, {0, "HATCH"}})));
    EXPECT_FALSE(isSound(drawingOf({{0, "HATCH"}, {93, "2"}, {0, "HATCH"}})));
    EXPECT_TRUE(isSound(drawingOf({{0, "HATCH"}, {93, "2"}, {0, "HATCH"}, {92, "0"}})));
}

TEST(TextCheckTest, SettingNamedLikeARecordCountsAsARecord)
{
    EXPECT_FALSE(isSound(drawingOf({{9, "LWPOLYLINE"}, {90, "99"}})));
}

TEST(TextCheckTest, NamesOfRecordsAreComparedAsDxflibDoes)
{
    EXPECT_FALSE(isSound("0\nLWPOLYLINE\r\n90\n9\n"));
    EXPECT_FALSE(isSound("0\nLWPOLYLINE\r\r\n90\n9\n"));
    EXPECT_TRUE(isSound("0\n LWPOLYLINE\n90\n9\n"));
    EXPECT_TRUE(isSound("0\nLWPOLYLINE \n90\n9\n"));
}

TEST(TextCheckTest, CodesAreReadAsDxflibDoes)
{
    for (const char* code : {"90", " 90", "\t90\r", "+90", "90x", "0090", "4294967386"})
        EXPECT_FALSE(isSound("0\nLWPOLYLINE\n" + std::string(code) + "\n9\n")) << code;
    for (const char* code : {"9 0", "-90", "x90", "90000"})
        EXPECT_TRUE(isSound("0\nLWPOLYLINE\n" + std::string(code) + "\n9\n")) << code;
}

TEST(TextCheckTest, GarbageCodeEndsARecord)
{
    EXPECT_TRUE(isSound("0\nLWPOLYLINE\nwhat\n\n90\n9\n"));
}

} // namespace
