// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/DeleteItems.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFPolyline.h"

#include "tests/edit/DeleteItemsFixture.h"
#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"

#include <gmock/gmock.h>

using namespace dxftest;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

namespace
{

// The splitting rule

TEST_F(DeleteItemsTest, MiddleSegmentCutsThePolylineInTwo)
{
    const Entity polyline = document->entities().first();

    push({ids[2]});

    ASSERT_EQ(entityCount(), 2);
    EXPECT_EQ(document->entities().first(), polyline);
    EXPECT_EQ(segmentIdsOf(*at(0)), ids.mid(0, 2));
    EXPECT_THAT(linesOf(*at(0)), ElementsAre(QLineF(0, 0, 1, 0), QLineF(1, 0, 2, 0)));
    EXPECT_THAT(linesOf(*at(1)), ElementsAre(QLineF(3, 0, 4, 0), QLineF(4, 0, 5, 0)));
}

TEST_F(DeleteItemsTest, CutPolylineKeepsItsIdAndPlace)
{
    use({makeLine(5, 0), makeLine(3, 1)});
    const QVector<int> before = entityIdsOf(document);

    push({ids[2]});

    EXPECT_EQ(entityIdsOf(document).mid(0, 2), before);
}

TEST_F(DeleteItemsTest, CutOffPieceHasNewIdsAndIsListedLast)
{
    use({makeLine(5, 0), makeLine(3, 1)});
    const int highest = freshId();

    push({ids[2]});

    ASSERT_EQ(entityCount(), 3);
    EXPECT_GT(at(2)->id(), highest);
    EXPECT_THAT(segmentIdsOf(*at(2)), Each(::testing::Gt(highest)));
}

TEST_F(DeleteItemsTest, EachRunOfRemainingSegmentsBecomesAPolyline)
{
    push({ids[1], ids[3]});

    ASSERT_EQ(entityCount(), 3);
    EXPECT_THAT(linesOf(*at(0)), ElementsAre(QLineF(0, 0, 1, 0)));
    EXPECT_THAT(linesOf(*at(1)), ElementsAre(QLineF(2, 0, 3, 0)));
    EXPECT_THAT(linesOf(*at(2)), ElementsAre(QLineF(4, 0, 5, 0)));
    EXPECT_EQ(segmentIdsOf(*at(0)), ids.mid(0, 1));
}

TEST_F(DeleteItemsTest, ConsecutiveDeletedSegmentsLeaveNoEmptyPiece)
{
    push({ids[1], ids[2], ids[3]});

    ASSERT_EQ(entityCount(), 2);
    EXPECT_THAT(linesOf(*at(0)), ElementsAre(QLineF(0, 0, 1, 0)));
    EXPECT_THAT(linesOf(*at(1)), ElementsAre(QLineF(4, 0, 5, 0)));
}

TEST_F(DeleteItemsTest, FirstSegmentShortensInPlace)
{
    const Entity polyline = document->entities().first();

    push({ids[0]});

    EXPECT_THAT(document->entities(), ElementsAre(polyline));
    EXPECT_EQ(segmentIdsOf(*at(0)), ids.mid(1));
    EXPECT_THAT(pointsOf(*at(0)), ElementsAre(QPointF(1, 0), QPointF(2, 0), QPointF(3, 0),
                                              QPointF(4, 0), QPointF(5, 0)));
}

TEST_F(DeleteItemsTest, LastSegmentShortensInPlace)
{
    const Entity polyline = document->entities().first();

    push({ids[4]});

    EXPECT_THAT(document->entities(), ElementsAre(polyline));
    EXPECT_EQ(segmentIdsOf(*at(0)), ids.mid(0, 4));
}

TEST_F(DeleteItemsTest, BothEndsShortenInPlace)
{
    push({ids[0], ids[1], ids[4]});

    ASSERT_EQ(entityCount(), 1);
    EXPECT_EQ(segmentIdsOf(*at(0)), ids.mid(2, 2));
}

TEST_F(DeleteItemsTest, PolylineWithoutRemainingSegmentsIsRemoved)
{
    push(ids);

    EXPECT_THAT(document->entities(), IsEmpty());
}

TEST_F(DeleteItemsTest, RemovedPolylineItselfIsUnchanged)
{
    const Polyline polyline = at(0);
    const PolylineState before = stateOf(*polyline);

    push(ids);

    EXPECT_EQ(stateOf(*polyline), before);
}

TEST_F(DeleteItemsTest, KeptSegmentsKeepTheirFlagsAndCutOffOnesLoseThem)
{
    document->setSelected({ids[0], ids[4]});
    document->setHovered({ids[1], ids[3]});

    push({ids[2]});

    const auto kept = at(0)->segments();
    EXPECT_TRUE(kept[0].isSelected());
    EXPECT_FALSE(kept[0].isHovered());
    EXPECT_TRUE(kept[1].isHovered());
    const auto cutOff = at(1)->segments();
    for (const Segment& segment : cutOff) {
        EXPECT_FALSE(segment.isSelected());
        EXPECT_FALSE(segment.isHovered());
    }
}

TEST_F(DeleteItemsTest, CutOffPieceLooksAsItsPolylineDid)
{
    const auto attributes = makeAttributes(QStringLiteral("walls"), 5);
    at(0)->setAttributes(attributes);
    at(0)->setColor(Qt::darkCyan);
    at(0)->setLineWidth(1);

    push({ids[2]});

    EXPECT_EQ(at(1)->attributes(), attributes);
    EXPECT_EQ(at(1)->color(), QColor(Qt::darkCyan));
    EXPECT_EQ(at(1)->lineWidth(), 1);
}

TEST_F(DeleteItemsTest, CutOffPieceIsSelectedAndHoveredLikeItsPolyline)
{
    use({makeLine(3, 0), makeLine(3, 1), makeLine(3, 2)});
    document->setSelected({at(0)->id(), ids[5]});
    document->setHovered({at(1)->id(), ids[8]});

    push({ids[1], ids[4], ids[7]});

    ASSERT_EQ(entityCount(), 6);
    for (int i : {0, 3}) {
        EXPECT_TRUE(at(i)->isSelected());
        EXPECT_FALSE(at(i)->isHovered());
    }
    for (int i : {1, 4}) {
        EXPECT_FALSE(at(i)->isSelected());
        EXPECT_TRUE(at(i)->isHovered());
    }
    for (int i : {2, 5}) {
        EXPECT_FALSE(at(i)->isSelected());
        EXPECT_FALSE(at(i)->isHovered());
    }
    EXPECT_THAT(document->selectedIDs(), ElementsAre(at(0)->id(), at(3)->id()))
        << "the entity's flags are not those of its segments";
}

TEST_F(DeleteItemsTest, PiecesKeepTheFlagsExceptTheClosedBit)
{
    auto polyline = Polyline::create(3U, 4U, 0x81U);
    for (int x = 0; x < 6; ++x)
        polyline->appendPoint(DXFVertex(x, x * x, 0, true, 0));
    use({polyline});

    push({ids[2]});

    EXPECT_EQ(at(0)->flags(), 0x80U);
    EXPECT_EQ(at(1)->flags(), 0x80U);
    for (int i : {0, 1}) {
        EXPECT_EQ(at(i)->mVertices(), 0U);
        EXPECT_EQ(at(i)->nVertices(), 0U);
    }
}

TEST_F(DeleteItemsTest, KeptPieceNeedsAnotherSetup)
{
    push({ids[2]});

    at(0)->setup();

    EXPECT_THAT(linesOf(*at(0)), SizeIs(2));
    EXPECT_THAT(segmentIdsOf(*at(0)), Not(Contains(ids[0])));
}

TEST_F(DeleteItemsTest, CutOffPieceIsSetUp)
{
    push({ids[2]});
    const QVector<int> before = segmentIdsOf(*at(1));

    at(1)->setup();

    EXPECT_EQ(segmentIdsOf(*at(1)), before);
}

TEST_F(DeleteItemsTest, DeletesFromSeveralPolylines)
{
    use({makeLine(3, 0), makeLine(3, 1), makeLine(3, 2)});

    push({ids[7], ids[1]});

    ASSERT_EQ(entityCount(), 5);
    EXPECT_THAT(linesOf(*at(0)), ElementsAre(QLineF(0, 0, 1, 0)));
    EXPECT_THAT(linesOf(*at(1)), SizeIs(3));
    EXPECT_THAT(linesOf(*at(2)), ElementsAre(QLineF(0, 2, 1, 2)));
    EXPECT_THAT(linesOf(*at(3)), ElementsAre(QLineF(2, 0, 3, 0)));
    EXPECT_THAT(linesOf(*at(4)), ElementsAre(QLineF(2, 2, 3, 2)));
}

TEST_F(DeleteItemsTest, GapInTheChainIsBridgedInTheCutOffPiece)
{
    at(0)->setSegments({Segment(QLineF(0, 0, 1, 0)), Segment(QLineF(1, 0, 2, 0)),
                        Segment(QLineF(5, 5, 6, 5)), Segment(QLineF(8, 8, 9, 8))});
    ids = segmentIdsOf(document);

    push({ids[1]});

    EXPECT_THAT(linesOf(*at(1)), ElementsAre(QLineF(5, 5, 6, 5), QLineF(6, 5, 9, 8)));
}

// Closed polylines and bulges

class DeleteFromClosedTest : public DeleteItemsTest
{
protected:
    DeleteFromClosedTest()
    {
        use({makePolyline({{0, 0}, {10, 0}, {10, 10}, {0, 10}}, true), makeLine(2, 50)});
        other = segmentIdsOf(*at(1));
    }

    QVector<int> other;
};

TEST_F(DeleteFromClosedTest, PiecesAreNotJoinedAtTheFirstVertex)
{
    push({ids[1]});

    ASSERT_EQ(entityCount(), 3);
    EXPECT_THAT(linesOf(*at(0)), ElementsAre(QLineF(0, 0, 10, 0)));
    EXPECT_FALSE(at(0)->isClosed());
    // The closing segment is last in the chain and runs backwards. Only its end is read.
    EXPECT_THAT(linesOf(*at(2)), ElementsAre(QLineF(10, 10, 0, 10), QLineF(0, 10, 0, 10)));
    EXPECT_FALSE(at(2)->isClosed());
}

TEST_F(DeleteFromClosedTest, FirstSegmentLeavesOnePiece)
{
    push({ids[0]});

    ASSERT_EQ(entityCount(), 2);
    EXPECT_EQ(segmentIdsOf(*at(0)), ids.mid(1, 3));
    EXPECT_FALSE(at(0)->isClosed());
}

TEST_F(DeleteFromClosedTest, ClosingSegmentIsTheLast)
{
    push({ids[3]});

    ASSERT_EQ(entityCount(), 2);
    EXPECT_THAT(pointsOf(*at(0)),
                ElementsAre(QPointF(0, 0), QPointF(10, 0), QPointF(10, 10), QPointF(0, 10)));
    EXPECT_FALSE(at(0)->isClosed());
}

TEST_F(DeleteFromClosedTest, DeletingAnySegmentOpensIt)
{
    const QVector<QLineF> before = linesOf(*at(0));

    push({other[0]});

    EXPECT_FALSE(at(0)->isClosed());
    EXPECT_EQ(linesOf(*at(0)), before);
    EXPECT_EQ(segmentIdsOf(*at(0)), ids.mid(0, 4));
    EXPECT_THAT(pointsOf(*at(0)), ElementsAre(QPointF(0, 0), QPointF(10, 0), QPointF(10, 10),
                                              QPointF(0, 10), QPointF(0, 10)));
}

TEST_F(DeleteFromClosedTest, UndoClosesItAgain)
{
    push({other[0]});

    stack.undo();

    EXPECT_TRUE(at(0)->isClosed());
    EXPECT_THAT(pointsOf(*at(0)), SizeIs(4));
    EXPECT_EQ(segmentIdsOf(*at(0)), ids.mid(0, 4));
}

TEST_F(DeleteFromClosedTest, PieceThatEndsWhereItStartsIsClosed)
{
    use({makePolyline({{-5, 0}, {0, 0}, {10, 0}, {10, 10}, {0, 0}})});

    push({ids[0]});

    ASSERT_EQ(entityCount(), 1);
    EXPECT_TRUE(at(0)->isClosed());
    EXPECT_THAT(linesOf(*at(0)), SizeIs(3));
}

TEST_F(DeleteFromClosedTest, CutOffPieceThatEndsWhereItStartsGetsAClosingSegmentWithoutLength)
{
    use({makePolyline({{-6, 0}, {-5, 0}, {0, 0}, {10, 0}, {10, 10}, {0, 0}})});

    push({ids[1]});

    ASSERT_EQ(entityCount(), 2);
    EXPECT_TRUE(at(1)->isClosed());
    EXPECT_THAT(linesOf(*at(1)), ElementsAre(QLineF(0, 0, 10, 0), QLineF(10, 0, 10, 10),
                                             QLineF(10, 10, 0, 0), QLineF(0, 0, 0, 0)));
}

TEST_F(DeleteItemsTest, BulgesAndHeightsAreLostEverywhere)
{
    auto untouched = Polyline::create(7U, 8U, 0U);
    untouched->appendPoint(DXFVertex(0, 50, 3, true, 0.5));
    untouched->appendPoint(DXFVertex(1, 50, 4, true, -1));
    use({makeLine(2), untouched});

    push({ids[0]});

    EXPECT_EQ(at(1), untouched);
    EXPECT_EQ(untouched->mVertices(), 0U);
    EXPECT_EQ(untouched->nVertices(), 0U);
    for (const DXFVertex& vertex : untouched->vertices()) {
        EXPECT_EQ(vertex.bulge(), 0.0);
        EXPECT_EQ(vertex.z(), 0.0);
    }
}

TEST_F(DeleteItemsTest, UndoBringsBulgesAndHeightsBack)
{
    auto bent = Polyline::create(7U, 8U, 0U);
    bent->appendPoint(DXFVertex(0, 50, 3, true, 0.5));
    bent->appendPoint(DXFVertex(1, 50, 4, true, -1));
    use({makeLine(2), bent});
    push({ids[0]});

    stack.undo();

    EXPECT_EQ(at(1)->mVertices(), 7U);
    EXPECT_EQ(at(1)->nVertices(), 8U);
    EXPECT_EQ(at(1)->vertices()[0].bulge(), 0.5);
    EXPECT_EQ(at(1)->vertices()[0].z(), 3.0);
    EXPECT_EQ(at(1)->vertices()[1].bulge(), -1.0);
}

} // namespace
