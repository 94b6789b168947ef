// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/FlatteningReader.h"

#include "tests/flatten/Records.h"
#include "tests/support/LoggedTest.h"

using namespace dxftest;

namespace
{

/// Drawings that would give far too many vertices without a limit.
class FlatteningLimitsTest : public LoggedTest
{
protected:
    void TearDown() override { EXPECT_EQ(takeDebugMessages(), QStringList()); }

    Flattened limited(const Parts& parts, qint64 most)
    {
        FlatteningOptions options;
        options.maximalVertices = most;
        return flattened(parts, options);
    }

    /// Expects that the drawing was refused, with its messages in the log.
    void expectRefused(const Flattened& drawing, qint64 most = 20'000'000)
    {
        EXPECT_FALSE(drawing.isRead);
        EXPECT_EQ(drawing.count(), 0);
        EXPECT_EQ(takeDebugMessages(),
                  QStringList({QStringLiteral("FlatteningReader: the drawing has more than %1 "
                                              "vertices")
                                   .arg(most),
                               key("DXFReader::Could not parse dxf data")}));
    }
};

TEST_F(FlatteningLimitsTest, AsManyVerticesAsAllowedAreRead)
{
    Parts parts;
    parts.entities = "LINE 11 1\nLWPOLYLINE 10 0 10 1 10 2";

    EXPECT_EQ(limited(parts, 5).count(), 2);
    expectRefused(limited(parts, 4), 4);
    expectRefused(limited(parts, 0), 0);
    expectRefused(limited(parts, -5), 0);
}

TEST_F(FlatteningLimitsTest, InsertedBlocksCountLikeVertices)
{
    Parts parts;
    parts.blocks = "BLOCK 2 B\nLINE 11 1\nENDBLK";
    parts.entities = "INSERT 2 B 70 2 71 2";

    EXPECT_EQ(limited(parts, 12).count(), 4);
    expectRefused(limited(parts, 11), 11);
}

TEST_F(FlatteningLimitsTest, ArrayOfAThousandMillionIsRefused)
{
    Parts parts;
    parts.blocks = "BLOCK 2 B\nPOINT\nENDBLK";
    parts.entities = "INSERT 2 B 70 1000000000 44 1";
    expectRefused(flattened(parts));
    parts.entities = "INSERT 2 B 70 2147483647 71 2147483647";
    expectRefused(flattened(parts));
}

TEST_F(FlatteningLimitsTest, ArrayOfAnEmptyBlockIsNothing)
{
    Parts parts;
    parts.blocks = "BLOCK 2 Empty\nTEXT\nENDBLK\nBLOCK 2 Outer\n"
                   "INSERT 2 Empty 70 2147483647 71 2147483647\nENDBLK";
    parts.entities = "INSERT 2 Outer 70 2147483647 71 2147483647\nINSERT 2 Missing 70 2147483647";
    const auto drawing = flattened(parts);

    EXPECT_TRUE(drawing.isRead);
    EXPECT_EQ(drawing.count(), 0);
    EXPECT_EQ(drawing.shown, Counts());
    EXPECT_EQ(drawing.skipped, Counts({{key("TEXT"), 1}, {key("INSERT"), 1}}));
}

/// Each block inserts the block before it twice.
std::string pyramid(int levels, const char* top)
{
    std::string blocks = std::string("BLOCK 2 B0\n") + top + "\nENDBLK\n";
    for (int i = 1; i <= levels; ++i) {
        const std::string inner = "INSERT 2 B" + std::to_string(i - 1) + " 10 1\n";
        blocks += "BLOCK 2 B" + std::to_string(i) + '\n' + inner + inner + "ENDBLK\n";
    }
    return blocks;
}

TEST_F(FlatteningLimitsTest, PyramidOfBlocksIsRefused)
{
    const std::string blocks = pyramid(60, "POINT");
    Parts parts;
    parts.blocks = blocks.c_str();
    parts.entities = "INSERT 2 B60";
    expectRefused(flattened(parts));

    parts.entities = "INSERT 2 B4";
    EXPECT_EQ(flattened(parts).count(), 16);
}

TEST_F(FlatteningLimitsTest, PyramidOfEmptyBlocksIsNothing)
{
    const std::string blocks = pyramid(100, "HATCH");
    Parts parts;
    parts.blocks = blocks.c_str();
    parts.entities = "INSERT 2 B100";

    EXPECT_EQ(flattened(parts).count(), 0);
}

TEST_F(FlatteningLimitsTest, BlocksMayBeNestedDeeperThanTheCallStack)
{
    constexpr int levels = 100000;
    std::string blocks = "BLOCK 2 B0\nPOINT\nENDBLK\n";
    for (int i = 1; i <= levels; ++i)
        blocks += "BLOCK 2 B" + std::to_string(i) + "\nINSERT 10 1 2 B" + std::to_string(i - 1)
                  + "\nENDBLK\n";
    const std::string entities = "INSERT 2 B" + std::to_string(levels);
    Parts parts;
    parts.blocks = blocks.c_str();
    parts.entities = entities.c_str();
    const auto drawing = flattened(parts);

    EXPECT_TRUE(drawing.isRead);
    ASSERT_EQ(drawing.count(), 1);
    EXPECT_EQ(drawing.points(0).first(), QPointF(levels, 0));
}

TEST_F(FlatteningLimitsTest, BlockInsideItselfIsSkippedEachTime)
{
    Parts parts;
    parts.blocks = "BLOCK 2 A\nPOINT\nINSERT 2 A 70 1000\nINSERT 2 A\nINSERT 2 B 70 3\nENDBLK\n"
                   "BLOCK 2 B\nINSERT 2 B\nINSERT 2 A\nPOINT\nENDBLK";
    parts.entities = "INSERT 2 A\nINSERT 2 B";

    const auto drawing = flattened(parts);

    EXPECT_TRUE(drawing.isRead);
    EXPECT_EQ(drawing.count(), 5);
    EXPECT_EQ(drawing.skipped, Counts({{key("INSERT"), 4}}));
}

TEST_F(FlatteningLimitsTest, ExtremeNumbersGiveFinitePoints)
{
    Parts parts;
    parts.entities =
        "CIRCLE 10 1e300 40 1e300\nCIRCLE 40 1e308 10 1.7e308\nARC 40 1 50 1e300 51 5\n"
        "LWPOLYLINE 10 0 42 1e300 10 1\nLWPOLYLINE 10 -1e308 42 1 10 1e308\n"
        "ELLIPSE 11 1e300 40 1e300\nSPLINE 71 1000000 10 0 10 1\n"
        "SPLINE 71 3 10 1e308 10 -1e308 10 1e308 10 0\n"
        "SPLINE 11 0 11 1e308 11 -1e308\nSPLINE 41 0 41 0 10 0 10 1\n"
        "SPLINE 71 1 40 nan 40 nan 40 inf 40 1 10 0 10 1\n"
        "LWPOLYLINE 10 0 20 0 10 1 20 1 210 1e300 220 1e300 230 nan\n"
        "POLYLINE 70 16 71 32767 72 32767\nSEQEND\nPOLYLINE 70 64\n"
        "VERTEX 70 128 71 32767 72 -32768 73 1\nSEQEND\nCIRCLE 40 0\n"
        "INSERT 2 B 41 1e300 10 1e300\nINSERT 2 B 41 0 42 0\nINSERT 2 B 50 nan";
    parts.blocks = "BLOCK 2 B\nLINE 10 1e300 11 1\nENDBLK";

    const auto drawing = flattened(parts);

    EXPECT_TRUE(drawing.isRead);
    for (int i = 0; i < drawing.count(); ++i) {
        for (const QPointF& point : drawing.points(i)) {
            EXPECT_TRUE(std::isfinite(point.x()));
            EXPECT_TRUE(std::isfinite(point.y()));
        }
    }
}

TEST_F(FlatteningLimitsTest, ContentThatIsScaledToInfinityIsSkipped)
{
    Parts parts;
    parts.blocks = "BLOCK 2 B\nLINE 10 1e300 11 1\nLINE 11 1\nENDBLK";
    parts.entities = "INSERT 2 B 41 1e300";

    const auto drawing = flattened(parts);

    EXPECT_EQ(drawing.count(), 1);
    EXPECT_EQ(drawing.skipped, Counts({{key("LINE"), 1}}));
}

TEST_F(FlatteningLimitsTest, CurvesStopAtTheLimit)
{
    std::string bulges = "LWPOLYLINE";
    std::string spline = "SPLINE 71 3";
    for (int i = 0; i < 1000; ++i) {
        bulges += " 10 " + std::to_string(i) + " 20 0 42 1";
        spline += " 10 " + std::to_string(i) + " 20 " + std::to_string(i % 2 * 1000);
    }
    FlatteningOptions options;
    options.maximalVertices = 500;
    options.maximalStepDegrees = 0.01;
    for (const std::string& entity : {bulges, spline, std::string("CIRCLE 40 1")}) {
        Parts parts;
        parts.entities = entity.c_str();
        expectRefused(flattened(parts, options), 500);
    }
}

TEST_F(FlatteningLimitsTest, ReaderCanBeUsedAgainAfterAFailure)
{
    FlatteningOptions options;
    options.maximalVertices = 10;
    DXFDocument document;
    FlatteningReader reader(document, options);
    EXPECT_FALSE(reader.load(records("CIRCLE 40 1\nEOF")));
    EXPECT_TRUE(reader.isTooLarge());

    EXPECT_TRUE(reader.load(records("LINE 11 1\nEOF")));
    EXPECT_FALSE(reader.isTooLarge());

    EXPECT_EQ(document.entities().size(), 1);
    EXPECT_EQ(takeDebugMessages().size(), 2);
}

TEST_F(FlatteningLimitsTest, EveryBeginningOfADrawingIsRead)
{
    Parts parts;
    parts.tables = "TABLE 2 LAYER\nLAYER 2 A 62 1\nENDTAB";
    parts.blocks = "BLOCK 2 B\nCIRCLE 40 1\nENDBLK";
    parts.entities = "POLYLINE 70 1\nVERTEX 10 0\nVERTEX 10 1\nSEQEND\nINSERT 2 B 70 2\n"
                     "SPLINE 71 2 40 0 40 0 40 0 40 1 40 1 40 1 10 0 10 1 10 2\nMTEXT 1 x";
    const QByteArray text = drawingOf(parts);
    for (int size = 0; size <= text.size(); ++size)
        EXPECT_TRUE(flattened(text.left(size)).isRead) << size;
}

} // namespace
