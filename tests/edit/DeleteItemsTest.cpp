// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/DeleteItems.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFLineType.h"
#include "dxfviewer/model/DXFPolyline.h"

#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/OtherEntity.h"

#include <gmock/gmock.h>

#include <QSet>
#include <QUndoStack>

#include <algorithm>
#include <random>

using namespace dxftest;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

namespace
{

using Entity = QSharedPointer<DXFEntity>;
using Polyline = QSharedPointer<DXFPolyline>;
using Document = QSharedPointer<DXFDocument>;

/// An id that was handed out just now and belongs to nothing.
int freshId()
{
    return Segment().id();
}

/// A polyline with as many segments as wanted, one drawing unit each, at a height of its own.
Polyline makeLine(int segments, double y = 0.0)
{
    QVector<QPointF> points;
    for (int x = 0; x <= segments; ++x)
        points.append(QPointF(x, y));
    return makePolyline(points);
}

/// What can be seen of a polyline, its own id apart.
struct PolylineState {
    QVector<QLineF> lines;
    QVector<int> segmentIds;
    QVector<QPointF> points;
    bool isClosed = false;

    bool operator==(const PolylineState& other) const
    {
        return lines == other.lines && segmentIds == other.segmentIds && points == other.points
               && isClosed == other.isClosed;
    }
};

void PrintTo(const PolylineState& state, std::ostream* out)
{
    *out << (state.isClosed ? "closed " : "open ") << ::testing::PrintToString(state.points)
         << " ids " << ::testing::PrintToString(state.segmentIds);
}

using State = std::vector<PolylineState>;

PolylineState stateOf(const DXFPolyline& polyline)
{
    return {linesOf(polyline), segmentIdsOf(polyline), pointsOf(polyline), polyline.isClosed()};
}

State stateOf(const Document& document)
{
    State state;
    for (int i = 0; i < document->entities().size(); ++i)
        state.push_back(stateOf(*polylineAt(document, i)));
    return state;
}

QVector<int> entityIdsOf(const Document& document)
{
    QVector<int> ids;
    const auto entities = document->entities();
    for (const Entity& entity : entities)
        ids.append(entity ? entity->id() : 0);
    return ids;
}

/// A document with one polyline of five segments, and the means to delete from it.
class DeleteItemsTest : public LoggedTest
{
protected:
    DeleteItemsTest() { use({makeLine(5)}); }

    void use(const QList<Entity>& entities)
    {
        document = makeDocument(entities);
        document->setup();
        entityIdsOf(document);
        ids = segmentIdsOf(document);
    }

    void push(const QVector<int>& deleted) { stack.push(new DeleteItems(document, deleted)); }

    Polyline at(int index) const { return polylineAt(document, index); }
    qsizetype entityCount() const { return document->entities().size(); }

    Document document;
    // The segments' ids before anything is deleted.
    QVector<int> ids;
    QUndoStack stack;
};

// The command by itself

TEST_F(DeleteItemsTest, ConstructionTouchesNothing)
{
    const State before = stateOf(document);
    const auto entities = document->entities();
    const int next = freshId() + 1;

    const DeleteItems command(document, {ids[2]});

    EXPECT_EQ(freshId(), next);
    EXPECT_EQ(document->entities(), entities);
    EXPECT_EQ(stateOf(document), before);
}

TEST_F(DeleteItemsTest, HasNoTextNoParentAndNeverMerges)
{
    DeleteItems command(document, {ids[2]});
    const DeleteItems other(document, {ids[3]});

    EXPECT_EQ(command.text(), QString());
    EXPECT_EQ(command.childCount(), 0);
    EXPECT_EQ(command.id(), -1);
    EXPECT_FALSE(command.mergeWith(&other));
}

TEST_F(DeleteItemsTest, EveryBatchIsAStepOfItsOwn)
{
    push({ids[0]});
    push({ids[1]});

    EXPECT_EQ(stack.count(), 2);
    EXPECT_EQ(stack.text(0), QString());
    EXPECT_EQ(stack.undoText(), QString());
}

TEST_F(DeleteItemsTest, KeepsTheIdsAsTheyWere)
{
    QVector<int> deleted{ids[4]};
    auto* command = new DeleteItems(document, deleted);
    deleted[0] = ids[0];

    stack.push(command);

    EXPECT_EQ(segmentIdsOf(*at(0)), ids.mid(0, 4));
}

TEST_F(DeleteItemsTest, SharesTheDocument)
{
    const QWeakPointer<DXFDocument> weak = document;
    push({ids[2]});
    document.reset();
    EXPECT_FALSE(weak.isNull());

    stack.clear();

    EXPECT_TRUE(weak.isNull());
}

TEST_F(DeleteItemsTest, WithoutADocumentNothingHappens)
{
    DeleteItems command(nullptr, {1});
    const Polyline polyline = makeLine(2);
    polyline->setup();

    command.redo();
    command.splitPoly(polyline);
    command.undo();

    EXPECT_THAT(linesOf(*polyline), SizeIs(2));
}

TEST_F(DeleteItemsTest, LogsNothing)
{
    push({ids[2]});
    stack.undo();
    stack.redo();

    EXPECT_THAT(takeDebugMessages(), IsEmpty());
}

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

TEST_F(DeleteItemsTest, CutPolylineKeepsItsIdAndItsPlace)
{
    use({makeLine(5, 0), makeLine(3, 1)});
    const QVector<int> before = entityIdsOf(document);

    push({ids[2]});

    EXPECT_EQ(entityIdsOf(document).mid(0, 2), before);
}

TEST_F(DeleteItemsTest, CutOffPieceHasNewIdsAndStandsLast)
{
    use({makeLine(5, 0), makeLine(3, 1)});
    const int highest = freshId();

    push({ids[2]});

    ASSERT_EQ(entityCount(), 3);
    EXPECT_GT(at(2)->id(), highest);
    EXPECT_THAT(segmentIdsOf(*at(2)), Each(::testing::Gt(highest)));
}

TEST_F(DeleteItemsTest, EachRunOfSurvivorsBecomesAPolyline)
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

TEST_F(DeleteItemsTest, PolylineWithoutSurvivorsIsRemoved)
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

TEST_F(DeleteItemsTest, SurvivorsKeepTheirFlagsAndCutOffOnesLoseThem)
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

TEST_F(DeleteItemsTest, CutOffPieceIsSelectedAndHoveredAsItsPolylineIs)
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

TEST_F(DeleteItemsTest, PiecesKeepTheFlagsButTheClosedBit)
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

TEST_F(DeleteItemsTest, KeptPieceIsNotSetUpUntilItIsAsked)
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
    // The closing segment is last in the chain and runs backwards; only its end is read.
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

TEST_F(DeleteFromClosedTest, ErasingElsewhereOpensIt)
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

TEST_F(DeleteFromClosedTest, CutOffPieceThatEndsWhereItStartsGetsAClosingSegmentOfNoLength)
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

// Ids that name no segment

TEST_F(DeleteItemsTest, IdsOfEntitiesDeleteNothing)
{
    const State before = stateOf(document);

    push({at(0)->id()});

    EXPECT_EQ(stateOf(document), before);
}

TEST_F(DeleteItemsTest, StaleAndImpossibleIdsDeleteNothing)
{
    const State before = stateOf(document);

    push({freshId(), -1, 0, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()});

    EXPECT_EQ(stateOf(document), before);
}

TEST_F(DeleteItemsTest, NoIdsDeleteNothing)
{
    const State before = stateOf(document);

    push({});

    EXPECT_EQ(stateOf(document), before);
}

TEST_F(DeleteItemsTest, RepeatedAndUnsortedIdsCountOnce)
{
    push({ids[3], ids[1], ids[3], ids[1]});

    ASSERT_EQ(entityCount(), 3);
    EXPECT_THAT(linesOf(*at(1)), ElementsAre(QLineF(2, 0, 3, 0)));
}

TEST_F(DeleteItemsTest, UnmatchedIdsStillGiveEveryPolylineItsSegmentsAnew)
{
    use({makePolyline({{0, 0}, {1, 0}, {1, 1}}, true)});

    push({freshId()});
    at(0)->setup();

    EXPECT_FALSE(at(0)->isClosed());
    EXPECT_THAT(segmentIdsOf(*at(0)), Not(Contains(ids[0])));
}

// Polylines without segments, and what is no polyline

TEST_F(DeleteItemsTest, PolylinesWithoutSegmentsAreRemoved)
{
    use({makePolyline({}), makeLine(2), makePolyline({{3, 3}}, true), makeLine(1)});

    push({freshId()});

    ASSERT_EQ(entityCount(), 2);
    EXPECT_THAT(linesOf(*at(0)), SizeIs(2));
    EXPECT_THAT(linesOf(*at(1)), SizeIs(1));
}

TEST_F(DeleteItemsTest, UndoBringsPolylinesWithoutSegmentsBack)
{
    use({makePolyline({}), makeLine(2), makePolyline({{3, 3}}, true)});
    push({ids[0]});

    stack.undo();

    ASSERT_EQ(entityCount(), 3);
    EXPECT_THAT(pointsOf(*at(0)), IsEmpty());
    EXPECT_THAT(linesOf(*at(1)), SizeIs(2));
    EXPECT_THAT(pointsOf(*at(2)), ElementsAre(QPointF(3, 3)));
}

TEST_F(DeleteItemsTest, ForeignEntitiesStayInTheirPlace)
{
    const Entity unknown = QSharedPointer<OtherEntity>::create(-1);
    const Entity foreign = QSharedPointer<OtherEntity>::create(4);
    use({unknown, makeLine(3), foreign});

    push({ids[1]});

    ASSERT_EQ(entityCount(), 4);
    EXPECT_EQ(document->entities()[0], unknown);
    EXPECT_EQ(document->entities()[2], foreign);
}

TEST_F(DeleteItemsTest, UndoPutsClonesOfForeignEntitiesBack)
{
    const Entity foreign = QSharedPointer<OtherEntity>::create(4);
    use({makeLine(3), foreign});
    const int id = foreign->id();
    push({ids[1]});

    stack.undo();

    ASSERT_EQ(entityCount(), 2);
    const Entity restored = document->entities()[1];
    EXPECT_NE(restored, foreign);
    EXPECT_EQ(restored->type(), 4);
    EXPECT_NE(restored->id(), id);
}

TEST_F(DeleteItemsTest, NullEntriesSurviveDeleteUndoAndRedo)
{
    use({nullptr, makeLine(3), nullptr});
    const auto nulls = [this] {
        return document->entities().count(Entity());
    };

    push({ids[1]});
    EXPECT_EQ(nulls(), 2);
    EXPECT_EQ(entityCount(), 4);

    stack.undo();
    EXPECT_EQ(nulls(), 2);
    EXPECT_EQ(entityCount(), 3);

    stack.redo();
    EXPECT_EQ(nulls(), 2);
    EXPECT_EQ(entityCount(), 4);
}

/// An entity that cannot be cloned.
class Unclonable : public OtherEntity
{
public:
    OtherEntity* clone() override { return nullptr; }
};

TEST_F(DeleteItemsTest, NullCloneIsRestoredAsANullEntry)
{
    use({makeLine(3), QSharedPointer<Unclonable>::create(), makeLine(1)});
    push({ids[1]});
    EXPECT_FALSE(document->entities()[1].isNull());

    stack.undo();

    ASSERT_EQ(entityCount(), 3);
    EXPECT_TRUE(document->entities()[1].isNull());
    EXPECT_THAT(linesOf(*at(0)), SizeIs(3));
    EXPECT_THAT(linesOf(*at(2)), SizeIs(1));
}

TEST_F(DeleteItemsTest, PolylineListedTwiceIsCutOnce)
{
    const Polyline polyline = makeLine(3);
    use({polyline, polyline});

    push({ids[1]});

    ASSERT_EQ(entityCount(), 3);
    EXPECT_EQ(at(0), polyline);
    EXPECT_EQ(at(1), polyline);
    EXPECT_THAT(linesOf(*polyline), ElementsAre(QLineF(0, 0, 1, 0)));
    EXPECT_THAT(linesOf(*at(2)), ElementsAre(QLineF(2, 0, 3, 0)));
}

TEST_F(DeleteItemsTest, PolylineListedTwiceIsRestoredOnce)
{
    const Polyline polyline = makeLine(3);
    use({polyline, polyline});
    push({ids[1]});

    stack.undo();

    ASSERT_EQ(entityCount(), 1);
    EXPECT_THAT(linesOf(*at(0)), SizeIs(3));
}

TEST_F(DeleteItemsTest, PolylineListedTwiceIsRestoredFromItsSecondClone)
{
    const Polyline polyline = makeLine(3);
    use({polyline, polyline});
    const int highest = freshId();
    push({ids[1]});

    stack.undo();

    EXPECT_EQ(at(0)->id(), highest + 2);
}

TEST_F(DeleteItemsTest, PolylineListedTwiceIsRemovedWithBothEntries)
{
    const Polyline polyline = makeLine(3);
    use({polyline, makeLine(1, 5), polyline});

    push(segmentIdsOf(*polyline));

    ASSERT_EQ(entityCount(), 1);
    EXPECT_THAT(linesOf(*at(0)), ElementsAre(QLineF(0, 5, 1, 5)));
}

TEST_F(DeleteItemsTest, LayersAndLineTypesAreNeverTouched)
{
    const auto layer = makeLayer(QStringLiteral("walls"), 3);
    const auto lineType = QSharedPointer<DXFLineType>::create(QStringLiteral("DASHED"), QString(),
                                                              0, 0, 0.0, nullptr);
    document->addLayer(layer);
    document->addLineType(lineType);

    push({ids[2]});
    stack.undo();
    stack.redo();

    EXPECT_THAT(document->layers(), ElementsAre(layer));
    EXPECT_THAT(document->lineTypes(), ElementsAre(lineType));
}

// Undo

TEST_F(DeleteItemsTest, UndoRestoresClonesWithNewIdsAndOldSegmentIds)
{
    use({makeLine(5, 0), makeLine(2, 1)});
    const State before = stateOf(document);
    const QVector<int> entityIds = entityIdsOf(document);
    const auto entities = document->entities();
    push({ids[2], ids[5], ids[6]});

    stack.undo();

    EXPECT_EQ(stateOf(document), before);
    EXPECT_THAT(entityIds, Not(Contains(at(0)->id())));
    EXPECT_THAT(entityIds, Not(Contains(at(1)->id())));
    EXPECT_THAT(document->entities(), Not(Contains(entities[0])));
    EXPECT_THAT(document->entities(), Not(Contains(entities[1])));
}

TEST_F(DeleteItemsTest, UndoListsEntitiesInTheOrderOfTheirOldIds)
{
    const Polyline first = makeLine(1, 1);
    const Polyline second = makeLine(1, 2);
    const Polyline third = makeLine(1, 3);
    second->id();
    third->id();
    first->id();
    use({first, second, third});
    push({freshId()});

    stack.undo();

    EXPECT_THAT(linesOf(document),
                ElementsAre(QLineF(0, 2, 1, 2), QLineF(0, 3, 1, 3), QLineF(0, 1, 1, 1)));
}

TEST_F(DeleteItemsTest, UndoneClonesAreThoseOfTheSnapshot)
{
    const int highest = freshId();
    push({ids[2]});

    stack.undo();

    EXPECT_EQ(at(0)->id(), highest + 1) << "the snapshot is taken before anything is cut";
}

TEST_F(DeleteItemsTest, UndoHandsOutNoIds)
{
    push({ids[2]});
    const int highest = freshId();

    stack.undo();

    EXPECT_EQ(freshId(), highest + 1);
}

TEST_F(DeleteItemsTest, UndoRestoresTheFlagsOfTheSnapshot)
{
    document->setSelected({at(0)->id(), ids[0], ids[4]});
    push({ids[2]});
    document->setSelected({});

    stack.undo();

    EXPECT_THAT(document->selectedIDs(), ElementsAre(at(0)->id(), ids[0], ids[4]));
}

/// What undo puts back besides the geometry.
void expectLook(const DXFPolyline& polyline, const DXFPolyline& expected)
{
    EXPECT_EQ(polyline.attributes(), expected.attributes());
    EXPECT_EQ(polyline.color(), expected.color());
    EXPECT_EQ(polyline.lineWidth(), expected.lineWidth());
    EXPECT_EQ(polyline.flags(), expected.flags());
    EXPECT_EQ(polyline.mVertices(), expected.mVertices());
    EXPECT_EQ(polyline.nVertices(), expected.nVertices());
    EXPECT_EQ(polyline.isSelected(), expected.isSelected());
    EXPECT_EQ(polyline.isHovered(), expected.isHovered());
    const auto segments = polyline.segments();
    const auto expectedSegments = expected.segments();
    ASSERT_EQ(segments.size(), expectedSegments.size());
    for (int i = 0; i < segments.size(); ++i) {
        EXPECT_EQ(segments[i].isSelected(), expectedSegments[i].isSelected()) << "segment " << i;
        EXPECT_EQ(segments[i].isHovered(), expectedSegments[i].isHovered()) << "segment " << i;
    }
}

TEST_F(DeleteItemsTest, UndoRestoresTheLookOfCutUntouchedAndRemovedPolylines)
{
    QList<Entity> entities;
    for (int i = 0; i < 3; ++i) {
        auto polyline = Polyline::create(3U, 4U, 0x81U);
        for (int x = 0; x < 5; ++x)
            polyline->appendPoint(DXFVertex(x, x * x + 50 * i, 0, true, 0));
        polyline->setAttributes(makeAttributes(QStringLiteral("walls"), 5, -1, 25));
        entities.append(polyline);
    }
    use(entities);
    for (int i = 0; i < 3; ++i)
        at(i)->setColor(QColor(10 * i, 2, 3, 4));
    at(1)->setLineWidth(7);
    document->setSelected({at(0)->id(), at(1)->id(), ids[0], ids[1], ids[5], ids[6], ids[10]});
    document->setHovered({at(1)->id(), at(2)->id(), ids[0], ids[3], ids[6], ids[7], ids[11]});
    const std::vector<DXFPolyline> before{*at(0), *at(1), *at(2)};
    push({ids[2], ids[10], ids[11], ids[12], ids[13], ids[14]});
    ASSERT_EQ(entityCount(), 3);
    // What becomes of the former objects is of no matter.
    for (const Entity& entity : qAsConst(entities)) {
        entity->setAttributes(nullptr);
        entity->setColor(Qt::red);
        entity->setLineWidth(0);
    }
    document->setSelected({});
    document->setHovered({});

    stack.undo();

    ASSERT_EQ(entityCount(), 3);
    for (int i = 0; i < 3; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(at(i)->flags(), 0x81U);
        expectLook(*at(i), before[std::size_t(i)]);
    }
}

TEST_F(DeleteItemsTest, UndoWithoutRedoEmptiesTheDocument)
{
    DeleteItems command(document, {ids[2]});

    command.undo();

    EXPECT_THAT(document->entities(), IsEmpty());
}

TEST_F(DeleteItemsTest, SecondUndoHasNothingToRestore)
{
    DeleteItems command(document, {ids[2]});
    command.redo();
    command.undo();

    command.undo();

    EXPECT_THAT(document->entities(), IsEmpty());
}

TEST_F(DeleteItemsTest, UndoDropsWhatWasAddedSince)
{
    push({ids[2]});
    document->addEntity(makeLine(1, 77));

    stack.undo();

    EXPECT_EQ(entityCount(), 1);
}

// Redo

TEST_F(DeleteItemsTest, RedoDeletesTheSameSegments)
{
    push({ids[2]});
    const State done = stateOf(document);
    stack.undo();

    stack.redo();

    EXPECT_EQ(stateOf(document), done);
}

TEST_F(DeleteItemsTest, RedoTwiceWithoutUndoTakesASecondSnapshot)
{
    DeleteItems command(document, {ids[2]});
    command.redo();
    const State afterFirst = stateOf(document);
    command.redo();

    command.undo();

    EXPECT_EQ(stateOf(document), afterFirst);
}

TEST_F(DeleteItemsTest, UndoOfASecondRedoDoesNotBringBackWhatTheFirstErased)
{
    use({makeLine(1), makeLine(2, 1)});
    DeleteItems command(document, {ids[0]});
    command.redo();
    command.redo();

    command.undo();

    EXPECT_EQ(segmentIdsOf(document), (QVector<int>{ids[1], ids[2]}));
}

TEST_F(DeleteItemsTest, RedoAfterSeveralUndosFindsWhatWasDeletedFromAPiece)
{
    push({ids[1]});
    push({segmentIdsOf(*at(1))[1]});
    const State done = stateOf(document);
    ASSERT_EQ(entityCount(), 3);
    stack.undo();
    stack.undo();

    stack.redo();
    stack.redo();

    EXPECT_EQ(stateOf(document), done);
}

TEST_F(DeleteItemsTest, RedoFindsWhatWasDeletedFromPiecesOfPieces)
{
    use({makeLine(20)});
    State states[5];
    for (int i = 0; i < 4; ++i) {
        states[i] = stateOf(document);
        push({segmentIdsOf(*at(i))[2]});
    }
    states[4] = stateOf(document);
    ASSERT_EQ(states[4].size(), 5U);

    for (int round = 0; round < 3; ++round) {
        for (int i = 3; i >= 0; --i) {
            stack.undo();
            EXPECT_EQ(stateOf(document), states[i]) << "undo to " << i;
        }
        for (int i = 1; i <= 4; ++i) {
            stack.redo();
            EXPECT_EQ(stateOf(document), states[i]) << "redo to " << i;
        }
    }
}

TEST_F(DeleteItemsTest, RedoFindsPiecesOfPolylinesThatShareSegmentIds)
{
    const Polyline polyline = makeLine(5);
    polyline->setup();
    const Polyline twin(polyline->clone());
    document = makeDocument({polyline, twin});
    ids = segmentIdsOf(*polyline);
    push({ids[1]});
    push({segmentIdsOf(*at(2))[1]});
    const State done = stateOf(document);
    ASSERT_EQ(entityCount(), 5);

    for (int round = 0; round < 2; ++round) {
        stack.undo();
        stack.undo();
        stack.redo();
        stack.redo();

        EXPECT_EQ(stateOf(document), done);
    }
}

TEST_F(DeleteItemsTest, RedonePiecesAreNotSelected)
{
    push({ids[2]});
    document->setSelected(segmentIdsOf(document));
    document->setHovered(segmentIdsOf(document));
    stack.undo();

    stack.redo();

    const auto cutOff = at(1)->segments();
    for (const Segment& segment : cutOff) {
        EXPECT_FALSE(segment.isSelected());
        EXPECT_FALSE(segment.isHovered());
    }
}

TEST_F(DeleteItemsTest, NewPushDiscardsTheUndoneCommand)
{
    push({ids[2]});
    stack.undo();

    push({ids[0]});

    EXPECT_EQ(stack.count(), 1);
    ASSERT_EQ(entityCount(), 1);
    EXPECT_EQ(segmentIdsOf(*at(0)), ids.mid(1));
    stack.undo();
    EXPECT_EQ(segmentIdsOf(*at(0)), ids);
}

// Ids

TEST_F(DeleteItemsTest, SnapshotTakesOneIdForEachEntity)
{
    use({makeLine(1, 0), QSharedPointer<OtherEntity>::create(), makeLine(2, 1), nullptr});
    const int highest = freshId();

    push({freshId()});

    EXPECT_EQ(freshId(), highest + 1 + 3 + 1);
}

TEST_F(DeleteItemsTest, EntityWithoutIdGetsItsOwnAfterItsClone)
{
    document = makeDocument({makeLine(1)});
    document->setup();
    const int highest = freshId();

    push({});

    EXPECT_EQ(at(0)->id(), highest + 2);
    EXPECT_EQ(freshId(), highest + 3);
    stack.undo();
    EXPECT_EQ(at(0)->id(), highest + 1);
}

TEST_F(DeleteItemsTest, PiecesTakeIdsInOrderEachBeforeItsSegments)
{
    use({makeLine(6, 0), makeLine(3, 1)});
    const int highest = freshId();

    push({ids[1], ids[3], ids[7]});

    // Two clones come first.
    ASSERT_EQ(entityCount(), 5);
    EXPECT_EQ(at(2)->id(), highest + 3);
    EXPECT_THAT(segmentIdsOf(*at(2)), ElementsAre(highest + 4));
    EXPECT_EQ(at(3)->id(), highest + 5);
    EXPECT_THAT(segmentIdsOf(*at(3)), ElementsAre(highest + 6, highest + 7));
    EXPECT_EQ(at(4)->id(), highest + 8);
    EXPECT_THAT(segmentIdsOf(*at(4)), ElementsAre(highest + 9));
    EXPECT_EQ(freshId(), highest + 10);
}

TEST_F(DeleteItemsTest, ClosingSegmentOfAPieceTakesAnIdToo)
{
    use({makePolyline({{-6, 0}, {-5, 0}, {0, 0}, {10, 0}, {10, 10}, {0, 0}})});
    const int highest = freshId();

    push({ids[1]});

    EXPECT_THAT(segmentIdsOf(*at(1)),
                ElementsAre(highest + 3, highest + 4, highest + 5, highest + 6));
    EXPECT_EQ(freshId(), highest + 7);
}

TEST_F(DeleteItemsTest, PiecesGetNoIdThatWasInUse)
{
    for (int i = 0; i < 4; ++i)
        push({segmentIdsOf(document)[1]});

    QVector<int> all = segmentIdsOf(document) + entityIdsOf(document);
    std::sort(all.begin(), all.end());

    EXPECT_EQ(std::adjacent_find(all.begin(), all.end()), all.end());
}

// One polyline at a time

TEST_F(DeleteItemsTest, SplitsOnePolylineByItself)
{
    use({makeLine(5, 0), makeLine(5, 1)});
    DeleteItems command(document, {ids[2], ids[7]});

    command.splitPoly(at(1));

    ASSERT_EQ(entityCount(), 3);
    EXPECT_EQ(segmentIdsOf(*at(0)), ids.mid(0, 5));
    EXPECT_EQ(segmentIdsOf(*at(1)), ids.mid(5, 2));
    EXPECT_THAT(linesOf(*at(2)), ElementsAre(QLineF(3, 1, 4, 1), QLineF(4, 1, 5, 1)));
}

TEST_F(DeleteItemsTest, SplittingAloneTakesNoSnapshot)
{
    DeleteItems command(document, {ids[2]});
    const int highest = freshId();

    command.splitPoly(at(0));

    EXPECT_EQ(at(1)->id(), highest + 1);
    EXPECT_EQ(freshId(), highest + 4);
}

TEST_F(DeleteItemsTest, SplittingRemovesAPolylineWithoutSurvivors)
{
    use({makeLine(2, 0), makeLine(1, 1)});
    DeleteItems command(document, ids);

    command.splitPoly(at(0));

    ASSERT_EQ(entityCount(), 1);
    EXPECT_THAT(linesOf(*at(0)), ElementsAre(QLineF(0, 1, 1, 1)));
}

TEST_F(DeleteItemsTest, SplittingAPolylineOfNoDocumentAddsItsPieces)
{
    const Polyline stranger = makeLine(3, 9);
    stranger->setup();
    DeleteItems command(document, {segmentIdsOf(*stranger)[1]});

    command.splitPoly(stranger);

    ASSERT_EQ(entityCount(), 2);
    EXPECT_THAT(linesOf(*at(1)), ElementsAre(QLineF(2, 9, 3, 9)));
}

TEST_F(DeleteItemsTest, SplittingDoesNotLendItsIdsToTheDeletion)
{
    const Polyline twin(at(0)->clone());
    document->addEntity(twin);
    auto* command = new DeleteItems(document, {ids[2]});

    command->splitPoly(twin);
    stack.push(command);

    // The polyline and its twin, which share ids, and a piece cut off from each.
    ASSERT_EQ(entityCount(), 4);
    const auto pieceIds = segmentIdsOf(*at(2)) + segmentIdsOf(*at(3));
    EXPECT_THAT(pieceIds, SizeIs(4));
    EXPECT_EQ(QSet<int>(pieceIds.begin(), pieceIds.end()).size(), 4);
}

TEST_F(DeleteItemsTest, SplittingNothingDoesNothing)
{
    DeleteItems command(document, {ids[2]});

    command.splitPoly(nullptr);

    EXPECT_EQ(entityCount(), 1);
}

// Polylines of a host

/// A polyline that knows more than the library does.
class HostPolyline : public DXFPolyline
{
public:
    explicit HostPolyline(const QString& owner)
        : DXFPolyline(0, 0, 0)
        , m_owner(owner)
    {
        for (int x = 0; x < 4; ++x)
            appendPoint(DXFVertex(x, 0, 0, true, 0));
    }

    HostPolyline* clone() override
    {
        auto* copy = new HostPolyline(*this);
        copy->regenerateID();
        return copy;
    }

    const QString& owner() const { return m_owner; }

private:
    QString m_owner;
};

class HostPolylineTest : public DeleteItemsTest
{
protected:
    HostPolylineTest() { use({QSharedPointer<HostPolyline>::create(QStringLiteral("plumber"))}); }

    /// Whose the polyline at a place is; null if it is nobody's.
    QString ownerAt(int index) const
    {
        const auto polyline = at(index).dynamicCast<HostPolyline>();
        return polyline ? polyline->owner() : QString();
    }
};

TEST_F(HostPolylineTest, UndoRestoresAllOfIt)
{
    const Polyline polyline = at(0);
    push({ids[1]});

    stack.undo();

    ASSERT_EQ(entityCount(), 1);
    EXPECT_NE(at(0), polyline);
    EXPECT_EQ(ownerAt(0), QStringLiteral("plumber"));
    EXPECT_EQ(segmentIdsOf(*at(0)), ids);
}

TEST_F(HostPolylineTest, CutOffPieceIsOneToo)
{
    push({ids[1]});

    ASSERT_EQ(entityCount(), 2);
    EXPECT_EQ(ownerAt(0), QStringLiteral("plumber"));
    EXPECT_EQ(ownerAt(1), QStringLiteral("plumber"));
    EXPECT_THAT(linesOf(*at(1)), ElementsAre(QLineF(2, 0, 3, 0)));
}

// Ownership of the snapshot

/// An entity that counts how many of its kind there are.
class CountedEntity : public OtherEntity
{
public:
    CountedEntity() { ++alive; }
    CountedEntity(const CountedEntity& other)
        : OtherEntity(other)
    {
        ++alive;
    }
    ~CountedEntity() override { --alive; }
    OtherEntity* clone() override { return new CountedEntity(*this); }

    static int alive;
};

int CountedEntity::alive = 0;

class SnapshotTest : public DeleteItemsTest
{
protected:
    SnapshotTest()
    {
        CountedEntity::alive = 0;
        use({makeLine(5), QSharedPointer<CountedEntity>::create()});
    }
};

TEST_F(SnapshotTest, DoneCommandHoldsOneCloneOfEachEntity)
{
    push({ids[2]});

    EXPECT_EQ(CountedEntity::alive, 2);
}

TEST_F(SnapshotTest, UndoneCommandHoldsNothing)
{
    push({ids[2]});

    stack.undo();

    EXPECT_EQ(CountedEntity::alive, 1);
    stack.clear();
    EXPECT_EQ(CountedEntity::alive, 1);
}

TEST_F(SnapshotTest, RedoReplacesTheSnapshot)
{
    DeleteItems command(document, {ids[2]});
    command.redo();

    command.redo();

    EXPECT_EQ(CountedEntity::alive, 2);
}

TEST_F(SnapshotTest, DestroyedCommandLetsGo)
{
    push({ids[2]});
    push({ids[0]});
    EXPECT_EQ(CountedEntity::alive, 3);

    stack.clear();

    EXPECT_EQ(CountedEntity::alive, 1);
}

TEST_F(SnapshotTest, CommandMayOutliveTheDocumentsOtherHolders)
{
    push({ids[2]});
    document.reset();

    stack.undo();
    stack.redo();
    stack.clear();

    EXPECT_EQ(CountedEntity::alive, 0);
}

// Sharing: what is not erased must not be copied

class SharingTest : public DeleteItemsTest
{
protected:
    SharingTest()
    {
        use({makeLine(3, 0), makeLine(100, 1), makePolyline({{0, 2}, {1, 2}, {1, 3}}, true)});
    }
};

TEST_F(SharingTest, UntouchedPolylinesKeepTheirSegmentList)
{
    const auto straight = at(1)->segments();
    const auto closed = at(2)->segments();

    push({ids[1]});

    EXPECT_EQ(at(1)->segments().constData(), straight.constData());
    EXPECT_EQ(at(2)->segments().constData(), closed.constData());
}

TEST_F(SharingTest, RestoredClonesShareTheSegmentLists)
{
    const auto cut = at(0)->segments();
    const auto straight = at(1)->segments();
    const auto closed = at(2)->segments();
    push({ids[1]});

    stack.undo();

    EXPECT_EQ(at(0)->segments().constData(), cut.constData());
    EXPECT_EQ(at(1)->segments().constData(), straight.constData());
    EXPECT_EQ(at(2)->segments().constData(), closed.constData());
}

TEST_F(SharingTest, StraightOpenPolylinesShareTheirVerticesWithTheSnapshot)
{
    const auto* vertices = at(1)->vertices().constData();
    push({ids[1]});
    EXPECT_EQ(at(1)->vertices().constData(), vertices);

    stack.undo();

    EXPECT_EQ(at(1)->vertices().constData(), vertices);
}

TEST_F(SharingTest, ManyCommandsLeaveUntouchedPolylinesShared)
{
    const auto* segments = at(1)->segments().constData();
    const auto* vertices = at(1)->vertices().constData();

    push({ids[1]});
    push({ids[0]});
    stack.undo();
    stack.undo();
    stack.redo();
    push({ids[2]});

    EXPECT_EQ(at(1)->segments().constData(), segments);
    EXPECT_EQ(at(1)->vertices().constData(), vertices);
}

// Properties

/// The splitting rule once more, on plain lists.
struct ModelPolyline {
    QVector<QLineF> lines;
    // Unknown ids, those of pieces, are taken from the document after each step.
    QVector<int> ids;
    bool isClosed = false;
};

bool fuzzilyEqual(double a, double b)
{
    const double difference = std::abs(a - b);
    return a == 0.0 || b == 0.0 ? difference <= 1e-12
                                : difference * 1e12 <= std::min(std::abs(a), std::abs(b));
}

bool endsMeet(const QVector<QLineF>& lines)
{
    return fuzzilyEqual(lines.first().x1(), lines.last().x2())
           && fuzzilyEqual(lines.first().y1(), lines.last().y2());
}

QVector<QLineF> rebuilt(const QVector<QLineF>& chain)
{
    QVector<QLineF> lines;
    QPointF from = chain.first().p1();
    for (const QLineF& line : chain) {
        lines.append(QLineF(from, line.p2()));
        from = line.p2();
    }
    if (endsMeet(chain) && lines.size() > 1)
        lines.append(QLineF(chain.first().p1(), chain.last().p2()));
    return lines;
}

std::vector<ModelPolyline> afterDeletion(const std::vector<ModelPolyline>& polylines,
                                         const std::vector<int>& deleted)
{
    std::vector<ModelPolyline> kept;
    std::vector<ModelPolyline> added;
    for (const ModelPolyline& polyline : polylines) {
        std::vector<ModelPolyline> runs(1);
        for (int i = 0; i < polyline.lines.size(); ++i) {
            if (std::find(deleted.begin(), deleted.end(), polyline.ids[i]) != deleted.end()) {
                if (!runs.back().lines.isEmpty())
                    runs.emplace_back();
                continue;
            }
            runs.back().lines.append(polyline.lines[i]);
            runs.back().ids.append(polyline.ids[i]);
        }
        if (runs.back().lines.isEmpty())
            runs.pop_back();
        for (std::size_t i = 0; i < runs.size(); ++i) {
            ModelPolyline piece = runs[i];
            piece.isClosed = endsMeet(piece.lines);
            if (i == 0) {
                kept.push_back(piece);
            } else {
                piece.lines = rebuilt(piece.lines);
                piece.ids.clear();
                added.push_back(piece);
            }
        }
    }
    kept.insert(kept.end(), added.begin(), added.end());
    return kept;
}

class DeleteItemsPropertyTest : public DeleteItemsTest,
                                public ::testing::WithParamInterface<unsigned>
{
protected:
    DeleteItemsPropertyTest()
        : random(GetParam())
    {
    }

    int upTo(int highest) { return std::uniform_int_distribution<int>(0, highest)(random); }

    Polyline randomPolyline()
    {
        // Few different coordinates, so that pieces often end where they start.
        QVector<QPointF> points;
        const int count = upTo(12);
        for (int i = 0; i < count; ++i)
            points.append(QPointF(upTo(2), upTo(2)));
        return makePolyline(points, upTo(2) == 0);
    }

    void useRandomDrawing()
    {
        QList<Entity> entities;
        const int count = 1 + upTo(7);
        for (int i = 0; i < count; ++i)
            entities.append(randomPolyline());
        use(entities);
    }

    /// A few ids of segments, most of them neighbours, with some that name none among them.
    QVector<int> randomBatch()
    {
        const QVector<int> present = segmentIdsOf(document);
        QVector<int> batch;
        const int groups = upTo(3);
        for (int i = 0; i < groups && !present.isEmpty(); ++i)
            batch += present.mid(upTo(int(present.size()) - 1), 1 + upTo(3));
        if (upTo(3) == 0)
            batch += entityIdsOf(document);
        if (upTo(3) == 0)
            batch += {-1, 0, freshId(), ids.value(upTo(20))};
        std::shuffle(batch.begin(), batch.end(), random);
        return batch;
    }

    std::mt19937 random;
};

TEST_P(DeleteItemsPropertyTest, LeavesWhatTheRuleLeaves)
{
    useRandomDrawing();
    std::vector<ModelPolyline> model;
    for (const PolylineState& polyline : stateOf(document))
        model.push_back({polyline.lines, polyline.segmentIds, polyline.isClosed});

    for (int step = 0; step < 12; ++step) {
        const QVector<int> batch = randomBatch();

        push(batch);

        model = afterDeletion(model, std::vector<int>(batch.begin(), batch.end()));
        ASSERT_EQ(std::size_t(entityCount()), model.size());
        for (std::size_t i = 0; i < model.size(); ++i) {
            const PolylineState state = stateOf(*at(int(i)));
            EXPECT_EQ(state.lines, model[i].lines);
            EXPECT_EQ(state.isClosed, model[i].isClosed);
            if (!model[i].ids.isEmpty()) {
                EXPECT_EQ(state.segmentIds, model[i].ids);
            }
            model[i].ids = state.segmentIds;
        }
    }
}

TEST_P(DeleteItemsPropertyTest, HandsOutTheIdsOfTheRule)
{
    useRandomDrawing();
    for (int step = 0; step < 12; ++step) {
        const QVector<int> batch = randomBatch();
        const auto entitiesBefore = entityCount();
        const int highest = freshId();

        push(batch);

        qsizetype handedOut = entitiesBefore;
        for (int i = 0; i < entityCount(); ++i) {
            if (at(i)->id() > highest)
                handedOut += 1 + at(i)->segments().size();
        }
        EXPECT_EQ(freshId(), highest + handedOut + 1);
    }
}

TEST_P(DeleteItemsPropertyTest, EveryPositionOfTheStackIsAsItWasFirst)
{
    useRandomDrawing();
    std::vector<State> positions{stateOf(document)};

    for (int step = 0; step < 120; ++step) {
        switch (upTo(3)) {
        case 0:
            push(randomBatch());
            positions.resize(std::size_t(stack.index()));
            positions.push_back(stateOf(document));
            break;
        case 1:
            stack.undo();
            break;
        case 2:
            stack.redo();
            break;
        default:
            stack.setIndex(upTo(stack.count()));
            break;
        }
        ASSERT_EQ(stateOf(document), positions[std::size_t(stack.index())]) << "step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, DeleteItemsPropertyTest, ::testing::Range(1U, 41U));

} // namespace
