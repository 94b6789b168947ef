// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/DeleteItems.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFPolyline.h"

#include "tests/edit/DeleteItemsFixture.h"
#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/OtherEntity.h"

#include <gmock/gmock.h>

#include <QSet>

#include <algorithm>

using namespace dxftest;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

namespace
{

// The command by itself

TEST_F(DeleteItemsTest, ConstructionChangesNothing)
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

TEST_F(DeleteItemsTest, KeepsItsOwnCopyOfTheIds)
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

TEST_F(DeleteItemsTest, UnmatchedIdsStillRenewTheSegmentsOfEveryPolyline)
{
    use({makePolyline({{0, 0}, {1, 0}, {1, 1}}, true)});

    push({freshId()});
    at(0)->setup();

    EXPECT_FALSE(at(0)->isClosed());
    EXPECT_THAT(segmentIdsOf(*at(0)), Not(Contains(ids[0])));
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

    // The first two new ids belong to the clones.
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

TEST_F(DeleteItemsTest, SplittingRemovesAPolylineWithoutRemainingSegments)
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

TEST_F(DeleteItemsTest, IdsFromSplittingAreNotReusedByTheDeletion)
{
    const Polyline twin(at(0)->clone());
    document->addEntity(twin);
    auto* command = new DeleteItems(document, {ids[2]});

    command->splitPoly(twin);
    stack.push(command);

    // The polyline and its twin share segment ids. The other two are the pieces cut off from them.
    ASSERT_EQ(entityCount(), 4);
    const auto pieceIds = segmentIdsOf(*at(2)) + segmentIdsOf(*at(3));
    EXPECT_THAT(pieceIds, SizeIs(4));
    EXPECT_EQ(QSet<int>(pieceIds.begin(), pieceIds.end()).size(), 4);
}

TEST_F(DeleteItemsTest, SplittingNullDoesNothing)
{
    DeleteItems command(document, {ids[2]});

    command.splitPoly(nullptr);

    EXPECT_EQ(entityCount(), 1);
}

} // namespace
