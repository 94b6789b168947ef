// SPDX-License-Identifier: GPL-2.0-or-later

// Hosts compile against these signatures and link to these symbols. A change that a host would
// notice must not happen by accident. Most such changes do not compile here.

#include "dxfviewer/edit/DXFEditor.h"
#include "dxfviewer/edit/DeleteItems.h"
#include "dxfviewer/edit/RubberTool.h"

#include <gtest/gtest.h>

#include <QPainterPath>

#include <type_traits>

namespace
{

// The geometry, which is in the eraser's header

static_assert(std::is_same_v<decltype(&projection),
                             QPointF (*)(QPointF const&, QPointF const&, QPointF const&, bool*)>);
static_assert(
    std::is_same_v<decltype(&distPointToSegment), double (*)(QPointF const&, QLineF const&)>);

// Tools

static_assert(std::is_same_v<decltype(&ISelectionTool::handle), bool (ISelectionTool::*)(QEvent&)>);
static_assert(
    std::is_same_v<decltype(&ISelectionTool::getMarker), QGraphicsItem* (ISelectionTool::*)()>);
static_assert(std::is_same_v<decltype(&ISelectionTool::requestDelete), void (ISelectionTool::*)()>);

TEST(ISelectionToolInterfaceTest, IsAnAbstractObjectWithoutMembers)
{
    EXPECT_TRUE((std::is_base_of_v<QObject, ISelectionTool>));
    EXPECT_TRUE(std::is_abstract_v<ISelectionTool>);
    EXPECT_TRUE(std::has_virtual_destructor_v<ISelectionTool>);
    EXPECT_EQ(sizeof(ISelectionTool), sizeof(QObject));
}

TEST(ISelectionToolInterfaceTest, NeedsOnlyItsTwoFunctions)
{
    class Tool : public ISelectionTool
    {
    public:
        bool handle(QEvent& /*event*/) override { return false; }
        QGraphicsItem* getMarker() override { return nullptr; }
    };
    const Tool tool;

    EXPECT_EQ(tool.parent(), nullptr);
    EXPECT_EQ(tool.metaObject(), &ISelectionTool::staticMetaObject);
}

static_assert(std::is_same_v<decltype(&RubberTool::itemsUnderMouse),
                             QVector<int> (RubberTool::*)(QPointF) const>);
static_assert(
    std::is_same_v<decltype(&RubberTool::getViewScaleFactor), double (RubberTool::*)() const>);
static_assert(std::is_same_v<decltype(&RubberTool::enable), void (RubberTool::*)()>);
static_assert(std::is_same_v<decltype(&RubberTool::disable), void (RubberTool::*)()>);
static_assert(std::is_same_v<decltype(&RubberTool::handleMouseEvent),
                             void (RubberTool::*)(QGraphicsSceneMouseEvent&)>);
static_assert(std::is_same_v<decltype(&RubberTool::handle), bool (RubberTool::*)(QEvent&)>);
static_assert(std::is_same_v<decltype(&RubberTool::getMarker), QGraphicsItem* (RubberTool::*)()>);
static_assert(std::is_same_v<decltype(&RubberTool::requestDelete), void (ISelectionTool::*)()>);

TEST(RubberToolInterfaceTest, IsAToolOfADocument)
{
    EXPECT_TRUE((std::is_base_of_v<ISelectionTool, RubberTool>));
    EXPECT_TRUE((std::is_constructible_v<RubberTool, QSharedPointer<DXFDocument>>));
    EXPECT_FALSE(std::is_default_constructible_v<RubberTool>);
    EXPECT_FALSE((std::is_constructible_v<RubberTool, QSharedPointer<DXFDocument>, QObject*>));
    EXPECT_FALSE(std::is_abstract_v<RubberTool>);
    EXPECT_FALSE(std::is_final_v<RubberTool>);
}

// The command

static_assert(std::is_same_v<decltype(&DeleteItems::undo), void (DeleteItems::*)()>);
static_assert(std::is_same_v<decltype(&DeleteItems::redo), void (DeleteItems::*)()>);
static_assert(std::is_same_v<decltype(&DeleteItems::splitPoly),
                             void (DeleteItems::*)(QSharedPointer<DXFPolyline> const&)>);

// Commands do not merge.
static_assert(std::is_same_v<decltype(&DeleteItems::id), int (QUndoCommand::*)() const>);
static_assert(
    std::is_same_v<decltype(&DeleteItems::mergeWith), bool (QUndoCommand::*)(const QUndoCommand*)>);

TEST(DeleteItemsInterfaceTest, IsACommandForADocumentAndIds)
{
    EXPECT_TRUE((std::is_base_of_v<QUndoCommand, DeleteItems>));
    EXPECT_TRUE(
        (std::is_constructible_v<DeleteItems, QSharedPointer<DXFDocument>, QVector<int> const&>));
    EXPECT_FALSE((std::is_constructible_v<DeleteItems, QSharedPointer<DXFDocument>,
                                          QVector<int> const&, QUndoCommand*>));
    EXPECT_FALSE(std::is_default_constructible_v<DeleteItems>);
}

TEST(DeleteItemsInterfaceTest, IsDestroyedByTheStackAndNotCopied)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<DeleteItems>);
    EXPECT_FALSE(std::is_final_v<DeleteItems>);
    EXPECT_FALSE(std::is_copy_constructible_v<DeleteItems>);
    EXPECT_FALSE(std::is_copy_assignable_v<DeleteItems>);
}

// The overlay

/// Members that only a subclass may use.
struct EditorMembers : DXFEditor {
    using DXFEditor::sceneEvent;
};

static_assert(std::is_same_v<decltype(&DXFEditor::stack), QUndoStack* (DXFEditor::*)()>);
static_assert(std::is_same_v<decltype(&DXFEditor::boundingRect), QRectF (DXFEditor::*)() const>);
static_assert(
    std::is_same_v<decltype(&DXFEditor::paint),
                   void (DXFEditor::*)(QPainter*, const QStyleOptionGraphicsItem*, QWidget*)>);
static_assert(std::is_same_v<decltype(&EditorMembers::sceneEvent), bool (DXFEditor::*)(QEvent*)>);

// Its shape is its rectangle, so it gets the events anywhere in it.
static_assert(std::is_same_v<decltype(&DXFEditor::shape), QPainterPath (QGraphicsItem::*)() const>);
static_assert(
    std::is_same_v<decltype(&DXFEditor::contains), bool (QGraphicsItem::*)(const QPointF&) const>);

TEST(DXFEditorInterfaceTest, IsAGraphicsObjectOverAnItem)
{
    EXPECT_TRUE((std::is_base_of_v<QGraphicsObject, DXFEditor>));
    EXPECT_TRUE((std::is_constructible_v<DXFEditor, DXFGraphicsItem&>));
    EXPECT_FALSE((std::is_constructible_v<DXFEditor, const DXFGraphicsItem&>));
    EXPECT_FALSE(std::is_default_constructible_v<DXFEditor>);
    EXPECT_TRUE(std::has_virtual_destructor_v<DXFEditor>);
    EXPECT_FALSE(std::is_final_v<DXFEditor>);
}

} // namespace
