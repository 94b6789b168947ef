// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/DXFEditor.h"

#include "dxfviewer/edit/ISelectionTool.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/render/DXFGraphicsItem.h"

#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/Patience.h"
#include "tests/support/SceneMouse.h"
#include "tests/support/ToolAccess.h"

#include <gmock/gmock.h>

#include <QGraphicsEllipseItem>
#include <QGraphicsScene>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QImage>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <random>
#include <vector>

using namespace dxftest;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

namespace
{

/// Counts how often it is painted.
class CountingItem : public DXFGraphicsItem
{
public:
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override
    {
        ++paints;
        DXFGraphicsItem::paint(painter, option, widget);
    }

    int paints = 0;
};

QSharedPointer<DXFDocument> makeDrawing()
{
    // Fifteen segments side by side, far enough apart for the eraser to take one at a time.
    QList<QSharedPointer<DXFEntity>> entities;
    for (int i = 0; i < 15; ++i)
        entities.append(makePolyline({{20.0 * i, 0}, {20.0 * i, 100}}));
    return makeDocument(entities);
}

/// An editor over a drawing in the scene of a view that shows it at scale 1.
class DXFEditorTest : public LoggedTest
{
protected:
    DXFEditorTest()
        : view(&scene)
        , item(new CountingItem)
        , document(makeDrawing())
    {
        item->setDocument(document);
        ids = segmentIdsOf(document);
        scene.addItem(item);
        scene.setSceneRect(-10, -20, 400, 300);
        view.resize(500, 400);
        view.setMouseTracking(true);
        takeDebugMessages();
        editor = new DXFEditor(*item);
    }

    void call(const char* slot)
    {
        ASSERT_TRUE(QMetaObject::invokeMethod(editor, slot, Qt::DirectConnection)) << slot;
    }

    /// Deletes through the document's selection, as the tool does.
    void deleteSegments(const QVector<int>& deleted)
    {
        document->setSelected(deleted);
        call("onDeleteRequested");
    }

    /// Sends the editor a left-button event through the scene.
    bool send(QEvent::Type type, const QPointF& pos, Qt::MouseButtons held = Qt::LeftButton)
    {
        QGraphicsSceneMouseEvent event(type);
        event.setPos(pos);
        event.setScenePos(pos);
        event.setButtons(held);
        return scene.sendEvent(editor, &event);
    }

    QGraphicsItem* marker() const { return editor->childItems().value(0); }

    void showView()
    {
        view.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&view, patienceMs));
        ASSERT_TRUE(eventually([this] { return item->paints > 0; }));
        // Some paints may still follow the first one.
        while (std::exchange(paintsBefore, item->paints) != item->paints)
            QCoreApplication::processEvents();
    }

    /// Whether the item was repainted since it was shown.
    bool wasRepainted()
    {
        return eventually([this] { return item->paints > paintsBefore; });
    }

    QGraphicsScene scene;
    QGraphicsView view;
    CountingItem* item;
    QSharedPointer<DXFDocument> document;
    QVector<int> ids;
    QPointer<DXFEditor> editor;
    int paintsBefore = -1;
};

// What the editor is

TEST_F(DXFEditorTest, HasFourPrivateSlotsInOrderAndNothingElse)
{
    const QMetaObject& meta = DXFEditor::staticMetaObject;

    EXPECT_STREQ(meta.className(), "DXFEditor");
    EXPECT_EQ(meta.superClass(), &QGraphicsObject::staticMetaObject);
    EXPECT_THAT(ownMethodsOf(meta),
                ElementsAre("private slot void onDeleteRequested()",
                            "private slot void redrawDoc()", "private slot void setupTool()",
                            "private slot void cleanupTool()"));
    EXPECT_EQ(meta.propertyCount() - meta.propertyOffset(), 0);
}

TEST_F(DXFEditorTest, JoinsTheScenesOfItsItemWithoutAParent)
{
    EXPECT_EQ(editor->scene(), &scene);
    EXPECT_EQ(editor->parentItem(), nullptr);
    EXPECT_EQ(editor->parent(), nullptr);
}

TEST_F(DXFEditorTest, LiesOnTopOfTheItem)
{
    const auto stacked = scene.items(Qt::DescendingOrder);

    EXPECT_LT(stacked.indexOf(editor), stacked.indexOf(item));
    EXPECT_EQ(editor->zValue(), item->zValue());
}

TEST_F(DXFEditorTest, TakesHoverEventsFocusAndTheLeftButton)
{
    EXPECT_TRUE(editor->acceptHoverEvents());
    EXPECT_EQ(editor->flags(), QGraphicsItem::ItemIsFocusable | QGraphicsItem::ItemHasNoContents);
    EXPECT_EQ(editor->acceptedMouseButtons(), Qt::LeftButton);
}

TEST_F(DXFEditorTest, LogsItsCreation)
{
    EXPECT_THAT(takeDebugMessages(), ElementsAre(QStringLiteral("DXFEditor created ")));
}

TEST_F(DXFEditorTest, OwnsAStackOfTenCommands)
{
    QUndoStack* stack = editor->stack();

    EXPECT_EQ(editor->stack(), stack);
    EXPECT_EQ(stack->undoLimit(), 10);
    EXPECT_EQ(stack->count(), 0);
    EXPECT_EQ(stack->parent(), nullptr);
}

TEST_F(DXFEditorTest, CreationLeavesItemAndSelectionAlone)
{
    EXPECT_TRUE(item->isEnabled());
    EXPECT_THAT(document->selectedIDs(), IsEmpty());
    EXPECT_EQ(segmentIdsOf(document), ids);
}

// The marker

TEST_F(DXFEditorTest, MarkerStartsInTheMiddleOfTheDrawing)
{
    ASSERT_THAT(editor->childItems(), SizeIs(1));
    EXPECT_NE(dynamic_cast<QGraphicsEllipseItem*>(marker()), nullptr);
    EXPECT_EQ(marker()->pos(), QPointF(140, 50));
}

TEST_F(DXFEditorTest, MarkerStartsInTheMiddleOfALineThatRunsBackwards)
{
    auto* backwards = new DXFGraphicsItem;
    backwards->setDocument(makeDocument({makePolyline({{10, 5}, {0, 0}})}));
    scene.addItem(backwards);

    const DXFEditor other(*backwards);

    EXPECT_EQ(other.childItems().value(0)->pos(), QPointF(5, 2.5));
}

TEST_F(DXFEditorTest, MarkerFollowsThePointer)
{
    send(QEvent::GraphicsSceneMouseMove, {33, 44}, Qt::NoButton);

    EXPECT_EQ(marker()->pos(), QPointF(33, 44));
}

// The rectangle

TEST_F(DXFEditorTest, CoversTheSceneAndFarMore)
{
    EXPECT_EQ(editor->boundingRect(), QRectF(-50010, -50020, 100400, 100300));
}

TEST_F(DXFEditorTest, FollowsTheSceneRectangle)
{
    scene.setSceneRect(1, 2, 3, 4);

    EXPECT_EQ(editor->boundingRect(), QRectF(-49999, -49998, 100003, 100004));
}

/// An overlay in a scene that is as large as its items.
class PlainSceneTest : public DXFEditorTest
{
protected:
    PlainSceneTest()
        : plainItem(new DXFGraphicsItem)
    {
        plainItem->setDocument(document);
        plain.addItem(plainItem);
        overlay = new DXFEditor(*plainItem);
    }

    QRectF reached() const
    {
        return plainItem->boundingRect().adjusted(-50000, -50000, 50000, 50000);
    }

    QGraphicsScene plain;
    DXFGraphicsItem* plainItem;
    DXFEditor* overlay;
};

TEST_F(PlainSceneTest, OverlayCoversTheDrawingAndFarMore)
{
    EXPECT_EQ(overlay->boundingRect(), reached());
    EXPECT_EQ(plain.sceneRect(), reached());
}

TEST_F(PlainSceneTest, OverlayCoversTheDrawingWhereItIsMoved)
{
    plainItem->setPos(70000, -80000);

    EXPECT_EQ(overlay->boundingRect(), reached().translated(70000, -80000));
}

TEST_F(PlainSceneTest, SceneDoesNotGrowWhenRectanglesAreAskedFor)
{
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(plain.sceneRect(), reached());
        EXPECT_EQ(overlay->boundingRect(), reached());
    }
}

TEST_F(PlainSceneTest, SceneDoesNotGrowWithEventsAndPainting)
{
    QGraphicsView plainView(&plain);
    plainView.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&plainView, patienceMs));

    for (int i = 0; i < 6; ++i) {
        SceneMouse(plainView).drag({{0, 10.0 * i}, {300, 10.0 * i}});
        QCoreApplication::processEvents();
        plainView.grab();
    }

    EXPECT_EQ(plain.sceneRect(), reached());
    EXPECT_EQ(overlay->boundingRect(), reached());
}

TEST_F(PlainSceneTest, FollowsARectangleThatIsSetLater)
{
    plain.sceneRect();
    overlay->boundingRect();

    plain.setSceneRect(1, 2, 3, 4);

    EXPECT_EQ(overlay->boundingRect(), QRectF(-49999, -49998, 100003, 100004));
    EXPECT_EQ(overlay->boundingRect(), QRectF(-49999, -49998, 100003, 100004));
}

// The tint, which the scene never shows

TEST_F(DXFEditorTest, TintFillsTheRectangleInTranslucentGreen)
{
    QImage image(20, 20, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setPen(Qt::NoPen);
    // The overlay's corner is in the middle of the picture.
    painter.translate(QPointF(10, 10) - editor->boundingRect().topLeft());

    editor->paint(&painter, nullptr, nullptr);

    EXPECT_EQ(painter.brush(), QBrush(QColor(0, 255, 0, 40), Qt::SolidPattern));
    EXPECT_EQ(painter.pen(), QPen(Qt::NoPen));
    painter.end();
    EXPECT_EQ(image.pixelColor(15, 15), QColor(0, 255, 0, 40));
    EXPECT_EQ(image.pixelColor(10, 10), QColor(0, 255, 0, 40));
    EXPECT_EQ(image.pixelColor(9, 15).alpha(), 0);
    EXPECT_EQ(image.pixelColor(15, 9).alpha(), 0);
}

TEST_F(DXFEditorTest, TintIsOutlinedWithThePenOfThePainter)
{
    QImage image(20, 20, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setPen(Qt::blue);
    painter.translate(QPointF(10, 10) - editor->boundingRect().topLeft());

    editor->paint(&painter, nullptr, nullptr);

    EXPECT_EQ(painter.pen(), QPen(Qt::blue));
    painter.end();
    EXPECT_EQ(image.pixelColor(10, 15), QColor(Qt::blue));
}

TEST_F(DXFEditorTest, TintNeedsAPainter)
{
    editor->paint(nullptr, nullptr, nullptr);

    EXPECT_TRUE(editor->flags().testFlag(QGraphicsItem::ItemHasNoContents));
}

TEST_F(DXFEditorTest, SceneNeverPaintsTheTint)
{
    QImage image(50, 50, QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);

    scene.render(&painter, image.rect(), QRectF(1, 120, 50, 50));

    painter.end();
    EXPECT_EQ(image.pixelColor(25, 25), QColor(Qt::white));
}

// Events

TEST_F(DXFEditorTest, EventsGoToTheTool)
{
    send(QEvent::GraphicsSceneMouseMove, {40, 50});

    EXPECT_THAT(document->selectedIDs(), ElementsAre(ids[2]));
}

TEST_F(DXFEditorTest, EventsAreNeverReportedAsHandled)
{
    EXPECT_FALSE(send(QEvent::GraphicsSceneMousePress, {40, 50}));
    EXPECT_FALSE(send(QEvent::GraphicsSceneMouseMove, {40, 50}));
    EXPECT_FALSE(send(QEvent::GraphicsSceneMouseRelease, {40, 50}));
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    EXPECT_FALSE(scene.sendEvent(editor, &key));
    QGraphicsSceneHoverEvent hover(QEvent::GraphicsSceneHoverMove);
    EXPECT_FALSE(scene.sendEvent(editor, &hover));
}

TEST_F(DXFEditorTest, EventsKeepTheirAcceptedFlag)
{
    QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMousePress);
    event.setButtons(Qt::LeftButton);

    event.accept();
    scene.sendEvent(editor, &event);
    EXPECT_TRUE(event.isAccepted());

    event.ignore();
    scene.sendEvent(editor, &event);
    EXPECT_FALSE(event.isAccepted());
}

TEST_F(DXFEditorTest, StrokeWithTheMouseDeletesAtTheRelease)
{
    showView();

    SceneMouse(view).drag({{30, 50}, {40, 50}, {60, 50}});

    EXPECT_EQ(editor->stack()->count(), 1);
    EXPECT_THAT(document->entities(), SizeIs(13));
    EXPECT_THAT(segmentIdsOf(document), Not(Contains(ids[2])));
    EXPECT_THAT(segmentIdsOf(document), Not(Contains(ids[3])));
    EXPECT_THAT(document->selectedIDs(), IsEmpty());
}

TEST_F(DXFEditorTest, TicksDeleteWhileTheButtonIsHeld)
{
    showView();
    SceneMouse mouse(view);
    QSignalSpy changes(editor->stack(), SIGNAL(indexChanged(int)));
    mouse.press({30, 50});
    mouse.move({40, 50});

    ASSERT_TRUE(changes.wait(patienceMs));

    EXPECT_THAT(document->entities(), SizeIs(14));
    mouse.move({80, 50});
    mouse.release({80, 50});
    EXPECT_THAT(document->entities(), SizeIs(13));
    EXPECT_EQ(editor->stack()->count(), 2);
}

TEST_F(DXFEditorTest, StrokesMayBeginOutsideTheSceneRectangle)
{
    scene.setSceneRect(0, 0, 30, 30);
    showView();

    SceneMouse(view).drag({{90, 150}, {100, 50}});

    EXPECT_THAT(segmentIdsOf(document), Not(Contains(ids[5])));
}

TEST_F(DXFEditorTest, OtherButtonsEraseNothing)
{
    showView();

    SceneMouse(view).drag({{30, 50}, {40, 50}, {60, 50}}, Qt::RightButton);

    EXPECT_EQ(editor->stack()->count(), 0);
    EXPECT_EQ(segmentIdsOf(document), ids);
}

TEST_F(DXFEditorTest, ClickGivesTheKeyboardFocus)
{
    showView();
    view.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view, patienceMs));

    SceneMouse(view).drag({{30, 50}});

    EXPECT_EQ(scene.focusItem(), editor);
}

TEST_F(DXFEditorTest, EveryEventRepaintsTheDrawing)
{
    showView();
    QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);

    scene.sendEvent(editor, &event);

    EXPECT_TRUE(wasRepainted());
}

TEST_F(DXFEditorTest, SlotRepaintsTheDrawing)
{
    showView();

    call("redrawDoc");

    EXPECT_TRUE(wasRepainted());
}

TEST_F(DXFEditorTest, PushUndoAndRedoRepaintTheDrawing)
{
    showView();
    const QRectF bounds = item->boundingRect();

    deleteSegments({ids[14]});
    EXPECT_TRUE(wasRepainted());
    EXPECT_EQ(item->boundingRect(), bounds);

    paintsBefore = item->paints;
    editor->stack()->undo();
    EXPECT_TRUE(wasRepainted());
    EXPECT_EQ(item->boundingRect(), bounds);

    paintsBefore = item->paints;
    editor->stack()->redo();
    EXPECT_TRUE(wasRepainted());
    EXPECT_EQ(item->boundingRect(), bounds);
}

// Deleting

TEST_F(DXFEditorTest, SelectionBecomesACommand)
{
    deleteSegments({ids[1], ids[2]});

    EXPECT_EQ(editor->stack()->count(), 1);
    EXPECT_EQ(editor->stack()->index(), 1);
    EXPECT_EQ(editor->stack()->text(0), QString());
    EXPECT_THAT(document->entities(), SizeIs(13));
    EXPECT_THAT(document->selectedIDs(), IsEmpty());
}

TEST_F(DXFEditorTest, SelectionIsClearedBeforeTheDeletion)
{
    deleteSegments({ids[1]});

    editor->stack()->undo();

    EXPECT_THAT(document->selectedIDs(), IsEmpty()) << "the snapshot holds no selected segment";
}

TEST_F(DXFEditorTest, NothingSelectedMeansNoCommand)
{
    const auto entities = document->entities();

    deleteSegments({});

    EXPECT_EQ(editor->stack()->count(), 0);
    EXPECT_EQ(document->entities(), entities);
}

TEST_F(DXFEditorTest, SelectedPolylineAloneMakesACommandThatDeletesNothing)
{
    deleteSegments({document->entities()[1]->id()});

    EXPECT_EQ(editor->stack()->count(), 1);
    EXPECT_EQ(segmentIdsOf(document), ids);
}

TEST_F(DXFEditorTest, ElevenCommandsLeaveTenToUndo)
{
    for (int i = 0; i < 11; ++i)
        deleteSegments({ids[i]});
    EXPECT_EQ(editor->stack()->count(), 10);
    ASSERT_THAT(document->entities(), SizeIs(4));

    for (int i = 0; i < 20; ++i)
        editor->stack()->undo();

    EXPECT_FALSE(editor->stack()->canUndo());
    EXPECT_EQ(segmentIdsOf(document), ids.mid(1)) << "the first deletion stays";
}

TEST_F(DXFEditorTest, EditsTheDocumentThatTheItemHasNow)
{
    const auto later = makeDrawing();
    item->setDocument(later);
    const QVector<int> laterIds = segmentIdsOf(later);
    later->setSelected({laterIds[3]});

    call("onDeleteRequested");

    EXPECT_THAT(later->entities(), SizeIs(14));
    EXPECT_THAT(document->entities(), SizeIs(15));
}

TEST_F(DXFEditorTest, ItemWithoutADocumentDoesNoHarm)
{
    auto* empty = new DXFGraphicsItem;
    scene.addItem(empty);
    editor = new DXFEditor(*empty);
    showView();

    SceneMouse(view).drag({{30, 50}, {40, 50}});
    call("onDeleteRequested");

    EXPECT_EQ(editor->stack()->count(), 0);
}

// The life time of the tool

TEST_F(DXFEditorTest, CleaningUpDeletesTheTool)
{
    const QPointer<ISelectionTool> tool = toolOf(*editor);
    ASSERT_FALSE(tool.isNull());

    call("cleanupTool");

    EXPECT_TRUE(tool.isNull());
    EXPECT_EQ(toolOf(*editor), nullptr);
}

TEST_F(DXFEditorTest, WithoutItsToolItOnlyRepaints)
{
    showView();
    call("cleanupTool");

    SceneMouse(view).drag({{30, 50}, {40, 50}, {60, 50}});

    EXPECT_TRUE(wasRepainted());
    EXPECT_EQ(segmentIdsOf(document), ids);
    EXPECT_THAT(document->selectedIDs(), IsEmpty());
}

TEST_F(DXFEditorTest, CleaningUpTwiceIsHarmless)
{
    call("cleanupTool");
    call("cleanupTool");

    EXPECT_FALSE(send(QEvent::GraphicsSceneMouseMove, {40, 50}));
    EXPECT_THAT(document->selectedIDs(), IsEmpty());
}

TEST_F(DXFEditorTest, CleaningUpEndsARunningStroke)
{
    send(QEvent::GraphicsSceneMousePress, {40, 50});
    send(QEvent::GraphicsSceneMouseMove, {40, 50});

    call("cleanupTool");

    EXPECT_THAT(document->selectedIDs(), ElementsAre(ids[2]));
    EXPECT_EQ(editor->stack()->count(), 0);
}

TEST_F(DXFEditorTest, NewToolMayBeSetUpAfterCleaningUp)
{
    call("cleanupTool");

    call("setupTool");

    send(QEvent::GraphicsSceneMouseMove, {40, 50});
    EXPECT_THAT(document->selectedIDs(), ElementsAre(ids[2]));
}

TEST_F(DXFEditorTest, RequestsOfALaterToolDeleteNothing)
{
    showView();
    call("cleanupTool");
    call("setupTool");
    QSignalSpy requests(toolOf(*editor), SIGNAL(requestDelete()));

    SceneMouse(view).drag({{30, 50}, {40, 50}, {60, 50}});

    EXPECT_GE(requests.count(), 1);
    EXPECT_EQ(editor->stack()->count(), 0);
    EXPECT_THAT(document->selectedIDs(), ElementsAre(ids[2], ids[3]));
    EXPECT_EQ(segmentIdsOf(document), ids);
}

// The end of edit mode

TEST_F(DXFEditorTest, EndDisablesTheItemAndKeepsTheEdits)
{
    deleteSegments({ids[0]});

    delete editor;

    EXPECT_FALSE(item->isEnabled());
    EXPECT_EQ(segmentIdsOf(document), ids.mid(1));
}

TEST_F(DXFEditorTest, EndRemovesOverlayAndMarkerFromTheScene)
{
    delete editor;

    EXPECT_THAT(scene.items(), ElementsAre(item));
}

TEST_F(DXFEditorTest, EndInTheMiddleOfAStrokeDeletesNothingMore)
{
    send(QEvent::GraphicsSceneMousePress, {40, 50});
    send(QEvent::GraphicsSceneMouseMove, {40, 50});

    delete editor;

    EXPECT_EQ(segmentIdsOf(document), ids);
}

TEST_F(DXFEditorTest, EndReleasesTheDocument)
{
    const QWeakPointer<DXFDocument> weak = document;
    deleteSegments({ids[0]});
    send(QEvent::GraphicsSceneMouseMove, {40, 50});
    document.reset();

    delete editor;
    delete item;

    EXPECT_TRUE(weak.isNull());
}

TEST_F(DXFEditorTest, EndEmitsNoSignalOfTheStack)
{
    deleteSegments({ids[0]});
    const QSignalSpy moves(editor->stack(), &QUndoStack::indexChanged);

    delete editor;

    EXPECT_EQ(moves.count(), 0);
}

TEST_F(DXFEditorTest, DestroyedItemIsNotTouched)
{
    deleteSegments({ids[0]});
    delete item;

    EXPECT_FALSE(send(QEvent::GraphicsSceneMousePress, {40, 50}));
    EXPECT_FALSE(send(QEvent::GraphicsSceneMouseMove, {40, 50}));
    EXPECT_FALSE(send(QEvent::GraphicsSceneMouseRelease, {40, 50}, Qt::NoButton));
    call("redrawDoc");
    call("setupTool");
    editor->stack()->undo();
    EXPECT_TRUE(editor->boundingRect().isValid());
    delete editor;

    EXPECT_EQ(segmentIdsOf(document), ids);
}

TEST_F(DXFEditorTest, SceneMayDestroyItemAndEditor)
{
    send(QEvent::GraphicsSceneMousePress, {40, 50});

    scene.clear();

    EXPECT_EQ(editor, nullptr);
}

/// The objects of edit mode. Each can be destroyed separately.
class Stage
{
public:
    Stage()
        : m_document(makeDrawing())
        , m_scene(new QGraphicsScene)
        , m_item(new DXFGraphicsItem)
    {
        m_item->setDocument(m_document);
        m_itemLife = m_item->lifeToken();
        m_scene->addItem(m_item);
        m_editor = new DXFEditor(*m_item);
        const QVector<int> ids = segmentIdsOf(m_document);
        m_document->setSelected({ids[0]});
        QMetaObject::invokeMethod(m_editor, "onDeleteRequested", Qt::DirectConnection);
        sendStroke();
    }

    ~Stage()
    {
        delete m_editor;
        destroyItem();
        delete m_scene;
    }

    void destroyScene() { delete m_scene; }
    void destroyEditor() { delete m_editor; }
    void destroyItem()
    {
        if (!m_itemLife.expired())
            delete m_item;
    }
    void destroyTool()
    {
        if (m_editor)
            QMetaObject::invokeMethod(m_editor, "cleanupTool", Qt::DirectConnection);
    }
    void destroyCommands()
    {
        if (m_editor)
            m_editor->stack()->clear();
    }
    void destroyMarker()
    {
        if (m_editor)
            qDeleteAll(m_editor->childItems());
    }
    void releaseDocument() { m_document.reset(); }

    /// Uses everything that is left.
    void use()
    {
        if (m_editor) {
            sendStroke();
            m_editor->boundingRect();
            m_editor->stack()->undo();
            m_editor->stack()->redo();
        }
        if (m_scene)
            m_scene->sceneRect();
        QCoreApplication::processEvents();
    }

private:
    /// A stroke, and the beginning of a second one, so that the eraser's timer runs.
    void sendStroke()
    {
        for (const auto type : {QEvent::GraphicsSceneMousePress, QEvent::GraphicsSceneMouseMove,
                                QEvent::GraphicsSceneMouseRelease, QEvent::GraphicsSceneMousePress,
                                QEvent::GraphicsSceneMouseMove}) {
            QGraphicsSceneMouseEvent event(type);
            event.setPos({40, 50});
            event.setButtons(Qt::LeftButton);
            if (QGraphicsScene* scene = m_editor->scene())
                scene->sendEvent(m_editor, &event);
        }
    }

    QSharedPointer<DXFDocument> m_document;
    QPointer<QGraphicsScene> m_scene;
    DXFGraphicsItem* m_item;
    std::weak_ptr<const void> m_itemLife;
    QPointer<DXFEditor> m_editor;
};

class DestructionTest : public LoggedTest
{
};

TEST_F(DestructionTest, PartsMayBeDestroyedInAnyOrder)
{
    using Step = void (Stage::*)();
    const std::array<Step, 5> steps{&Stage::destroyScene, &Stage::destroyEditor,
                                    &Stage::destroyItem, &Stage::destroyTool,
                                    &Stage::releaseDocument};
    std::array<std::size_t, 5> order{0, 1, 2, 3, 4};
    std::mt19937 random(5);
    int orders = 0;
    do {
        // The commands and the marker are destroyed at random places in this order.
        std::vector<Step> all;
        for (const std::size_t step : order)
            all.push_back(steps[step]);
        for (const Step smaller : {&Stage::destroyCommands, &Stage::destroyMarker}) {
            const auto place = std::uniform_int_distribution<std::size_t>(0, all.size())(random);
            all.insert(all.begin() + std::ptrdiff_t(place), smaller);
        }
        Stage stage;
        for (const Step step : all) {
            (stage.*step)();
            stage.use();
        }
        ++orders;
        takeDebugMessages();
    } while (std::next_permutation(order.begin(), order.end()));

    EXPECT_EQ(orders, 120);
}

} // namespace
