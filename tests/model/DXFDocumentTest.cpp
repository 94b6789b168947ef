// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/DXFDocument.h"

#include "dxfviewer/model/DXFLineType.h"

#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/OtherEntity.h"

#include <gmock/gmock.h>

#include <limits>
#include <random>

using namespace dxftest;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Property;

namespace
{

constexpr QPointF cornerA(1, 2);
constexpr QPointF cornerB(3, 4);
constexpr QPointF cornerC(5, 0);

QSharedPointer<DXFLineType> makeLineType(const QString& name)
{
    return QSharedPointer<DXFLineType>::create(name, QString(), 0, 0, 0.0, nullptr);
}

/// Records its colour and width whenever it is set up.
class RecordingEntity : public OtherEntity
{
public:
    void setup() override
    {
        m_colors.append(color());
        m_widths.append(lineWidth());
    }

    const QVector<QColor>& colors() const { return m_colors; }
    const QVector<int>& widths() const { return m_widths; }

private:
    QVector<QColor> m_colors;
    QVector<int> m_widths;
};

class DXFDocumentTest : public LoggedTest
{
protected:
    QSharedPointer<DXFPolyline> openPolyline = makePolyline({cornerA, cornerB, cornerC});
    QSharedPointer<DXFPolyline> closedPolyline = makePolyline({cornerA, cornerB, cornerC}, true);
    QSharedPointer<OtherEntity> unknownEntity = QSharedPointer<OtherEntity>::create(-1);
    QSharedPointer<OtherEntity> otherEntity = QSharedPointer<OtherEntity>::create(5);
    QSharedPointer<DXFDocument> document = makeDocument(
        {openPolyline, unknownEntity, QSharedPointer<DXFEntity>(), otherEntity, closedPolyline});
};

TEST_F(DXFDocumentTest, NewDocumentIsEmpty)
{
    const DXFDocument empty;

    EXPECT_TRUE(empty.layers().isEmpty());
    EXPECT_TRUE(empty.lineTypes().isEmpty());
    EXPECT_TRUE(empty.entities().isEmpty());
    EXPECT_THAT(empty.selectedIDs(), IsEmpty());
}

TEST_F(DXFDocumentTest, FirstLayerOfANameWins)
{
    const auto first = makeLayer(QStringLiteral("0"), 1);
    const auto second = makeLayer(QStringLiteral("0"), 2);

    EXPECT_TRUE(document->addLayer(first));
    EXPECT_FALSE(document->addLayer(second));

    EXPECT_THAT(document->layers(), ElementsAre(first));
    EXPECT_EQ(document->getLayer(QStringLiteral("0")), first);
}

TEST_F(DXFDocumentTest, LayerNamesAreCaseSensitive)
{
    const auto upper = makeLayer(QStringLiteral("WALLS"), 1);
    const auto lower = makeLayer(QStringLiteral("walls"), 2);

    EXPECT_TRUE(document->addLayer(upper));
    EXPECT_TRUE(document->addLayer(lower));

    EXPECT_EQ(document->getLayer(QStringLiteral("WALLS")), upper);
    EXPECT_EQ(document->getLayer(QStringLiteral("walls")), lower);
    EXPECT_TRUE(document->getLayer(QStringLiteral("Walls")).isNull());
}

TEST_F(DXFDocumentTest, NamesThatDifferByABlankAreDifferent)
{
    const QStringList names{QStringLiteral("walls"), QStringLiteral("walls "),
                            QStringLiteral(" walls"), QStringLiteral("wal ls")};
    for (const QString& name : names) {
        EXPECT_TRUE(document->addLayer(makeLayer(name, 1)));
        EXPECT_TRUE(document->addLineType(
            QSharedPointer<DXFLineType>::create(name, QString(), 0, 0, 0.0, nullptr)));
    }

    for (const QString& name : names) {
        EXPECT_EQ(document->getLayer(name)->name(), name);
        EXPECT_EQ(document->getLineType(name)->name(), name);
    }
}

TEST_F(DXFDocumentTest, LayersKeepTheOrderOfArrival)
{
    const auto z = makeLayer(QStringLiteral("z"), 1);
    const auto empty = makeLayer(QString(), 1);
    const auto y = makeLayer(QStringLiteral("y"), 1);
    document->addLayer(z);
    document->addLayer(empty);
    document->addLayer(y);

    EXPECT_THAT(document->layers(), ElementsAre(z, empty, y));
    EXPECT_EQ(document->getLayer(QString()), empty);
}

TEST_F(DXFDocumentTest, UnknownLayerIsNull)
{
    EXPECT_TRUE(document->getLayer(QStringLiteral("0")).isNull());

    document->addLayer(makeLayer(QStringLiteral("1"), 1));

    EXPECT_TRUE(document->getLayer(QStringLiteral("0")).isNull());
    EXPECT_TRUE(document->getLayer(QString()).isNull());
}

TEST_F(DXFDocumentTest, NullLayerIsRefused)
{
    EXPECT_FALSE(document->addLayer({}));

    EXPECT_TRUE(document->layers().isEmpty());
}

TEST_F(DXFDocumentTest, FirstLineTypeOfANameWins)
{
    const auto first = makeLineType(QStringLiteral("DASHED"));
    const auto second = makeLineType(QStringLiteral("DASHED"));

    EXPECT_TRUE(document->addLineType(first));
    EXPECT_FALSE(document->addLineType(second));

    EXPECT_THAT(document->lineTypes(), ElementsAre(first));
    EXPECT_EQ(document->getLineType(QStringLiteral("DASHED")), first);
}

TEST_F(DXFDocumentTest, LineTypeNamesAreCaseSensitiveAndKeepTheirOrder)
{
    const auto upper = makeLineType(QStringLiteral("DASHED"));
    const auto lower = makeLineType(QStringLiteral("dashed"));
    const auto before = makeLineType(QStringLiteral("A"));

    EXPECT_TRUE(document->addLineType(upper));
    EXPECT_TRUE(document->addLineType(lower));
    EXPECT_TRUE(document->addLineType(before));

    EXPECT_THAT(document->lineTypes(), ElementsAre(upper, lower, before));
    EXPECT_EQ(document->getLineType(QStringLiteral("dashed")), lower);
}

TEST_F(DXFDocumentTest, UnknownLineTypeIsNull)
{
    document->addLayer(makeLayer(QStringLiteral("DASHED"), 1));

    EXPECT_TRUE(document->getLineType(QStringLiteral("DASHED")).isNull());
}

TEST_F(DXFDocumentTest, NullLineTypeIsRefused)
{
    EXPECT_FALSE(document->addLineType({}));

    EXPECT_TRUE(document->lineTypes().isEmpty());
}

TEST_F(DXFDocumentTest, EntitiesKeepTheOrderOfArrivalAndMayBeNull)
{
    EXPECT_THAT(document->entities(),
                ElementsAre(openPolyline, unknownEntity, QSharedPointer<DXFEntity>(), otherEntity,
                            closedPolyline));
}

TEST_F(DXFDocumentTest, AddingAnEntityIsAlwaysTrue)
{
    EXPECT_TRUE(document->addEntity(openPolyline));
    EXPECT_TRUE(document->addEntity({}));

    EXPECT_EQ(document->entities().size(), 7);
    EXPECT_EQ(document->entities().at(5), openPolyline);
    EXPECT_TRUE(document->entities().at(6).isNull());
}

TEST_F(DXFDocumentTest, OneDeleteRemovesAllEntriesOfTheObject)
{
    document->addEntity(openPolyline);

    EXPECT_TRUE(document->deleteEntity(openPolyline));

    EXPECT_THAT(document->entities(), ElementsAre(unknownEntity, QSharedPointer<DXFEntity>(),
                                                  otherEntity, closedPolyline));
}

TEST_F(DXFDocumentTest, DeleteOfAnUnlistedEntityIsTrueAndRemovesNothing)
{
    EXPECT_TRUE(document->deleteEntity(makePolyline({cornerA, cornerB, cornerC})));

    EXPECT_EQ(document->entities().size(), 5);
}

TEST_F(DXFDocumentTest, DeleteComparesObjectsNotIds)
{
    const auto twin = QSharedPointer<DXFPolyline>::create(*openPolyline);
    openPolyline->id();
    const auto twinWithTheId = QSharedPointer<DXFPolyline>::create(*openPolyline);
    ASSERT_EQ(twinWithTheId->id(), openPolyline->id());

    document->deleteEntity(twin);
    document->deleteEntity(twinWithTheId);

    EXPECT_EQ(document->entities().size(), 5);
}

TEST_F(DXFDocumentTest, DeleteOfNullRemovesTheNullEntries)
{
    document->addEntity({});

    EXPECT_TRUE(document->deleteEntity({}));

    EXPECT_THAT(document->entities(),
                ElementsAre(openPolyline, unknownEntity, otherEntity, closedPolyline));
}

TEST_F(DXFDocumentTest, DeleteReleasesTheDocumentsReferenceOnly)
{
    const QWeakPointer<DXFPolyline> released = closedPolyline;
    document->deleteEntity(openPolyline);
    EXPECT_EQ(openPolyline->vertexNumber(), 3);

    document->deleteEntity(closedPolyline);
    closedPolyline.reset();

    EXPECT_TRUE(released.isNull());
}

TEST_F(DXFDocumentTest, DestructionReleasesEverything)
{
    auto layer = makeLayer(QStringLiteral("0"), 1);
    auto lineType = makeLineType(QStringLiteral("A"));
    const QWeakPointer<DXFLayer> layerRef = layer;
    const QWeakPointer<DXFLineType> lineTypeRef = lineType;
    const QWeakPointer<DXFPolyline> entityRef = openPolyline;
    document->addLayer(layer);
    document->addLineType(lineType);
    layer.reset();
    lineType.reset();
    openPolyline.reset();
    ASSERT_FALSE(layerRef.isNull() || lineTypeRef.isNull() || entityRef.isNull());

    document.reset();

    EXPECT_TRUE(layerRef.isNull());
    EXPECT_TRUE(lineTypeRef.isNull());
    EXPECT_TRUE(entityRef.isNull());
}

TEST_F(DXFDocumentTest, ReturnedListsAreCopies)
{
    auto entities = document->entities();
    auto layers = document->layers();

    entities.clear();
    layers.append(makeLayer(QStringLiteral("0"), 1));

    EXPECT_EQ(document->entities().size(), 5);
    EXPECT_TRUE(document->layers().isEmpty());
}

TEST_F(DXFDocumentTest, SegmentIdSelectsThatSegmentOnly)
{
    document->setup();
    openPolyline->setSelected(true);
    const int id = segmentIdsOf(*closedPolyline).at(1);

    document->setSelected({id});

    EXPECT_FALSE(openPolyline->isSelected());
    EXPECT_FALSE(closedPolyline->isSelected());
    EXPECT_THAT(openPolyline->segments(), Each(Property(&Segment::isSelected, false)));
    EXPECT_FALSE(closedPolyline->segments().at(0).isSelected());
    EXPECT_TRUE(closedPolyline->segments().at(1).isSelected());
    EXPECT_FALSE(closedPolyline->segments().at(2).isSelected());
    EXPECT_THAT(document->selectedIDs(), ElementsAre(id));
}

TEST_F(DXFDocumentTest, EntityIdSelectsTheEntityNotItsSegments)
{
    document->setup();

    document->setSelected({openPolyline->id()});

    EXPECT_TRUE(openPolyline->isSelected());
    EXPECT_THAT(openPolyline->segments(), Each(Property(&Segment::isSelected, false)));
    EXPECT_THAT(document->selectedIDs(), ElementsAre(openPolyline->id()));
}

TEST_F(DXFDocumentTest, SelectedIdsComeEntityByEntityEachBeforeItsSegments)
{
    document->setup();
    const auto first = segmentIdsOf(*openPolyline);
    const auto second = segmentIdsOf(*closedPolyline);

    document->setSelected({closedPolyline->id(), second.at(2), first.at(1), first.at(0),
                           openPolyline->id(), second.at(0), second.at(0)});

    EXPECT_THAT(document->selectedIDs(),
                ElementsAre(openPolyline->id(), first.at(0), first.at(1), closedPolyline->id(),
                            second.at(0), second.at(2)));
}

TEST_F(DXFDocumentTest, OtherKindsAreSelectedButNotListed)
{
    document->setSelected({unknownEntity->id(), otherEntity->id()});

    EXPECT_TRUE(unknownEntity->isSelected());
    EXPECT_TRUE(otherEntity->isSelected());
    EXPECT_THAT(document->selectedIDs(), IsEmpty());

    document->setSelected({});

    EXPECT_FALSE(unknownEntity->isSelected());
    EXPECT_FALSE(otherEntity->isSelected());
}

TEST_F(DXFDocumentTest, OtherKindsAreHovered)
{
    document->setHovered({otherEntity->id()});

    EXPECT_TRUE(otherEntity->isHovered());
    EXPECT_FALSE(unknownEntity->isHovered());

    document->setHovered({unknownEntity->id()});

    EXPECT_FALSE(otherEntity->isHovered());
    EXPECT_TRUE(unknownEntity->isHovered());
}

TEST_F(DXFDocumentTest, EmptySelectionClearsEveryFlag)
{
    document->setup();
    auto all = segmentIdsOf(document);
    all << openPolyline->id() << closedPolyline->id();
    document->setSelected(all);
    document->setHovered(all);
    ASSERT_EQ(document->selectedIDs().size(), all.size());

    document->setSelected({});

    EXPECT_THAT(document->selectedIDs(), IsEmpty());
    EXPECT_FALSE(openPolyline->isSelected());
    EXPECT_TRUE(openPolyline->isHovered());
    EXPECT_THAT(openPolyline->segments(), Each(Property(&Segment::isHovered, true)));

    document->setHovered({});

    EXPECT_FALSE(openPolyline->isHovered());
    EXPECT_THAT(openPolyline->segments(), Each(Property(&Segment::isHovered, false)));
}

TEST_F(DXFDocumentTest, HoveringDoesNotSelect)
{
    document->setup();
    const int id = segmentIdsOf(*openPolyline).at(0);

    document->setHovered({id, closedPolyline->id()});

    EXPECT_TRUE(openPolyline->segments().at(0).isHovered());
    EXPECT_FALSE(openPolyline->segments().at(1).isHovered());
    EXPECT_TRUE(closedPolyline->isHovered());
    EXPECT_FALSE(openPolyline->isHovered());
    EXPECT_THAT(document->selectedIDs(), IsEmpty());
}

TEST_F(DXFDocumentTest, SelectingAssignsMissingIds)
{
    const int highest = highestId();

    document->setSelected({});

    EXPECT_EQ(highestId(), highest + 5);
    EXPECT_EQ(openPolyline->id(), highest + 1);
    EXPECT_EQ(unknownEntity->id(), highest + 2);
    EXPECT_EQ(otherEntity->id(), highest + 3);
    EXPECT_EQ(closedPolyline->id(), highest + 4);
}

TEST_F(DXFDocumentTest, HoveringAssignsMissingIds)
{
    const int highest = highestId();

    document->setHovered({});

    EXPECT_EQ(highestId(), highest + 5);
    EXPECT_EQ(closedPolyline->id(), highest + 4);
}

TEST_F(DXFDocumentTest, UntouchedPolylinesKeepTheirListsShared)
{
    document->setup();
    const auto openSegments = openPolyline->segments();
    const auto closedSegments = closedPolyline->segments();

    document->setSelected({closedSegments.at(1).id(), openPolyline->id()});
    document->setHovered({closedPolyline->id()});

    EXPECT_EQ(openPolyline->segments().constData(), openSegments.constData());
    EXPECT_NE(closedPolyline->segments().constData(), closedSegments.constData());
}

TEST_F(DXFDocumentTest, EntityListedTwiceIsListedTwiceAmongTheSelected)
{
    document->addEntity(openPolyline);

    document->setSelected({openPolyline->id()});

    EXPECT_THAT(document->selectedIDs(), ElementsAre(openPolyline->id(), openPolyline->id()));
}

TEST_F(DXFDocumentTest, SetupMakesTheSegmentsInTheOrderOfEntities)
{
    const int highest = highestId();

    document->setup();

    EXPECT_THAT(segmentIdsOf(*openPolyline), ElementsAre(highest + 1, highest + 2));
    EXPECT_THAT(segmentIdsOf(*closedPolyline), ElementsAre(highest + 3, highest + 4, highest + 5));
    EXPECT_THAT(linesOf(document), ElementsAre(QLineF(cornerA, cornerB), QLineF(cornerB, cornerC),
                                               QLineF(cornerA, cornerB), QLineF(cornerB, cornerC),
                                               QLineF(cornerA, cornerC)));
}

TEST_F(DXFDocumentTest, SetupResolvesColourAndWidthOfEveryKind)
{
    document->addLayer(makeLayer(QStringLiteral("Walls"), 3, -1, 25));
    openPolyline->setAttributes(makeAttributes(QStringLiteral("0"), 1, -1, 0));
    otherEntity->setAttributes(makeAttributes(QStringLiteral("Walls"), 256, -1, -1));

    document->setup();

    EXPECT_EQ(openPolyline->color(), QColor(Qt::darkRed));
    EXPECT_EQ(openPolyline->lineWidth(), 0);
    EXPECT_EQ(otherEntity->color(), QColor(Qt::darkGreen));
    EXPECT_EQ(otherEntity->lineWidth(), 1);
    EXPECT_EQ(otherEntity->setupCount(), 1);
    EXPECT_EQ(unknownEntity->setupCount(), 1);
}

TEST_F(DXFDocumentTest, WithoutAttributesOrLayerAnEntityIsBlackAndOneWide)
{
    closedPolyline->setAttributes(makeAttributes(QStringLiteral("nowhere"), 256, -1, -1));

    document->setup();

    EXPECT_EQ(openPolyline->color(), QColor(Qt::black));
    EXPECT_EQ(openPolyline->lineWidth(), 1);
    EXPECT_EQ(closedPolyline->color(), QColor(Qt::black));
    EXPECT_EQ(closedPolyline->lineWidth(), 1);
}

TEST_F(DXFDocumentTest, LayerWithoutAttributesMakesBlackAndOneWide)
{
    document->addLayer(
        QSharedPointer<DXFLayer>::create(QStringLiteral("bare"), QFlags<DXFLayer::Flag>()));
    openPolyline->setAttributes(makeAttributes(QStringLiteral("bare"), 256, 0xff0000, -1));

    document->setup();

    EXPECT_EQ(openPolyline->color(), QColor(Qt::black));
    EXPECT_EQ(openPolyline->lineWidth(), 1);
}

TEST_F(DXFDocumentTest, SetupResolvesTheWidthBeforeTheColour)
{
    openPolyline->setAttributes(makeAttributes(QStringLiteral("0"), 0, -1, -2));
    closedPolyline->setAttributes(makeAttributes(QStringLiteral("0"), 0, -1, -2));
    expectWarning("LineWidth BYBLOCK not supported");
    expectWarning("Color BYBLOCK not supported");
    expectWarning("LineWidth BYBLOCK not supported");
    expectWarning("Color BYBLOCK not supported");

    document->setup();

    EXPECT_EQ(openPolyline->color(), QColor(Qt::black));
    EXPECT_EQ(openPolyline->lineWidth(), 1);
}

TEST_F(DXFDocumentTest, EntityIsSetUpWithItsColourAndWidth)
{
    const auto recording = QSharedPointer<RecordingEntity>::create();
    recording->setAttributes(makeAttributes(QStringLiteral("0"), 1, -1, 25));
    document->addEntity(recording);

    document->setup();

    EXPECT_THAT(recording->colors(), ElementsAre(QColor(Qt::darkRed)));
    EXPECT_THAT(recording->widths(), ElementsAre(1));
}

TEST_F(DXFDocumentTest, SecondSetupDoesNothing)
{
    document->setup();
    const auto ids = segmentIdsOf(document);
    openPolyline->setAttributes(makeAttributes(QStringLiteral("0"), 1));
    openPolyline->setColor(Qt::yellow);
    openPolyline->setLineWidth(9);

    document->setup();

    EXPECT_EQ(segmentIdsOf(document), ids);
    EXPECT_EQ(openPolyline->color(), QColor(Qt::yellow));
    EXPECT_EQ(openPolyline->lineWidth(), 9);
    EXPECT_EQ(otherEntity->setupCount(), 1);
}

TEST_F(DXFDocumentTest, EntityAddedAfterSetupIsNotSetUp)
{
    document->setup();
    const auto late = makePolyline({cornerA, cornerB});
    late->setAttributes(makeAttributes(QStringLiteral("0"), 1, -1, 25));

    document->addEntity(late);
    document->setup();

    EXPECT_FALSE(late->color().isValid());
    EXPECT_EQ(late->lineWidth(), 0);
    EXPECT_THAT(late->segments(), IsEmpty());

    late->setup();

    EXPECT_THAT(linesOf(*late), ElementsAre(QLineF(cornerA, cornerB)));
}

TEST_F(DXFDocumentTest, DeletingDoesNotAskForAnotherSetup)
{
    document->setup();
    openPolyline->setSegments(openPolyline->segments());
    const auto ids = segmentIdsOf(*openPolyline);

    document->deleteEntity(closedPolyline);
    document->setup();

    EXPECT_EQ(segmentIdsOf(*openPolyline), ids);
}

TEST_F(DXFDocumentTest, SetupOfAnEmptyDocumentCountsAsItsSetup)
{
    DXFDocument empty;
    empty.setup();

    empty.addEntity(openPolyline);
    empty.setup();

    EXPECT_THAT(openPolyline->segments(), IsEmpty());
}

/// Lists of ids of all kinds: in use, stale, never assigned, repeated, far away.
class IdLists
{
public:
    IdLists(unsigned seed, const QVector<int>& living)
        : m_random(seed)
        , m_living(living)
    {
    }

    QVector<int> next()
    {
        QVector<int> ids;
        for (int count = upTo(12); count > 0; --count)
            ids.append(nextId());
        return ids;
    }

private:
    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(m_random); }

    int nextId()
    {
        static const int strange[] = {
            -1,     0, -1000000, std::numeric_limits<int>::min(), std::numeric_limits<int>::max(),
            1 << 21};
        switch (upTo(9)) {
        case 0:
            return strange[upTo(int(std::size(strange)) - 1)];
        case 1:
            return std::uniform_int_distribution<int>(std::numeric_limits<int>::min(),
                                                      std::numeric_limits<int>::max())(m_random);
        case 2:
            return m_living.first() + upTo(int(m_living.size()));
        default:
            return m_living.at(upTo(int(m_living.size()) - 1));
        }
    }

    std::mt19937 m_random;
    QVector<int> m_living;
};

using FlagOf = bool (IDeletable::*)() const;

/// What selecting or hovering must do, in the plainest code.
void expectFlags(const DXFDocument& document, const QVector<int>& ids, FlagOf flag)
{
    const auto entities = document.entities();
    for (const auto& entity : entities) {
        if (!entity)
            continue;
        EXPECT_EQ(((*entity).*flag)(), ids.contains(entity->id()));
    }
    for (const DXFPolyline* polyline : polylinesOf(document)) {
        const auto segments = polyline->segments();
        for (const Segment& segment : segments)
            EXPECT_EQ((segment.*flag)(), ids.contains(segment.id())) << segment.id();
    }
}

QVector<int> plainSelectedIds(const DXFDocument& document)
{
    QVector<int> ids;
    for (const DXFPolyline* polyline : polylinesOf(document)) {
        if (polyline->isSelected())
            ids.append(polyline->id());
        const auto segments = polyline->segments();
        for (const Segment& segment : segments) {
            if (segment.isSelected())
                ids.append(segment.id());
        }
    }
    return ids;
}

TEST_F(DXFDocumentTest, RandomIdListsSelectAndHoverWhatTheyList)
{
    // A clone has the segment ids of its original, so one id may mean two segments.
    document->setup();
    document->addEntity(QSharedPointer<DXFEntity>(openPolyline->clone()));
    QVector<int> living = segmentIdsOf(document);
    for (const auto& entity : document->entities()) {
        if (entity)
            living.append(entity->id());
    }
    IdLists lists(7, living);

    for (int round = 0; round < 3000; ++round) {
        SCOPED_TRACE(round);
        const auto selected = lists.next();
        const auto hovered = lists.next();

        document->setSelected(selected);
        document->setHovered(hovered);

        expectFlags(*document, selected, &IDeletable::isSelected);
        expectFlags(*document, hovered, &IDeletable::isHovered);
        EXPECT_EQ(document->selectedIDs(), plainSelectedIds(*document));
        if (HasFailure())
            return;
    }
}

TEST_F(DXFDocumentTest, LongListFarFromTheSegmentsSelectsWhatItLists)
{
    document->setup();
    const auto ids = segmentIdsOf(document);
    QVector<int> list{std::numeric_limits<int>::max(), ids.at(1), ids.at(3)};
    for (int i = 0; i < 100000; ++i)
        list.append(ids.last() + 100 + 1000 * (i % 50000));

    document->setSelected(list);

    EXPECT_THAT(document->selectedIDs(), ElementsAre(ids.at(1), ids.at(3)));
}

} // namespace
