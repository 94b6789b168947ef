// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/FlatteningReader.h"

#include "dxfviewer/flatten/Record.h"
#include "dxfviewer/flatten/TextContent.h"
#include "dxfviewer/io/WorkMeter.h"
#include "tests/flatten/Records.h"
#include "tests/support/LoggedTest.h"

#include <QFontMetricsF>
#include <QTransform>

using namespace dxftest;

namespace
{

Flattened texts(const char* entities)
{
    FlatteningOptions options;
    options.showsTexts = true;
    Parts parts;
    parts.entities = entities;
    return flattened(parts, options);
}

class TextShapesTest : public LoggedTest
{
protected:
    void TearDown() override { EXPECT_EQ(takeDebugMessages(), QStringList()); }
};

TEST_F(TextShapesTest, CapitalsHaveTheHeightOfTheText)
{
    const auto drawing = texts("TEXT 10 5 20 6 40 2 1 H");

    const QRectF box = drawing.box();
    ASSERT_GT(drawing.count(), 0);
    EXPECT_NEAR(box.top(), 6.0, 0.02);
    EXPECT_NEAR(box.height(), 2.0, 0.05);
    EXPECT_GT(box.left(), 5.0);
    EXPECT_LT(box.left(), 5.5);
    EXPECT_EQ(drawing.shown, Counts({{key("TEXT"), 1}}));
    EXPECT_EQ(drawing.skipped, Counts());
    // Outlines are closed.
    EXPECT_EQ(drawing.points(0).first(), drawing.points(0).last());
}

TEST_F(TextShapesTest, TextsAreCountedIfTheyAreNotShown)
{
    Parts parts;
    parts.entities = "TEXT 40 1 1 H\nMTEXT 40 1 1 H\nATTRIB 40 1 1 H";

    EXPECT_EQ(flattened(parts).count(), 0);
    EXPECT_EQ(flattened(parts).skipped,
              Counts({{key("TEXT"), 1}, {key("MTEXT"), 1}, {key("ATTRIB"), 1}}));
}

TEST_F(TextShapesTest, EmptyTextIsNeitherShownNorCounted)
{
    const auto drawing = texts("TEXT 40 1\nMTEXT 40 1 1 {\\P}\nATTRIB 40 1 1 ~");

    EXPECT_EQ(drawing.count(), 0);
    EXPECT_EQ(drawing.shown, Counts());
    EXPECT_EQ(drawing.skipped, Counts());
}

TEST_F(TextShapesTest, TextWithoutHeightIsSkipped)
{
    EXPECT_EQ(texts("TEXT 1 H\nTEXT 40 -1 1 H\nTEXT 40 inf 1 H\nMTEXT 1 H").skipped,
              Counts({{key("TEXT"), 3}, {key("MTEXT"), 1}}));
}

/// The chains of a text under a transform.
QVector<QVector<QPointF>> mapped(const Flattened& drawing, const QTransform& transform)
{
    auto chains = drawing.chains();
    for (auto& chain : chains) {
        for (QPointF& point : chain)
            point = transform.map(point);
    }
    return chains;
}

TEST_F(TextShapesTest, WidthRotationAndObliqueAngleApply)
{
    const auto plain = texts("TEXT 40 2 1 Hg");
    QTransform transform;
    transform.translate(3, 4);
    transform.rotate(30);
    transform.shear(std::tan(0.25), 0);
    transform.scale(0.5, 1);

    const std::string oblique = std::to_string(0.25 * 180 / std::acos(-1.0));
    const auto drawing = texts(("TEXT 40 2 10 3 20 4 50 30 41 0.5 1 Hg 51 " + oblique).c_str());

    EXPECT_TRUE(areNear(drawing.chains(), mapped(plain, transform), 1e-5));
}

TEST_F(TextShapesTest, MirroredTextsAreDrawnMirrored)
{
    const auto plain = texts("TEXT 40 2 1 Hg");

    EXPECT_TRUE(areNear(texts("TEXT 40 2 1 Hg 71 2").chains(),
                        mapped(plain, QTransform::fromScale(-1, 1))));
    EXPECT_TRUE(areNear(texts("TEXT 40 2 1 Hg 71 4").chains(),
                        mapped(plain, QTransform::fromScale(1, -1))));
    EXPECT_TRUE(areNear(texts("TEXT 40 2 1 Hg 230 -1").chains(),
                        mapped(plain, QTransform::fromScale(-1, 1))));
}

TEST_F(TextShapesTest, JustificationPlacesTheLineAtItsSecondPoint)
{
    const QRectF left = texts("TEXT 40 2 1 HHH 10 10 20 20").box();
    const auto boxOf = [](const char* codes) {
        return texts((std::string("TEXT 40 2 1 HHH 10 99 20 99 11 10 21 20 ") + codes).c_str())
            .box();
    };

    const QRectF center = boxOf("72 1");
    EXPECT_NEAR(center.center().x(), 10.0, 0.1);
    EXPECT_NEAR(center.top(), left.top(), 1e-9);
    const QRectF right = boxOf("72 2");
    EXPECT_LT(right.right(), 10.0);
    EXPECT_GT(right.right(), 9.5);
    const QRectF middle = boxOf("72 4");
    EXPECT_NEAR(middle.center().x(), 10.0, 0.1);
    EXPECT_NEAR(middle.center().y(), 20.0, 0.05);
    EXPECT_NEAR(boxOf("72 0 73 3").bottom(), 20.0, 0.05);
    EXPECT_NEAR(boxOf("72 0 73 2").center().y(), 20.0, 0.05);
    EXPECT_GT(boxOf("72 0 73 1").top(), 20.0);
}

TEST_F(TextShapesTest, AttributeHasItsOwnCodeForVerticalJustification)
{
    EXPECT_NEAR(texts("ATTRIB 40 2 1 H 10 0 20 0 11 10 21 20 74 3").box().bottom(), 20.0, 0.05);
}

TEST_F(TextShapesTest, FittedTextReachesFromPointToPoint)
{
    const QRectF fit = texts("TEXT 40 2 1 HHHHHHHH 10 10 20 5 11 90 21 5 72 5").box();
    EXPECT_GT(fit.width(), 75.0);
    EXPECT_LT(fit.width(), 80.0);
    EXPECT_NEAR(fit.height(), 2.0, 0.05);

    const QRectF plain = texts("TEXT 40 2 1 HHHHHHHH").box();
    const QRectF aligned = texts("TEXT 40 2 1 HHHHHHHH 10 10 20 5 11 10 21 85 72 3").box();
    EXPECT_NEAR(aligned.height() / aligned.width(), plain.width() / plain.height(), 0.01);
    EXPECT_GT(aligned.height(), 75.0);
}

TEST_F(TextShapesTest, ParagraphsArePlacedByTheirAnchor)
{
    const QRectF one = texts("MTEXT 10 10 20 20 40 2 71 1 1 H").box();
    EXPECT_NEAR(one.bottom(), 20.0, 0.05);
    EXPECT_GT(one.left(), 10.0);
    const QRectF three = texts("MTEXT 10 10 20 20 40 2 71 1 1 H\\PH\\PH").box();
    // It reaches two lines further down.
    EXPECT_NEAR(three.top(), one.top() - 2 * 2 * 5.0 / 3.0, 1e-9);
    EXPECT_NEAR(texts("MTEXT 10 10 20 20 40 2 71 1 44 2 1 H\\PH").box().top(),
                one.top() - 2 * 2 * 5.0 / 3.0, 1e-9);
    EXPECT_NEAR(texts("MTEXT 10 10 20 20 40 2 71 5 1 H\\PH\\PH").box().center().y(), 20.0, 0.05);
    EXPECT_NEAR(texts("MTEXT 10 10 20 20 40 2 71 5 1 H\\PH\\PH").box().center().x(), 10.0, 0.1);
    EXPECT_NEAR(texts("MTEXT 10 10 20 20 40 2 71 9 1 H\\PH").box().top(), 20.0, 0.05);
    EXPECT_LT(texts("MTEXT 10 10 20 20 40 2 71 9 1 H\\PH").box().right(), 10.0);
}

TEST_F(TextShapesTest, ParagraphsAreBrokenAtTheirWidth)
{
    const QRectF whole = texts("MTEXT 40 2 1 HHH~HHH~HHH").box();
    const QRectF broken = texts("MTEXT 40 2 41 15 1 HHH~HHH~HHH").box();
    const QRectF longWord = texts("MTEXT 40 2 41 0.1 1 HHH").box();

    EXPECT_GT(whole.width(), 15.0);
    EXPECT_LT(broken.width(), 15.0);
    EXPECT_GT(broken.height(), 2 * whole.height());
    EXPECT_NEAR(longWord.height(), whole.height(), 1e-9);
}

TEST_F(TextShapesTest, DirectionOfParagraphsIsAnAngleOrAVector)
{
    const auto plain = texts("MTEXT 40 2 1 Hg");
    QTransform quarter;
    quarter.rotate(90);

    EXPECT_TRUE(areNear(texts("MTEXT 40 2 50 90 1 Hg").chains(), mapped(plain, quarter)));
    EXPECT_TRUE(areNear(texts("MTEXT 40 2 50 10 11 0 21 3 1 Hg").chains(), mapped(plain, quarter)));
    EXPECT_TRUE(areNear(texts("MTEXT 40 2 11 1 21 3 50 90 1 Hg").chains(), mapped(plain, quarter)));
}

/// Unlike an angle, the vector is given in the drawing's coordinates.
TEST_F(TextShapesTest, DirectionVectorIsNotMirroredByAnExtrusion)
{
    const auto plain = texts("MTEXT 40 2 1 Hg");
    const auto down = [&](const char* entity) {
        return texts((std::string(entity) + " 230 -1 1 Hg").c_str()).chains();
    };

    EXPECT_TRUE(areNear(down("MTEXT 40 2 11 5"), mapped(plain, QTransform(1, 0, 0, -1, 0, 0))));
    EXPECT_TRUE(areNear(down("MTEXT 40 2 11 0 21 5"), mapped(plain, QTransform(0, 1, 1, 0, 0, 0))));
    EXPECT_TRUE(areNear(down("MTEXT 40 2"), mapped(plain, QTransform(-1, 0, 0, 1, 0, 0))));
    EXPECT_TRUE(
        areNear(down("MTEXT 40 2 11 5 50 90"), mapped(plain, QTransform(0, 1, 1, 0, 0, 0))));
    EXPECT_TRUE(areNear(down("MTEXT 40 2 11 0"), mapped(plain, QTransform(-1, 0, 0, 1, 0, 0))));
}

TEST_F(TextShapesTest, TextsInBlocksAreInsertedWithThem)
{
    FlatteningOptions options;
    options.showsTexts = true;
    Parts parts;
    parts.blocks = "BLOCK 2 B\nTEXT 40 2 1 H\nATTDEF 40 2 1 H\nENDBLK";
    parts.entities = "INSERT 2 B 10 100 41 2";

    const auto drawing = flattened(parts, options);

    EXPECT_TRUE(
        areNear(drawing.chains(), mapped(texts("TEXT 40 2 1 H"), QTransform(2, 0, 0, 1, 100, 0))));
}

TEST_F(TextShapesTest, LongTextIsCompleteUnlessItExceedsTheLimit)
{
    const std::string text = "TEXT 40 1 1 " + std::string(1000, 'H');
    EXPECT_EQ(texts(text.c_str()).count(), 1000 * texts("TEXT 40 1 1 H").count());

    FlatteningOptions options;
    options.showsTexts = true;
    options.maximalVertices = 100;
    Parts parts;
    parts.entities = text.c_str();
    EXPECT_FALSE(flattened(parts, options).isRead);
    EXPECT_EQ(takeDebugMessages().size(), 2);
}

QString lineOf(const char* value)
{
    dxfviewer::Record record;
    record.begin("TEXT");
    record.addGroup(1, value);
    return dxfviewer::lineOfText(record);
}

QStringList paragraphsOf(const char* value, const char* earlier = nullptr)
{
    dxfviewer::Record record;
    record.begin("MTEXT");
    if (earlier)
        record.addGroup(3, earlier);
    record.addGroup(1, value);
    dxfviewer::WorkMeter meter;
    return dxfviewer::linesOfParagraphs(record, meter);
}

TEST(TextContentTest, PercentCodesAreSigns)
{
    EXPECT_EQ(lineOf("%%c40 %%p0.1 45%%d 100%%%"),
              QStringLiteral("\u00D840 \u00B10.1 45\u00B0 100%"));
    EXPECT_EQ(lineOf("%%C %%P %%D"), QStringLiteral("\u00D8 \u00B1 \u00B0"));
    EXPECT_EQ(lineOf("%%uunder%%u %%oover%%o"), QStringLiteral("under over"));
    EXPECT_EQ(lineOf("%%065B"), QStringLiteral("AB"));
    EXPECT_EQ(lineOf("%%x 5% %% %%"), QStringLiteral("%%x 5% %% %%"));
    EXPECT_EQ(lineOf("%%6"), QStringLiteral("%%6"));
}

TEST(TextContentTest, FormattingIsLeftOut)
{
    EXPECT_EQ(
        paragraphsOf("{\\fArial|b0|i0;\\H2.5x;\\C1;\\W0.8;\\Q15;\\T1.2;\\A1;Bold} \\Lline\\l"),
        QStringList(QStringLiteral("Bold line")));
    EXPECT_EQ(paragraphsOf("\\pxqc;one\\Ptwo\\Xthree^Jfour"),
              QStringList({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three"),
                           QStringLiteral("four")}));
    EXPECT_EQ(paragraphsOf("a\\~b \\\\ \\{x\\} ^ ^I."),
              QStringList(QStringLiteral("a b \\ {x} ^ .")));
    EXPECT_EQ(paragraphsOf("\\S1/2; \\S+0.1^-0.2; \\S1#2;"),
              QStringList(QStringLiteral("1/2 +0.1 -0.2 1/2")));
    EXPECT_EQ(paragraphsOf("40%%d"), QStringList(QStringLiteral("40\u00B0")));
    EXPECT_EQ(paragraphsOf("end", "begin "), QStringList(QStringLiteral("begin end")));
}

TEST(TextContentTest, BrokenCodesEndWithTheText)
{
    for (const char* text : {"\\", "\\H", "\\H2.5", "\\S1/2", "{", "}", "^", "\\f"})
        EXPECT_EQ(paragraphsOf(text).size(), 1) << text;
}

} // namespace
