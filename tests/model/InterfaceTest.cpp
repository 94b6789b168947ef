// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/DXFAttributes.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFEntity.h"
#include "dxfviewer/model/DXFLayer.h"
#include "dxfviewer/model/DXFLineType.h"
#include "dxfviewer/model/DXFPolyline.h"
#include "dxfviewer/model/DXFVertex.h"
#include "dxfviewer/model/IDeletable.h"
#include "dxfviewer/model/Segment.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <type_traits>

// Hosts are compiled against these. They call functions of const objects, take addresses, override
// functions and convert results. Other tests only call, and would not notice most changes.

namespace
{

using std::is_same_v;
using LayerFlags = QFlags<DXFLayer::Flag>;
using Attributes = QSharedPointer<DXFAttributes>;
using Layer = QSharedPointer<DXFLayer>;
using LineType = QSharedPointer<DXFLineType>;
using Entity = QSharedPointer<DXFEntity>;

static_assert(std::has_virtual_destructor_v<IDeletable>);
static_assert(std::is_default_constructible_v<IDeletable>);
static_assert(std::is_copy_constructible_v<IDeletable>);
static_assert(std::is_copy_assignable_v<IDeletable>);
static_assert(is_same_v<decltype(&IDeletable::id), int (IDeletable::*)() const>);
static_assert(is_same_v<decltype(&IDeletable::regenerateID), int (IDeletable::*)()>);
static_assert(is_same_v<decltype(&IDeletable::isSelected), bool (IDeletable::*)() const>);
static_assert(is_same_v<decltype(&IDeletable::setSelected), void (IDeletable::*)(bool)>);
static_assert(is_same_v<decltype(&IDeletable::isHovered), bool (IDeletable::*)() const>);
static_assert(is_same_v<decltype(&IDeletable::setHovered), void (IDeletable::*)(bool)>);

static_assert(!std::is_polymorphic_v<DXFAttributes>);
static_assert(std::is_copy_constructible_v<DXFAttributes>);
static_assert(std::is_constructible_v<DXFAttributes, const QString&, int, int, int, const QString&,
                                      double, int, bool>);
static_assert(is_same_v<decltype(&DXFAttributes::layerName), QString (DXFAttributes::*)() const>);
static_assert(is_same_v<decltype(&DXFAttributes::color), int (DXFAttributes::*)() const>);
static_assert(is_same_v<decltype(&DXFAttributes::color24), int (DXFAttributes::*)() const>);
static_assert(is_same_v<decltype(&DXFAttributes::width), int (DXFAttributes::*)() const>);
static_assert(is_same_v<decltype(&DXFAttributes::lineType), QString (DXFAttributes::*)() const>);
static_assert(
    is_same_v<decltype(&DXFAttributes::lineTypeScale), double (DXFAttributes::*)() const>);
static_assert(is_same_v<decltype(&DXFAttributes::handle), int (DXFAttributes::*)() const>);
static_assert(is_same_v<decltype(&DXFAttributes::inPaperSpace), bool (DXFAttributes::*)() const>);
static_assert(is_same_v<decltype(&DXFAttributes::toString), QString (DXFAttributes::*)() const>);

static_assert(std::is_abstract_v<DXFEntity>);
static_assert(std::is_convertible_v<DXFEntity*, IDeletable*>);
static_assert(is_same_v<decltype(&DXFEntity::type), int (DXFEntity::*)()>);
static_assert(is_same_v<decltype(&DXFEntity::toString), QString (DXFEntity::*)() const>);
static_assert(is_same_v<decltype(&DXFEntity::setup), void (DXFEntity::*)()>);
static_assert(is_same_v<decltype(&DXFEntity::clone), DXFEntity* (DXFEntity::*)()>);
static_assert(is_same_v<decltype(&DXFEntity::color), QColor (DXFEntity::*)() const>);
static_assert(is_same_v<decltype(&DXFEntity::setColor), void (DXFEntity::*)(QColor)>);
static_assert(is_same_v<decltype(&DXFEntity::lineWidth), int (DXFEntity::*)() const>);
static_assert(is_same_v<decltype(&DXFEntity::setLineWidth), void (DXFEntity::*)(int)>);
static_assert(is_same_v<decltype(&DXFEntity::attributes), Attributes (DXFEntity::*)() const>);
static_assert(is_same_v<decltype(&DXFEntity::setAttributes), void (DXFEntity::*)(Attributes)>);

static_assert(!std::is_polymorphic_v<DXFLayer>);
static_assert(std::is_constructible_v<DXFLayer, const QString&, LayerFlags>);
static_assert(is_same_v<decltype(&DXFLayer::name), QString (DXFLayer::*)() const>);
static_assert(is_same_v<decltype(&DXFLayer::flags), LayerFlags (DXFLayer::*)() const>);
static_assert(is_same_v<decltype(&DXFLayer::isFrozen), bool (DXFLayer::*)() const>);
static_assert(is_same_v<decltype(&DXFLayer::isLocked), bool (DXFLayer::*)() const>);
static_assert(is_same_v<decltype(&DXFLayer::getColor), QColor (DXFLayer::*)() const>);
static_assert(is_same_v<decltype(&DXFLayer::attributes), Attributes (DXFLayer::*)() const>);
static_assert(is_same_v<decltype(&DXFLayer::setAttributes), void (DXFLayer::*)(Attributes)>);
static_assert(is_same_v<decltype(&DXFLayer::toString), QString (DXFLayer::*)() const>);

static_assert(!std::is_polymorphic_v<DXFLineType>);
static_assert(std::is_copy_constructible_v<DXFLineType>);
static_assert(std::is_constructible_v<DXFLineType, const QString&, const QString&, int, int, double,
                                      double*>);
static_assert(is_same_v<decltype(&DXFLineType::name), QString (DXFLineType::*)() const>);
static_assert(is_same_v<decltype(&DXFLineType::description), QString (DXFLineType::*)() const>);
static_assert(is_same_v<decltype(&DXFLineType::flags), int (DXFLineType::*)() const>);
static_assert(is_same_v<decltype(&DXFLineType::numberOfDashes), int (DXFLineType::*)() const>);
static_assert(is_same_v<decltype(&DXFLineType::patternLength), double (DXFLineType::*)() const>);
static_assert(is_same_v<decltype(&DXFLineType::pattern), double* (DXFLineType::*)() const>);
static_assert(is_same_v<decltype(&DXFLineType::toString), QString (DXFLineType::*)() const>);

static_assert(!std::is_polymorphic_v<DXFVertex>);
static_assert(std::is_constructible_v<DXFVertex, double, double, double, bool, double>);
static_assert(is_same_v<decltype(&DXFVertex::x), double (DXFVertex::*)() const>);
static_assert(is_same_v<decltype(&DXFVertex::y), double (DXFVertex::*)() const>);
static_assert(is_same_v<decltype(&DXFVertex::z), double (DXFVertex::*)() const>);
static_assert(is_same_v<decltype(&DXFVertex::bulge), double (DXFVertex::*)() const>);

static_assert(std::is_convertible_v<Segment*, IDeletable*>);
static_assert(std::is_default_constructible_v<Segment>);
static_assert(std::is_copy_constructible_v<Segment>);
static_assert(std::is_copy_assignable_v<Segment>);
static_assert(is_same_v<decltype(&Segment::line), QLineF (Segment::*)() const>);
static_assert(is_same_v<decltype(&Segment::setLine), void (Segment::*)(const QLineF&)>);

static_assert(std::is_convertible_v<DXFPolyline*, DXFEntity*>);
static_assert(std::is_constructible_v<DXFPolyline, unsigned int, unsigned int, unsigned int>);
static_assert(is_same_v<decltype(&DXFPolyline::type), int (DXFPolyline::*)()>);
static_assert(is_same_v<decltype(&DXFPolyline::toString), QString (DXFPolyline::*)() const>);
static_assert(is_same_v<decltype(&DXFPolyline::setup), void (DXFPolyline::*)()>);
static_assert(is_same_v<decltype(&DXFPolyline::clone), DXFPolyline* (DXFPolyline::*)()>);
static_assert(is_same_v<decltype(&DXFPolyline::vertices),
                        const QVector<DXFVertex>& (DXFPolyline::*)() const>);
static_assert(is_same_v<decltype(&DXFPolyline::vertexNumber), int (DXFPolyline::*)() const>);
static_assert(is_same_v<decltype(&DXFPolyline::mVertices), unsigned int (DXFPolyline::*)() const>);
static_assert(is_same_v<decltype(&DXFPolyline::nVertices), unsigned int (DXFPolyline::*)() const>);
static_assert(is_same_v<decltype(&DXFPolyline::flags), unsigned int (DXFPolyline::*)() const>);
static_assert(is_same_v<decltype(&DXFPolyline::isClosed), bool (DXFPolyline::*)() const>);
static_assert(
    is_same_v<decltype(&DXFPolyline::appendPoint), void (DXFPolyline::*)(const DXFVertex&)>);
static_assert(
    is_same_v<decltype(&DXFPolyline::segments), QVector<Segment> (DXFPolyline::*)() const>);
static_assert(
    is_same_v<decltype(&DXFPolyline::setSegments), void (DXFPolyline::*)(const QVector<Segment>&)>);
static_assert(
    is_same_v<decltype(&DXFPolyline::setSelectedSegments), void (DXFPolyline::*)(QVector<int>)>);
static_assert(
    is_same_v<decltype(&DXFPolyline::setHoveredSegments), void (DXFPolyline::*)(QVector<int>)>);

static_assert(std::is_default_constructible_v<DXFDocument>);
static_assert(
    is_same_v<decltype(&DXFDocument::load), QSharedPointer<DXFDocument> (*)(const QByteArray&)>);
static_assert(is_same_v<decltype(&DXFDocument::layers), QList<Layer> (DXFDocument::*)() const>);
static_assert(
    is_same_v<decltype(&DXFDocument::lineTypes), QList<LineType> (DXFDocument::*)() const>);
static_assert(is_same_v<decltype(&DXFDocument::entities), QList<Entity> (DXFDocument::*)() const>);
static_assert(
    is_same_v<decltype(&DXFDocument::getLayer), Layer (DXFDocument::*)(const QString&) const>);
static_assert(is_same_v<decltype(&DXFDocument::getLineType),
                        LineType (DXFDocument::*)(const QString&) const>);
static_assert(is_same_v<decltype(&DXFDocument::addLayer), bool (DXFDocument::*)(Layer)>);
static_assert(is_same_v<decltype(&DXFDocument::addLineType), bool (DXFDocument::*)(LineType)>);
static_assert(is_same_v<decltype(&DXFDocument::addEntity), bool (DXFDocument::*)(Entity)>);
static_assert(is_same_v<decltype(&DXFDocument::deleteEntity), bool (DXFDocument::*)(Entity)>);
static_assert(is_same_v<decltype(&DXFDocument::setSelected), void (DXFDocument::*)(QVector<int>)>);
static_assert(is_same_v<decltype(&DXFDocument::setHovered), void (DXFDocument::*)(QVector<int>)>);
static_assert(
    is_same_v<decltype(&DXFDocument::selectedIDs), QVector<int> (DXFDocument::*)() const>);
static_assert(is_same_v<decltype(&DXFDocument::setup), void (DXFDocument::*)()>);

// Hosts that are already compiled call virtual functions by their indices. No other test notices a
// moved function: its signature stays the same, and code that is compiled again calls the new
// index.

/// The index of a virtual function in the table of its class. In the C++ ABI of all compilers but
/// Microsoft's, a pointer to a member function has two words. One holds the offset in the table,
/// and one is odd if the function is virtual.
template <typename Function>
std::ptrdiff_t placeOf(Function function)
{
    struct Words {
        std::ptrdiff_t pointer;
        std::ptrdiff_t adjustment;
    } words;
    static_assert(sizeof function == sizeof words);
    std::memcpy(&words, &function, sizeof words);

    EXPECT_TRUE(words.pointer % 2 != 0 || words.adjustment % 2 != 0) << "it is not virtual";
    return words.pointer / static_cast<std::ptrdiff_t>(sizeof(void*));
}

TEST(InterfaceTest, VirtualFunctionsOfEntitiesHaveFixedIndices)
{
    // The destructor has the first two.
    EXPECT_EQ(placeOf(&DXFEntity::type), 2);
    EXPECT_EQ(placeOf(&DXFEntity::toString), 3);
    EXPECT_EQ(placeOf(&DXFEntity::setup), 4);
    EXPECT_EQ(placeOf(&DXFEntity::clone), 5);
}

TEST(InterfaceTest, VirtualFunctionsOfPolylinesHaveFixedIndices)
{
    EXPECT_EQ(placeOf(&DXFPolyline::type), 2);
    EXPECT_EQ(placeOf(&DXFPolyline::toString), 3);
    EXPECT_EQ(placeOf(&DXFPolyline::setup), 4);
    EXPECT_EQ(placeOf(&DXFPolyline::clone), 5);
}

} // namespace
