// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/viewer/DXFViewer.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/render/DXFGraphicsItem.h"
#include "dxfviewer/viewer/View.h"

#include "tests/support/AtMessage.h"
#include "tests/support/Builders.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/OtherEntity.h"
#include "tests/support/Patience.h"
#include "tests/support/WindowParts.h"

#include <gmock/gmock.h>

#include <QAbstractEventDispatcher>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QGraphicsScene>
#include <QLayout>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QTranslator>
#include <QUndoView>
#include <QVBoxLayout>

#include <memory>

using namespace dxftest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace
{

const QByteArray square = drawingText({{{{0, 0}, {400, 0}, {400, 300}, {0, 300}}, true}});
const QByteArray line = drawingText({{{{-7, 5}, {93, 55}}, false}});

QKeySequence keys(const char* text)
{
    return QKeySequence(QString::fromLatin1(text), QKeySequence::PortableText);
}

/// The data that the window returns for an empty drawing.
QByteArray emptyDrawing()
{
    DXFViewer window;
    window.loadData(QByteArray());
    return window.getData();
}

QVector<QUndoView*> undoViews()
{
    QVector<QUndoView*> views;
    const auto widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (auto* view = qobject_cast<QUndoView*>(widget))
            views.append(view);
    }
    return views;
}

/// The intervals of the single-shot timers that are running.
QVector<int> timerIntervals()
{
    QVector<int> intervals;
    QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
    const auto shots = dispatcher->children();
    for (QObject* shot : shots) {
        const auto timers = dispatcher->registeredTimers(shot);
        for (const auto& timer : timers)
            intervals.append(timer.interval);
    }
    return intervals;
}

class DXFViewerTest : public LoggedTest
{
protected:
    DXFViewerTest()
        : window(std::make_unique<DXFViewer>())
    {
    }

    void call(const char* slot)
    {
        ASSERT_TRUE(QMetaObject::invokeMethod(window.get(), slot, Qt::DirectConnection)) << slot;
    }

    void show()
    {
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get(), patienceMs));
    }

    std::unique_ptr<DXFViewer> window;
};

// What the window is

TEST_F(DXFViewerTest, HasFourPrivateSlotsInOrderAndNothingElse)
{
    const QMetaObject& meta = DXFViewer::staticMetaObject;

    EXPECT_STREQ(meta.className(), "DXFViewer");
    EXPECT_EQ(meta.superClass(), &QMainWindow::staticMetaObject);
    EXPECT_THAT(ownMethodsOf(meta), ElementsAre("private slot void on_actionOpen_dxf_triggered()",
                                                "private slot void on_actionSave_dxf_triggered()",
                                                "private slot void on_actionEdit_dxf_toggled(bool)",
                                                "private slot void postLoad()"));
    EXPECT_EQ(meta.method(meta.methodOffset() + 2).parameterNames(), QList<QByteArray>{"arg1"});
    EXPECT_EQ(meta.propertyCount() - meta.propertyOffset(), 0);
}

TEST_F(DXFViewerTest, IsAMainWindowOf800By600)
{
    EXPECT_EQ(window->objectName(), QStringLiteral("Viewer"));
    EXPECT_EQ(window->windowTitle(), QStringLiteral("MainWindow"));
    EXPECT_EQ(window->size(), QSize(800, 600));
    EXPECT_EQ(window->windowFlags(), QMainWindow().windowFlags());
    EXPECT_EQ(window->parentWidget(), nullptr);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(DXFViewerTest, TakesAParent)
{
    QWidget parent;

    const auto* child = new DXFViewer(&parent);

    EXPECT_EQ(child->parentWidget(), &parent);
    EXPECT_TRUE(child->isWindow());
}

TEST_F(DXFViewerTest, ConstructionLogsNothing)
{
    EXPECT_THAT(takeDebugMessages(), IsEmpty());
}

// The form

TEST_F(DXFViewerTest, OpenActionIsHidden)
{
    const QAction& action = actionOf(*window, "actionOpen_dxf");

    EXPECT_EQ(action.text(), QStringLiteral("Open .dxf"));
    EXPECT_EQ(action.shortcut(), keys("Ctrl+O"));
    EXPECT_FALSE(action.isCheckable());
    EXPECT_FALSE(action.isVisible());
    EXPECT_EQ(action.parent(), window.get());
}

TEST_F(DXFViewerTest, SaveActionIsHidden)
{
    const QAction& action = actionOf(*window, "actionSave_dxf");

    EXPECT_EQ(action.text(), QStringLiteral("Save .dxf"));
    EXPECT_EQ(action.toolTip(), QStringLiteral("Save .dxf"));
    EXPECT_EQ(action.shortcut(), keys("Ctrl+S"));
    EXPECT_FALSE(action.isCheckable());
    EXPECT_FALSE(action.isVisible());
    EXPECT_EQ(action.parent(), window.get());
}

TEST_F(DXFViewerTest, EditActionIsVisibleAndCheckable)
{
    const QAction& action = editActionOf(*window);

    EXPECT_EQ(action.text(), QStringLiteral("Edit .dxf"));
    EXPECT_EQ(action.shortcut(), keys("Ctrl+E"));
    EXPECT_TRUE(action.isCheckable());
    EXPECT_FALSE(action.isChecked());
    EXPECT_TRUE(action.isVisible());
    EXPECT_EQ(action.parent(), window.get());
}

TEST_F(DXFViewerTest, DeleteActionIsHidden)
{
    const QAction& action = actionOf(*window, "actionDelete_Objects");

    EXPECT_EQ(action.text(), QStringLiteral("Delete Objects"));
    EXPECT_EQ(action.shortcut(), QKeySequence());
    EXPECT_FALSE(action.isCheckable());
    EXPECT_FALSE(action.isVisible());
    EXPECT_EQ(action.parent(), window.get());
}

TEST_F(DXFViewerTest, ActionsAreMadeInTheirOrder)
{
    QStringList names;
    const auto actions = window->findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QAction* action : actions)
        names.append(action->objectName());

    EXPECT_EQ(
        names.mid(0, 4),
        QStringList({QStringLiteral("actionOpen_dxf"), QStringLiteral("actionSave_dxf"),
                     QStringLiteral("actionEdit_dxf"), QStringLiteral("actionDelete_Objects")}));
}

TEST_F(DXFViewerTest, ToolBarHoldsTheActionsInItsOwnOrder)
{
    EXPECT_THAT(toolBarOf(*window).actions(),
                ElementsAre(&actionOf(*window, "actionDelete_Objects"),
                            &actionOf(*window, "actionOpen_dxf"), &editActionOf(*window),
                            &actionOf(*window, "actionSave_dxf")));
}

TEST_F(DXFViewerTest, ToolBarIsFixedAtTheTop)
{
    QToolBar& bar = toolBarOf(*window);

    EXPECT_FALSE(bar.isMovable());
    EXPECT_FALSE(bar.isFloatable());
    EXPECT_EQ(window->toolBarArea(&bar), Qt::TopToolBarArea);
    EXPECT_EQ(bar.parent(), window.get());
}

TEST_F(DXFViewerTest, ViewFillsTheCentre)
{
    QWidget* central = window->centralWidget();
    ASSERT_NE(central, nullptr);
    EXPECT_EQ(central->objectName(), QStringLiteral("centralWidget"));
    const auto* layout = qobject_cast<QVBoxLayout*>(central->layout());
    ASSERT_NE(layout, nullptr);

    EXPECT_EQ(layout->objectName(), QStringLiteral("verticalLayout"));
    EXPECT_EQ(layout->spacing(), 0);
    EXPECT_EQ(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    ASSERT_EQ(layout->count(), 1);
    EXPECT_EQ(layout->itemAt(0)->widget(), &viewOf(*window));
    EXPECT_EQ(viewOf(*window).parentWidget(), central);
}

TEST_F(DXFViewerTest, OnlyEditIsVisibleInTheToolBar)
{
    show();

    QStringList seen;
    const auto buttons = toolBarOf(*window).findChildren<QToolButton*>();
    for (const QToolButton* button : buttons) {
        if (button->isVisible() && button->defaultAction())
            seen.append(button->defaultAction()->text());
    }

    EXPECT_THAT(seen, ElementsAre(QStringLiteral("Edit .dxf")));
}

/// Encloses the texts of the window in brackets, and moves the shortcuts from letter to letter.
class BracketTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char* /*disambiguation*/,
                      int /*n*/) const override
    {
        const QString source = QString::fromLatin1(text);
        if (qstrcmp(context, "Viewer") != 0)
            return QString();
        if (source.startsWith(QStringLiteral("Ctrl+")))
            return QStringLiteral("Alt+") + source.right(1);
        return QStringLiteral("[%1]").arg(source);
    }
    bool isEmpty() const override { return false; }
};

class TranslatedTest : public LoggedTest
{
protected:
    TranslatedTest() { QCoreApplication::installTranslator(&translator); }
    ~TranslatedTest() override { QCoreApplication::removeTranslator(&translator); }

    BracketTranslator translator;
};

TEST_F(TranslatedTest, TextsOfTheFormAreTranslated)
{
    const DXFViewer window;

    EXPECT_EQ(window.windowTitle(), QStringLiteral("[MainWindow]"));
    EXPECT_EQ(actionOf(window, "actionOpen_dxf").text(), QStringLiteral("[Open .dxf]"));
    EXPECT_EQ(actionOf(window, "actionSave_dxf").text(), QStringLiteral("[Save .dxf]"));
    EXPECT_EQ(actionOf(window, "actionSave_dxf").toolTip(), QStringLiteral("[Save .dxf]"));
    EXPECT_EQ(editActionOf(window).text(), QStringLiteral("[Edit .dxf]"));
    EXPECT_EQ(actionOf(window, "actionDelete_Objects").text(), QStringLiteral("[Delete Objects]"));
}

TEST_F(TranslatedTest, ShortcutsAreTranslated)
{
    const DXFViewer window;

    EXPECT_EQ(actionOf(window, "actionOpen_dxf").shortcut(), keys("Alt+O"));
    EXPECT_EQ(actionOf(window, "actionSave_dxf").shortcut(), keys("Alt+S"));
    EXPECT_EQ(editActionOf(window).shortcut(), keys("Alt+E"));
}

TEST_F(TranslatedTest, UndoAndRedoAreTranslated)
{
    DXFViewer window;
    ASSERT_TRUE(loadAndShow(window, square));

    editActionOf(window).setChecked(true);

    const auto actions = toolBarOf(window).actions();
    ASSERT_THAT(actions, SizeIs(6));
    EXPECT_EQ(actions[4]->text(), QStringLiteral("[Undo]"));
    EXPECT_EQ(actions[5]->text(), QStringLiteral("[Redo]"));
}

// Shortcuts

TEST_F(DXFViewerTest, OnlyTheShortcutOfEditWorks)
{
    show();
    QSignalSpy opened(&actionOf(*window, "actionOpen_dxf"), SIGNAL(triggered(bool)));
    QSignalSpy saved(&actionOf(*window, "actionSave_dxf"), SIGNAL(triggered(bool)));

    QTest::keyClick(window.get(), Qt::Key_O, Qt::ControlModifier);
    QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(opened, IsEmpty());
    EXPECT_THAT(saved, IsEmpty());
    EXPECT_THAT(takeDebugMessages(), IsEmpty());

    QTest::keyClick(window.get(), Qt::Key_E, Qt::ControlModifier);
    EXPECT_TRUE(editActionOf(*window).isChecked());
    QTest::keyClick(window.get(), Qt::Key_E, Qt::ControlModifier);
    EXPECT_FALSE(editActionOf(*window).isChecked());
}

// Loading

TEST_F(DXFViewerTest, DrawingIsShownFromTheEventLoop)
{
    window->loadData(square);

    EXPECT_THAT(itemsOf(*window), IsEmpty());
    EXPECT_TRUE(eventually([this] { return itemsOf(*window).size() == 1; }));
    EXPECT_THAT(linesOf(shownDocument(*window)), SizeIs(4));
}

TEST_F(DXFViewerTest, DrawingIsShownAfterFiveMilliseconds)
{
    const auto before = timerIntervals();

    window->loadData(square);

    auto after = timerIntervals();
    for (const int interval : before)
        after.removeOne(interval);
    EXPECT_THAT(after, ElementsAre(5));
}

TEST_F(DXFViewerTest, DrawingIsReadFromAFile)
{
    QTemporaryDir folder;
    const QString fileName = fileWith(square, folder.filePath(QStringLiteral("square.dxf")));

    ASSERT_TRUE(loadAndShow(*window, fileName));

    EXPECT_THAT(linesOf(shownDocument(*window)), SizeIs(4));
}

TEST_F(DXFViewerTest, DataCanBeTakenBeforeTheDrawingIsShown)
{
    window->loadData(square);

    EXPECT_EQ(window->getData().count("VERTEX"), 4);
}

TEST_F(DXFViewerTest, SceneReaches5000UnitsBeyondTheDrawing)
{
    ASSERT_TRUE(loadAndShow(*window, line));

    EXPECT_EQ(sceneOf(*window).sceneRect(), QRectF(-5007, -4995, 10100, 10050));
}

TEST_F(DXFViewerTest, ViewIsFittedWithAMarginOf10Units)
{
    show();
    window->loadData(line);

    // Both fits run without events between them. Scroll bars would appear then and take room.
    call("postLoad");
    const QTransform fitted = viewOf(*window).transform();
    viewOf(*window).fitInView(QRectF(-17, -5, 120, 70), Qt::KeepAspectRatio);

    EXPECT_EQ(fitted, viewOf(*window).transform());
    EXPECT_EQ(fitted.m11(), fitted.m22());
    EXPECT_FALSE(fitted.isIdentity());
}

TEST_F(DXFViewerTest, ItemIsShownInTheViewsScene)
{
    ASSERT_TRUE(loadAndShow(*window, square));

    const DXFGraphicsItem* item = itemsOf(*window).first();
    EXPECT_EQ(item->parentItem(), nullptr);
    EXPECT_EQ(item->scene(), viewOf(*window).scene());
    EXPECT_EQ(item->boundingRect(), QRectF(0, 0, 400, 300));
    EXPECT_TRUE(item->isEnabled());
}

TEST_F(DXFViewerTest, EveryLoadReplacesTheItem)
{
    ASSERT_TRUE(loadAndShow(*window, square));
    const QWeakPointer<DXFDocument> first = shownDocument(*window);

    ASSERT_TRUE(loadAndShow(*window, line));

    EXPECT_THAT(itemsOf(*window), SizeIs(1));
    EXPECT_THAT(sceneOf(*window).items(), SizeIs(1));
    EXPECT_THAT(linesOf(shownDocument(*window)), ElementsAre(QLineF(-7, 5, 93, 55)));
    EXPECT_TRUE(first.isNull()) << "nobody needs the former drawing any more";
}

TEST_F(DXFViewerTest, TwoLoadsInARowLeaveOneItem)
{
    window->loadData(square);
    window->loadData(line);

    ASSERT_TRUE(eventually([this] { return !itemsOf(*window).isEmpty(); }));
    // After this wait the timer of the first load has fired.
    bool hasWaited = false;
    QTimer::singleShot(20, window.get(), [&] { hasWaited = true; });
    ASSERT_TRUE(eventually([&] { return hasWaited; }));

    EXPECT_THAT(itemsOf(*window), SizeIs(1));
    EXPECT_THAT(linesOf(shownDocument(*window)), SizeIs(1));
}

TEST_F(DXFViewerTest, WindowMayBeDestroyedBeforeTheDrawingIsShown)
{
    window->loadData(square);
    window.reset();

    bool hasWaited = false;
    QTimer::singleShot(20, qApp, [&] { hasWaited = true; });
    EXPECT_TRUE(eventually([&] { return hasWaited; }));
}

TEST_F(DXFViewerTest, DrawingWithNothingToShowIsShown)
{
    ASSERT_TRUE(loadAndShow(*window, QByteArray()));

    EXPECT_EQ(sceneOf(*window).sceneRect(), QRectF(-5000, -5000, 10000, 10000));
    EXPECT_EQ(window->getData(), emptyDrawing());
}

TEST_F(DXFViewerTest, PostLoadWithoutADocumentShowsAnEmptyItem)
{
    expectWarning("DXFGraphicsItem:: cannot render blank document");

    call("postLoad");

    ASSERT_THAT(itemsOf(*window), SizeIs(1));
    EXPECT_EQ(itemsOf(*window).first()->document(), nullptr);
    EXPECT_EQ(sceneOf(*window).sceneRect(), QRectF(-5000, -5000, 10000, 10000));
}

// Loading what cannot be read

class FailedLoadTest : public DXFViewerTest
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(loadAndShow(*window, square));
        takeDebugMessages();
    }

    const QString missing = QStringLiteral("/no/such/folder/drawing.dxf");
};

TEST_F(FailedLoadTest, IsLoggedAfterItsReason)
{
    window->loadData(missing);

    EXPECT_EQ(takeDebugMessages(),
              QStringList({QStringLiteral("\"%1\"  could not be opened.\n").arg(missing),
                           QStringLiteral("Load failed")}));
}

TEST_F(FailedLoadTest, LeavesTheShownDrawing)
{
    const auto items = itemsOf(*window);
    const auto document = shownDocument(*window);
    const QTransform transform = viewOf(*window).transform();

    window->loadData(missing);
    bool hasWaited = false;
    QTimer::singleShot(20, window.get(), [&] { hasWaited = true; });
    ASSERT_TRUE(eventually([&] { return hasWaited; }));

    EXPECT_EQ(itemsOf(*window), items);
    EXPECT_EQ(shownDocument(*window), document);
    EXPECT_EQ(viewOf(*window).transform(), transform);
}

TEST_F(FailedLoadTest, LeavesAnEmptyDocumentAsData)
{
    window->loadData(missing);

    EXPECT_EQ(window->getData(), emptyDrawing());
}

TEST_F(FailedLoadTest, LeavesTheEditorRunning)
{
    editActionOf(*window).setChecked(true);

    window->loadData(missing);

    EXPECT_THAT(editorsOf(*window), SizeIs(1));
    EXPECT_TRUE(editActionOf(*window).isChecked());
}

TEST_F(FailedLoadTest, MayBeFollowedByASuccessfulLoad)
{
    window->loadData(missing);

    ASSERT_TRUE(loadAndShow(*window, line));

    EXPECT_THAT(itemsOf(*window), SizeIs(1));
}

TEST_F(FailedLoadTest, LoadingAFolderFailsToo)
{
    const QString folder = QDir::tempPath();

    window->loadData(folder);

    EXPECT_EQ(takeDebugMessages(),
              QStringList({QStringLiteral("\"%1\"  could not be opened.\n").arg(folder),
                           QStringLiteral("Load failed")}));
}

// Documents that the host has read

class LoadDocumentTest : public DXFViewerTest
{
protected:
    const QSharedPointer<DXFDocument> document = makeDocument({makePolyline({{0, 0}, {30, 40}})});
};

TEST_F(LoadDocumentTest, IsShownFromTheEventLoop)
{
    window->loadDocument(document);

    EXPECT_THAT(itemsOf(*window), IsEmpty());
    ASSERT_TRUE(eventually([this] { return itemsOf(*window).size() == 1; }));
    EXPECT_EQ(shownDocument(*window), document);
    EXPECT_THAT(linesOf(document), ElementsAre(QLineF(0, 0, 30, 40)));
    EXPECT_EQ(sceneOf(*window).sceneRect(), QRectF(-5000, -5000, 10030, 10040));
    EXPECT_THAT(takeDebugMessages(), IsEmpty());
}

TEST_F(LoadDocumentTest, IsShownAfterFiveMilliseconds)
{
    const auto before = timerIntervals();

    window->loadDocument(document);

    auto after = timerIntervals();
    for (const int interval : before)
        after.removeOne(interval);
    EXPECT_THAT(after, ElementsAre(5));
}

TEST_F(LoadDocumentTest, IsReturnedAsDataAtOnce)
{
    window->loadDocument(document);

    EXPECT_EQ(window->getData().count("VERTEX"), 2);
}

TEST_F(LoadDocumentTest, ReplacesADrawingAndEndsEditMode)
{
    ASSERT_TRUE(loadAndShow(*window, square));
    editActionOf(*window).setChecked(true);

    window->loadDocument(document);
    ASSERT_TRUE(eventually([this] { return shownDocument(*window) == document; }));

    EXPECT_THAT(itemsOf(*window), SizeIs(1));
    EXPECT_THAT(editorsOf(*window), IsEmpty());
    EXPECT_FALSE(editActionOf(*window).isChecked());
}

TEST_F(LoadDocumentTest, MayBeShownTwice)
{
    window->loadDocument(document);
    ASSERT_TRUE(eventually([this] { return shownDocument(*window) == document; }));
    const QVector<int> ids = segmentIdsOf(document);
    const auto first = itemsOf(*window).first()->lifeToken();

    window->loadDocument(document);
    ASSERT_TRUE(eventually([&] { return first.expired(); }));

    EXPECT_EQ(shownDocument(*window), document);
    EXPECT_EQ(segmentIdsOf(document), ids);
}

TEST_F(LoadDocumentTest, NullIsAFailedLoad)
{
    ASSERT_TRUE(loadAndShow(*window, square));
    editActionOf(*window).setChecked(true);
    const auto shown = shownDocument(*window);
    const auto timers = timerIntervals();
    takeDebugMessages();

    window->loadDocument(nullptr);

    EXPECT_THAT(takeDebugMessages(), ElementsAre(QStringLiteral("Load failed")));
    EXPECT_EQ(timerIntervals(), timers);
    EXPECT_EQ(shownDocument(*window), shown);
    EXPECT_THAT(editorsOf(*window), SizeIs(1));
    EXPECT_TRUE(editActionOf(*window).isChecked());
    EXPECT_EQ(window->getData(), emptyDrawing());
}

// A host that acts inside a message handler

class ActingLogTest : public DXFViewerTest
{
protected:
    /// A drawing whose set-up logs a message.
    static QSharedPointer<DXFDocument> odd()
    {
        const auto polyline = makePolyline({{0, 0}, {30, 40}});
        polyline->setAttributes(makeAttributes(QStringLiteral("0"), 0));
        return makeDocument({polyline, makePolyline({{0, 0}, {60, 70}})});
    }

    bool showsOnce(const QSharedPointer<DXFDocument>& document)
    {
        return eventually([&] { return shownDocument(*window) == document; })
               && itemsOf(*window).size() == 1;
    }

    static constexpr const char* oddMessage = "Color BYBLOCK not supported";
};

TEST_F(ActingLogTest, AnotherLoadMayBeShownWhileADrawingIsSetUp)
{
    const auto document = odd();
    // Expected once: a message that is logged inside a message handler is printed by Qt itself.
    expectWarning(oddMessage);
    const AtMessage other(oddMessage, [&] { EXPECT_TRUE(showsOnce(document)); });

    window->loadDocument(document);
    window->loadDocument(document);
    ASSERT_TRUE(eventually([&] { return other.hasActed(); }));

    EXPECT_TRUE(showsOnce(document));
    EXPECT_EQ(itemsOf(*window).first()->boundingRect(), QRectF(0, 0, 60, 70));
}

TEST_F(ActingLogTest, LaterDrawingStaysWhenTheFormerOneIsSetUp)
{
    const auto later = makeDocument({makePolyline({{0, 0}, {1, 1}})});
    expectWarning(oddMessage);
    const AtMessage other(oddMessage, [&] {
        window->loadDocument(later);
        EXPECT_TRUE(showsOnce(later));
        editActionOf(*window).setChecked(true);
    });

    window->loadDocument(odd());
    ASSERT_TRUE(eventually([&] { return other.hasActed(); }));

    EXPECT_TRUE(showsOnce(later));
    EXPECT_THAT(editorsOf(*window), SizeIs(1));
}

TEST_F(ActingLogTest, DrawingIsShownAlthoughAnotherLoadFailed)
{
    const auto document = odd();
    expectWarning(oddMessage);
    const AtMessage other(oddMessage, [&] { window->loadDocument(nullptr); });

    window->loadDocument(document);
    ASSERT_TRUE(eventually([&] { return other.hasActed(); }));

    EXPECT_TRUE(showsOnce(document));
}

TEST_F(ActingLogTest, WindowMayBeDestroyedWhileADrawingIsSetUp)
{
    expectWarning(oddMessage);
    const AtMessage end(oddMessage, [this] { window.reset(); });

    window->loadDocument(odd());

    EXPECT_TRUE(eventually([&] { return end.hasActed(); }));
}

TEST_F(ActingLogTest, DrawingMayChangeWhileItIsSetUp)
{
    const auto document = odd();
    expectWarning(oddMessage);
    const AtMessage change(oddMessage, [&] {
        for (int i = 0; i < 100; ++i)
            document->addEntity(makePolyline({{0, 0}, {80, 90}}));
        document->deleteEntity(document->entities().first());
    });

    window->loadDocument(document);

    EXPECT_TRUE(showsOnce(document));
}

TEST_F(ActingLogTest, WindowMayBeDestroyedWhileADrawingIsRead)
{
    const AtMessage end("addLine", [this] { window.reset(); });

    window->loadData(
        QByteArray("0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n0\n0\nENDSEC\n0\nEOF\n"));

    EXPECT_TRUE(end.hasActed());
}

TEST_F(ActingLogTest, AnotherLoadMayComeWhileADrawingIsWritten)
{
    window->loadDocument(
        makeDocument({QSharedPointer<OtherEntity>::create(-1), makePolyline({{0, 0}, {30, 40}})}));
    const AtMessage other("DXFWriter:: attempted writing of unsuported entity",
                          [this] { window->loadData(line); });

    EXPECT_EQ(window->getData().count("VERTEX"), 2);
    EXPECT_TRUE(other.hasActed());
}

// Taking the drawing

TEST_F(DXFViewerTest, NothingLoadedMeansNoData)
{
    EXPECT_EQ(window->getData(), QByteArray());
}

TEST_F(DXFViewerTest, DataIsTheDrawing)
{
    ASSERT_TRUE(loadAndShow(*window, square));

    const QByteArray data = window->getData();

    EXPECT_TRUE(data.endsWith("EOF\n"));
    DXFViewer second;
    ASSERT_TRUE(loadAndShow(second, data));
    EXPECT_EQ(linesOf(shownDocument(second)), linesOf(shownDocument(*window)));
    EXPECT_TRUE(polylineAt(shownDocument(second), 0)->isClosed());
}

TEST_F(DXFViewerTest, DataMayBeTakenAgain)
{
    window->loadData(square);

    EXPECT_EQ(window->getData(), window->getData());
}

// The slots of the hidden actions

TEST_F(DXFViewerTest, OpenFromItsActionLoadsAnEmptyName)
{
    QAction& action = actionOf(*window, "actionOpen_dxf");

    ASSERT_TRUE(QMetaObject::invokeMethod(&action, "triggered", Q_ARG(bool, false)));

    EXPECT_EQ(takeDebugMessages(), QStringList({QStringLiteral("\"\"  could not be opened.\n"),
                                                QStringLiteral("Load failed")}));
    EXPECT_EQ(window->getData(), emptyDrawing());
}

/// Opens in an empty folder, so that the log names the file that is missing.
class OpenElsewhereTest : public DXFViewerTest
{
protected:
    void SetUp() override { ASSERT_TRUE(QDir::setCurrent(m_folder.path())); }
    void TearDown() override { QDir::setCurrent(m_before); }

    void expectTheFixedDrawing()
    {
        EXPECT_EQ(takeDebugMessages(),
                  QStringList({QStringLiteral("\"samples/floor-plan.dxf\"  could not be opened.\n"),
                               QStringLiteral("Load failed")}));
        EXPECT_EQ(window->getData(), emptyDrawing()) << "the new document is there at once";
    }

private:
    const QString m_before = QDir::currentPath();
    QTemporaryDir m_folder;
};

TEST_F(OpenElsewhereTest, CalledDirectlyItLoadsAFixedDrawing)
{
    call("on_actionOpen_dxf_triggered");

    expectTheFixedDrawing();
}

TEST_F(OpenElsewhereTest, FromAnotherActionItLoadsAFixedDrawing)
{
    QAction other;
    QObject::connect(&other, SIGNAL(triggered()), window.get(),
                     SLOT(on_actionOpen_dxf_triggered()));

    other.trigger();

    expectTheFixedDrawing();
}

TEST_F(DXFViewerTest, OpenReplacesTheDocumentAndLeavesTheShownOne)
{
    ASSERT_TRUE(loadAndShow(*window, square));
    const auto document = shownDocument(*window);

    QMetaObject::invokeMethod(&actionOf(*window, "actionOpen_dxf"), "triggered",
                              Q_ARG(bool, false));

    EXPECT_EQ(shownDocument(*window), document);
    EXPECT_EQ(window->getData(), emptyDrawing());
}

TEST_F(DXFViewerTest, SaveWritesNothing)
{
    QTemporaryDir folder;
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.path()));
    ASSERT_TRUE(loadAndShow(*window, square));
    const QByteArray data = window->getData();
    takeDebugMessages();

    call("on_actionSave_dxf_triggered");
    QMetaObject::invokeMethod(&actionOf(*window, "actionSave_dxf"), "triggered",
                              Q_ARG(bool, false));

    EXPECT_THAT(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), IsEmpty());
    QDir::setCurrent(before);
    EXPECT_THAT(takeDebugMessages(), IsEmpty());
    EXPECT_EQ(window->getData(), data);
}

TEST_F(DXFViewerTest, SaveWithoutADocumentIsHarmless)
{
    call("on_actionSave_dxf_triggered");

    EXPECT_EQ(window->getData(), QByteArray());
}

TEST_F(DXFViewerTest, DeleteActionIsConnectedToNothing)
{
    ASSERT_TRUE(loadAndShow(*window, square));
    const QByteArray data = window->getData();

    QMetaObject::invokeMethod(&actionOf(*window, "actionDelete_Objects"), "triggered",
                              Q_ARG(bool, false));

    EXPECT_EQ(window->getData(), data);
    EXPECT_THAT(takeDebugMessages(), IsEmpty());
}

// The end of the window

TEST_F(DXFViewerTest, EndReleasesItemAndDocument)
{
    ASSERT_TRUE(loadAndShow(*window, square));
    const auto itemLife = itemsOf(*window).first()->lifeToken();
    const QWeakPointer<DXFDocument> document = shownDocument(*window);
    const QPointer<View> view = &viewOf(*window);
    const QPointer<QGraphicsScene> scene = &sceneOf(*window);

    window.reset();

    EXPECT_TRUE(itemLife.expired());
    EXPECT_TRUE(document.isNull());
    EXPECT_EQ(view, nullptr);
    EXPECT_EQ(scene, nullptr);
}

TEST_F(DXFViewerTest, UndoViewIsNeitherShownNorDestroyed)
{
    const auto before = undoViews();
    auto other = std::make_unique<DXFViewer>();
    QVector<QUndoView*> added;
    const auto after = undoViews();
    for (QUndoView* view : after) {
        if (!before.contains(view))
            added.append(view);
    }
    ASSERT_THAT(added, SizeIs(1));
    const QPointer<QUndoView> undoView = added.first();
    EXPECT_EQ(undoView->parent(), nullptr);
    ASSERT_TRUE(loadAndShow(*other, square));
    other->show();
    editActionOf(*other).setChecked(true);
    EXPECT_FALSE(undoView->isVisible());

    other.reset();

    ASSERT_NE(undoView, nullptr);
    EXPECT_FALSE(undoView->isVisible());
    EXPECT_EQ(undoView->stack(), nullptr);
}

// A host that deletes or changes the window's parts

TEST_F(DXFViewerTest, HostMayDeleteTheItem)
{
    ASSERT_TRUE(loadAndShow(*window, square));

    delete itemsOf(*window).first();
    ASSERT_TRUE(loadAndShow(*window, line));

    EXPECT_THAT(itemsOf(*window), SizeIs(1));
}

TEST_F(DXFViewerTest, HostMayClearTheScene)
{
    ASSERT_TRUE(loadAndShow(*window, square));

    sceneOf(*window).clear();
    ASSERT_TRUE(loadAndShow(*window, line));

    EXPECT_THAT(itemsOf(*window), SizeIs(1));
}

TEST_F(DXFViewerTest, HostMayRemoveTheItemFromTheScene)
{
    ASSERT_TRUE(loadAndShow(*window, square));
    DXFGraphicsItem* item = itemsOf(*window).first();
    const auto life = item->lifeToken();

    sceneOf(*window).removeItem(item);
    ASSERT_TRUE(loadAndShow(*window, line));

    EXPECT_TRUE(life.expired()) << "the window owns its item";
    EXPECT_THAT(itemsOf(*window), SizeIs(1));
}

TEST_F(DXFViewerTest, HostMayDeleteTheView)
{
    ASSERT_TRUE(loadAndShow(*window, square));

    delete &viewOf(*window);
    window->loadData(line);
    call("postLoad");

    EXPECT_EQ(window->getData().count("VERTEX"), 2);
}

TEST_F(DXFViewerTest, HostMayReplaceTheCentralWidget)
{
    ASSERT_TRUE(loadAndShow(*window, square));
    const QPointer<View> view = &viewOf(*window);

    window->setCentralWidget(new QWidget);
    ASSERT_TRUE(eventually([&] { return view.isNull(); }));
    window->loadData(line);
    call("postLoad");
    editActionOf(*window).setChecked(true);

    EXPECT_EQ(window->getData().count("VERTEX"), 2);
}

TEST_F(DXFViewerTest, HostMayGiveTheViewAnotherScene)
{
    ASSERT_TRUE(loadAndShow(*window, square));
    QGraphicsScene other;
    viewOf(*window).setScene(&other);

    ASSERT_TRUE(loadAndShow(*window, line));

    EXPECT_THAT(other.items(), SizeIs(1));
    window.reset();
    EXPECT_THAT(other.items(), IsEmpty());
}

TEST_F(DXFViewerTest, HostMayRemoveTheScene)
{
    ASSERT_TRUE(loadAndShow(*window, square));

    viewOf(*window).setScene(nullptr);
    window->loadData(line);
    call("postLoad");

    EXPECT_EQ(window->getData().count("VERTEX"), 2);
}

} // namespace
