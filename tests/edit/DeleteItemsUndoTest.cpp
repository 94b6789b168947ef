// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/DeleteItems.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFPolyline.h"

#include "tests/edit/DeleteItemsFixture.h"
#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/OtherEntity.h"

#include <gmock/gmock.h>

using namespace dxftest;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

namespace
{

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

TEST_F(DeleteItemsTest, UndoRestoresTheClonesOfTheSnapshot)
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

/// What undo restores besides the geometry.
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
    // Changes to the former objects do not matter.
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

TEST_F(DeleteItemsTest, UndoOfASecondRedoDoesNotRestoreWhatTheFirstErased)
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

TEST_F(SnapshotTest, DestroyedCommandReleasesItsSnapshot)
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

} // namespace
