// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/FlatteningReader.h"

#include "dxfviewer/model/DXFAttributes.h"
#include "tests/flatten/Records.h"
#include "tests/support/LoggedTest.h"

#include <QTransform>

#include <random>

using namespace dxftest;

namespace
{

using Chains = QVector<QVector<QPointF>>;

class InsertedBlocksTest : public LoggedTest
{
protected:
    void TearDown() override { EXPECT_EQ(takeDebugMessages(), QStringList()); }

    /// A drawing of the entities and a block "B", which is a line from (1, 0) to (2, 0).
    static Flattened inserted(const char* entities, const char* block = "BLOCK 2 B")
    {
        const std::string blocks = std::string(block) + "\nLINE 10 1 20 0 11 2 21 0\nENDBLK";
        Parts parts;
        parts.blocks = blocks.c_str();
        parts.entities = entities;
        return flattened(parts);
    }
};

TEST_F(InsertedBlocksTest, BlockByItselfIsNotShown)
{
    const auto drawing = inserted("");

    EXPECT_EQ(drawing.count(), 0);
    EXPECT_EQ(drawing.shown, Counts());
}

TEST_F(InsertedBlocksTest, BasePointGoesToInsertionPoint)
{
    const auto drawing = inserted("INSERT 2 B 10 10 20 20", "BLOCK 2 B 10 1 20 1");

    EXPECT_EQ(drawing.chains(), Chains({{{10, 19}, {11, 19}}}));
    EXPECT_EQ(drawing.shown, Counts({{key("INSERT"), 1}, {key("LINE"), 1}}));
}

TEST_F(InsertedBlocksTest, BlockIsFoundWhateverItsCase)
{
    EXPECT_EQ(inserted("INSERT 2 b 10 5").chains(), Chains({{{6, 0}, {7, 0}}}));
}

TEST_F(InsertedBlocksTest, ScaleComesBeforeRotation)
{
    const auto drawing = inserted("INSERT 2 B 10 10 20 20 41 3 42 5 50 90\n"
                                  "INSERT 2 B 41 -2");

    EXPECT_TRUE(areNear(drawing.chains(), {{{10, 23}, {10, 26}}, {{-2, 0}, {-4, 0}}}));
}

TEST_F(InsertedBlocksTest, ArrayTurnsWithTheInsertAndIsNotScaled)
{
    const auto drawing = inserted("INSERT 2 B 41 -2 50 90 70 2 71 2 44 10 45 100");

    // Columns go up, rows to the left.
    EXPECT_TRUE(areNear(
        drawing.chains(),
        {{{0, -2}, {0, -4}}, {{0, 8}, {0, 6}}, {{-100, -2}, {-100, -4}}, {{-100, 8}, {-100, 6}}}));
    EXPECT_EQ(drawing.shown, Counts({{key("INSERT"), 1}, {key("LINE"), 1}}));
}

TEST_F(InsertedBlocksTest, ExtrusionMirrorsTheArrayToo)
{
    const auto drawing = inserted("INSERT 2 B 10 5 70 2 44 10 230 -1");

    EXPECT_TRUE(areNear(drawing.chains(), {{{-6, 0}, {-7, 0}}, {{-16, 0}, {-17, 0}}}));
}

TEST_F(InsertedBlocksTest, ArrayWithoutColumnsOrRowsIsOneInsert)
{
    EXPECT_EQ(inserted("INSERT 2 B 70 0 71 -5 44 10").chains(), Chains({{{1, 0}, {2, 0}}}));
}

TEST_F(InsertedBlocksTest, ObliqueExtrusionIsSeenFromAbove)
{
    // The insert's x axis is the drawing's y axis, and its z axis the drawing's x axis.
    const auto drawing = inserted("INSERT 2 B 10 10 30 7 210 1 220 0 230 0");

    EXPECT_TRUE(areNear(drawing.chains(), {{{7, 11}, {7, 12}}}));
}

TEST_F(InsertedBlocksTest, NestedBlocksMayBeInAnyOrder)
{
    Parts parts;
    parts.entities = "INSERT 2 Outer 10 100 50 90";
    parts.blocks = "BLOCK 2 Outer\nINSERT 2 Inner 10 10 41 2\nLINE 11 1\nENDBLK\n"
                   "BLOCK 2 Inner 10 1\nLINE 10 1 11 2\nENDBLK";
    EXPECT_TRUE(areNear(flattened(parts).chains(), {{{100, 10}, {100, 12}}, {{100, 0}, {100, 1}}}));
}

TEST_F(InsertedBlocksTest, BlocksMayFollowTheEntities)
{
    const auto drawing =
        flattened(records("SECTION 2 ENTITIES\nINSERT 2 B 10 5\nENDSEC\nSECTION 2 BLOCKS\n"
                          "BLOCK 2 B\nLINE 11 1\nENDBLK\nENDSEC\nEOF"));

    EXPECT_EQ(drawing.chains(), Chains({{{5, 0}, {6, 0}}}));
}

TEST_F(InsertedBlocksTest, NestedMirroredInsertsMirrorTwice)
{
    Parts parts;
    parts.entities = "INSERT 2 Outer 10 10 20 3 230 -1 50 30";
    parts.blocks = "BLOCK 2 Outer\nINSERT 2 Inner 10 2 20 1 41 -1 50 45\nENDBLK\n"
                   "BLOCK 2 Inner\nLWPOLYLINE 10 0 20 0 10 3 20 0 10 3 20 2\nENDBLK";
    QTransform outer;
    outer.scale(-1, 1);
    outer.translate(10, 3);
    outer.rotate(30);
    QTransform inner;
    inner.translate(2, 1);
    inner.rotate(45);
    inner.scale(-1, 1);
    QVector<QPointF> expected;
    for (const QPointF& point : {QPointF(0, 0), QPointF(3, 0), QPointF(3, 2)})
        expected.append((inner * outer).map(point));

    EXPECT_TRUE(areNear(flattened(parts).chains(), {expected}));
}

TEST_F(InsertedBlocksTest, InsertEqualsItsDefinitionUnderTheTransform)
{
    std::mt19937 random(20240517);
    std::uniform_real_distribution<double> number(-10.0, 10.0);
    const auto text = [](double value) {
        return std::to_string(value);
    };
    const std::string content =
        "\nLWPOLYLINE 10 1 20 2 42 0.5 10 4 20 3 42 -1.5 10 2 20 7\nCIRCLE 10 3 20 1 40 2\n"
        "ELLIPSE 10 1 20 1 11 3 21 1 40 0.4 41 0 42 2\n"
        "SPLINE 71 3 40 0 40 0 40 0 40 0 40 1 40 1 40 1 40 1 10 0 20 0 10 1 20 4 10 5 20 4 "
        "10 3 20 0\n";
    for (int i = 0; i < 50; ++i) {
        const double baseX = number(random), baseY = number(random);
        const double x = number(random), y = number(random);
        const double scaleX = number(random), scaleY = number(random);
        const double angle = 18.0 * number(random);
        const std::string insert = "INSERT 2 B 10 " + text(x) + " 20 " + text(y) + " 41 "
                                   + text(scaleX) + " 42 " + text(scaleY) + " 50 " + text(angle);
        const std::string block =
            "BLOCK 2 B 10 " + text(baseX) + " 20 " + text(baseY) + content + "ENDBLK";
        Parts parts;
        parts.blocks = block.c_str();
        parts.entities = insert.c_str();
        Parts plain;
        plain.entities = content.c_str();

        Chains expected = flattened(plain).chains();
        for (auto& chain : expected) {
            for (QPointF& point : chain) {
                QTransform transform;
                transform.translate(std::stod(text(x)), std::stod(text(y)));
                transform.rotate(std::stod(text(angle)));
                transform.scale(std::stod(text(scaleX)), std::stod(text(scaleY)));
                transform.translate(-std::stod(text(baseX)), -std::stod(text(baseY)));
                point = transform.map(point);
            }
        }
        EXPECT_TRUE(areNear(flattened(parts).chains(), expected, 1e-6)) << insert;
    }
}

TEST_F(InsertedBlocksTest, DimensionShowsItsBlockInPlace)
{
    const char* block = "BLOCK 2 B 10 9 20 9";
    EXPECT_EQ(inserted("DIMENSION 2 B 10 5 20 5 50 45", block).chains(),
              Chains({{{1, 0}, {2, 0}}}));
    EXPECT_EQ(inserted("DIMENSION 2 B 12 3 22 4", block).chains(), Chains({{{4, 4}, {5, 4}}}));
    EXPECT_EQ(inserted("ARC_DIMENSION 2 B 10 5", block).chains(), Chains({{{1, 0}, {2, 0}}}));
    EXPECT_EQ(inserted("LARGE_RADIAL_DIMENSION 2 B 10 5", block).chains(),
              Chains({{{1, 0}, {2, 0}}}));
}

TEST_F(InsertedBlocksTest, TableIsInsertedInItsDirection)
{
    const auto drawing = inserted("ACAD_TABLE 2 B 10 10 20 20 11 0 21 1 10 99 11 99");

    EXPECT_TRUE(areNear(drawing.chains(), {{{10, 21}, {10, 22}}}));
    EXPECT_EQ(drawing.shown, Counts({{key("ACAD_TABLE"), 1}, {key("LINE"), 1}}));
}

TEST_F(InsertedBlocksTest, MissingBlocksAreSkipped)
{
    const auto drawing = inserted("INSERT 2 C\nINSERT 10 1\nDIMENSION 10 1\nDIMENSION 2 *D9\n"
                                  "INSERT 2 B 10 inf");

    EXPECT_EQ(drawing.count(), 0);
    EXPECT_EQ(drawing.skipped, Counts({{key("INSERT"), 3}, {key("DIMENSION"), 2}}));
}

TEST_F(InsertedBlocksTest, SkippedEntitiesOfAnInsertedBlockCountOnce)
{
    Parts parts;
    parts.entities = "INSERT 2 Shown 70 3\nINSERT 2 Shown\nINSERT 2 Empty";
    parts.blocks = "BLOCK 2 Shown\nLINE 11 1\nHATCH\nTEXT\nATTDEF\nENDBLK\n"
                   "BLOCK 2 Unused\nHATCH\nENDBLK\nBLOCK 2 Empty\nMTEXT\nENDBLK";
    const auto drawing = flattened(parts);

    EXPECT_EQ(drawing.count(), 4);
    EXPECT_EQ(drawing.shown, Counts({{key("INSERT"), 2}, {key("LINE"), 1}}));
    EXPECT_EQ(drawing.skipped, Counts({{key("HATCH"), 1}, {key("TEXT"), 1}, {key("MTEXT"), 1}}));
}

TEST_F(InsertedBlocksTest, FirstDefinitionOfABlockCounts)
{
    Parts parts;
    parts.entities = "INSERT 2 B";
    parts.blocks = "BLOCK 2 B\nLINE 11 1\nENDBLK\nBLOCK 2 b\nLINE 11 2\nENDBLK";
    EXPECT_EQ(flattened(parts).chains(), Chains({{{0, 0}, {1, 0}}}));
}

TEST_F(InsertedBlocksTest, PaperSpaceFlagInABlockIsIgnored)
{
    Parts parts;
    parts.entities = "INSERT 2 B";
    parts.blocks = "BLOCK 2 B\nLINE 67 1 11 1\nENDBLK";
    EXPECT_EQ(flattened(parts).count(), 1);
}

TEST_F(InsertedBlocksTest, BlockInsideItselfIsSkipped)
{
    Parts parts;
    parts.entities = "INSERT 2 A\nINSERT 2 A";
    parts.blocks = "BLOCK 2 A\nLINE 11 1\nINSERT 2 B 10 10\nENDBLK\n"
                   "BLOCK 2 B\nLINE 11 2\nINSERT 2 A 10 100\nENDBLK";
    const auto drawing = flattened(parts);

    const Chains once{{{0, 0}, {1, 0}}, {{10, 0}, {12, 0}}};
    EXPECT_EQ(drawing.chains(), once + once);
    EXPECT_EQ(drawing.shown, Counts({{key("INSERT"), 3}, {key("LINE"), 2}}));
    EXPECT_EQ(drawing.skipped, Counts({{key("INSERT"), 1}}));
}

/// The attributes of a line in a block "B", whose insert and layers the test chooses.
class BlockAttributesTest : public LoggedTest
{
protected:
    static QSharedPointer<DXFAttributes> attributes(const char* line, const char* insert,
                                                    const char* outer = nullptr)
    {
        const std::string blocks = std::string("BLOCK 2 B\nLINE 11 1 ") + line
                                   + "\nENDBLK\nBLOCK 2 Outer\nINSERT 2 B " + (outer ? insert : "")
                                   + "\nENDBLK";
        const std::string entities =
            outer ? std::string("INSERT 2 Outer ") + outer : std::string("INSERT 2 B ") + insert;
        Parts parts;
        parts.tables = "TABLE 2 LAYER\nLAYER 2 Walls 70 0 62 5 420 1193046 370 35 6 DASHED\n"
                       "LAYER 2 Off 70 0 62 -4 6 BYLAYER\nLAYER 2 Bad 62 0\nENDTAB";
        parts.blocks = blocks.c_str();
        parts.entities = entities.c_str();
        return flattened(parts).attributes(0);
    }
};

TEST_F(BlockAttributesTest, ByBlockTakesTheValuesOfTheInsert)
{
    const auto result =
        attributes("8 Own 62 0 370 -2 6 ByBlock", "8 Walls 62 3 420 255 370 50 6 DOTTED");

    EXPECT_EQ(result->layerName(), key("Own"));
    EXPECT_EQ(result->color(), 3);
    EXPECT_EQ(result->color24(), 255);
    EXPECT_EQ(result->width(), 50);
    EXPECT_EQ(result->lineType(), key("DOTTED"));
}

TEST_F(BlockAttributesTest, ByBlockOfAnInsertByLayerTakesTheValuesOfItsLayer)
{
    const auto result = attributes("8 Own 62 0 370 -2 6 BYBLOCK", "8 Walls");

    EXPECT_EQ(result->layerName(), key("Own"));
    EXPECT_EQ(result->color(), 5);
    EXPECT_EQ(result->color24(), 1193046);
    EXPECT_EQ(result->width(), 35);
    EXPECT_EQ(result->lineType(), key("DASHED"));
}

TEST_F(BlockAttributesTest, LayerThatIsOffStillGivesItsColor)
{
    EXPECT_EQ(attributes("62 0", "8 Off")->color(), 4);
    EXPECT_EQ(attributes("62 0", "8 Bad")->color(), 7);
    EXPECT_EQ(attributes("62 0", "8 Missing")->color(), 7);
    EXPECT_EQ(attributes("6 BYBLOCK", "8 Off")->lineType(), key("CONTINUOUS"));
    EXPECT_EQ(attributes("370 -2", "8 Off")->width(), -3);
}

TEST_F(BlockAttributesTest, ByLayerStaysByLayer)
{
    const auto result = attributes("8 Own", "8 Walls 62 3 370 50 6 DOTTED");

    EXPECT_EQ(result->layerName(), key("Own"));
    EXPECT_EQ(result->color(), 256);
    EXPECT_EQ(result->width(), -1);
    EXPECT_EQ(result->lineType(), key("BYLAYER"));
}

TEST_F(BlockAttributesTest, LayerZeroIsTheLayerOfTheInsert)
{
    const auto result = attributes("8 0", "8 Walls 62 3");

    EXPECT_EQ(result->layerName(), key("Walls"));
    EXPECT_EQ(result->color(), 256);
}

TEST_F(BlockAttributesTest, ByBlockAndLayerZeroGoThroughAllInserts)
{
    const auto result = attributes("8 0 62 0 370 -2 6 BYBLOCK", "8 0 62 0 370 -2 6 BYBLOCK",
                                   "8 Walls 62 3 370 50 6 DOTTED");

    EXPECT_EQ(result->layerName(), key("Walls"));
    EXPECT_EQ(result->color(), 3);
    EXPECT_EQ(result->width(), 50);
    EXPECT_EQ(result->lineType(), key("DOTTED"));
    // The inner insert is by-layer, on the outer one's layer.
    EXPECT_EQ(attributes("62 0", "8 0", "8 Walls 62 3")->color(), 5);
}

TEST_F(BlockAttributesTest, ByBlockOfAnInsertByBlockIsTheForeground)
{
    EXPECT_EQ(attributes("62 0", "62 0")->color(), 7);
}

TEST_F(BlockAttributesTest, OwnTrueColorIsKept)
{
    EXPECT_EQ(attributes("62 0 420 255", "62 3")->color24(), 255);
}

TEST_F(BlockAttributesTest, DimensionIsAnInsert)
{
    Parts parts;
    parts.blocks = "BLOCK 2 *D1\nLINE 11 1 62 0\nENDBLK";
    parts.entities = "DIMENSION 8 Sizes 62 2 2 *D1";

    const auto drawing = flattened(parts);

    EXPECT_EQ(drawing.attributes(0)->color(), 2);
    EXPECT_EQ(drawing.attributes(0)->layerName(), key("Sizes"));
}

TEST_F(BlockAttributesTest, ContentOfAnInsertInPaperSpaceIsInPaperSpace)
{
    Parts parts;
    parts.blocks = "BLOCK 2 B\nLINE 11 1\nENDBLK";
    parts.entities = "INSERT 67 1 2 B\nINSERT 2 B";
    FlatteningOptions options;
    options.showsPaperSpace = true;

    const auto drawing = flattened(parts, options);

    ASSERT_EQ(drawing.count(), 2);
    EXPECT_TRUE(drawing.attributes(0)->inPaperSpace());
    EXPECT_FALSE(drawing.attributes(1)->inPaperSpace());
}

} // namespace
