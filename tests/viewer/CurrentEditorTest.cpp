// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/viewer/CurrentEditor.h"

#include "dxfviewer/edit/DXFEditor.h"
#include "dxfviewer/render/DXFGraphicsItem.h"

#include "tests/support/AtMessage.h"
#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QGraphicsScene>
#include <QPointer>
#include <QUndoStack>

#include <memory>

using namespace dxftest;
using dxfviewer::CurrentEditor;
using ::testing::ElementsAre;
using ::testing::SizeIs;

namespace
{

/// Two items in a scene, and two possible owners of edit mode.
class CurrentEditorTest : public LoggedTest
{
protected:
    CurrentEditorTest()
        : item(addItem())
        , other(addItem())
        , current(std::make_unique<CurrentEditor>())
    {
    }

    DXFGraphicsItem* addItem()
    {
        auto* added = new DXFGraphicsItem;
        added->setDocument(makeDocument({makePolyline({{0, 0}, {10, 0}})}));
        scene.addItem(added);
        return added;
    }

    QGraphicsScene scene;
    DXFGraphicsItem* item;
    DXFGraphicsItem* other;
    QObject owner;
    QObject otherOwner;
    std::unique_ptr<CurrentEditor> current;
};

TEST_F(CurrentEditorTest, HasNoOwnerAtFirst)
{
    EXPECT_FALSE(current->isOf(owner));
    current->end();
    EXPECT_FALSE(current->isOf(owner));
}

TEST_F(CurrentEditorTest, BeginsForItsOwner)
{
    const DXFEditor* editor = current->begin(*item, owner);

    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->scene(), &scene);
    EXPECT_TRUE(current->isOf(owner));
    EXPECT_FALSE(current->isOf(otherOwner));
}

TEST_F(CurrentEditorTest, EndDestroysTheEditor)
{
    const QPointer<DXFEditor> editor = current->begin(*item, owner);

    current->end();

    EXPECT_EQ(editor, nullptr);
    EXPECT_FALSE(current->isOf(owner));
    EXPECT_FALSE(item->isEnabled());
}

TEST_F(CurrentEditorTest, DestructionEndsEditMode)
{
    const QPointer<DXFEditor> editor = current->begin(*item, owner);

    current.reset();

    EXPECT_EQ(editor, nullptr);
}

TEST_F(CurrentEditorTest, LaterEditorReplacesTheFormerOne)
{
    const QPointer<DXFEditor> former = current->begin(*item, owner);

    const QPointer<DXFEditor> later = current->begin(*other, otherOwner);

    EXPECT_EQ(former, nullptr);
    EXPECT_NE(later, nullptr);
    EXPECT_FALSE(current->isOf(owner));
    EXPECT_TRUE(current->isOf(otherOwner));
}

TEST_F(CurrentEditorTest, EditorMayBeDestroyedByItsScene)
{
    const QPointer<DXFEditor> editor = current->begin(*item, owner);

    scene.clear();

    EXPECT_FALSE(current->isOf(owner));
    current->end();
}

TEST_F(CurrentEditorTest, EndOfTheFormerSeesTheLaterOwner)
{
    const QPointer<DXFEditor> former = current->begin(*item, owner);
    bool found = false;
    QObject::connect(former, &QObject::destroyed, qApp, [&] { found = current->isOf(otherOwner); });

    current->begin(*other, otherOwner);

    EXPECT_TRUE(found);
}

TEST_F(CurrentEditorTest, EndOfTheFormerMayEndTheLaterOne)
{
    const QPointer<DXFEditor> former = current->begin(*item, owner);
    QObject::connect(former, &QObject::destroyed, qApp, [this] { current->end(); });

    EXPECT_EQ(current->begin(*other, otherOwner), nullptr);

    EXPECT_EQ(former, nullptr);
    EXPECT_FALSE(current->isOf(otherOwner));
    EXPECT_THAT(scene.items(), SizeIs(2));
}

TEST_F(CurrentEditorTest, EndOfTheFormerMayDestroyTheLaterOne)
{
    const QPointer<DXFEditor> former = current->begin(*item, owner);
    QObject::connect(former, &QObject::destroyed, qApp, [this] { scene.clear(); });

    EXPECT_EQ(current->begin(*other, otherOwner), nullptr);
}

TEST_F(CurrentEditorTest, EndOfTheFormerMayBeginAThirdOne)
{
    const QPointer<DXFEditor> former = current->begin(*item, owner);
    QPointer<DXFEditor> third;
    QObject::connect(former, &QObject::destroyed, qApp,
                     [&] { third = current->begin(*item, owner); });

    EXPECT_EQ(current->begin(*other, otherOwner), nullptr);

    EXPECT_NE(third, nullptr);
    EXPECT_TRUE(current->isOf(owner));
}

TEST_F(CurrentEditorTest, EndMayBeCalledInsideEnd)
{
    const QPointer<DXFEditor> editor = current->begin(*item, owner);
    QObject::connect(editor, &QObject::destroyed, qApp, [this] { current->end(); });

    current->end();

    EXPECT_EQ(editor, nullptr);
}

TEST_F(CurrentEditorTest, ItemMayBeDeletedWhileTheEditorLogsItsCreation)
{
    const AtMessage end("DXFEditor created ", [this] { delete item; });

    EXPECT_EQ(current->begin(*item, owner), nullptr);

    EXPECT_FALSE(current->isOf(owner));
    EXPECT_THAT(scene.items(), ElementsAre(other));
    EXPECT_THAT(takeWarnings(), SizeIs(1)) << "its tool was never made";
}

TEST_F(CurrentEditorTest, EditorEndedInAMoveOfItsStackHasNoOwner)
{
    QPointer<DXFEditor> editor = current->begin(*item, owner);
    QObject::connect(editor->stack(), &QUndoStack::indexChanged, qApp, [&] {
        current->end();
        EXPECT_NE(editor, nullptr);
        EXPECT_FALSE(current->isOf(owner));
        EXPECT_EQ(editor->scene(), nullptr);
    });

    editor->stack()->push(new QUndoCommand);

    QCoreApplication::processEvents();
    EXPECT_EQ(editor, nullptr);
}

} // namespace
