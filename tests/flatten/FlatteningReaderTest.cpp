// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/FlatteningReader.h"

#include "dxfviewer/io/DXFWriter.h"
#include "dxfviewer/model/DXFAttributes.h"
#include "dxfviewer/model/DXFLayer.h"
#include "dxfviewer/model/DXFLineType.h"
#include "tests/flatten/Records.h"
#include "tests/support/LoggedTest.h"

#include <QTemporaryFile>
#include <QTransform>

#include <cmath>

using namespace dxftest;

namespace
{

using Chains = QVector<QVector<QPointF>>;

const double pi = std::acos(-1.0);

/// The text of entities in a drawing without anything else.
Flattened entities(const char* lines, const FlatteningOptions& options = {})
{
    Parts parts;
    parts.entities = lines;
    return flattened(parts, options);
}

class FlatteningReaderTest : public LoggedTest
{
protected:
    void TearDown() override { EXPECT_EQ(takeDebugMessages(), QStringList()); }
};

TEST_F(FlatteningReaderTest, LineBecomesPolylineOfItsEnds)
{
    const auto drawing = entities("LINE 10 1 20 2 30 7 11 4 21 6 31 9");

    ASSERT_TRUE(drawing.isRead);
    EXPECT_EQ(drawing.chains(), Chains({{{1, 2}, {4, 6}}}));
    EXPECT_EQ(drawing.polyline(0)->flags(), 0U);
    EXPECT_EQ(drawing.polyline(0)->vertices()[1].z(), 0.0);
    EXPECT_EQ(drawing.shown, Counts({{key("LINE"), 1}}));
    EXPECT_EQ(drawing.skipped, Counts());
}

TEST_F(FlatteningReaderTest, OldNameOfThreeDimensionalLinesIsKnown)
{
    EXPECT_EQ(entities("3DLINE 10 1 20 2 11 4 21 6").chains(), Chains({{{1, 2}, {4, 6}}}));
}

TEST_F(FlatteningReaderTest, PointAndLineWithoutLengthAreDots)
{
    const auto drawing = entities("POINT 10 1 20 2\nLINE 10 3 20 4 11 3 21 4");

    EXPECT_EQ(drawing.chains(), Chains({{{1, 2}, {1, 2}}, {{3, 4}, {3, 4}}}));
}

TEST_F(FlatteningReaderTest, CircleTakesSixtyFourStepsAndEndsWhereItStarts)
{
    const auto drawing = entities("CIRCLE 10 5 20 6 40 2");

    const auto points = drawing.points(0);
    ASSERT_EQ(points.size(), 65);
    EXPECT_EQ(points.first(), points.last());
    EXPECT_TRUE(areNear({{points[0], points[16], points[32]}}, {{{7, 6}, {5, 8}, {3, 6}}}));
}

TEST_F(FlatteningReaderTest, StepIsAnOption)
{
    FlatteningOptions options;
    options.maximalStepDegrees = 45.0;

    EXPECT_EQ(entities("CIRCLE 10 0 20 0 40 1", options).points(0).size(), 9);
}

TEST_F(FlatteningReaderTest, InvalidStepsAreReplaced)
{
    FlatteningOptions options;
    for (const auto& [step, points] : {std::pair(std::nan(""), 65), std::pair(1e300, 9),
                                       std::pair(0.0, 36001), std::pair(-1e300, 36001)}) {
        options.maximalStepDegrees = step;
        EXPECT_EQ(entities("CIRCLE 10 0 20 0 40 1", options).points(0).size(), points) << step;
    }
}

TEST_F(FlatteningReaderTest, ArcGoesCounterClockwiseThroughZero)
{
    const auto points = entities("ARC 10 0 20 0 40 2 50 315 51 45").points(0);

    ASSERT_EQ(points.size(), 17);
    const double half = std::sqrt(2.0);
    EXPECT_TRUE(areNear({{points.first(), points[8], points.last()}},
                        {{{half, -half}, {2, 0}, {half, half}}}));
}

TEST_F(FlatteningReaderTest, ShortArcHasAtLeastTwoSteps)
{
    EXPECT_EQ(entities("ARC 10 0 20 0 40 2 50 0 51 0.1").points(0).size(), 3);
}

TEST_F(FlatteningReaderTest, EllipseFollowsItsAxesAndParameters)
{
    const auto whole = entities("ELLIPSE 10 1 20 1 11 0 21 4 40 0.5 41 0 42 6.283185307179586");
    const auto quarter =
        entities("ELLIPSE 10 1 20 1 11 0 21 4 40 0.5 41 0 42 1.5707963267948966").points(0);

    ASSERT_EQ(whole.points(0).size(), 65);
    EXPECT_EQ(whole.points(0).first(), whole.points(0).last());
    EXPECT_NEAR(whole.box().width(), 4.0, 1e-9);
    EXPECT_NEAR(whole.box().height(), 8.0, 1e-9);
    // The minor axis is the major one turned to the left.
    EXPECT_TRUE(areNear({{quarter.first(), quarter.last()}}, {{{1, 5}, {-1, 1}}}));
}

TEST_F(FlatteningReaderTest, MirroredEllipseRunsTheOtherWay)
{
    const auto points =
        entities("ELLIPSE 10 0 20 0 11 4 21 0 40 0.5 41 0 42 1.5707963267948966 230 -1").points(0);

    EXPECT_TRUE(areNear({{points.first(), points.last()}}, {{{4, 0}, {0, -2}}}));
}

TEST_F(FlatteningReaderTest, LightPolylineKeepsVerticesAndLosesElevation)
{
    const auto drawing = entities("LWPOLYLINE 90 3 70 0 38 5 10 0 20 0 10 4 20 0 10 4 20 3");

    EXPECT_EQ(drawing.chains(), Chains({{{0, 0}, {4, 0}, {4, 3}}}));
    EXPECT_EQ(drawing.polyline(0)->vertices()[0].z(), 0.0);
}

TEST_F(FlatteningReaderTest, ClosedPolylineEndsAtItsFirstVertexWithoutFlag)
{
    const auto drawing = entities("LWPOLYLINE 70 1 10 0 20 0 10 4 20 0 10 4 20 3");

    EXPECT_EQ(drawing.chains(), Chains({{{0, 0}, {4, 0}, {4, 3}, {0, 0}}}));
    EXPECT_EQ(drawing.polyline(0)->flags(), 0U);
}

TEST_F(FlatteningReaderTest, ClosedPolylineWithARepeatedFirstVertexGetsNoThird)
{
    const auto drawing = entities("LWPOLYLINE 70 1 10 0 20 0 10 4 20 0 10 4 20 3 10 0 20 0");

    EXPECT_EQ(drawing.chains(), Chains({{{0, 0}, {4, 0}, {4, 3}, {0, 0}}}));
}

TEST_F(FlatteningReaderTest, PositiveBulgeIsAnArcToTheRight)
{
    // A half circle from (0, 0) to (4, 0).
    const auto right = entities("LWPOLYLINE 10 0 20 0 42 1 10 4 20 0");
    const auto left = entities("LWPOLYLINE 10 0 20 0 42 -1 10 4 20 0");

    const auto points = right.points(0);
    ASSERT_EQ(points.size(), 33);
    EXPECT_TRUE(
        areNear({{points.first(), points[16], points.last()}}, {{{0, 0}, {2, -2}, {4, 0}}}));
    EXPECT_TRUE(areNear({{left.points(0)[16]}}, {{{2, 2}}}));
    EXPECT_EQ(right.polyline(0)->vertices()[0].bulge(), 0.0);
}

TEST_F(FlatteningReaderTest, BulgeOfLastVertexBendsTheClosingSegment)
{
    const auto circle = entities("LWPOLYLINE 70 1 10 0 20 0 42 1 10 4 20 0 42 1");

    EXPECT_EQ(circle.points(0).size(), 65);
    EXPECT_EQ(circle.points(0).first(), circle.points(0).last());
    EXPECT_NEAR(circle.length(), 4 * pi, 4 * pi * 0.002);
    EXPECT_NEAR(circle.box().height(), 4.0, 1e-9);
}

TEST_F(FlatteningReaderTest, PolylineOfOneVertexYieldsNothing)
{
    const auto drawing = entities("LWPOLYLINE 70 1 10 0 20 0 42 1\nPOLYLINE 70 1\n"
                                  "VERTEX 10 1 20 1\nSEQEND\nLWPOLYLINE\nPOLYLINE\nSEQEND");

    EXPECT_EQ(drawing.count(), 0);
    EXPECT_EQ(drawing.shown, Counts());
    EXPECT_EQ(drawing.skipped, Counts());
}

TEST_F(FlatteningReaderTest, OldPolylineHasBulgesAndIsListedOnce)
{
    const auto drawing = entities("POLYLINE 8 A 66 1 70 1\nVERTEX 8 B 10 0 20 0 42 1\n"
                                  "VERTEX 8 B 10 4 20 0\nSEQEND\nSPLINE\nHATCH\nLEADER");

    ASSERT_EQ(drawing.count(), 1);
    EXPECT_EQ(drawing.points(0).size(), 34);
    // The layer of a vertex is ignored.
    EXPECT_EQ(drawing.attributes(0)->layerName(), key("A"));
}

TEST_F(FlatteningReaderTest, ThreeDimensionalPolylineIsSeenFromAbove)
{
    const auto drawing = entities("POLYLINE 66 1 70 9\nVERTEX 10 0 20 0 30 5 70 32\n"
                                  "VERTEX 10 4 20 0 30 6 70 32\nVERTEX 10 4 20 3 30 1 70 32\n"
                                  "SEQEND");

    EXPECT_EQ(drawing.chains(), Chains({{{0, 0}, {4, 0}, {4, 3}, {0, 0}}}));
}

TEST_F(FlatteningReaderTest, ControlPointsOfSplineFitPolylineAreLeftOut)
{
    const auto flat = entities("POLYLINE 66 1 70 4\nVERTEX 10 0 20 0 70 16\n"
                               "VERTEX 10 0 20 0 70 8\nVERTEX 10 2 20 1 70 8\n"
                               "VERTEX 10 9 20 9 70 16\nVERTEX 10 4 20 0 70 8\nSEQEND");
    const auto spatial = entities("POLYLINE 66 1 70 12\nVERTEX 10 9 20 0 70 48\n"
                                  "VERTEX 10 0 20 0 70 40\nVERTEX 10 2 20 1 70 40\nSEQEND");

    EXPECT_EQ(flat.chains(), Chains({{{0, 0}, {2, 1}, {4, 0}}}));
    EXPECT_EQ(spatial.chains(), Chains({{{0, 0}, {2, 1}}}));
}

TEST_F(FlatteningReaderTest, VerticesOfACurveFitKeepTheirBulges)
{
    const auto drawing = entities("POLYLINE 66 1 70 2\nVERTEX 10 0 20 0 42 1\n"
                                  "VERTEX 10 4 20 0 42 -1 70 1\nVERTEX 10 8 20 0\nSEQEND");

    EXPECT_EQ(drawing.points(0).size(), 65);
    EXPECT_TRUE(areNear({{drawing.points(0)[16], drawing.points(0)[48]}}, {{{2, -2}, {6, 2}}}));
}

TEST_F(FlatteningReaderTest, PolylineWithoutEndIsShown)
{
    const auto byEntity = entities("POLYLINE\nVERTEX 10 0 20 0\nVERTEX 10 1 20 0\n"
                                   "LINE 10 5 20 5 11 6 21 6");
    const auto bySection = entities("POLYLINE\nVERTEX 10 0 20 0\nVERTEX 10 1 20 0");
    const auto byText = flattened(records("POLYLINE\nVERTEX 10 0 20 0\nVERTEX 10 1 20 0"));

    EXPECT_EQ(byEntity.chains(), Chains({{{0, 0}, {1, 0}}, {{5, 5}, {6, 6}}}));
    EXPECT_EQ(bySection.chains(), Chains({{{0, 0}, {1, 0}}}));
    EXPECT_EQ(byText.chains(), Chains({{{0, 0}, {1, 0}}}));
}

TEST_F(FlatteningReaderTest, SolidAndTraceAreOutlinedInTheirOrder)
{
    const auto drawing = entities("SOLID 10 0 20 0 11 4 21 0 12 0 22 3 13 4 23 3\n"
                                  "TRACE 10 0 20 0 11 4 21 0 12 0 22 3 13 4 23 3");

    const QVector<QPointF> outline{{0, 0}, {4, 0}, {4, 3}, {0, 3}, {0, 0}};
    EXPECT_EQ(drawing.chains(), Chains({outline, outline}));
    EXPECT_EQ(drawing.shown, Counts({{key("SOLID"), 1}, {key("TRACE"), 1}}));
}

TEST_F(FlatteningReaderTest, MissingFourthCornerIsTheThird)
{
    const auto drawing = entities("SOLID 10 0 20 0 11 4 21 0 12 4 22 3\n"
                                  "3DFACE 10 0 20 0 11 4 21 0 12 4 22 3");

    const QVector<QPointF> triangle{{0, 0}, {4, 0}, {4, 3}, {0, 0}};
    EXPECT_EQ(drawing.chains(), Chains({triangle, triangle}));
}

TEST_F(FlatteningReaderTest, HiddenEdgesOfAFaceAreLeftOut)
{
    const char* corners = "3DFACE 10 0 20 0 11 4 21 0 12 4 22 3 13 0 23 3 70 ";
    const auto chainsWith = [corners](const char* flags) {
        return entities((std::string(corners) + flags).c_str()).chains();
    };

    EXPECT_EQ(chainsWith("0"), Chains({{{0, 0}, {4, 0}, {4, 3}, {0, 3}, {0, 0}}}));
    EXPECT_EQ(chainsWith("1"), Chains({{{4, 0}, {4, 3}, {0, 3}, {0, 0}}}));
    EXPECT_EQ(chainsWith("2"), Chains({{{4, 3}, {0, 3}, {0, 0}, {4, 0}}}));
    EXPECT_EQ(chainsWith("5"), Chains({{{0, 3}, {0, 0}}, {{4, 0}, {4, 3}}}));
    EXPECT_EQ(chainsWith("8"), Chains({{{0, 0}, {4, 0}, {4, 3}, {0, 3}}}));
    EXPECT_EQ(chainsWith("15"), Chains());
}

TEST_F(FlatteningReaderTest, LeaderIsAChainOrACurve)
{
    const auto straight = entities("LEADER 72 0 76 3 10 0 20 0 10 4 20 0 10 4 20 3");
    const auto curved = entities("LEADER 72 1 76 3 10 0 20 0 10 4 20 0 10 4 20 3");

    EXPECT_EQ(straight.chains(), Chains({{{0, 0}, {4, 0}, {4, 3}}}));
    const auto points = curved.points(0);
    EXPECT_GT(points.size(), 6);
    EXPECT_EQ(points.first(), QPointF(0, 0));
    EXPECT_TRUE(points.contains(QPointF(4, 0)));
    EXPECT_EQ(points.last(), QPointF(4, 3));
    EXPECT_GT(curved.length(), 7.0);
    EXPECT_LT(curved.length(), 8.0);
}

TEST_F(FlatteningReaderTest, SplineWithoutControlPointsGoesThroughItsFitPoints)
{
    const auto drawing = entities("SPLINE 70 0 71 3 74 3 11 0 21 0 11 4 21 2 11 8 21 0 "
                                  "12 0 22 1 13 0 23 -1");

    const auto points = drawing.points(0);
    EXPECT_EQ(points.first(), QPointF(0, 0));
    EXPECT_TRUE(points.contains(QPointF(4, 2)));
    EXPECT_EQ(points.last(), QPointF(8, 0));
    // The curve starts upwards, and ends downwards.
    EXPECT_GT(points[1].y(), 3 * points[1].x());
    EXPECT_GT(points[points.size() - 2].y(), 3 * (8 - points[points.size() - 2].x()));
}

TEST_F(FlatteningReaderTest, SplineFollowsDegreeKnotsAndWeights)
{
    // A quarter of a circle.
    const auto drawing = entities("SPLINE 71 2 72 6 73 3 40 0 40 0 40 0 40 1 40 1 40 1 "
                                  "41 1 41 0.70710678118654752 41 1 10 2 20 0 10 2 20 2 10 0 20 2");

    const auto points = drawing.points(0);
    EXPECT_EQ(points.first(), QPointF(2, 0));
    EXPECT_EQ(points.last(), QPointF(0, 2));
    for (const QPointF& point : points)
        EXPECT_NEAR(std::hypot(point.x(), point.y()), 2.0, 1e-12);
    EXPECT_NEAR(drawing.length(), pi, pi * 0.002);
}

TEST_F(FlatteningReaderTest, ExtrusionDownwardsMirrorsEntities)
{
    const auto drawing = entities("CIRCLE 10 5 20 6 40 2 210 0 220 0 230 -1\n"
                                  "ARC 10 5 20 6 40 2 50 0 51 90 230 -1\n"
                                  "LWPOLYLINE 10 1 20 2 10 3 20 4 230 -1\n"
                                  "SOLID 10 0 20 0 11 4 21 0 12 4 22 3 230 -1\n"
                                  "LINE 10 1 20 2 11 3 21 4 230 -1\n"
                                  "POINT 10 1 20 2 230 -1");

    const auto arc = drawing.points(1);
    EXPECT_TRUE(areNear({{drawing.points(0).first()}}, {{{-7, 6}}}));
    EXPECT_TRUE(areNear({{arc.first(), arc.last()}}, {{{-7, 6}, {-5, 8}}}));
    EXPECT_TRUE(areNear({drawing.points(2), drawing.points(3)},
                        {{{-1, 2}, {-3, 4}}, {{0, 0}, {-4, 0}, {-4, 3}, {0, 0}}}));
    // Lines and points are given in the drawing's own coordinates.
    EXPECT_EQ(drawing.points(4), QVector<QPointF>({{1, 2}, {3, 4}}));
    EXPECT_EQ(drawing.points(5), QVector<QPointF>({{1, 2}, {1, 2}}));
}

TEST_F(FlatteningReaderTest, ObliqueExtrusionMovesByElevation)
{
    // Looking along x: the entity's x is the drawing's y, its y is z, and its z is x.
    const auto drawing = entities("LWPOLYLINE 38 5 10 1 20 2 10 3 20 4 210 1 220 0 230 0\n"
                                  "POLYLINE 30 5 210 1 230 0\nVERTEX 10 1 20 2 30 5\n"
                                  "VERTEX 10 3 20 4 30 5\nSEQEND\n"
                                  "CIRCLE 10 1 20 2 30 5 40 2 210 1 230 0\n"
                                  "ARC 10 1 20 2 38 5 40 2 50 0 51 180 210 1 230 0");

    const QVector<QPointF> chain{{5, 1}, {5, 3}};
    EXPECT_TRUE(areNear({drawing.points(0), drawing.points(1)}, {chain, chain}));
    const auto circle = drawing.points(2);
    EXPECT_TRUE(areNear({{circle[0], circle[16], circle[32]}}, {{{5, 3}, {5, 1}, {5, -1}}}));
    EXPECT_TRUE(areNear({{drawing.points(3).first()}}, {{{5, 3}}}));
}

TEST_F(FlatteningReaderTest, MeshIsShownByRowsAndColumns)
{
    const char* grid = "VERTEX 10 0 20 0 70 64\nVERTEX 10 1 20 0 70 64\nVERTEX 10 2 20 0 70 64\n"
                       "VERTEX 10 0 20 1 70 64\nVERTEX 10 1 20 1 70 64\nVERTEX 10 2 20 1 70 64\n"
                       "VERTEX 10 0 20 2 70 64\nVERTEX 10 1 20 2 70 64\nVERTEX 10 2 20 2 70 64\n"
                       "SEQEND";
    const auto with = [grid](const char* flags) {
        return entities((std::string("POLYLINE 66 1 71 3 72 3 70 ") + flags + '\n' + grid).c_str());
    };

    EXPECT_EQ(with("16").chains(), Chains({{{0, 0}, {1, 0}, {2, 0}},
                                           {{0, 1}, {1, 1}, {2, 1}},
                                           {{0, 2}, {1, 2}, {2, 2}},
                                           {{0, 0}, {0, 1}, {0, 2}},
                                           {{1, 0}, {1, 1}, {1, 2}},
                                           {{2, 0}, {2, 1}, {2, 2}}}));
    EXPECT_DOUBLE_EQ(with("16").length(), 12.0);
    EXPECT_DOUBLE_EQ(with("17").length(), 18.0);
    EXPECT_EQ(with("17").points(3).last(), QPointF(0, 0));
    EXPECT_DOUBLE_EQ(with("48").length(), 18.0);
    EXPECT_EQ(with("48").points(0).last(), QPointF(0, 0));
    EXPECT_DOUBLE_EQ(with("49").length(), 24.0);
    EXPECT_EQ(with("16").shown, Counts({{key("POLYLINE"), 1}}));
}

TEST_F(FlatteningReaderTest, SmoothedMeshIsShownWithoutItsControlPoints)
{
    const auto drawing = entities("POLYLINE 66 1 70 20 71 2 72 2 73 2 74 3 75 6\n"
                                  "VERTEX 10 9 20 9 70 80\nVERTEX 10 8 20 9 70 80\n"
                                  "VERTEX 10 9 20 8 70 80\nVERTEX 10 8 20 8 70 80\n"
                                  "VERTEX 10 0 20 0 70 72\nVERTEX 10 1 20 0 70 72\n"
                                  "VERTEX 10 2 20 0 70 72\nVERTEX 10 0 20 1 70 72\n"
                                  "VERTEX 10 1 20 1 70 72\nVERTEX 10 2 20 1 70 72\nSEQEND");

    EXPECT_EQ(drawing.count(), 5);
    EXPECT_EQ(drawing.box(), QRectF(0, 0, 2, 1));
    EXPECT_DOUBLE_EQ(drawing.length(), 7.0);
}

TEST_F(FlatteningReaderTest, MeshWithTooFewVerticesShowsItsWholeRows)
{
    const auto drawing = entities("POLYLINE 70 17 71 2000000000 72 2\nVERTEX 10 0 20 0 70 64\n"
                                  "VERTEX 10 1 20 0 70 64\nVERTEX 10 0 20 1 70 64\nSEQEND\n"
                                  "POLYLINE 70 16 71 -1 72 2\nVERTEX 10 0 20 0 70 64\nSEQEND\n"
                                  "POLYLINE 70 16 71 2 72 2000000000\nVERTEX 10 0 20 0 70 64\n"
                                  "SEQEND");

    EXPECT_EQ(drawing.chains(), Chains({{{0, 0}, {1, 0}}}));
}

TEST_F(FlatteningReaderTest, EdgesOfFacesAreShownOnceUnlessHidden)
{
    // Two triangles with one edge in common; the last edge of the second is hidden.
    const auto drawing = entities("POLYLINE 66 1 70 64 71 4 72 2\n"
                                  "VERTEX 10 0 20 0 70 192\nVERTEX 10 4 20 0 70 192\n"
                                  "VERTEX 10 4 20 3 70 192\nVERTEX 10 0 20 3 70 192\n"
                                  "VERTEX 70 128 71 1 72 2 73 3\nVERTEX 70 128 71 1 72 3 73 -4\n"
                                  "SEQEND");

    EXPECT_EQ(drawing.chains(), Chains({{{0, 0}, {4, 0}, {4, 3}, {0, 0}}, {{4, 3}, {0, 3}}}));
}

TEST_F(FlatteningReaderTest, FacesWithMissingVerticesLoseThoseEdges)
{
    const auto drawing = entities("POLYLINE 70 64\nVERTEX 10 0 20 0 70 192\n"
                                  "VERTEX 10 4 20 0 70 192\nVERTEX 70 128 71 1 72 2 73 99\n"
                                  "VERTEX 70 128 71 -2147483648 72 1 73 2147483647\nSEQEND");

    EXPECT_EQ(drawing.chains(), Chains({{{0, 0}, {4, 0}}}));
}

TEST_F(FlatteningReaderTest, EntitiesKeepTheirOrder)
{
    Parts parts;
    parts.blocks = "BLOCK 2 B\nLINE 10 1 11 2\nENDBLK";
    parts.entities = "LINE 10 0 11 1\nINSERT 2 B\nPOLYLINE\nVERTEX 10 2\nVERTEX 10 3\nSEQEND\n"
                     "LINE 10 3 11 4";
    EXPECT_EQ(flattened(parts).chains(),
              Chains({{{0, 0}, {1, 0}}, {{1, 0}, {2, 0}}, {{2, 0}, {3, 0}}, {{3, 0}, {4, 0}}}));
}

TEST_F(FlatteningReaderTest, InvisibleEntitiesAreLeftOutAndCountedApart)
{
    const auto drawing = entities("LINE 60 1 11 1\nHATCH 60 1\nPOLYLINE 60 1\nVERTEX 10 0\n"
                                  "VERTEX 10 1\nSEQEND\nLINE 60 0 11 1");

    EXPECT_EQ(drawing.count(), 1);
    EXPECT_EQ(drawing.skipped, Counts());
    EXPECT_EQ(drawing.invisible, 3);
    EXPECT_EQ(drawing.elsewhere, 0);
}

TEST_F(FlatteningReaderTest, PaperSpaceIsShownOnRequest)
{
    const char* lines = "LINE 67 1 11 1\nHATCH 67 1\nPOLYLINE 67 1\nVERTEX 10 0\nVERTEX 10 1\n"
                        "SEQEND\nLINE 67 0 11 2\nVIEWPORT 67 1";
    FlatteningOptions options;
    options.showsPaperSpace = true;
    const auto model = entities(lines);
    const auto both = entities(lines, options);

    EXPECT_EQ(model.chains(), Chains({{{0, 0}, {2, 0}}}));
    EXPECT_EQ(model.skipped, Counts());
    EXPECT_EQ(model.elsewhere, 3);
    EXPECT_EQ(both.elsewhere, 0);
    EXPECT_EQ(both.count(), 3);
    EXPECT_EQ(both.skipped, Counts({{key("HATCH"), 1}}));
    EXPECT_TRUE(both.attributes(0)->inPaperSpace());
    EXPECT_FALSE(both.attributes(2)->inPaperSpace());
}

TEST_F(FlatteningReaderTest, EntitiesThatAreNotShownAreCountedByName)
{
    const auto drawing = entities("HATCH\nHATCH\nXLINE 10 0 11 1\nRAY 10 0 11 1\nIMAGE\n3DSOLID\n"
                                  "TEXT 1 words\nMTEXT 1 words\nATTRIB 1 words\nATTDEF 1 words\n"
                                  "WIPEOUT\nNOVELTY\nSEQEND\nVERTEX\nVIEWPORT\nTOLERANCE");

    EXPECT_EQ(drawing.count(), 0);
    EXPECT_EQ(drawing.skipped, Counts({{key("HATCH"), 2},
                                       {key("XLINE"), 1},
                                       {key("RAY"), 1},
                                       {key("IMAGE"), 1},
                                       {key("3DSOLID"), 1},
                                       {key("TEXT"), 1},
                                       {key("MTEXT"), 1},
                                       {key("ATTRIB"), 1},
                                       {key("WIPEOUT"), 1},
                                       {key("NOVELTY"), 1},
                                       {key("TOLERANCE"), 1}}));
}

TEST_F(FlatteningReaderTest, AttributesAreThoseOfTheEntity)
{
    const auto drawing =
        entities("LINE 8 Walls 62 3 420 255 370 25 6 DASHED 48 2.5 11 1\nLINE 11 1");

    const auto own = drawing.attributes(0);
    EXPECT_EQ(own->layerName(), key("Walls"));
    EXPECT_EQ(own->color(), 3);
    EXPECT_EQ(own->color24(), 255);
    EXPECT_EQ(own->width(), 25);
    EXPECT_EQ(own->lineType(), key("DASHED"));
    EXPECT_EQ(own->lineTypeScale(), 2.5);
    EXPECT_EQ(own->handle(), -1);
    const auto plain = drawing.attributes(1);
    EXPECT_EQ(plain->layerName(), key("0"));
    EXPECT_EQ(plain->color(), 256);
    EXPECT_EQ(plain->color24(), -1);
    EXPECT_EQ(plain->width(), -1);
    EXPECT_EQ(plain->lineType(), key("BYLAYER"));
    EXPECT_EQ(plain->lineTypeScale(), 1.0);
}

TEST_F(FlatteningReaderTest, EntitiesThatLookAlikeShareAttributes)
{
    const auto drawing = entities("LINE 5 1A 8 A 11 1\nLINE 5 1B 8 B 11 1\nCIRCLE 5 1C 8 A 40 1");

    EXPECT_EQ(drawing.attributes(0), drawing.attributes(2));
    EXPECT_NE(drawing.attributes(0), drawing.attributes(1));
}

TEST_F(FlatteningReaderTest, ByBlockOutsideOfBlocksIsTheForeground)
{
    const auto drawing = entities("LINE 62 0 6 ByBlock 370 -2 11 1");

    EXPECT_EQ(drawing.attributes(0)->color(), 7);
    EXPECT_EQ(drawing.attributes(0)->lineType(), key("CONTINUOUS"));
    EXPECT_EQ(drawing.attributes(0)->width(), -3);
}

TEST_F(FlatteningReaderTest, LayersAndLineTypesAreRead)
{
    Parts parts;
    parts.tables = "TABLE 2 LTYPE 70 1\nLTYPE 2 DASHED 70 0 3 __ 72 65 73 2 40 3 49 2 49 -1\n"
                   "ENDTAB\nTABLE 2 LAYER 70 1\nLAYER 2 Walls 70 4 62 5 6 DASHED 1001 APP 1070 1\n"
                   "ENDTAB\nTABLE 2 STYLE\nSTYLE 2 Standard 70 0\nENDTAB";
    const auto drawing = flattened(parts);

    const auto layer = drawing.document->getLayer(key("Walls"));
    ASSERT_TRUE(layer);
    EXPECT_TRUE(layer->isLocked());
    EXPECT_EQ(layer->attributes()->color(), 5);
    const auto lineType = drawing.document->getLineType(key("DASHED"));
    ASSERT_TRUE(lineType);
    EXPECT_EQ(lineType->numberOfDashes(), 2);
}

TEST_F(FlatteningReaderTest, LayerIsFoundWhateverItsCase)
{
    Parts parts;
    parts.tables = "TABLE 2 LAYER\nLAYER 2 Walls 62 5\nLAYER 2 WALLS 62 6\nENDTAB";
    parts.entities = "LINE 8 walls 11 1\nLINE 8 WALLS 11 1\nLINE 8 Others 11 1";

    const auto drawing = flattened(parts);

    EXPECT_EQ(drawing.attributes(0)->layerName(), key("Walls"));
    EXPECT_EQ(drawing.attributes(1)->layerName(), key("WALLS"));
    EXPECT_EQ(drawing.attributes(2)->layerName(), key("Others"));
}

TEST_F(FlatteningReaderTest, HiddenAttributesAreInvisible)
{
    const auto drawing = entities("ATTRIB 70 1 40 1 1 x\nATTRIB 70 8 40 1 1 x");

    EXPECT_EQ(drawing.skipped, Counts({{key("ATTRIB"), 1}}));
    EXPECT_EQ(drawing.invisible, 1);
}

TEST_F(FlatteningReaderTest, BlocksOfLayoutsAreCountedAsElsewhere)
{
    Parts parts;
    parts.blocks = "BLOCK 2 *Paper_Space0\nLINE 67 1 11 1\nLINE 60 1 11 1\nHATCH\nINSERT 2 B\n"
                   "VIEWPORT\nENDBLK\nBLOCK 2 $PAPER_SPACE\nLINE 11 1\nENDBLK\n"
                   "BLOCK 2 *Model_Space\nLINE 11 1\nENDBLK\n"
                   "BLOCK 2 B\nLINE 11 1\nLINE 60 1 11 1\nENDBLK";
    parts.entities = "LINE 11 1\nTEXT 67 1 60 1 1 words";

    const auto drawing = flattened(parts);

    EXPECT_EQ(drawing.count(), 1);
    EXPECT_EQ(drawing.elsewhere, 6);
    EXPECT_EQ(drawing.invisible, 0);
}

TEST_F(FlatteningReaderTest, InvisibleEntitiesOfABlockCountOnceIfTheBlockIsInserted)
{
    Parts parts;
    parts.blocks = "BLOCK 2 B\nLINE 11 1\nLINE 60 1 11 1\nENDBLK";
    parts.entities = "INSERT 2 B\nINSERT 2 B";

    EXPECT_EQ(flattened(parts).invisible, 1);
}

TEST_F(FlatteningReaderTest, HeaderAndOtherSectionsAreIgnored)
{
    const auto drawing = flattened(
        records("SECTION 2 HEADER 9 $LTSCALE 40 1 9 $ORTHOMODE 70 0\nENDSEC\n"
                "SECTION 2 OBJECTS\nDICTIONARY 5 C 3 NAME 350 D\nXRECORD 5 D 40 1\nLINE 11 1\n"
                "ENDSEC\nSECTION 2 CLASSES\nCLASS 1 LINE\nENDSEC\nSECTION 2 ENTITIES\n"
                "LINE 10 1 11 2\nENDSEC\nEOF"));

    EXPECT_EQ(drawing.chains(), Chains({{{1, 0}, {2, 0}}}));
}

TEST_F(FlatteningReaderTest, TextWithoutSectionsIsTakenForEntities)
{
    const auto drawing =
        flattened(records("LAYER 2 Walls 70 0 62 5\nSTYLE 2 S 70 0\nBLOCK 2 B\nLINE 10 0 11 1\n"
                          "ENDBLK\nINSERT 2 B 10 5\nLINE 10 1 11 2\nEOF"));

    EXPECT_EQ(drawing.chains(), Chains({{{5, 0}, {6, 0}}, {{1, 0}, {2, 0}}}));
    EXPECT_TRUE(drawing.document->getLayer(key("Walls")));
    EXPECT_EQ(drawing.skipped, Counts());
}

TEST_F(FlatteningReaderTest, GroupsOfOtherProgramsAreIgnored)
{
    const auto drawing = entities("LINE 102 {APP 10 9 60 1 102 } 10 1 20 2 11 3 21 4 "
                                  "1001 APP 1010 9 60 1\n"
                                  "LINE 10 1 20 2 11 3 21 4 101 Embedded_Object 10 7 60 1");

    EXPECT_EQ(drawing.chains(), Chains({{{1, 2}, {3, 4}}, {{1, 2}, {3, 4}}}));
}

TEST_F(FlatteningReaderTest, NumbersMayHaveBlanksAndSigns)
{
    const auto drawing =
        flattened(QByteArray("0\nLINE\n10\n  +1.5\n20\n\t-2.5e1 \n 11\n3.\n21\n.5\r\n0\nEOF\n"));

    EXPECT_EQ(drawing.chains(), Chains({{{1.5, -25}, {3, 0.5}}}));
}

TEST_F(FlatteningReaderTest, EntitiesThatAreNotFiniteAreLeftOutAndCounted)
{
    for (const char* number : {"nan", "inf", "-inf", "1e400", "-1e400"}) {
        const std::string line = std::string("LINE 10 ") + number + " 11 1\nLINE 11 1";
        const auto drawing = entities(line.c_str());
        EXPECT_EQ(drawing.count(), 1) << number;
        EXPECT_EQ(drawing.skipped, Counts({{key("LINE"), 1}})) << number;
    }
    // A number that small is zero.
    EXPECT_EQ(entities("LINE 10 1e-400 11 1").chains(), Chains({{{0, 0}, {1, 0}}}));
}

TEST_F(FlatteningReaderTest, FileGivesTheSameAsItsBytes)
{
    Parts parts;
    parts.entities = "CIRCLE 10 5 20 6 40 2\nLINE 10 1 11 2\nHATCH";
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write(drawingOf(parts));
    file.close();
    DXFDocument document;
    FlatteningReader reader(document);

    ASSERT_TRUE(reader.load(file.fileName()));

    EXPECT_EQ(document.entities().size(), 2);
    EXPECT_EQ(reader.shown(), flattened(parts).shown);
    EXPECT_EQ(reader.skipped(), flattened(parts).skipped);
}

TEST_F(FlatteningReaderTest, MissingFileIsAFailure)
{
    DXFDocument document;
    FlatteningReader reader(document);

    EXPECT_FALSE(reader.load(key("/no/such/drawing.dxf")));
    EXPECT_EQ(takeDebugMessages().size(), 1);
}

/// Counts the groups, and stops at one of them.
class CountingReader : public FlatteningReader
{
public:
    using FlatteningReader::FlatteningReader;

    void processCodeValuePair(unsigned int, const std::string&) override
    {
        if (++count == last)
            throw count;
    }

    int count = 0;
    int last = -1;
};

TEST_F(FlatteningReaderTest, HostFollowsTheReadGroupByGroup)
{
    DXFDocument document;
    CountingReader reader(document);

    EXPECT_TRUE(reader.load(records("SECTION 2 ENTITIES\nLINE 10 0 11 1\nENDSEC\nEOF")));

    EXPECT_EQ(reader.count, 7);
    EXPECT_EQ(document.entities().size(), 1);
}

TEST_F(FlatteningReaderTest, HostStopsTheReadByAnException)
{
    DXFDocument document;
    CountingReader reader(document);
    reader.last = 5;

    EXPECT_FALSE(reader.load(records("SECTION 2 ENTITIES\nLINE 10 0 11 1\nENDSEC\nEOF")));

    EXPECT_EQ(document.entities().size(), 0);
    EXPECT_EQ(takeDebugMessages().size(), 1);
}

TEST_F(FlatteningReaderTest, SavedDrawingIsFlattenedAlike)
{
    Parts parts;
    parts.tables = "TABLE 2 LAYER\nLAYER 2 Walls 70 0 62 5\nENDTAB";
    parts.blocks = "BLOCK 2 B 10 1 20 1\nCIRCLE 8 0 62 0 40 2\nENDBLK";
    parts.entities = "LWPOLYLINE 8 Walls 62 1 70 1 10 0 20 0 42 0.3 10 4 20 0 10 4 20 3\n"
                     "INSERT 8 Walls 2 B 10 3 20 4 41 2 50 30\nPOINT 10 3 20 1";
    const auto first = flattened(parts);

    const auto second = flattened(DXFWriter(*first.document).save());
    const auto third = flattened(DXFWriter(*second.document).save());

    ASSERT_EQ(first.count(), 3);
    EXPECT_TRUE(areNear(second.chains(), first.chains(), 1e-13));
    EXPECT_EQ(third.chains(), second.chains());
    for (int i = 0; i < first.count(); ++i) {
        EXPECT_EQ(second.attributes(i)->layerName(), first.attributes(i)->layerName());
        EXPECT_EQ(second.attributes(i)->color(), first.attributes(i)->color());
    }
}

} // namespace
