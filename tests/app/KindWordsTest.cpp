// SPDX-License-Identifier: GPL-2.0-or-later

#include "KindWords.h"
#include "DrawingRead.h"

#include "tests/support/LoggedTest.h"

namespace
{

using Counts = QMap<QString, int>;

class KindWordsTest : public dxftest::LoggedTest
{
};

TEST_F(KindWordsTest, NamesTheMostFrequentKindFirst)
{
    EXPECT_EQ(notShownSentence({{QStringLiteral("IMAGE"), 3}, {QStringLiteral("HATCH"), 12}}),
              QStringLiteral("Not shown: 12 hatches, 3 images"));
}

TEST_F(KindWordsTest, AddsUpKindsWithTheSameWord)
{
    EXPECT_EQ(notShownSentence({{QStringLiteral("ATTRIB"), 1},
                                {QStringLiteral("MTEXT"), 2},
                                {QStringLiteral("TEXT"), 4},
                                {QStringLiteral("XLINE"), 1}}),
              QStringLiteral("Not shown: 7 texts, 1 infinite line"));
}

TEST_F(KindWordsTest, CountsUnknownKindsAsOtherObjects)
{
    EXPECT_EQ(notShownSentence({{QStringLiteral("3DSOLID"), 1}, {QStringLiteral("LIGHT"), 1}}),
              QStringLiteral("Not shown: 2 other objects"));
}

TEST_F(KindWordsTest, SaysNothingWhenEverythingIsShown)
{
    EXPECT_EQ(notShownSentence({}), QString());
    EXPECT_EQ(notShownSentence({{QStringLiteral("HATCH"), 0}}), QString());
}

TEST_F(KindWordsTest, SaysWhatSavingChanges)
{
    const auto sentence = [](const Counts& shown, const Counts& skipped) {
        DrawingRead drawing;
        drawing.shown = shown;
        drawing.skipped = skipped;
        return changesSentence(drawing).toStdString();
    };
    const std::string begin = "It is the drawing that was opened. ";
    const std::string end = "Only layers, line types and polylines are saved.";
    const Counts shown{{QStringLiteral("ARC"), 4},
                       {QStringLiteral("INSERT"), 2},
                       {QStringLiteral("LWPOLYLINE"), 99}};

    EXPECT_EQ(sentence(shown, {{QStringLiteral("HATCH"), 12}}),
              begin + "4 arcs and 2 blocks become polylines. 12 hatches are lost. " + end);
    EXPECT_EQ(sentence({{QStringLiteral("ARC"), 1}}, {}),
              begin + "1 arc becomes polylines. " + end);
    EXPECT_EQ(sentence({}, {{QStringLiteral("IMAGE"), 1}}), begin + "1 image is lost. " + end);
    EXPECT_EQ(sentence({{QStringLiteral("POLYLINE"), 7}}, {}), begin + end);
}

TEST_F(KindWordsTest, SaysThatLayoutsAndInvisibleObjectsAreLost)
{
    DrawingRead drawing;
    drawing.elsewhere = 50;
    drawing.invisible = 1;

    EXPECT_EQ(changesSentence(drawing).toStdString(),
              "It is the drawing that was opened. What lies on layouts is lost. What is invisible "
              "is lost. Only layers, line types and polylines are saved.");
}

TEST_F(KindWordsTest, CountsNothingIfOnlyPolylinesWereRead)
{
    DrawingRead drawing;
    drawing.choices.onlyPolylines = true;

    EXPECT_THAT(changesSentence(drawing).toStdString(),
                testing::HasSubstr("Everything else that the file holds is lost"));
}

} // namespace
