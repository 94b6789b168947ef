// SPDX-License-Identifier: GPL-2.0-or-later

#include "MainWindow.h"
#include "DrawingFiles.h"
#include "EmptyPage.h"
#include "Ground.h"
#include "Settings.h"
#include "ViewerParts.h"

#include "dxfviewer/edit/DXFEditor.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/render/DXFGraphicsItem.h"
#include "dxfviewer/viewer/DXFViewer.h"
#include "tests/app/DialogRobot.h"
#include "tests/app/WindowActions.h"
#include "tests/support/Builders.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/OtherUser.h"
#include "tests/support/Patience.h"
#include "tests/support/SceneMouse.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGraphicsView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUndoStack>
#include <QUrl>

#include <algorithm>
#include <memory>
#include <set>

using dxftest::contentOf;
using dxftest::DialogRobot;
using dxftest::SceneMouse;
using testing::HasSubstr;

namespace
{

/// A cross of two lines of one segment each.
const QByteArray crossDrawing =
    "0\nSECTION\n2\nENTITIES\n"
    "0\nLWPOLYLINE\n8\n0\n90\n2\n70\n0\n10\n-100\n20\n0\n10\n100\n20\n0\n"
    "0\nLWPOLYLINE\n8\n0\n90\n2\n70\n0\n10\n50\n20\n-100\n10\n50\n20\n100\n"
    "0\nENDSEC\n0\nEOF\n";
/// A polyline, an arc, a block of one line, and two hatches, which cannot be shown.
const QByteArray mixedDrawing =
    "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n8\n0\n2\nB\n70\n0\n10\n0\n20\n0\n"
    "0\nLINE\n8\n0\n10\n0\n20\n0\n11\n9\n21\n9\n0\nENDBLK\n0\nENDSEC\n"
    "0\nSECTION\n2\nENTITIES\n"
    "0\nLWPOLYLINE\n8\n0\n90\n2\n70\n0\n10\n50\n20\n-100\n10\n50\n20\n100\n"
    "0\nARC\n8\n0\n10\n0\n20\n0\n40\n30\n50\n0\n51\n90\n"
    "0\nINSERT\n8\n0\n2\nB\n10\n-50\n20\n0\n"
    "0\nHATCH\n8\n0\n0\nHATCH\n8\n0\n0\nENDSEC\n0\nEOF\n";
/// A polyline and a text.
const QByteArray textDrawing = "0\nSECTION\n2\nENTITIES\n"
                               "0\nLWPOLYLINE\n8\n0\n90\n2\n70\n0\n10\n0\n20\n-9\n10\n50\n20\n-9\n"
                               "0\nTEXT\n8\n0\n10\n0\n20\n0\n40\n10\n1\nHall\n0\nENDSEC\n0\nEOF\n";
const QByteArray hatchOnly = "0\nSECTION\n2\nENTITIES\n0\nHATCH\n8\n0\n0\nENDSEC\n0\nEOF\n";

/// The polylines of a document, each once. The plain reader may list one several times.
std::set<const DXFEntity*> polylinesOf(const DXFDocument& document)
{
    std::set<const DXFEntity*> polylines;
    for (const auto& entity : document.entities())
        polylines.insert(entity.data());
    return polylines;
}

class MainWindowTest : public dxftest::LoggedTest
{
protected:
    MainWindowTest()
    {
        Settings().clear();
        m_window = std::make_unique<MainWindow>();
        m_window->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_window.get(), dxftest::patienceMs));
    }

    ~MainWindowTest() override
    {
        // Destroyed, not closed: closing would ask about unsaved edits.
        m_window.reset();
    }

    DXFViewer& viewer() const { return *m_window->findChild<DXFViewer*>(); }
    QAction& edit() const { return editAction(viewer()); }
    QGraphicsView& view() const { return drawingView(viewer()); }

    QAction& action(const char* text) const { return dxftest::actionOf(*m_window, text); }

    QString fileWith(const QByteArray& content, const QString& name)
    {
        return dxftest::fileWith(content, path(name));
    }
    QString crossFile() { return fileWith(crossDrawing, QStringLiteral("cross.dxf")); }
    QString path(const QString& name) const { return m_folder.filePath(name); }

    DrawingFiles& files() const { return *m_window->findChild<DrawingFiles*>(); }

    /// Runs an action that opens a drawing, and waits until the drawing is shown.
    template <typename Action>
    void waitForDrawing(Action action)
    {
        QSignalSpy shown(&files(), &DrawingFiles::drawingShown);
        action();
        EXPECT_TRUE(shown.count() > 0 || shown.wait(dxftest::patienceMs));
    }
    void open(const QString& fileName)
    {
        waitForDrawing([&] { m_window->openDrawing(fileName); });
    }

    /// The folder in which the dialog of Open starts.
    QString folderOffered()
    {
        QString folder;
        m_robot.expect<QFileDialog>([&folder](QFileDialog& dialog) {
            folder = dialog.directory().path();
            dialog.reject();
        });
        action("&Open…").trigger();
        return folder;
    }

    void restart()
    {
        m_window.reset();
        m_window = std::make_unique<MainWindow>();
        m_window->show();
    }

    /// Opens a file that cannot be read, and keeps the text of the box.
    void openInVain(const QString& fileName, std::string& error)
    {
        m_robot.expectError(error);
        m_window->openDrawing(fileName);
        EXPECT_TRUE(dxftest::eventually([&error] { return !error.empty(); }));
    }

    static void chooseReplace(QMessageBox& box)
    {
        const auto buttons = box.buttons();
        for (QAbstractButton* button : buttons) {
            if (box.buttonRole(button) == QMessageBox::DestructiveRole)
                button->click();
        }
    }

    void openInEditMode()
    {
        open(crossFile());
        edit().setChecked(true);
    }

    /// Erases the cross's upright line.
    void erase() { SceneMouse(view()).drag({{50, 60}, {50, 61}, {50, 62}}); }

    /// Saves, answers the question before a file is replaced with Cancel, and returns the question.
    std::string questionOfSave()
    {
        std::string question;
        m_robot.expect<QMessageBox>([&question](QMessageBox& box) {
            question = box.informativeText().toStdString();
            DialogRobot::click(box, QMessageBox::Cancel);
        });
        press(Qt::Key_S);
        return question;
    }

    /// Reloads in vain after the edits were discarded, and returns what the box says.
    std::string errorOfReload()
    {
        m_robot.expectButton(QMessageBox::Discard);
        std::string error;
        m_robot.expectError(error);
        press(Qt::Key_F5, Qt::NoModifier);
        EXPECT_TRUE(dxftest::eventually([&error] { return !error.empty(); }));
        return error;
    }

    /// One of the two lines was erased.
    void expectEditsAreKept() const
    {
        EXPECT_EQ(polylineCount(), 1);
        EXPECT_TRUE(m_window->isWindowModified());
        EXPECT_TRUE(edit().isChecked());
    }

    EmptyPage& emptyPage() const { return *m_window->findChild<EmptyPage*>(); }

    /// Whether a label in the status bar contains the text.
    bool statusShows(const char* text) const
    {
        const auto labels = m_window->statusBar()->findChildren<QLabel*>();
        return std::any_of(labels.cbegin(), labels.cend(), [text](const QLabel* label) {
            return label->text().contains(QString::fromUtf8(text));
        });
    }

    int polylineCount() const
    {
        return static_cast<int>(shownDocument(viewer())->entities().size());
    }

    static void acceptAsItIs(QFileDialog& dialog)
    {
        // accept() is not public in QFileDialog.
        static_cast<QDialog&>(dialog).accept();
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        // Without a window manager the window does not get the keyboard back after a dialog.
        m_window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_window.get(), dxftest::patienceMs));
        QTest::keyClick(m_window.get(), key, modifiers);
    }

    // Outlives the window, which may open dialogs until its end.
    DialogRobot m_robot;
    std::unique_ptr<MainWindow> m_window;

private:
    QTemporaryDir m_folder;
};

TEST_F(MainWindowTest, HasNothingToSaveAtFirst)
{
    EXPECT_FALSE(action("Save &As…").isEnabled());
    EXPECT_FALSE(action("&Export Picture…").isEnabled());
    EXPECT_FALSE(action("Undo").isEnabled());
    EXPECT_FALSE(m_window->isWindowModified());
}

TEST_F(MainWindowTest, ShowsADrawingUnderItsName)
{
    open(crossFile());

    EXPECT_EQ(polylineCount(), 2);
    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("cross.dxf[*]"));
    EXPECT_TRUE(action("Save &As…").isEnabled());
    EXPECT_TRUE(action("&Export Picture…").isEnabled());
}

TEST_F(MainWindowTest, TheTitleShowsNamesWithSpecialCharacters)
{
    open(fileWith(crossDrawing, QStringLiteral("a[*]\nb.dxf")));

    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("a[*][*]\uFFFDb.dxf[*]"));
}

TEST_F(MainWindowTest, KeepsTheDrawingOnScreenWhenAnotherCannotBeRead)
{
    open(crossFile());
    const auto document = shownDocument(viewer());
    std::string error;

    openInVain(fileWith("no drawing", QStringLiteral("bad.dxf")), error);

    EXPECT_THAT(error, HasSubstr("bad.dxf"));
    EXPECT_THAT(error, HasSubstr("It is not a DXF drawing."));
    EXPECT_EQ(shownDocument(viewer()), document);
    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("cross.dxf[*]"));
    EXPECT_FALSE(viewer().getData().isEmpty());
}

TEST_F(MainWindowTest, SaysThatThereIsNothingToShow)
{
    open(fileWith(hatchOnly, QStringLiteral("hatch.dxf")));

    EXPECT_TRUE(emptyPage().isVisible());
    EXPECT_THAT(emptyPage().text().toStdString(), HasSubstr("nothing in this drawing"));

    open(crossFile());
    EXPECT_FALSE(emptyPage().isVisible());
}

TEST_F(MainWindowTest, PolylinesOfOneVertexAreNothingToShow)
{
    QByteArray vertices = "0\nSECTION\n2\nENTITIES\n";
    for (int i = 0; i < 5; ++i)
        vertices += "0\nLWPOLYLINE\n8\n0\n90\n1\n70\n0\n10\n5\n20\n7\n";
    action("Only &Polylines").trigger();

    open(fileWith(vertices + "0\nENDSEC\n0\nEOF\n", QStringLiteral("vertices.dxf")));

    EXPECT_TRUE(statusShows("segments: 0"));
    EXPECT_TRUE(emptyPage().isVisible());
    EXPECT_THAT(emptyPage().text().toStdString(), HasSubstr("nothing in this drawing"));
}

TEST_F(MainWindowTest, SaysThatADrawingIsTooLarge)
{
    for (const char* radius : {"1e15", "1e300"}) {
        open(fileWith(QByteArray("0\nSECTION\n2\nENTITIES\n0\nCIRCLE\n8\n0\n10\n0\n20\n0\n40\n")
                          + radius + "\n0\nENDSEC\n0\nEOF\n",
                      QStringLiteral("large.dxf")));
        SceneMouse(view()).move({0, 0});

        EXPECT_TRUE(emptyPage().isVisible());
        EXPECT_THAT(emptyPage().text().toStdString(), HasSubstr("too large to be shown"));
        EXPECT_EQ(view().viewport()->grab().toImage().pixelColor(3, 3), colorOf(Ground::Dark));
        EXPECT_FALSE(statusShows("x "));
        EXPECT_FALSE(statusShows("%"));
        EXPECT_FALSE(edit().isEnabled());
    }

    open(crossFile());
    EXPECT_FALSE(emptyPage().isVisible());
    EXPECT_TRUE(statusShows("100 %"));
    EXPECT_TRUE(edit().isEnabled());
}

TEST_F(MainWindowTest, TheZoomIsNotShownWithoutADrawing)
{
    m_window->resize(600, 500);
    press(Qt::Key_Plus);

    EXPECT_FALSE(statusShows("%"));
}

TEST_F(MainWindowTest, SaysWhatToDoWithoutADrawing)
{
    EXPECT_TRUE(emptyPage().isVisible());
    EXPECT_EQ(emptyPage().text(), QStringLiteral("Open a drawing, or drop one here"));
    EXPECT_FALSE(edit().isEnabled());

    press(Qt::Key_E);
    EXPECT_FALSE(edit().isChecked());

    open(crossFile());
    EXPECT_FALSE(emptyPage().isVisible());
    press(Qt::Key_E);
    EXPECT_TRUE(edit().isChecked());
}

TEST_F(MainWindowTest, ShowsMoreThanPolylinesAndSaysWhatIsMissing)
{
    open(fileWith(mixedDrawing, QStringLiteral("mixed.dxf")));

    EXPECT_EQ(polylineCount(), 3);
    EXPECT_TRUE(statusShows("Not shown: 2 hatches"));
}

TEST_F(MainWindowTest, ShowsOnlyPolylinesWhenChosen)
{
    open(fileWith(mixedDrawing, QStringLiteral("mixed.dxf")));
    const auto before = shownDocument(viewer());

    action("Only &Polylines").trigger();

    EXPECT_TRUE(dxftest::eventually([&] { return shownDocument(viewer()) != before; }));
    EXPECT_EQ(polylinesOf(*shownDocument(viewer())).size(), 1);
    EXPECT_TRUE(dxftest::eventually([&] { return !statusShows("Not shown"); }));
}

TEST_F(MainWindowTest, AsksBeforeAViewChoiceDiscardsEdits)
{
    openInEditMode();
    erase();
    m_robot.expectButton(QMessageBox::Cancel);

    action("Only &Polylines").trigger();

    EXPECT_FALSE(action("Only &Polylines").isChecked());
    EXPECT_TRUE(edit().isChecked());
    EXPECT_EQ(polylineCount(), 1);
}

TEST_F(MainWindowTest, TheChoiceOfTextsReadsTheDrawingAgain)
{
    open(fileWith(textDrawing, QStringLiteral("text.dxf")));
    const int countWithText = polylineCount();
    ASSERT_GT(countWithText, 1);

    waitForDrawing([this] { action("&Texts").trigger(); });
    EXPECT_EQ(polylineCount(), 1);
    EXPECT_TRUE(statusShows("Not shown: 1 text"));

    waitForDrawing([this] { action("&Texts").trigger(); });
    EXPECT_EQ(polylineCount(), countWithText);
    EXPECT_FALSE(statusShows("Not shown"));
}

TEST_F(MainWindowTest, KeysZoomAndFit)
{
    open(crossFile());
    const double fitted = view().transform().m11();

    press(Qt::Key_Plus);
    EXPECT_NEAR(view().transform().m11(), fitted * 1.25, 1e-9);
    press(Qt::Key_Plus, Qt::ControlModifier | Qt::KeypadModifier);
    press(Qt::Key_Equal);
    EXPECT_NEAR(view().transform().m11(), fitted * 1.25 * 1.25 * 1.25, 1e-9);
    press(Qt::Key_Minus);
    press(Qt::Key_Minus, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_NEAR(view().transform().m11(), fitted * 1.25, 1e-9);
    press(Qt::Key_0);
    EXPECT_NEAR(view().transform().m11(), fitted, 1e-9);
}

TEST_F(MainWindowTest, CtrlAndDragMovesTheDrawingBeforeAndAfterEditMode)
{
    open(crossFile());
    for (const bool wasEdited : {false, true}) {
        if (wasEdited) {
            edit().setChecked(true);
            edit().setChecked(false);
            ASSERT_TRUE(dxftest::eventually([this] { return shownItem(viewer())->isEnabled(); }));
        }
        const QPointF before = view().viewportTransform().map(QPointF(0, 0));
        QTest::keyPress(&view(), Qt::Key_Control, Qt::ControlModifier);

        SceneMouse mouse(view());
        mouse.modifiers = Qt::ControlModifier;
        mouse.drag({{0, 0}, {10, 10}});
        QTest::keyRelease(&view(), Qt::Key_Control);

        const QPointF moved = view().viewportTransform().map(QPointF(0, 0)) - before;
        EXPECT_GT(moved.x(), 5.0) << wasEdited;
        EXPECT_LT(moved.y(), -5.0) << wasEdited;
    }
}

TEST_F(MainWindowTest, ShowsTheColorsOfTheChosenGround)
{
    open(crossFile());
    const auto colorOfLine = [this] {
        return shownDocument(viewer())->entities().constFirst()->color();
    };
    EXPECT_EQ(colorOfLine(), QColor(Qt::white));

    action("&White").trigger();

    EXPECT_EQ(colorOfLine(), QColor(Qt::black));
    EXPECT_EQ(view().backgroundBrush().color(), QColor(Qt::white));
    EXPECT_TRUE(action("&White").isChecked());
    EXPECT_FALSE(action("&Dark").isChecked());
}

TEST_F(MainWindowTest, RestoredPolylinesHaveTheColorsOfTheNewGround)
{
    openInEditMode();
    erase();

    action("&White").trigger();
    press(Qt::Key_Z);

    ASSERT_EQ(polylineCount(), 2);
    for (const auto& entity : shownDocument(viewer())->entities())
        EXPECT_EQ(entity->color(), QColor(Qt::black));
}

TEST_F(MainWindowTest, RemembersItsSizeAndViewChoices)
{
    action("&Light").trigger();
    action("As &Stored (y Downwards)").trigger();
    action("Only &Polylines").trigger();
    action("&Texts").trigger();
    m_window->resize(611, 433);
    m_window->close();

    m_window = std::make_unique<MainWindow>();
    m_window->show();

    EXPECT_EQ(m_window->size(), QSize(611, 433));
    EXPECT_TRUE(action("&Light").isChecked());
    EXPECT_EQ(view().backgroundBrush().color(), colorOf(Ground::Light));
    EXPECT_TRUE(action("As &Stored (y Downwards)").isChecked());
    EXPECT_TRUE(action("Only &Polylines").isChecked());
    EXPECT_FALSE(action("&Texts").isChecked());
}

TEST_F(MainWindowTest, NonsenseInTheSettingsDoesNoHarm)
{
    const QString fileName = Settings().fileName();
    for (const QByteArray& nonsense :
         {QByteArray("[window]\ngeometry=@ByteArray(xx)\n[view]\nbackground=purple\n"
                     "asStored=@Variant(\\0\\0)\n"),
          QByteArray("[General]\nrecentDrawings=@Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xff)\n"),
          QByteArray(R"({"view/background":["a"],"window/geometry":"xx","lastFolder":{"a":1}})"),
          QByteArray("[view]\nbackground=@Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)\n"),
          QByteArray(4096, '\xFF'), QByteArray("\0\0[[[=;\n%%%", 10)}) {
        m_window.reset();
        ASSERT_TRUE(QDir().mkpath(QFileInfo(fileName).path()));
        dxftest::fileWith(nonsense, fileName);

        m_window = std::make_unique<MainWindow>();
        m_window->show();

        EXPECT_TRUE(action("&Dark").isChecked());
        EXPECT_TRUE(m_window->close());
    }
}

TEST_F(MainWindowTest, FitsTheScreenAtFirst)
{
    EXPECT_TRUE(m_window->screen()->availableGeometry().contains(m_window->frameGeometry()));
}

TEST_F(MainWindowTest, ShowsWhereThePointerIs)
{
    open(crossFile());

    SceneMouse(view()).move({12, -34});

    // The mouse has only whole pixels.
    const QPointF pixel = view().mapFromScene(12, -34);
    const QPointF place = view().viewportTransform().inverted().map(pixel);
    EXPECT_TRUE(statusShows(qPrintable(
        QStringLiteral("x %1  y %2").arg(place.x(), 0, 'f', 1).arg(place.y(), 0, 'f', 1))));
}

TEST_F(MainWindowTest, ShowsTheZoomAndTheNumberOfSegments)
{
    open(crossFile());
    EXPECT_TRUE(statusShows("100 %"));
    EXPECT_TRUE(statusShows("Polylines: 2, segments: 2"));

    action("Zoom &In").trigger();
    EXPECT_TRUE(statusShows("125 %"));

    edit().setChecked(true);
    EXPECT_TRUE(statusShows("to erase"));
    erase();
    EXPECT_TRUE(dxftest::eventually([this] { return statusShows("Polylines: 1, segments: 1"); }));
    edit().setChecked(false);
    EXPECT_FALSE(statusShows("to erase"));
}

TEST_F(MainWindowTest, KeyOpensTheDrawingThatIsChosen)
{
    m_robot.expectFileName(crossFile());

    press(Qt::Key_O);

    EXPECT_TRUE(dxftest::eventually([this] { return shownDocument(viewer()) != nullptr; }));
    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("cross.dxf[*]"));
}

TEST_F(MainWindowTest, OffersTheFolderOfTheLastDrawing)
{
    open(crossFile());
    EXPECT_EQ(folderOffered(), path(QString()));

    restart();
    EXPECT_EQ(folderOffered(), path(QString()));

    Q_EMIT action("Open &Recent").menu()->aboutToShow();
    action("Clear List").trigger();
    restart();
    EXPECT_EQ(folderOffered(), path(QString()));
}

TEST_F(MainWindowTest, OffersTheFolderOfAFileThatCannotBeRead)
{
    open(crossFile());
    ASSERT_TRUE(QDir(path(QString())).mkdir(QStringLiteral("inner")));
    std::string error;
    m_robot.expectFileName(fileWith("no drawing", QStringLiteral("inner/bad.dxf")));
    m_robot.expectError(error);
    action("&Open…").trigger();
    ASSERT_TRUE(dxftest::eventually([&error] { return !error.empty(); }));

    EXPECT_EQ(folderOffered(), path(QStringLiteral("inner")));

    restart();
    EXPECT_EQ(folderOffered(), path(QStringLiteral("inner")));
}

TEST_F(MainWindowTest, OffersTheFolderOfASavedCopy)
{
    open(crossFile());
    ASSERT_TRUE(QDir(path(QString())).mkdir(QStringLiteral("inner")));
    m_robot.expectFileName(path(QStringLiteral("inner/copy.dxf")));
    action("Save &As…").trigger();

    restart();
    EXPECT_EQ(folderOffered(), path(QStringLiteral("inner")));
}

TEST_F(MainWindowTest, OffersTheCurrentFolderInPlaceOfOneThatIsGone)
{
    const QString current = QDir::currentPath();
    EXPECT_EQ(folderOffered(), current);

    for (const QVariant& folder :
         {QVariant(QStringLiteral("/no/such/folder")), QVariant(QStringLiteral("relative")),
          QVariant(QStringList{QStringLiteral("/"), QStringLiteral("/tmp")}), QVariant(7)}) {
        Settings().setValue(QStringLiteral("lastFolder"), folder);
        restart();

        EXPECT_EQ(folderOffered(), current);
    }
}

TEST_F(MainWindowTest, MenuOpensNothingWhenNothingIsChosen)
{
    m_robot.expect<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });

    action("&Open…").trigger();

    EXPECT_FALSE(action("Save &As…").isEnabled());
}

TEST_F(MainWindowTest, TheKeyThatClosesAWindowQuits)
{
    press(Qt::Key_W);

    EXPECT_FALSE(m_window->isVisible());
}

TEST_F(MainWindowTest, KeyQuits)
{
    QTimer::singleShot(0, m_window.get(), [this] { press(Qt::Key_Q); });
    QTimer::singleShot(dxftest::patienceMs, m_window.get(), [] { QApplication::exit(1); });

    // The program ends with its last window.
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_FALSE(m_window->isVisible());
}

TEST_F(MainWindowTest, KeyQuitsOnlyAfterAQuestionAboutEdits)
{
    openInEditMode();
    erase();
    m_robot.expectButton(QMessageBox::Cancel);

    press(Qt::Key_Q);

    EXPECT_TRUE(m_window->isVisible());
    EXPECT_TRUE(m_window->isWindowModified());
}

TEST_F(MainWindowTest, StartsInEditModeWhenAsked)
{
    m_window->editNextDrawing();

    open(crossFile());

    EXPECT_TRUE(edit().isChecked());
    EXPECT_NE(currentEditor(viewer()), nullptr);
}

TEST_F(MainWindowTest, KeysUndoAndRedoWhileEditModeIsOn)
{
    openInEditMode();
    erase();
    ASSERT_EQ(polylineCount(), 1);
    EXPECT_TRUE(m_window->isWindowModified());

    press(Qt::Key_Z);
    EXPECT_EQ(polylineCount(), 2);
    EXPECT_FALSE(m_window->isWindowModified());

    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(polylineCount(), 1);
    EXPECT_TRUE(m_window->isWindowModified());

    edit().setChecked(false);
    press(Qt::Key_Z);
    EXPECT_EQ(polylineCount(), 1);
    EXPECT_FALSE(action("Undo").isEnabled());
}

TEST_F(MainWindowTest, EditsStayWhenEditModeEnds)
{
    openInEditMode();
    erase();
    edit().setChecked(false);
    edit().setChecked(true);

    EXPECT_TRUE(m_window->isWindowModified());

    SceneMouse(view()).drag({{-50, 0}, {-50, 0.2}});
    press(Qt::Key_Z);

    EXPECT_EQ(polylineCount(), 1);
    EXPECT_TRUE(m_window->isWindowModified());
}

TEST_F(MainWindowTest, EditModeInAnotherWindowEndsItHere)
{
    openInEditMode();
    erase();
    MainWindow other;
    other.show();
    other.editNextDrawing();

    other.openDrawing(crossFile());
    ASSERT_TRUE(dxftest::eventually(
        [&] { return currentEditor(*other.findChild<DXFViewer*>()) != nullptr; }));

    EXPECT_EQ(currentEditor(viewer()), nullptr);
    EXPECT_FALSE(action("Undo").isEnabled());
    EXPECT_TRUE(m_window->isWindowModified());
    EXPECT_FALSE(other.isWindowModified());
    EXPECT_TRUE(dxftest::eventually([this] { return !statusShows("to erase"); }));
}

TEST_F(MainWindowTest, ClosesWithoutAQuestionWhenNothingWasErased)
{
    openInEditMode();

    EXPECT_TRUE(m_window->close());
}

TEST_F(MainWindowTest, AsksBeforeClosingWithUnsavedEdits)
{
    openInEditMode();
    erase();

    m_robot.expectButton(QMessageBox::Cancel);
    EXPECT_FALSE(m_window->close());
    EXPECT_TRUE(m_window->isVisible());

    m_robot.expectButton(QMessageBox::Discard);
    EXPECT_TRUE(m_window->close());
}

TEST_F(MainWindowTest, AsksBeforeQuittingWithUnsavedEdits)
{
    openInEditMode();
    erase();
    m_robot.expectButton(QMessageBox::Cancel);

    press(Qt::Key_Q);

    EXPECT_TRUE(m_window->isVisible());
    m_robot.expectButton(QMessageBox::Discard);
    EXPECT_TRUE(m_window->close());
}

TEST_F(MainWindowTest, StaysOpenWhenSavingIsCancelled)
{
    openInEditMode();
    erase();
    m_robot.expectButton(QMessageBox::Save);
    m_robot.expect<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });

    EXPECT_FALSE(m_window->close());

    EXPECT_TRUE(m_window->isWindowModified());
    EXPECT_EQ(polylineCount(), 1);
}

TEST_F(MainWindowTest, SavesBeforeItCloses)
{
    openInEditMode();
    erase();
    m_robot.expectButton(QMessageBox::Save);
    m_robot.expectFileName(path(QStringLiteral("kept.dxf")));

    EXPECT_TRUE(m_window->close());

    const auto kept = DXFDocument::load(contentOf(path(QStringLiteral("kept.dxf"))));
    ASSERT_NE(kept, nullptr);
    EXPECT_EQ(kept->entities().size(), 1);
}

TEST_F(MainWindowTest, AsksBeforeAnotherDrawingReplacesEdits)
{
    openInEditMode();
    erase();
    const QString other = fileWith(crossDrawing, QStringLiteral("other.dxf"));

    m_robot.expectButton(QMessageBox::Cancel);
    m_window->openDrawing(other);
    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("cross.dxf[*]"));
    EXPECT_TRUE(edit().isChecked());

    m_robot.expectButton(QMessageBox::Discard);
    open(other);
    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("other.dxf[*]"));
    EXPECT_FALSE(m_window->isWindowModified());
    EXPECT_FALSE(edit().isChecked());
    EXPECT_EQ(polylineCount(), 2);
}

TEST_F(MainWindowTest, ProposesANewNameAndSavesUnderIt)
{
    openInEditMode();
    erase();
    QString proposed;
    m_robot.expect<QFileDialog>([&proposed](QFileDialog& dialog) {
        proposed = dialog.selectedFiles().value(0);
        acceptAsItIs(dialog);
    });

    press(Qt::Key_S);

    EXPECT_EQ(proposed, path(QStringLiteral("cross-edited.dxf")));
    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("cross-edited.dxf[*]"));
    EXPECT_FALSE(m_window->isWindowModified());
    EXPECT_EQ(contentOf(path(QStringLiteral("cross.dxf"))), crossDrawing);
    EXPECT_EQ(contentOf(proposed), viewer().getData());
}

TEST_F(MainWindowTest, AddsTheMissingSuffix)
{
    open(crossFile());
    m_robot.expectFileName(path(QStringLiteral("kept")));

    press(Qt::Key_S);

    EXPECT_EQ(contentOf(path(QStringLiteral("kept.dxf"))), viewer().getData());
}

TEST_F(MainWindowTest, UndoAfterASaveIsAnEdit)
{
    openInEditMode();
    erase();
    m_robot.expectFileName(path(QStringLiteral("kept.dxf")));
    press(Qt::Key_S);
    ASSERT_FALSE(m_window->isWindowModified());

    press(Qt::Key_Z);

    EXPECT_TRUE(m_window->isWindowModified());
}

TEST_F(MainWindowTest, SaysWhatIsLostBeforeItReplacesTheOpenedFile)
{
    const QString fileName = fileWith(mixedDrawing, QStringLiteral("mixed.dxf"));
    open(fileName);
    edit().setChecked(true);
    erase();
    m_robot.expectFileName(fileName);

    const std::string question = questionOfSave();

    EXPECT_THAT(question,
                HasSubstr("1 line, 1 arc and 1 block become polylines. 2 hatches are lost."));
    EXPECT_THAT(question, HasSubstr("Only layers, line types and polylines are saved"));
    EXPECT_EQ(contentOf(fileName), mixedDrawing);
    EXPECT_TRUE(m_window->isWindowModified());
}

/// A choice that could not be read must not change the question.
TEST_F(MainWindowTest, SaysWhatIsLostOfTheDrawingThatIsShown)
{
    const QString fileName = fileWith(mixedDrawing, QStringLiteral("mixed.dxf"));
    open(fileName);
    ASSERT_TRUE(QFile::remove(fileName));
    std::string error;
    m_robot.expectError(error);
    action("Only &Polylines").trigger();
    ASSERT_TRUE(dxftest::eventually([&error] { return !error.empty(); }));
    fileWith(mixedDrawing, QStringLiteral("mixed.dxf"));
    m_robot.expectFileName(fileName);

    EXPECT_THAT(questionOfSave(), HasSubstr("1 line, 1 arc and 1 block become polylines."));
    EXPECT_FALSE(action("Only &Polylines").isChecked());
}

TEST_F(MainWindowTest, SaysThatLayoutsAreLostBeforeItReplacesTheOpenedFile)
{
    const QString fileName =
        fileWith("0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n0\n20\n0\n11\n9\n21\n9\n"
                     + QByteArray("0\nTEXT\n8\n0\n67\n1\n10\n0\n20\n0\n40\n1\n1\nA\n").repeated(50)
                     + "0\nENDSEC\n0\nEOF\n",
                 QStringLiteral("paper.dxf"));
    open(fileName);
    m_robot.expectFileName(fileName);

    EXPECT_THAT(questionOfSave(),
                HasSubstr("1 line becomes polylines. What lies on layouts is lost. Only"));
}

TEST_F(MainWindowTest, ReplacesTheOpenedFileWhenConfirmed)
{
    openInEditMode();
    erase();
    const QString fileName = crossFile();
    m_robot.expectFileName(fileName);
    m_robot.expect<QMessageBox>(&chooseReplace);

    press(Qt::Key_S);

    EXPECT_EQ(contentOf(fileName), viewer().getData());
    EXPECT_FALSE(m_window->isWindowModified());
}

TEST_F(MainWindowTest, SavesACopyAgainWithoutAQuestion)
{
    openInEditMode();
    erase();
    m_robot.expectFileName(path(QStringLiteral("kept.dxf")));
    press(Qt::Key_S);
    SceneMouse(view()).drag({{-50, 0}, {-50, 0.2}});
    ASSERT_TRUE(m_window->isWindowModified());

    press(Qt::Key_S);

    EXPECT_FALSE(m_window->isWindowModified());
    EXPECT_EQ(contentOf(path(QStringLiteral("kept.dxf"))), viewer().getData());
}

TEST_F(MainWindowTest, SavesAReloadedCopyWithoutAQuestion)
{
    openInEditMode();
    erase();
    const QString kept = path(QStringLiteral("kept.dxf"));
    m_robot.expectFileName(kept);
    press(Qt::Key_S);

    waitForDrawing([this] { press(Qt::Key_F5, Qt::NoModifier); });
    press(Qt::Key_S);
    EXPECT_EQ(contentOf(kept), viewer().getData());

    waitForDrawing([this] { action("&Texts").trigger(); });
    edit().setChecked(true);
    SceneMouse(view()).drag({{-50, 0}, {-50, 0.2}});
    ASSERT_TRUE(m_window->isWindowModified());
    press(Qt::Key_S);
    EXPECT_FALSE(m_window->isWindowModified());
    EXPECT_EQ(contentOf(kept), viewer().getData());
}

TEST_F(MainWindowTest, ACopyThatAnotherProgramChangedIsADrawingOfItsOwnOnceReloaded)
{
    openInEditMode();
    erase();
    const QString kept = path(QStringLiteral("kept.dxf"));
    m_robot.expectFileName(kept);
    press(Qt::Key_S);
    fileWith(mixedDrawing, QStringLiteral("kept.dxf"));
    waitForDrawing([this] { press(Qt::Key_F5, Qt::NoModifier); });
    QString proposed;
    m_robot.expect<QFileDialog>([&proposed](QFileDialog& dialog) {
        proposed = dialog.selectedFiles().value(0);
        dialog.reject();
    });

    press(Qt::Key_S);

    EXPECT_EQ(proposed, path(QStringLiteral("kept-edited.dxf")));
    EXPECT_EQ(contentOf(kept), mixedDrawing);
}

/// The window shows the older state then, and the newer one must not be lost.
TEST_F(MainWindowTest, ACopySavedWhileItIsReadIsNotReplacedWithoutAQuestion)
{
    openInEditMode();
    m_robot.expectFileName(path(QStringLiteral("kept.dxf")));
    press(Qt::Key_S);
    edit().setChecked(true);
    waitForDrawing([this] {
        press(Qt::Key_F5, Qt::NoModifier);
        erase();
        press(Qt::Key_S);
    });
    const QByteArray newer = contentOf(path(QStringLiteral("kept.dxf")));
    m_robot.expect<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });

    press(Qt::Key_S);

    EXPECT_EQ(contentOf(path(QStringLiteral("kept.dxf"))), newer);
}

TEST_F(MainWindowTest, SavesAgainWhenTheCopyHasVanished)
{
    openInEditMode();
    erase();
    const QString kept = path(QStringLiteral("kept.dxf"));
    m_robot.expectFileName(kept);
    press(Qt::Key_S);
    ASSERT_TRUE(QFile::remove(kept));

    press(Qt::Key_S);

    EXPECT_EQ(contentOf(kept), viewer().getData());
}

TEST_F(MainWindowTest, AsksBeforeItReplacesAFileThatAnotherProgramChanged)
{
    openInEditMode();
    erase();
    const QString kept = path(QStringLiteral("kept.dxf"));
    m_robot.expectFileName(kept);
    press(Qt::Key_S);
    fileWith("of another program", QStringLiteral("kept.dxf"));

    EXPECT_THAT(questionOfSave(), HasSubstr("Another program has changed it"));
    EXPECT_EQ(contentOf(kept), "of another program");

    m_robot.expect<QMessageBox>(&chooseReplace);
    press(Qt::Key_S);
    EXPECT_EQ(contentOf(kept), viewer().getData());
}

TEST_F(MainWindowTest, SaveAsKeyAsksForAnotherName)
{
    openInEditMode();
    m_robot.expectFileName(path(QStringLiteral("kept.dxf")));
    press(Qt::Key_S);
    m_robot.expectFileName(path(QStringLiteral("other.dxf")));

    press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);

    EXPECT_EQ(contentOf(path(QStringLiteral("other.dxf"))), viewer().getData());
    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("other.dxf[*]"));
}

TEST_F(MainWindowTest, AsksOnceBeforeItReplacesAnotherFile)
{
    open(crossFile());
    const QString old = fileWith("old", QStringLiteral("old.dxf"));
    m_robot.expectFileName(old);
    m_robot.expectButton(QMessageBox::Cancel);
    press(Qt::Key_S);
    EXPECT_EQ(contentOf(old), "old");

    m_robot.expectFileName(path(QStringLiteral("old")));
    m_robot.expect<QMessageBox>(&chooseReplace);
    press(Qt::Key_S);
    EXPECT_EQ(contentOf(old), viewer().getData());
}

TEST_F(MainWindowTest, ReloadShowsTheFileAsItIsNow)
{
    openInEditMode();
    fileWith(crossDrawing.left(crossDrawing.lastIndexOf("0\nLWPOLYLINE")) + "0\nENDSEC\n0\nEOF\n",
             QStringLiteral("cross.dxf"));

    waitForDrawing([this] { press(Qt::Key_F5, Qt::NoModifier); });

    EXPECT_EQ(polylineCount(), 1);
    EXPECT_FALSE(edit().isChecked());
}

TEST_F(MainWindowTest, AsksBeforeReloadDiscardsEdits)
{
    openInEditMode();
    erase();
    m_robot.expectButton(QMessageBox::Cancel);
    press(Qt::Key_F5, Qt::NoModifier);
    EXPECT_FALSE(files().reader().isReading());

    m_robot.expectButton(QMessageBox::Discard);
    waitForDrawing([this] { press(Qt::Key_F5, Qt::NoModifier); });
    EXPECT_EQ(polylineCount(), 2);
    EXPECT_FALSE(m_window->isWindowModified());
}

TEST_F(MainWindowTest, ReloadOfAMissingFileKeepsTheEdits)
{
    openInEditMode();
    erase();
    ASSERT_TRUE(QFile::remove(path(QStringLiteral("cross.dxf"))));

    EXPECT_THAT(errorOfReload(), HasSubstr("There is no such file."));

    expectEditsAreKept();
}

TEST_F(MainWindowTest, ReloadOfAFileWithoutPermissionKeepsTheEdits)
{
    openInEditMode();
    erase();
    ASSERT_TRUE(QFile::setPermissions(path(QStringLiteral("cross.dxf")), QFile::Permissions()));

    {
        const dxftest::OtherUser user;
        EXPECT_THAT(errorOfReload(), HasSubstr("cross.dxf"));
    }

    expectEditsAreKept();
}

TEST_F(MainWindowTest, AsksAboutEditsMadeWhileADrawingIsRead)
{
    openInEditMode();
    m_window->openDrawing(fileWith(crossDrawing, QStringLiteral("other.dxf")));
    erase();
    bool isAnswered = false;
    m_robot.expect<QMessageBox>([&isAnswered](QMessageBox& box) {
        DialogRobot::click(box, QMessageBox::Cancel);
        isAnswered = true;
    });

    EXPECT_TRUE(dxftest::eventually([&isAnswered] { return isAnswered; }));

    EXPECT_EQ(polylineCount(), 1);
    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("cross.dxf[*]"));
    EXPECT_TRUE(edit().isChecked());
}

TEST_F(MainWindowTest, ADrawingIsNotShownBehindADialog)
{
    open(crossFile());
    const QString other = fileWith(crossDrawing, QStringLiteral("other.dxf"));
    m_robot.expect<QFileDialog>([&](QFileDialog& dialog) {
        m_window->openDrawing(other);
        EXPECT_TRUE(dxftest::eventually([this] { return !files().reader().isReading(); }));
        EXPECT_EQ(m_window->windowTitle(), QStringLiteral("cross.dxf[*]"));
        dialog.reject();
    });

    waitForDrawing([this] { press(Qt::Key_S); });

    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("other.dxf[*]"));
}

TEST_F(MainWindowTest, TheSecondOfTwoDrawingsIsShown)
{
    waitForDrawing([this] {
        m_window->openDrawing(crossFile());
        m_window->openDrawing(fileWith(crossDrawing, QStringLiteral("second.dxf")));
    });

    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("second.dxf[*]"));
}

TEST_F(MainWindowTest, ClosesWhileADrawingIsRead)
{
    m_window->openDrawing(crossFile());

    EXPECT_TRUE(m_window->close());
    EXPECT_FALSE(files().reader().isReading());
    m_window.reset();
}

TEST_F(MainWindowTest, OffersRecentDrawings)
{
    open(crossFile());
    open(fileWith(crossDrawing, QStringLiteral("other.dxf")));
    QMenu* recent = action("Open &Recent").menu();
    Q_EMIT recent->aboutToShow();
    QAction* first = recent->actions().value(1);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->text(), path(QStringLiteral("cross.dxf")));

    waitForDrawing([first] { first->trigger(); });

    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("cross.dxf[*]"));
}

TEST_F(MainWindowTest, ForgetsAMissingRecentDrawing)
{
    const QString fileName = crossFile();
    open(fileName);
    ASSERT_TRUE(QFile::remove(fileName));
    std::string error;
    openInVain(fileName, error);

    QMenu* recent = action("Open &Recent").menu();
    Q_EMIT recent->aboutToShow();

    EXPECT_NE(recent->actions().constFirst()->text(), fileName);
}

TEST_F(MainWindowTest, EscapeLeavesEditModeAndSaysThatEditsStay)
{
    openInEditMode();
    erase();

    press(Qt::Key_Escape, Qt::NoModifier);

    EXPECT_FALSE(edit().isChecked());
    EXPECT_EQ(currentEditor(viewer()), nullptr);
    EXPECT_THAT(m_window->statusBar()->currentMessage().toStdString(),
                HasSubstr("The edits stay in the drawing"));
    EXPECT_EQ(polylineCount(), 1);
}

TEST_F(MainWindowTest, LeavingEditModeWithoutEditsSaysNothing)
{
    openInEditMode();

    press(Qt::Key_Escape, Qt::NoModifier);
    edit().setChecked(true);
    edit().setChecked(false);

    EXPECT_TRUE(m_window->statusBar()->currentMessage().isEmpty());
}

TEST_F(MainWindowTest, LeavingEditModeAfterEverythingWasUndoneSaysNothing)
{
    openInEditMode();
    erase();
    press(Qt::Key_Z);
    ASSERT_EQ(polylineCount(), 2);

    press(Qt::Key_Escape, Qt::NoModifier);

    EXPECT_TRUE(m_window->statusBar()->currentMessage().isEmpty());
}

TEST_F(MainWindowTest, SaysThatTheFirstPartOfATooLongStrokeIsLost)
{
    openInEditMode();
    currentEditor(viewer())->stack()->setUndoLimit(1);
    SceneMouse mouse(view());
    mouse.press({50, 60});
    mouse.move({50, 61});
    EXPECT_TRUE(dxftest::eventually([this] { return polylineCount() == 1; }));
    EXPECT_TRUE(m_window->statusBar()->currentMessage().isEmpty());

    mouse.move({-50, 0});
    mouse.release({-50, 0});

    ASSERT_EQ(polylineCount(), 0);
    EXPECT_EQ(m_window->statusBar()->currentMessage(),
              QStringLiteral("The stroke was too long: its first part can no longer be undone."));
}

TEST_F(MainWindowTest, AnotherDrawingSaysNothingAboutDiscardedEdits)
{
    openInEditMode();
    erase();
    m_robot.expectButton(QMessageBox::Discard);

    open(fileWith(crossDrawing, QStringLiteral("other.dxf")));

    EXPECT_TRUE(m_window->statusBar()->currentMessage().isEmpty());
}

TEST_F(MainWindowTest, KeysUndoAndRedoWholeStrokes)
{
    openInEditMode();
    SceneMouse mouse(view());
    mouse.press({50, 60});
    mouse.move({50, 61});
    EXPECT_TRUE(dxftest::eventually([this] { return polylineCount() == 1; }));
    mouse.move({-50, 0});
    mouse.release({-50, 0});
    ASSERT_EQ(polylineCount(), 0);

    press(Qt::Key_Z);
    EXPECT_EQ(polylineCount(), 2);
    press(Qt::Key_Y);
    EXPECT_EQ(polylineCount(), 0);
}

TEST_F(MainWindowTest, AFullDiskGivesABoxAndLeavesTheOldFile)
{
    openInEditMode();
    erase();
    const QString fileName = fileWith("old", QStringLiteral("old.dxf"));
    std::string error;
    m_robot.expectFileName(fileName);
    m_robot.expect<QMessageBox>(&chooseReplace);
    m_robot.expectError(error);
    {
        const dxftest::FileSizeLimit limit(1);
        press(Qt::Key_S);
    }

    EXPECT_THAT(error, HasSubstr("The drawing cannot be saved."));
    EXPECT_THAT(error, HasSubstr("old.dxf"));
    EXPECT_EQ(contentOf(fileName), "old");
    EXPECT_TRUE(m_window->isWindowModified());
}

TEST_F(MainWindowTest, SavesInTheMiddleOfAStroke)
{
    openInEditMode();
    SceneMouse mouse(view());
    mouse.press({50, 60});
    mouse.move({50, 61});
    ASSERT_TRUE(dxftest::eventually([this] { return polylineCount() == 1; }));
    m_robot.expectFileName(path(QStringLiteral("kept.dxf")));

    press(Qt::Key_S);
    mouse.move({-50, 0});
    mouse.release({-50, 0});

    const auto kept = DXFDocument::load(contentOf(path(QStringLiteral("kept.dxf"))));
    ASSERT_EQ(polylinesOf(*kept).size(), 1);
    EXPECT_EQ(dxftest::pointsOf(*dxftest::polylineAt(kept, 0)),
              (QVector<QPointF>{{-100, 0}, {100, 0}}));
    EXPECT_EQ(polylineCount(), 0);
    EXPECT_TRUE(m_window->isWindowModified());
}

TEST_F(MainWindowTest, MayOpenADrawingInTheMiddleOfAStroke)
{
    openInEditMode();
    SceneMouse mouse(view());
    mouse.press({50, 60});

    open(fileWith(crossDrawing, QStringLiteral("other.dxf")));
    mouse.release({50, 60});

    EXPECT_EQ(currentEditor(viewer()), nullptr);
    EXPECT_FALSE(edit().isChecked());
    EXPECT_EQ(polylineCount(), 2);
}

TEST_F(MainWindowTest, MayBeDestroyedInTheMiddleOfAStroke)
{
    openInEditMode();
    erase();
    SceneMouse mouse(view());
    mouse.press({-50, 0});
    const QPointer<DXFEditor> editor = currentEditor(viewer());

    m_window.reset();

    EXPECT_EQ(editor, nullptr);
    m_window = std::make_unique<MainWindow>();
}

TEST_F(MainWindowTest, OpensADrawingThatIsDropped)
{
    QMimeData data;
    data.setUrls(
        {QUrl::fromLocalFile(path(QStringLiteral("notes.txt"))), QUrl::fromLocalFile(crossFile())});

    EXPECT_TRUE(dxftest::dropOn(*m_window, data));

    EXPECT_TRUE(dxftest::eventually([this] { return shownDocument(viewer()) != nullptr; }));
    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("cross.dxf[*]"));
}

TEST_F(MainWindowTest, AsksBeforeADroppedDrawingReplacesEdits)
{
    openInEditMode();
    erase();
    bool isAnswered = false;
    m_robot.expect<QMessageBox>([&isAnswered](QMessageBox& box) {
        DialogRobot::click(box, QMessageBox::Cancel);
        isAnswered = true;
    });

    EXPECT_TRUE(dxftest::dropOn(*m_window, fileWith(crossDrawing, QStringLiteral("other.dxf"))));

    EXPECT_TRUE(dxftest::eventually([&isAnswered] { return isAnswered; }));
    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("cross.dxf[*]"));
    EXPECT_EQ(polylineCount(), 1);
}

TEST_F(MainWindowTest, RefusesDragsOfOtherFiles)
{
    EXPECT_FALSE(dxftest::dropOn(*m_window, path(QStringLiteral("notes.txt"))));
    EXPECT_FALSE(view().viewport()->acceptDrops());
}

TEST_F(MainWindowTest, ExportsWhatIsOnScreen)
{
    openInEditMode();
    erase();
    m_robot.expectFileName(path(QStringLiteral("cross.svg")));

    action("&Export Picture…").trigger();

    EXPECT_EQ(contentOf(path(QStringLiteral("cross.svg"))).count("<polyline"), 1);
}

TEST_F(MainWindowTest, ExportsAPngByDefault)
{
    open(fileWith(crossDrawing, QStringLiteral("cross.v2.dxf")));
    m_robot.expect<QFileDialog>([](QFileDialog& dialog) { acceptAsItIs(dialog); });

    action("&Export Picture…").trigger();

    EXPECT_FALSE(QImage(path(QStringLiteral("cross.v2.png"))).isNull());
}

TEST_F(MainWindowTest, ExportsTheKindThatIsChosen)
{
    open(crossFile());
    m_robot.expect<QFileDialog>([this](QFileDialog& dialog) {
        const QString svg = dialog.nameFilters().value(1);
        dialog.selectNameFilter(svg);
        Q_EMIT dialog.filterSelected(svg);
        dialog.findChild<QLineEdit*>()->setText(path(QStringLiteral("chosen")));
        acceptAsItIs(dialog);
    });

    action("&Export Picture…").trigger();

    EXPECT_EQ(contentOf(path(QStringLiteral("chosen.svg"))).count("<polyline"), 2);
}

TEST_F(MainWindowTest, SaysWhyAPictureCannotBeExported)
{
    open(crossFile());
    std::string error;
    m_robot.expectFileName(path(QStringLiteral("cross.jpeg")));
    m_robot.expectError(error);

    action("&Export Picture…").trigger();

    EXPECT_THAT(error, HasSubstr("cross.jpeg"));
    EXPECT_THAT(error, HasSubstr(".png, .svg or .pdf"));
}

} // namespace
