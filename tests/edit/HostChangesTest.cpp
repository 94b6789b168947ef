// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/DeleteItems.h"
#include "dxfviewer/render/DXFGraphicsItem.h"

#include "tests/support/Builders.h"
#include "tests/support/Images.h"
#include "tests/support/LoggedTest.h"

#include <QImage>
#include <QPainter>
#include <QStringList>

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

using namespace dxftest;

namespace
{

/// Something that a host does to a polyline, without a word to the document that holds it.
struct HostChange {
    const char* name;
    std::function<void(DXFPolyline&)> apply;
};

void PrintTo(const HostChange& change, std::ostream* out)
{
    *out << change.name;
}

DXFPolyline otherPolyline()
{
    DXFPolyline polyline(0, 0, 1);
    for (const QPointF& point : {QPointF(0, 0), QPointF(9, 0), QPointF(9, 9), QPointF(0, 5)})
        polyline.appendPoint(DXFVertex(point.x(), point.y(), 0, true, 0));
    polyline.setup();
    polyline.id();
    return polyline;
}

IDeletable makeFlaggedObject()
{
    IDeletable object;
    object.setSelected(true);
    object.setHovered(true);
    object.id();
    return object;
}

const IDeletable flaggedObject = makeFlaggedObject();

const HostChange hostChanges[] = {
    {"color",
     [](DXFPolyline& polyline) {
         polyline.setColor(Qt::green);
     }},
    {"line width",
     [](DXFPolyline& polyline) {
         polyline.setLineWidth(7);
     }},
    {"attributes",
     [](DXFPolyline& polyline) {
         polyline.setAttributes(makeAttributes(QStringLiteral("B"), 3));
     }},
    {"selection",
     [](DXFPolyline& polyline) {
         polyline.setSelected(true);
     }},
    {"hover",
     [](DXFPolyline& polyline) {
         polyline.setHovered(true);
     }},
    {"a new id",
     [](DXFPolyline& polyline) {
         polyline.regenerateID();
     }},
    {"selected segments",
     [](DXFPolyline& polyline) {
         polyline.setSelectedSegments(segmentIdsOf(polyline));
     }},
    {"hovered segments",
     [](DXFPolyline& polyline) {
         polyline.setHoveredSegments(segmentIdsOf(polyline));
     }},
    {"other segments",
     [](DXFPolyline& polyline) {
         polyline.setSegments(otherPolyline().segments());
     }},
    {"fewer segments",
     [](DXFPolyline& polyline) {
         polyline.setSegments(polyline.segments().mid(1));
     }},
    {"segments made again",
     [](DXFPolyline& polyline) {
         polyline.setSegments(polyline.segments());
         polyline.setup();
     }},
    {"one more vertex",
     [](DXFPolyline& polyline) {
         polyline.appendPoint(DXFVertex(3, 4, 5, true, 0));
     }},
    {"another polyline's values",
     [](DXFPolyline& polyline) {
         polyline = otherPolyline();
     }},
    {"another object's id and flags",
     [](DXFPolyline& polyline) {
         static_cast<IDeletable&>(polyline) = flaggedObject;
     }},
};

/// What can be seen of a polyline, but its id.
QStringList stateOf(DXFPolyline& polyline)
{
    QStringList state{polyline.toString(), polyline.color().name(),
                      QString::number(polyline.lineWidth()),
                      QStringLiteral("selected %1 hovered %2")
                          .arg(polyline.isSelected())
                          .arg(polyline.isHovered()),
                      polyline.attributes() ? polyline.attributes()->layerName() : QString()};
    for (const DXFVertex& vertex : polyline.vertices())
        state += QStringLiteral("%1 %2 %3").arg(vertex.x()).arg(vertex.y()).arg(vertex.z());
    for (const Segment& segment : polyline.segments()) {
        const QLineF line = segment.line();
        state += QStringLiteral("segment %1: %2 %3 %4 %5, %6 %7")
                     .arg(segment.id())
                     .arg(line.x1())
                     .arg(line.y1())
                     .arg(line.x2())
                     .arg(line.y2())
                     .arg(segment.isSelected())
                     .arg(segment.isHovered());
    }
    return state;
}

// So many that the first one, those in the middle and the last one are no neighbours.
constexpr int polylineCount = 1600;

QSharedPointer<DXFDocument> manyPolylines()
{
    const auto document = QSharedPointer<DXFDocument>::create();
    for (int i = 0; i < polylineCount; ++i) {
        const double x = 10 * i;
        document->addEntity(
            makePolyline({{x, 0}, {x + 1, 0}, {x + 2, 2}, {x + 3, 0}, {x + 4, 2}, {x + 5, 0}}));
    }
    return document;
}

class HostChangesTest : public LoggedTest, public ::testing::WithParamInterface<HostChange>
{
protected:
    HostChangesTest()
        : document(manyPolylines())
    {
        document->setup();
        document->setSelected({});
    }

    DXFPolyline& changed() { return *polylineAt(document, 1); }

    /// Erases the first segment of the last polyline.
    std::unique_ptr<DeleteItems> eraseOne()
    {
        const DXFPolyline* last = polylinesOf(*document).at(polylineCount - 1);
        const int id = last->segments().constFirst().id();
        auto command = std::make_unique<DeleteItems>(document, QVector<int>{id});
        command->redo();
        return command;
    }

    QSharedPointer<DXFDocument> document;
};

TEST_P(HostChangesTest, AreInTheNextStepOfUndo)
{
    const auto first = eraseOne();
    const auto second = eraseOne();
    GetParam().apply(changed());
    const QStringList before = stateOf(changed());

    const auto third = eraseOne();
    third->undo();

    // A polyline with a new id stands at another place.
    QList<QStringList> states;
    for (DXFPolyline* polyline : polylinesOf(*document))
        states.append(stateOf(*polyline));
    EXPECT_THAT(states, ::testing::Contains(before));
}

TEST_P(HostChangesTest, AreSeenWhenThePolylineIsSelected)
{
    document->selectedIDs();
    GetParam().apply(changed());
    const QVector<int> id{changed().id()};
    document->setSelected(id);
    EXPECT_EQ(document->selectedIDs(), id);
}

TEST_P(HostChangesTest, AreSeenWhenSegmentsAreSelected)
{
    document->selectedIDs();
    GetParam().apply(changed());
    const QVector<int> ids = segmentIdsOf(changed());
    document->setSelected(ids);
    EXPECT_EQ(document->selectedIDs(), ids);
}

TEST_P(HostChangesTest, AreSeenWhenTheSelectionEnds)
{
    document->selectedIDs();
    GetParam().apply(changed());
    document->setSelected({});
    EXPECT_TRUE(document->selectedIDs().isEmpty());
}

TEST_P(HostChangesTest, AreSeenWhenHoveringEnds)
{
    document->selectedIDs();
    GetParam().apply(changed());
    document->setHovered({});

    const auto segments = changed().segments();
    EXPECT_FALSE(changed().isHovered());
    EXPECT_TRUE(std::none_of(segments.cbegin(), segments.cend(),
                             [](const Segment& segment) { return segment.isHovered(); }));
}

class StepsTest : public HostChangesTest
{
protected:
    void expectSelectionIsInTheNextStep()
    {
        const auto first = eraseOne();
        const auto second = eraseOne();
        document->setSelected(segmentIdsOf(changed()));
        const QStringList before = stateOf(changed());

        const auto third = eraseOne();
        third->undo();

        EXPECT_EQ(stateOf(changed()), before);
    }
};

TEST_F(StepsTest, ASelectionByTheDocumentIsInTheNextStep)
{
    expectSelectionIsInTheNextStep();
}

TEST_F(StepsTest, ASelectionOfAPolylineThatIsListedTwiceIsInTheNextStep)
{
    auto entities = document->entities();
    entities.insert(polylineCount / 2, entities.at(1));
    document = makeDocument(entities);
    expectSelectionIsInTheNextStep();
}

TEST_F(StepsTest, APieceThatIsCutOffIsInTheNextStep)
{
    const auto first = eraseOne();
    const auto second = eraseOne();
    const QVector<int> middle{changed().segments().at(2).id()};
    DeleteItems cut(document, middle);
    cut.redo();
    const QStringList piece = stateOf(*polylinesOf(*document).constLast());

    DeleteItems next(document, {polylineAt(document, 2)->segments().constFirst().id()});
    next.redo();
    next.undo();

    EXPECT_EQ(document->entities().size(), polylineCount + 1);
    EXPECT_EQ(stateOf(*polylinesOf(*document).constLast()), piece);
}

TEST_F(StepsTest, ClonesHaveTheIdsOfTheirStep)
{
    // Without ids of their own, and made of their segments: no deletion touches most of them.
    const auto made = manyPolylines();
    made->setup();
    document = QSharedPointer<DXFDocument>::create();
    for (const DXFPolyline* polyline : polylinesOf(*made)) {
        auto copy = QSharedPointer<DXFPolyline>::create(0U, 0U, 0U);
        copy->setSegments(polyline->segments());
        document->addEntity(copy);
    }
    const auto first = eraseOne();
    const int before = IDeletable().id();

    const auto second = eraseOne();
    second->undo();

    int expected = before;
    for (const DXFPolyline* polyline : polylinesOf(*document))
        EXPECT_EQ(polyline->id(), ++expected);
}

TEST_F(StepsTest, NothingIsKeptOfAPolylineWhenTheStepsAreGone)
{
    auto attributes = makeAttributes(QStringLiteral("A"), 1);
    const QWeakPointer<DXFAttributes> kept(attributes);
    changed().setAttributes(std::exchange(attributes, nullptr));
    auto first = eraseOne();
    auto second = eraseOne();
    auto third = eraseOne();

    changed().setAttributes(nullptr);
    EXPECT_TRUE(kept);
    first.reset();
    second.reset();
    third.reset();
    EXPECT_FALSE(kept);
}

TEST_F(StepsTest, AHostMayLookAtTheDocumentWhileAPolylineIsAssigned)
{
    const auto look = [this](DXFAttributes* attributes) {
        document->selectedIDs();
        delete attributes;
    };
    changed().setAttributes(QSharedPointer<DXFAttributes>(
        new DXFAttributes(*makeAttributes(QStringLiteral("A"), 1)), look));

    changed() = otherPolyline();

    const QVector<int> ids = segmentIdsOf(changed());
    document->setSelected(ids);
    EXPECT_EQ(document->selectedIDs(), ids);
}

INSTANTIATE_TEST_SUITE_P(All, HostChangesTest, ::testing::ValuesIn(hostChanges));

TEST(HostChangesPaintTest, AWiderLineOutsideReachesIntoThePicture)
{
    const auto document = makeDocument({makePolyline({{-10, 5}, {-10, 15}})});
    DXFGraphicsItem item;
    item.setDocument(document);
    const auto paint = [&item] {
        QImage image(20, 20, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        item.paint(&painter, nullptr, nullptr);
        return image;
    };
    const QImage blank = paint();

    polylineAt(document, 0)->setLineWidth(30);

    EXPECT_FALSE(picturesMatch(paint(), blank));
}

} // namespace
