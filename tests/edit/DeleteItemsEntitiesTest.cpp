// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/DeleteItems.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFLineType.h"
#include "dxfviewer/model/DXFPolyline.h"

#include "tests/edit/DeleteItemsFixture.h"
#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/OtherEntity.h"

#include <gmock/gmock.h>

using namespace dxftest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace
{

// Polylines without segments, and entities that are no polylines

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

TEST_F(DeleteItemsTest, OtherEntitiesStayInTheirPlace)
{
    const Entity unknown = QSharedPointer<OtherEntity>::create(-1);
    const Entity foreign = QSharedPointer<OtherEntity>::create(4);
    use({unknown, makeLine(3), foreign});

    push({ids[1]});

    ASSERT_EQ(entityCount(), 4);
    EXPECT_EQ(document->entities()[0], unknown);
    EXPECT_EQ(document->entities()[2], foreign);
}

TEST_F(DeleteItemsTest, UndoRestoresClonesOfOtherEntities)
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

// A host's subclass of polylines

/// A polyline with an owner, which the library does not know.
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

    /// The owner of the polyline at a place; null if it has none.
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

TEST_F(HostPolylineTest, CutOffPieceIsAHostPolylineToo)
{
    push({ids[1]});

    ASSERT_EQ(entityCount(), 2);
    EXPECT_EQ(ownerAt(0), QStringLiteral("plumber"));
    EXPECT_EQ(ownerAt(1), QStringLiteral("plumber"));
    EXPECT_THAT(linesOf(*at(1)), ElementsAre(QLineF(2, 0, 3, 0)));
}

} // namespace
