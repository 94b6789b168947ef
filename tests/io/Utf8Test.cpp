// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/Utf8.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

using dxfviewer::utf8Prefix;

namespace
{

TEST(Utf8Test, ShortTextStaysWhole)
{
    EXPECT_EQ(utf8Prefix("", 0), 0U);
    EXPECT_EQ(utf8Prefix("abc", 3), 3U);
    EXPECT_EQ(utf8Prefix("abc", 100), 3U);
    EXPECT_EQ(utf8Prefix("\xc3\xa4", 2), 2U);
    // This holds even if the last sequence is incomplete.
    EXPECT_EQ(utf8Prefix("a\xc3", 2), 2U);
}

TEST(Utf8Test, AsciiIsCutWhereItIsTooLong)
{
    EXPECT_EQ(utf8Prefix("abc", 2), 2U);
    EXPECT_EQ(utf8Prefix("abc", 0), 0U);
}

TEST(Utf8Test, SequencesAreNotCut)
{
    for (const std::string sequence : {"\xc2\x80", "\xdf\xbf", "\xe0\xa0\x80", "\xef\xbf\xbf",
                                       "\xf0\x90\x80\x80", "\xf4\x8f\xbf\xbf"}) {
        const std::string text = "ab" + sequence + "c";
        for (std::size_t longest = 2; longest < 2 + sequence.size(); ++longest)
            EXPECT_EQ(utf8Prefix(text, longest), 2U) << sequence.size() << ' ' << longest;
        EXPECT_EQ(utf8Prefix(text, 2 + sequence.size()), 2 + sequence.size());
    }
}

TEST(Utf8Test, SequenceLongerThanTheLimitLeavesNothing)
{
    EXPECT_EQ(utf8Prefix("\xf0\x90\x80\x80", 3), 0U);
}

/// Bytes that begin no sequence, do not continue one, or are too many for it.
TEST(Utf8Test, WhatIsNotUtf8IsCutAnywhere)
{
    for (const std::string text :
         {"ab\xc0\x80", "ab\xc1\xbf", "ab\xf5\x80", "ab\xff\x80", "ab\x80\x80"})
        EXPECT_EQ(utf8Prefix(text, 3), 3U) << text;
    EXPECT_EQ(utf8Prefix(std::string(100, '\x80'), 50), 50U);
    EXPECT_EQ(utf8Prefix("\xf0\x80\x80\x80\x80\x80", 5), 5U);
}

TEST(Utf8Test, CompleteSequenceStaysBeforeStrayBytes)
{
    EXPECT_EQ(utf8Prefix("\xc3\xa4\xa4\xa4", 3), 3U);
}

} // namespace
