// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/DXFEditor.h"
#include "dxfviewer/edit/ISelectionTool.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/render/DXFGraphicsItem.h"
#include "dxfviewer/viewer/DXFViewer.h"
#include "dxfviewer/viewer/View.h"

#include "tests/support/AtMessage.h"
#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"
#include "tests/support/SceneMouse.h"
#include "tests/support/ToolAccess.h"
#include "tests/support/WindowParts.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QGraphicsEllipseItem>
#include <QGraphicsScene>
#include <QPointer>
#include <QProcess>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QUndoGroup>
#include <QUndoStack>
#include <QUndoView>

#include <functional>
#include <memory>
#include <utility>

using namespace dxftest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace
{

const QByteArray drawing = drawingText({
    {{{0, 0}, {400, 0}}, false},
    {{{0, 100}, {400, 100}}, false},
    {{{0, 200}, {400, 200}}, false},
});
const QByteArray otherDrawing = drawingText({{{{0, 0}, {10, 10}}, false}});

/// Two windows with a drawing each.
class EditModeTest : public LoggedTest
{
protected:
    EditModeTest()
        : window(std::make_unique<DXFViewer>())
        , second(std::make_unique<DXFViewer>())
    {
    }

    void SetUp() override
    {
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get(), patienceMs));
        ASSERT_TRUE(loadAndShow(*window, drawing));
        ASSERT_TRUE(loadAndShow(*second, drawing));
        takeDebugMessages();
    }

    void toggle(DXFViewer& which, bool on)
    {
        ASSERT_TRUE(QMetaObject::invokeMethod(&which, "on_actionEdit_dxf_toggled",
                                              Qt::DirectConnection, Q_ARG(bool, on)));
    }

    QPointer<DXFEditor> startEditing()
    {
        editActionOf(*window).setChecked(true);
        return editorsOf(*window).value(0);
    }

    /// The actions in the tool bar after the window's own four.
    QStringList addedActions(const DXFViewer& which) const
    {
        QStringList texts;
        const auto actions = toolBarOf(which).actions().mid(4);
        for (const QAction* action : actions)
            texts.append(action->text());
        return texts;
    }

    QPoint scrolled() const
    {
        return {viewOf(*window).horizontalScrollBar()->value(),
                viewOf(*window).verticalScrollBar()->value()};
    }

    void dragWithControl(const QVector<QPointF>& points)
    {
        View& view = viewOf(*window);
        SceneMouse mouse(view);
        mouse.modifiers = Qt::ControlModifier;
        QTest::keyPress(&view, Qt::Key_Control, Qt::ControlModifier);
        mouse.drag(points);
        QTest::keyRelease(&view, Qt::Key_Control);
    }

    void eraseFirstLine() { SceneMouse(viewOf(*window)).drag({{200, 30}, {200, 0}}); }

    qsizetype entityCount() const { return shownDocument(*window)->entities().size(); }

    std::unique_ptr<DXFViewer> window;
    std::unique_ptr<DXFViewer> second;
    const QStringList undoAndRedo{QStringLiteral("Undo"), QStringLiteral("Redo")};
};

// On and off

TEST_F(EditModeTest, OnPutsAnEditorOverTheItem)
{
    editActionOf(*window).trigger();

    ASSERT_THAT(editorsOf(*window), SizeIs(1));
    EXPECT_THAT(takeDebugMessages(), ElementsAre(QStringLiteral("DXFEditor created ")));
    EXPECT_EQ(entityCount(), 3);
}

TEST_F(EditModeTest, OnAddsUndoAndRedoToTheToolBar)
{
    const QPointer<DXFEditor> editor = startEditing();

    EXPECT_EQ(addedActions(*window), undoAndRedo);
    const auto actions = toolBarOf(*window).actions();
    EXPECT_EQ(actions[4]->parent(), editor);
    EXPECT_EQ(actions[5]->parent(), editor);
    EXPECT_FALSE(actions[4]->isEnabled());
    EXPECT_FALSE(actions[5]->isEnabled());
}

TEST_F(EditModeTest, OnPointsTheUndoViewAtTheStack)
{
    const QPointer<DXFEditor> editor = startEditing();

    int bound = 0;
    const auto widgets = QApplication::allWidgets();
    for (const QWidget* widget : widgets) {
        const auto* view = qobject_cast<const QUndoView*>(widget);
        bound += view && view->stack() == editor->stack();
    }
    EXPECT_EQ(bound, 1);
}

TEST_F(EditModeTest, ActionsUndoAndRedoTheStrokes)
{
    startEditing();
    eraseFirstLine();
    EXPECT_EQ(entityCount(), 2);
    const auto actions = toolBarOf(*window).actions();
    ASSERT_THAT(actions, SizeIs(6));

    EXPECT_TRUE(actions[4]->isEnabled());
    actions[4]->trigger();
    EXPECT_EQ(entityCount(), 3);
    actions[5]->trigger();
    EXPECT_EQ(entityCount(), 2);
    EXPECT_EQ(addedActions(*window), undoAndRedo) << "the commands have no text";
}

TEST_F(EditModeTest, OffEndsTheEditorAndKeepsTheEdits)
{
    const QPointer<DXFEditor> editor = startEditing();
    eraseFirstLine();

    editActionOf(*window).setChecked(false);

    EXPECT_EQ(editor, nullptr);
    EXPECT_THAT(addedActions(*window), IsEmpty());
    EXPECT_THAT(sceneOf(*window).items(), SizeIs(1)) << "overlay and marker are gone";
    EXPECT_FALSE(itemsOf(*window).first()->isEnabled());
    EXPECT_EQ(entityCount(), 2);
}

TEST_F(EditModeTest, EditedDrawingCanBeTakenAfterwards)
{
    startEditing();
    eraseFirstLine();
    const QByteArray during = window->getData();
    editActionOf(*window).setChecked(false);

    EXPECT_EQ(window->getData(), during);
    EXPECT_EQ(during.count("VERTEX"), 4);
}

TEST_F(EditModeTest, HistoryStartsEmptyAgain)
{
    startEditing();
    eraseFirstLine();
    editActionOf(*window).setChecked(false);

    const QPointer<DXFEditor> editor = startEditing();

    EXPECT_EQ(editor->stack()->count(), 0);
    EXPECT_FALSE(toolBarOf(*window).actions().value(4)->isEnabled());
}

TEST_F(EditModeTest, OnTwiceLeavesOneEditorAndOnePairOfActions)
{
    toggle(*window, true);
    const QPointer<DXFEditor> first = editorsOf(*window).value(0);

    toggle(*window, true);

    EXPECT_EQ(first, nullptr);
    EXPECT_THAT(editorsOf(*window), SizeIs(1));
    EXPECT_EQ(addedActions(*window), undoAndRedo);
}

TEST_F(EditModeTest, OffTwiceIsHarmless)
{
    startEditing();
    toggle(*window, false);
    toggle(*window, false);

    EXPECT_THAT(editorsOf(*window), IsEmpty());
}

TEST_F(EditModeTest, SlotDoesNotChangeTheAction)
{
    startEditing();

    toggle(*window, false);

    EXPECT_TRUE(editActionOf(*window).isChecked());
}

TEST_F(EditModeTest, WithoutADrawingNoEditorStarts)
{
    DXFViewer empty;

    editActionOf(empty).setChecked(true);

    EXPECT_TRUE(editActionOf(empty).isChecked());
    EXPECT_THAT(editorsOf(empty), IsEmpty());
    EXPECT_THAT(addedActions(empty), IsEmpty());
    EXPECT_THAT(takeDebugMessages(), IsEmpty());
}

TEST_F(EditModeTest, SwitchingOnWithoutADrawingEndsTheOtherEditor)
{
    DXFViewer empty;
    const QPointer<DXFEditor> editor = startEditing();

    editActionOf(empty).setChecked(true);

    EXPECT_EQ(editor, nullptr);
}

// Together with hand-drag

TEST_F(EditModeTest, LeftDragErasesAlsoWhileControlIsHeld)
{
    startEditing();
    const QPoint before = scrolled();

    dragWithControl({{200, 30}, {200, 0}});

    EXPECT_EQ(entityCount(), 2);
    EXPECT_EQ(scrolled(), before);
}

TEST_F(EditModeTest, DrawingTakesLeftDragsAfterEditMode)
{
    const QPoint before = scrolled();
    startEditing();
    editActionOf(*window).setChecked(false);

    dragWithControl({{200, 30}, {200, 0}});
    EXPECT_EQ(scrolled(), before) << "a drag that begins on the drawing does not pan";
    EXPECT_EQ(entityCount(), 3);

    dragWithControl({{200, -5}, {200, -50}});
    EXPECT_NE(scrolled(), before) << "one that begins beside it does";
}

TEST_F(EditModeTest, PlainWheelScrollsOverTheDrawingOnly)
{
    startEditing();
    const QPoint before = scrolled();
    SceneMouse mouse(viewOf(*window));

    mouse.wheel({200, -5}, 120);
    EXPECT_EQ(scrolled(), before);

    mouse.wheel({200, 100}, 120);
    EXPECT_NE(scrolled(), before);
}

TEST_F(EditModeTest, AfterAClickArrowKeysGoToTheEraser)
{
    startEditing();
    View& view = viewOf(*window);
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get(), patienceMs));
    const QPoint before = scrolled();
    QTest::keyClick(&view, Qt::Key_Down);
    const QPoint after = scrolled();
    EXPECT_NE(after, before);

    SceneMouse(view).drag({{200, 50}});
    QTest::keyClick(&view, Qt::Key_Down);

    EXPECT_EQ(scrolled(), after);
}

// There is one editor in the whole process

TEST_F(EditModeTest, EditModeInTheSecondWindowEndsTheFirstEditor)
{
    const QPointer<DXFEditor> editor = startEditing();

    editActionOf(*second).setChecked(true);

    EXPECT_EQ(editor, nullptr);
    EXPECT_THAT(addedActions(*window), IsEmpty());
    EXPECT_EQ(addedActions(*second), undoAndRedo);
    EXPECT_TRUE(editActionOf(*window).isChecked()) << "its action is not changed back";
}

TEST_F(EditModeTest, SwitchingOffInAnotherWindowEndsTheEditor)
{
    const QPointer<DXFEditor> editor = startEditing();

    toggle(*second, false);

    EXPECT_EQ(editor, nullptr);
}

TEST_F(EditModeTest, DestroyingAnyWindowEndsTheEditor)
{
    const QPointer<DXFEditor> editor = startEditing();

    second.reset();

    EXPECT_EQ(editor, nullptr);
    EXPECT_THAT(sceneOf(*window).items(), SizeIs(1));
}

TEST_F(EditModeTest, ClosingAWindowThatIsThenDestroyedEndsTheEditor)
{
    const QPointer<DXFEditor> editor = startEditing();
    const QPointer<DXFViewer> closed = second.release();
    closed->setAttribute(Qt::WA_DeleteOnClose);

    closed->close();

    EXPECT_TRUE(eventually([&] { return closed.isNull(); }));
    EXPECT_EQ(editor, nullptr);
}

TEST_F(EditModeTest, ClosingAWindowThatIsKeptLeavesTheEditor)
{
    const QPointer<DXFEditor> editor = startEditing();

    second->close();

    EXPECT_NE(editor, nullptr);
}

TEST_F(EditModeTest, DestroyedWindowDestroysItsEditor)
{
    const QPointer<DXFEditor> editor = startEditing();
    eraseFirstLine();

    window.reset();

    EXPECT_EQ(editor, nullptr);
    editActionOf(*second).setChecked(true);
    EXPECT_THAT(editorsOf(*second), SizeIs(1));
}

// Loading while editing

TEST_F(EditModeTest, LoadEndsEditModeAndUnchecksTheAction)
{
    const QPointer<DXFEditor> editor = startEditing();

    ASSERT_TRUE(loadAndShow(*window, otherDrawing));

    EXPECT_EQ(editor, nullptr);
    EXPECT_FALSE(editActionOf(*window).isChecked());
    EXPECT_THAT(addedActions(*window), IsEmpty());
    EXPECT_TRUE(itemsOf(*window).first()->isEnabled());
}

TEST_F(EditModeTest, EditorWorksOnTheOldDrawingUntilTheNewOneIsShown)
{
    startEditing();
    const auto old = shownDocument(*window);

    window->loadData(otherDrawing);
    eraseFirstLine();

    EXPECT_THAT(old->entities(), SizeIs(2));
    EXPECT_EQ(window->getData().count("VERTEX"), 2);
    EXPECT_TRUE(eventually([&] { return shownDocument(*window) != old; }));
}

TEST_F(EditModeTest, LoadInTheMiddleOfAStrokeErasesNothingInTheNewDrawing)
{
    startEditing();
    SceneMouse mouse(viewOf(*window));
    mouse.press({200, 30});
    mouse.move({200, 0});

    ASSERT_TRUE(loadAndShow(*window, otherDrawing));
    mouse.move({5, 5});
    mouse.release({5, 5});

    EXPECT_EQ(entityCount(), 1);
}

TEST_F(EditModeTest, LoadInAnotherWindowLeavesTheEditor)
{
    const QPointer<DXFEditor> editor = startEditing();

    ASSERT_TRUE(loadAndShow(*second, otherDrawing));

    EXPECT_NE(editor, nullptr);
    EXPECT_TRUE(editActionOf(*window).isChecked());
}

TEST_F(EditModeTest, LoadLeavesTheActionIfAnotherWindowHasEditMode)
{
    startEditing();
    editActionOf(*second).setChecked(true);

    ASSERT_TRUE(loadAndShow(*window, otherDrawing));

    EXPECT_THAT(editorsOf(*second), SizeIs(1));
    EXPECT_TRUE(editActionOf(*window).isChecked());
}

TEST_F(EditModeTest, LoadEndsEditModeWhoseItemIsDeleted)
{
    const QPointer<DXFEditor> editor = startEditing();
    delete itemsOf(*window).first();

    ASSERT_TRUE(loadAndShow(*window, otherDrawing));

    EXPECT_EQ(editor, nullptr);
    EXPECT_FALSE(editActionOf(*window).isChecked());
    EXPECT_THAT(addedActions(*window), IsEmpty());
}

TEST_F(EditModeTest, LoadEndsEditModeWhoseItemIsInNoScene)
{
    const QPointer<DXFEditor> editor = startEditing();
    sceneOf(*window).removeItem(itemsOf(*window).first());

    ASSERT_TRUE(loadAndShow(*window, otherDrawing));

    EXPECT_EQ(editor, nullptr);
    EXPECT_FALSE(editActionOf(*window).isChecked());
}

TEST_F(EditModeTest, LoadInAWindowOnTheSameSceneLeavesTheEditor)
{
    const QPointer<DXFEditor> editor = startEditing();
    viewOf(*second).setScene(&sceneOf(*window));

    second->loadData(otherDrawing);
    ASSERT_TRUE(eventually([this] { return itemsOf(*window).size() == 2; }));

    EXPECT_NE(editor, nullptr);
    EXPECT_TRUE(editActionOf(*window).isChecked());
}

TEST_F(EditModeTest, WindowMayBeDestroyedWhenALoadEndsEditMode)
{
    const QPointer<DXFEditor> editor = startEditing();
    QObject::connect(&editActionOf(*window), &QAction::toggled, qApp, [this] { window.reset(); });

    window->loadData(otherDrawing);

    EXPECT_TRUE(eventually([this] { return !window; }));
    EXPECT_EQ(editor, nullptr);
}

TEST_F(EditModeTest, OtherWindowMayBeEditedWhenALoadEndsEditMode)
{
    startEditing();
    QObject::connect(&editActionOf(*window), &QAction::toggled, &editActionOf(*second),
                     &QAction::toggle);

    ASSERT_TRUE(loadAndShow(*window, otherDrawing));

    EXPECT_THAT(editorsOf(*second), SizeIs(1));
}

TEST_F(EditModeTest, LoadEndsEditModeThatASlotSwitchesOnAgain)
{
    startEditing();
    QObject::connect(&editActionOf(*window), &QAction::toggled, window.get(), [this](bool on) {
        if (!on)
            editActionOf(*window).setChecked(true);
    });

    ASSERT_TRUE(loadAndShow(*window, otherDrawing));

    EXPECT_THAT(editorsOf(*window), IsEmpty());
    EXPECT_THAT(addedActions(*window), IsEmpty());
}

TEST_F(EditModeTest, EditModeMayStartAgainAfterALoad)
{
    startEditing();
    ASSERT_TRUE(loadAndShow(*window, otherDrawing));

    EXPECT_NE(startEditing(), nullptr);
    EXPECT_EQ(addedActions(*window), undoAndRedo);
}

// The window is destroyed, or edit mode ends, in the middle of an event

TEST_F(EditModeTest, WindowMayBeDestroyedAtATick)
{
    const QPointer<DXFEditor> editor = startEditing();
    const QPointer<DXFViewer> watched = window.get();
    QObject::connect(editor->stack(), &QUndoStack::indexChanged, window.get(), [this] {
        if (window)
            window.release()->deleteLater();
    });
    SceneMouse mouse(viewOf(*window));
    mouse.press({200, 30});
    mouse.move({200, 0});

    EXPECT_TRUE(eventually([&] { return watched.isNull(); }));

    EXPECT_EQ(editor, nullptr);
}

/// Runs an action inside the next tick of the tool's timer.
class AtNextTick : public QObject
{
public:
    explicit AtNextTick(std::function<void()> action)
        : m_action(std::move(action))
    {
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* timer = qobject_cast<QTimer*>(watched);
        if (event->type() == QEvent::Timer && timer && timer->interval() == 50 && m_action) {
            // The action runs in the same signal, after the tool's own slot.
            QObject::connect(timer, &QTimer::timeout, std::exchange(m_action, nullptr));
        }
        return false;
    }

private:
    std::function<void()> m_action;
};

TEST_F(EditModeTest, WindowMayBeDestroyedInsideATick)
{
    const QPointer<DXFEditor> editor = startEditing();
    const QPointer<DXFViewer> watched = window.get();
    AtNextTick atNextTick([this] { window.reset(); });
    qApp->installEventFilter(&atNextTick);
    SceneMouse mouse(viewOf(*window));
    mouse.press({200, 30});
    mouse.move({200, 0});

    EXPECT_TRUE(eventually([&] { return watched.isNull(); }));

    EXPECT_EQ(editor, nullptr);
}

TEST_F(EditModeTest, EditModeMayEndInsideAStroke)
{
    const QPointer<DXFEditor> editor = startEditing();
    SceneMouse mouse(viewOf(*window));
    mouse.press({200, 30});
    mouse.move({200, 0});

    editActionOf(*window).setChecked(false);
    mouse.move({200, 100});
    mouse.release({200, 100});

    EXPECT_EQ(entityCount(), 3);
    EXPECT_EQ(editor, nullptr);
}

/// A host that opens a dialog from a slot, once.
class DialogInSlot
{
public:
    void ask()
    {
        if (std::exchange(m_wasOpen, true))
            return;
        QDialog dialog;
        QTimer::singleShot(120, &dialog, &QDialog::accept);
        dialog.exec();
        m_isAnswered = true;
    }

    bool isAnswered() const { return m_isAnswered; }

private:
    bool m_wasOpen = false;
    bool m_isAnswered = false;
};

TEST_F(EditModeTest, DialogMayOpenAtADeleteRequest)
{
    const QPointer<DXFEditor> editor = startEditing();
    DialogInSlot dialog;
    QObject::connect(toolOf(*editor), &ISelectionTool::requestDelete, window.get(),
                     [&] { dialog.ask(); });
    QSignalSpy commands(editor->stack(), &QUndoStack::indexChanged);
    SceneMouse mouse(viewOf(*window));
    mouse.press({200, 30});
    mouse.move({200, 0});
    ASSERT_TRUE(eventually([&] { return dialog.isAnswered(); }));
    ASSERT_EQ(commands.count(), 1);

    mouse.move({200, 100});

    EXPECT_TRUE(commands.wait(patienceMs)) << "the eraser's timer goes on";
    mouse.release({200, 100});
    EXPECT_EQ(entityCount(), 1);
}

TEST_F(EditModeTest, LoadAndDialogMayComeAtADeleteRequest)
{
    const QPointer<DXFEditor> editor = startEditing();
    DialogInSlot dialog;
    QObject::connect(toolOf(*editor), &ISelectionTool::requestDelete, window.get(), [&] {
        window->loadData(otherDrawing);
        dialog.ask();
    });
    SceneMouse mouse(viewOf(*window));
    mouse.press({200, 30});
    mouse.move({200, 0});

    ASSERT_TRUE(eventually([&] { return editor.isNull(); }));

    EXPECT_TRUE(dialog.isAnswered());
    EXPECT_EQ(entityCount(), 1);
}

TEST_F(EditModeTest, DialogMayOpenWhenTheStackMoves)
{
    const QPointer<DXFEditor> editor = startEditing();
    DialogInSlot dialog;
    QSignalSpy commands(editor->stack(), &QUndoStack::indexChanged);
    QObject::connect(editor->stack(), &QUndoStack::indexChanged, window.get(),
                     [&] { dialog.ask(); });
    SceneMouse mouse(viewOf(*window));
    mouse.press({200, 30});
    mouse.move({200, 0});
    ASSERT_TRUE(eventually([&] { return dialog.isAnswered(); }));

    mouse.move({200, 100});

    EXPECT_TRUE(commands.wait(patienceMs));
    mouse.release({200, 100});
    EXPECT_EQ(entityCount(), 1);
}

/// Edit mode ends while the undo stack moves: in a slot of one of its signals. A user's undo comes
/// from the event loop.
class MovingStackTest : public EditModeTest
{
protected:
    void endWhenTheStackMoves(const std::function<void()>& end)
    {
        editor = startEditing();
        stack = editor->stack();
        eraseFirstLine();
        QObject::connect(stack, &QUndoStack::indexChanged, qApp, end);
        QTimer::singleShot(0, toolBarOf(*window).actions().value(4), &QAction::trigger);
        runUntilTheEditorIsGone();
    }

    QPointer<DXFEditor> editor;
    QPointer<QUndoStack> stack;

private:
    /// Runs a QEventLoop as a program does. eventually() only processes events, which is not enough
    /// for deleteLater().
    void runUntilTheEditorIsGone()
    {
        QEventLoop loop;
        QObject::connect(editor, &QObject::destroyed, &loop, &QEventLoop::quit);
        QTimer::singleShot(patienceMs, &loop, &QEventLoop::quit);
        loop.exec();
        EXPECT_EQ(editor, nullptr) << "it did not go";
    }
};

TEST_F(MovingStackTest, SwitchingOffEndsTheEditorAfterTheMove)
{
    endWhenTheStackMoves([this] {
        editActionOf(*window).setChecked(false);
        EXPECT_THAT(editorsOf(*window), IsEmpty());
        EXPECT_THAT(toolBarOf(*window).actions(), SizeIs(4));
        EXPECT_FALSE(itemsOf(*window).first()->isEnabled());
        EXPECT_NE(stack, nullptr) << "it is not done with its move";
    });

    EXPECT_EQ(stack, nullptr);
    EXPECT_EQ(entityCount(), 3);
}

TEST_F(MovingStackTest, SwitchingOffTwiceIsHarmless)
{
    endWhenTheStackMoves([this] {
        toggle(*window, false);
        toggle(*window, false);
    });

    EXPECT_THAT(editorsOf(*window), IsEmpty());
}

TEST_F(MovingStackTest, SwitchingOnAgainMakesANewEditor)
{
    endWhenTheStackMoves([this] { toggle(*window, true); });

    EXPECT_THAT(editorsOf(*window), SizeIs(1));
    EXPECT_THAT(toolBarOf(*window).actions(), SizeIs(6));
}

TEST_F(MovingStackTest, SwitchingOffInTheHostsOwnLoopKeepsTheStackDuringTheMove)
{
    const QPointer<DXFEditor> overlay = startEditing();
    const QPointer<QUndoStack> moving = overlay->stack();
    QObject::connect(moving, &QUndoStack::indexChanged, qApp, [&] {
        editActionOf(*window).setChecked(false);
        QCoreApplication::processEvents();
        EXPECT_NE(moving, nullptr) << "it is not done with its move";
    });

    eraseFirstLine();

    EXPECT_TRUE(eventually([&] { return overlay.isNull(); }));
    EXPECT_EQ(entityCount(), 2);
}

TEST_F(MovingStackTest, SwitchingOffDuringTheHostsUndoKeepsTheStackDuringTheMove)
{
    const QPointer<DXFEditor> overlay = startEditing();
    const QPointer<QUndoStack> moving = overlay->stack();
    eraseFirstLine();
    QObject::connect(moving, &QUndoStack::redoTextChanged, qApp, [&] {
        editActionOf(*window).setChecked(false);
        QCoreApplication::processEvents();
        EXPECT_NE(moving, nullptr);
    });

    moving->undo();

    EXPECT_TRUE(eventually([&] { return overlay.isNull(); }));
    EXPECT_EQ(entityCount(), 3);
}

TEST_F(MovingStackTest, SwitchingOffAtCleanChangedEndsTheEditor)
{
    const QPointer<DXFEditor> overlay = startEditing();
    QObject::connect(overlay->stack(), &QUndoStack::cleanChanged, qApp, [&] {
        editActionOf(*window).setChecked(false);
        QCoreApplication::processEvents();
    });

    eraseFirstLine();

    EXPECT_EQ(overlay, nullptr);
}

TEST_F(MovingStackTest, SwitchingOffInANestedMoveKeepsTheStackDuringBothMoves)
{
    const QPointer<DXFEditor> overlay = startEditing();
    const QPointer<QUndoStack> moving = overlay->stack();
    int depth = 0;
    QObject::connect(moving, &QUndoStack::indexChanged, qApp, [&] {
        if (depth++ == 0)
            moving->undo();
        else
            editActionOf(*window).setChecked(false);
        QCoreApplication::processEvents();
        EXPECT_NE(moving, nullptr);
    });

    eraseFirstLine();

    EXPECT_EQ(depth, 2);
    EXPECT_TRUE(eventually([&] { return overlay.isNull(); }));
    EXPECT_EQ(entityCount(), 3);
}

TEST_F(MovingStackTest, SwitchingOffInAMoveInADialogOfAMoveKeepsTheStack)
{
    DialogInSlot dialog;
    int moves = 0;

    endWhenTheStackMoves([&] {
        if (++moves == 1) {
            QTimer::singleShot(0, stack, &QUndoStack::redo);
            dialog.ask();
        } else {
            toggle(*window, false);
        }
        EXPECT_NE(stack, nullptr) << "it is not done with its moves";
    });

    EXPECT_EQ(moves, 2);
    EXPECT_TRUE(dialog.isAnswered());
    EXPECT_EQ(entityCount(), 2);
}

TEST_F(MovingStackTest, ToolIsDestroyedAtOnceWhenTheEditorMustWait)
{
    endWhenTheStackMoves([this] {
        const QPointer<ISelectionTool> tool = toolOf(*editor);
        ASSERT_NE(tool, nullptr);

        toggle(*window, false);

        EXPECT_NE(editor, nullptr);
        EXPECT_EQ(tool, nullptr) << "it would go on asking for deletions";
    });
}

TEST_F(MovingStackTest, MoveWithinTheLastSignalOfAMoveIsCounted)
{
    const QPointer<DXFEditor> overlay = startEditing();
    eraseFirstLine();
    bool hasMoved = false;
    QObject::connect(overlay->stack(), &QUndoStack::redoTextChanged, qApp, [&] {
        if (!std::exchange(hasMoved, true))
            overlay->stack()->redo();
    });
    overlay->stack()->undo();

    editActionOf(*window).setChecked(false);

    EXPECT_EQ(overlay, nullptr) << "both moves are over";
    EXPECT_EQ(entityCount(), 2);
}

TEST_F(MovingStackTest, SwitchingOffInAMacroOfTheHostKeepsTheStack)
{
    const QPointer<DXFEditor> overlay = startEditing();
    const QPointer<QUndoStack> moving = overlay->stack();
    eraseFirstLine();
    moving->beginMacro(QString());
    QObject::connect(moving, &QUndoStack::indexChanged, qApp, [&] {
        editActionOf(*window).setChecked(false);
        QCoreApplication::processEvents();
        EXPECT_NE(moving, nullptr);
    });

    moving->endMacro();

    EXPECT_TRUE(eventually([&] { return overlay.isNull(); }));
}

TEST_F(MovingStackTest, EndedEditorHasNothingToRedo)
{
    QUndoGroup group;
    endWhenTheStackMoves([&] {
        group.addStack(stack);
        group.setActiveStack(stack);
        editActionOf(*window).setChecked(false);
        EXPECT_EQ(group.activeStack(), nullptr);
        EXPECT_EQ(stack->count(), 0);
        group.setActiveStack(stack);
        group.redo();
        EXPECT_EQ(entityCount(), 3);
    });

    EXPECT_EQ(entityCount(), 3);
}

TEST_F(MovingStackTest, AfterAMoveTheEditorIsDestroyedAtOnce)
{
    const QPointer<DXFEditor> overlay = startEditing();
    eraseFirstLine();
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        overlay->stack()->undo();
        editActionOf(*window).setChecked(false);
        EXPECT_EQ(overlay, nullptr);
        loop.quit();
    });

    loop.exec();
}

TEST_F(MovingStackTest, DestroyingTheWindowDestroysTheStackAfterTheMove)
{
    endWhenTheStackMoves([this] { window.reset(); });

    EXPECT_EQ(stack, nullptr);
}

TEST_F(MovingStackTest, ALoadInADialogKeepsTheStackDuringTheMove)
{
    DialogInSlot dialog;
    const auto old = shownDocument(*window);

    endWhenTheStackMoves([&] {
        window->loadData(otherDrawing);
        dialog.ask();
        EXPECT_NE(shownDocument(*window), old);
        EXPECT_NE(stack, nullptr);
    });

    EXPECT_EQ(entityCount(), 1);
}

TEST_F(MovingStackTest, DialogsLoopDoesNotDestroyTheStack)
{
    DialogInSlot dialog;

    endWhenTheStackMoves([&] {
        toggle(*window, false);
        dialog.ask();
        EXPECT_NE(stack, nullptr);
    });

    EXPECT_TRUE(dialog.isAnswered());
}

// A host that deletes or changes the window's parts

class MeddlingTest : public EditModeTest
{
protected:
    /// Uses both windows afterwards, and destroys the first. Nothing may crash or warn.
    void goOn()
    {
        if (auto* view = window->findChild<View*>())
            SceneMouse(*view).drag({{200, 30}, {200, 0}});
        editActionOf(*window).setChecked(false);
        editActionOf(*window).setChecked(true);
        editActionOf(*second).setChecked(true);
        editActionOf(*second).setChecked(false);
        window->loadData(otherDrawing);
        QMetaObject::invokeMethod(window.get(), "postLoad", Qt::DirectConnection);
        EXPECT_EQ(window->getData().count("VERTEX"), 2);
        window.reset();
        QCoreApplication::processEvents();
    }
};

TEST_F(MeddlingTest, ViewMayBeDeletedInEditMode)
{
    const QPointer<DXFEditor> editor = startEditing();

    delete &viewOf(*window);

    EXPECT_EQ(editor, nullptr);
    EXPECT_THAT(addedActions(*window), IsEmpty());
    goOn();
}

TEST_F(MeddlingTest, ItemMayBeDeletedInEditMode)
{
    startEditing();
    eraseFirstLine();

    delete itemsOf(*window).first();

    QCoreApplication::processEvents();
    goOn();
}

TEST_F(MeddlingTest, EditorMayBeDeletedByTheHost)
{
    const QPointer<DXFEditor> editor = startEditing();
    eraseFirstLine();

    delete editor;

    EXPECT_THAT(addedActions(*window), IsEmpty());
    goOn();
}

TEST_F(MeddlingTest, SceneMayBeClearedInEditMode)
{
    const QPointer<DXFEditor> editor = startEditing();
    eraseFirstLine();

    sceneOf(*window).clear();

    EXPECT_EQ(editor, nullptr);
    goOn();
}

/// Switches a window's edit mode off when the watched undo stack is destroyed.
class SwitchesOff : public QUndoGroup
{
public:
    SwitchesOff(QUndoStack* stack, QAction& action)
    {
        addStack(stack);
        setActiveStack(stack);
        connect(this, &QUndoGroup::activeStackChanged, this, [&action, this] {
            action.setChecked(false);
            m_wasCalled = true;
        });
    }

    bool wasCalled() const { return m_wasCalled; }

private:
    bool m_wasCalled = false;
};

TEST_F(MeddlingTest, EndOfTheEditorMayEndEditMode)
{
    const QPointer<DXFEditor> editor = startEditing();
    eraseFirstLine();
    const SwitchesOff group(editor->stack(), editActionOf(*window));

    sceneOf(*window).clear();

    EXPECT_TRUE(group.wasCalled());
    EXPECT_EQ(editor, nullptr);
    goOn();
}

TEST_F(MeddlingTest, EndOfTheFormerEditorMayEndTheNewOne)
{
    const QPointer<DXFEditor> former = startEditing();
    const SwitchesOff group(former->stack(), editActionOf(*window));

    toggle(*second, true);

    EXPECT_TRUE(group.wasCalled());
    EXPECT_EQ(former, nullptr);
    EXPECT_THAT(editorsOf(*second), IsEmpty());
    EXPECT_THAT(addedActions(*second), IsEmpty());
    goOn();
}

/// Runs an action when the watched undo stack is destroyed.
class AtEndOf : public QUndoGroup
{
public:
    AtEndOf(QUndoStack* stack, const std::function<void()>& action)
    {
        addStack(stack);
        setActiveStack(stack);
        connect(this, &QUndoGroup::activeStackChanged, this, action);
    }
};

TEST_F(MeddlingTest, EndOfTheFormerEditorMayDeleteTheNewOne)
{
    const QPointer<DXFEditor> former = startEditing();
    QObject::connect(former, &QObject::destroyed, qApp, [this] { qDeleteAll(editorsOf(*second)); });

    toggle(*second, true);

    EXPECT_EQ(former, nullptr);
    EXPECT_THAT(editorsOf(*second), IsEmpty());
    EXPECT_THAT(addedActions(*second), IsEmpty());
    goOn();
}

TEST_F(MeddlingTest, EndOfTheFormerEditorMayClearTheSceneOfTheNewOne)
{
    const QPointer<DXFEditor> former = startEditing();
    const AtEndOf end(former->stack(), [this] { sceneOf(*second).clear(); });

    toggle(*second, true);

    EXPECT_EQ(former, nullptr);
    EXPECT_THAT(editorsOf(*second), IsEmpty());
    goOn();
}

TEST_F(MeddlingTest, EndOfTheFormerEditorMayDestroyTheWindowOfTheNewOne)
{
    const QPointer<DXFEditor> former = startEditing();
    QObject::connect(former, &QObject::destroyed, qApp, [this] { second.reset(); });

    toggle(*second, true);

    EXPECT_EQ(former, nullptr);
    EXPECT_EQ(second, nullptr);
}

TEST_F(MeddlingTest, ItemMayBeReplacedWhileAnEditorIsMade)
{
    window->loadData(otherDrawing);
    const AtMessage load("DXFEditor created ", [this] {
        EXPECT_TRUE(eventually([this] { return entityCount() == 1; }));
    });

    editActionOf(*window).setChecked(true);

    EXPECT_TRUE(load.hasActed());
    EXPECT_THAT(editorsOf(*window), IsEmpty()) << "there is nothing left that it could edit";
    EXPECT_THAT(addedActions(*window), IsEmpty());
    EXPECT_THAT(takeWarnings(), SizeIs(1)) << "its tool was never made";
    goOn();
}

TEST_F(MeddlingTest, AnotherWindowMayTakeEditModeWhileAnEditorIsMade)
{
    const AtMessage toggling("DXFEditor created ",
                             [this] { editActionOf(*second).setChecked(true); });

    editActionOf(*window).setChecked(true);

    EXPECT_TRUE(toggling.hasActed());
    EXPECT_THAT(editorsOf(*window), SizeIs(1));
    EXPECT_THAT(editorsOf(*second), IsEmpty()) << "the one that was made last is there";
    EXPECT_THAT(addedActions(*second), IsEmpty());
    goOn();
}

TEST_F(MeddlingTest, EndOfTheEditorMayDestroyTheWindow)
{
    const QPointer<DXFEditor> editor = startEditing();
    const AtEndOf end(editor->stack(), [this] { window.reset(); });

    editActionOf(*window).setChecked(false);

    EXPECT_EQ(window, nullptr);
    EXPECT_EQ(editor, nullptr);
}

TEST_F(MeddlingTest, EndOfTheEditorMayOpenADialogWhileTheMouseMoves)
{
    const QPointer<DXFEditor> editor = startEditing();
    eraseFirstLine();
    DialogInSlot dialog;
    const AtEndOf end(editor->stack(), [&] {
        SceneMouse(viewOf(*window)).drag({{200, 130}, {200, 100}});
        dialog.ask();
    });

    editActionOf(*window).setChecked(false);

    EXPECT_TRUE(dialog.isAnswered());
    EXPECT_EQ(editor, nullptr);
    EXPECT_EQ(entityCount(), 2) << "nothing more is erased";
    goOn();
}

TEST_F(MeddlingTest, LoadMayBeDueWhileTheViewIsDestroyed)
{
    const QPointer<DXFEditor> editor = startEditing();
    bool hasWaited = false;
    const AtEndOf end(editor->stack(), [&] {
        QTimer::singleShot(20, window.get(), [&] { hasWaited = true; });
        EXPECT_TRUE(eventually([&] { return hasWaited; }));
    });
    window->loadData(otherDrawing);

    delete &viewOf(*window);

    EXPECT_TRUE(hasWaited);
    EXPECT_EQ(window->getData().count("VERTEX"), 2);
    goOn();
}

TEST_F(MeddlingTest, UndoViewMayBeDeletedByTheHost)
{
    startEditing();
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (qobject_cast<QUndoView*>(widget))
            delete widget;
    }

    toggle(*window, true);

    EXPECT_EQ(addedActions(*window), undoAndRedo);
    goOn();
}

TEST_F(MeddlingTest, SceneMayBeClearedInTheMiddleOfAStroke)
{
    startEditing();
    SceneMouse mouse(viewOf(*window));
    mouse.press({200, 30});
    mouse.move({200, 0});

    sceneOf(*window).clear();
    mouse.move({200, 100});
    mouse.release({200, 100});

    goOn();
}

TEST_F(MeddlingTest, SceneMayBeDeletedInEditMode)
{
    startEditing();

    delete &sceneOf(*window);

    goOn();
}

TEST_F(MeddlingTest, ItemMayBeRemovedFromTheSceneInEditMode)
{
    startEditing();
    DXFGraphicsItem* item = itemsOf(*window).first();

    sceneOf(*window).removeItem(item);

    QCoreApplication::processEvents();
    goOn();
}

TEST_F(MeddlingTest, ToolBarMayBeDeletedInEditMode)
{
    startEditing();

    delete &toolBarOf(*window);

    goOn();
}

TEST_F(MeddlingTest, EditActionMayBeDeletedInEditMode)
{
    const QPointer<DXFEditor> editor = startEditing();

    delete &editActionOf(*window);
    ASSERT_TRUE(loadAndShow(*window, otherDrawing));

    EXPECT_EQ(editor, nullptr);
}

// Exit with a window left behind

class ExitTest : public LoggedTest, public ::testing::WithParamInterface<const char*>
{
};

TEST_P(ExitTest, LeakedWindowInTheMiddleOfAStrokeEndsCleanly)
{
    const QTemporaryDir runtimeFolder;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtimeFolder.path());
    QProcess host;
    host.setProcessEnvironment(environment);

    host.start(QStringLiteral(LEAKED_WINDOW_HOST), {QString::fromLatin1(GetParam())});

    ASSERT_TRUE(host.waitForFinished(patienceMs));
    EXPECT_EQ(host.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(host.exitCode(), 0);
    EXPECT_EQ(host.readAllStandardError(), QByteArray());
    EXPECT_EQ(host.readAllStandardOutput(), QByteArray());
}

INSTANTIATE_TEST_SUITE_P(Manners, ExitTest,
                         ::testing::Values("destroyed", "quit", "exit", "leaked", "second"),
                         [](const auto& manner) { return std::string(manner.param); });

} // namespace
