// SPDX-License-Identifier: GPL-2.0-or-later

// Hosts compile against these signatures and link to these symbols. A change that a host would
// notice must not happen by accident. Most such changes do not compile here.

#include "dxfviewer/render/DXFGraphicsItem.h"
#include "dxfviewer/render/DXFPaintHelper.h"

#include <gtest/gtest.h>

#include <QPainterPath>

#include <type_traits>

namespace
{

// Colours and widths

static_assert(std::is_same_v<decltype(&getColor), QColor (*)(int, int)>);
static_assert(std::is_same_v<decltype(&getLineWidth), int (*)(int)>);

/// Picks the overload with exactly this type.
template <typename Result, typename Of>
constexpr bool exists(Result (DXFPaintHelper::*)(QSharedPointer<Of>))
{
    return true;
}

static_assert(exists<QColor, DXFLayer>(&DXFPaintHelper::lineColor));
static_assert(exists<QColor, DXFEntity>(&DXFPaintHelper::lineColor));
static_assert(exists<int, DXFLayer>(&DXFPaintHelper::lineWidth));
static_assert(exists<int, DXFEntity>(&DXFPaintHelper::lineWidth));

TEST(DXFPaintHelperInterfaceTest, IsMadeFromADocumentThatItOnlyRefersTo)
{
    EXPECT_TRUE((std::is_constructible_v<DXFPaintHelper, const DXFDocument&>));
    EXPECT_FALSE(std::is_default_constructible_v<DXFPaintHelper>);
    EXPECT_EQ(sizeof(DXFPaintHelper), sizeof(void*));
}

TEST(DXFPaintHelperInterfaceTest, HasNothingVirtualAndNoBase)
{
    EXPECT_FALSE(std::is_polymorphic_v<DXFPaintHelper>);
    EXPECT_TRUE(std::is_trivially_destructible_v<DXFPaintHelper>);
    EXPECT_TRUE(std::is_copy_constructible_v<DXFPaintHelper>);
}

// The item

static_assert(
    std::is_same_v<decltype(&DXFGraphicsItem::boundingRect), QRectF (DXFGraphicsItem::*)() const>);
static_assert(std::is_same_v<decltype(&DXFGraphicsItem::document),
                             QSharedPointer<DXFDocument> (DXFGraphicsItem::*)() const>);
static_assert(std::is_same_v<decltype(&DXFGraphicsItem::setDocument),
                             void (DXFGraphicsItem::*)(QSharedPointer<DXFDocument>)>);
static_assert(std::is_same_v<decltype(&DXFGraphicsItem::refresh), void (DXFGraphicsItem::*)()>);
static_assert(std::is_same_v<decltype(&DXFGraphicsItem::setOverridePen),
                             void (DXFGraphicsItem::*)(const QPen&)>);
static_assert(
    std::is_same_v<decltype(&DXFGraphicsItem::resetOverridePen), void (DXFGraphicsItem::*)()>);
static_assert(std::is_same_v<decltype(&DXFGraphicsItem::paint),
                             void (DXFGraphicsItem::*)(QPainter*, const QStyleOptionGraphicsItem*,
                                                       QWidget*)>);

// The other virtual functions are those of Qt's own classes.
static_assert(
    std::is_same_v<decltype(&DXFGraphicsItem::shape), QPainterPath (QGraphicsItem::*)() const>);
static_assert(std::is_same_v<decltype(&DXFGraphicsItem::contains),
                             bool (QGraphicsItem::*)(const QPointF&) const>);
static_assert(std::is_same_v<decltype(&DXFGraphicsItem::type), int (QGraphicsItem::*)() const>);
static_assert(std::is_same_v<decltype(&DXFGraphicsItem::opaqueArea),
                             QPainterPath (QAbstractGraphicsShapeItem::*)() const>);

/// Members that only a subclass may use.
struct ItemMembers : DXFGraphicsItem {
    using DXFGraphicsItem::mousePressEvent;
    using DXFGraphicsItem::sceneEvent;
};

static_assert(std::is_same_v<decltype(&ItemMembers::sceneEvent), bool (QGraphicsItem::*)(QEvent*)>);
static_assert(std::is_same_v<decltype(&ItemMembers::mousePressEvent),
                             void (QGraphicsItem::*)(QGraphicsSceneMouseEvent*)>);

TEST(DXFGraphicsItemInterfaceTest, IsAShapeItemThatMayStandAlone)
{
    EXPECT_TRUE((std::is_base_of_v<QAbstractGraphicsShapeItem, DXFGraphicsItem>));
    EXPECT_FALSE((std::is_base_of_v<QObject, DXFGraphicsItem>));
    EXPECT_TRUE(std::is_default_constructible_v<DXFGraphicsItem>);
    EXPECT_TRUE((std::is_constructible_v<DXFGraphicsItem, QGraphicsItem*>));
    EXPECT_EQ(DXFGraphicsItem().parentItem(), nullptr);
}

TEST(DXFGraphicsItemInterfaceTest, MayBeDerivedFromButNotCopied)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<DXFGraphicsItem>);
    EXPECT_FALSE(std::is_final_v<DXFGraphicsItem>);
    EXPECT_FALSE(std::is_abstract_v<DXFGraphicsItem>);
    EXPECT_FALSE(std::is_copy_constructible_v<DXFGraphicsItem>);
    EXPECT_FALSE(std::is_copy_assignable_v<DXFGraphicsItem>);
}

} // namespace
