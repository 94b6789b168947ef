// SPDX-License-Identifier: GPL-2.0-or-later

#include "MainWindow.h"

#include "Appearance.h"
#include "DrawingDrop.h"
#include "DrawingFiles.h"
#include "EditHistory.h"
#include "EmptyPage.h"
#include "Extent.h"
#include "FileNames.h"
#include "HelpMenu.h"
#include "Keys.h"
#include "KindWords.h"
#include "Navigation.h"
#include "PictureExport.h"
#include "Polylines.h"
#include "Printing.h"
#include "ReadingBar.h"
#include "StatusLine.h"
#include "ViewChoices.h"
#include "ViewerParts.h"
#include "WindowMemory.h"

#include <dxfviewer/model/DXFDocument.h>
#include <dxfviewer/render/DXFGraphicsItem.h>
#include <dxfviewer/render/DisplayColors.h>
#include <dxfviewer/viewer/DXFViewer.h>

#include <QAction>
#include <QCloseEvent>
#include <QFileInfo>
#include <QGraphicsView>
#include <QMenuBar>
#include <QStatusBar>

namespace
{

// Long enough to be read.
constexpr int messageMs = 8000;
// A grey that can be read on every ground.
constexpr int inkNumber = 8;

void prepareView(QGraphicsView& view)
{
    // The view would accept drops and ignore them.
    view.setAcceptDrops(false);
    view.viewport()->setAcceptDrops(false);
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_viewer(new DXFViewer)
    , m_history(new EditHistory(*m_viewer, this))
    , m_files(new DrawingFiles(*m_viewer, *m_history, *this))
    , m_choices(new ViewChoices(*m_files, this))
    , m_navigation(new Navigation(drawingView(*m_viewer), this))
    , m_appearance(new Appearance(*m_viewer, this))
    , m_statusLine(new StatusLine(*m_viewer, *statusBar(), this))
    , m_emptyPage(new EmptyPage(drawingView(*m_viewer)))
{
    setCentralWidget(m_viewer);
    makeFileMenu();
    makeEditMenu();
    makeViewMenu();
    makeHelpMenu();
    statusBar()->addPermanentWidget(new ReadingBar(m_files->reader()));
    prepareView(drawingView(*m_viewer));
    editAction(*m_viewer).setEnabled(false);

    connect(new DrawingDrop(*this), &DrawingDrop::dropped, this, &MainWindow::openDrawing);
    connect(m_history, &EditHistory::changed, this,
            [this] { setWindowModified(m_history->hasUnsavedEdits()); });
    connect(m_history, &EditHistory::told, this,
            [this](const QString& sentence) { statusBar()->showMessage(sentence, messageMs); });
    connect(m_files, &DrawingFiles::fileNameChanged, this, &MainWindow::onFileNameChanged);
    connect(m_files, &DrawingFiles::drawingRead, m_appearance, &Appearance::color);
    connect(m_files, &DrawingFiles::drawingShown, this, &MainWindow::onDrawingShown);
    connect(m_navigation, &Navigation::zoomChanged, this,
            [this] { m_statusLine->setZoom(m_navigation->zoom()); });
    connect(m_appearance, &Appearance::groundChanged, this, &MainWindow::onGroundChanged);
    onFileNameChanged();
    m_emptyPage->showWords(tr("Open a drawing, or drop one here"));
    memory().restore();
    onGroundChanged();
}

MainWindow::~MainWindow()
{
    // The objects that work on it must live longer, above all the history of its edits.
    delete m_viewer;
}

void MainWindow::makeFileMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    m_files->addActionsTo(*menu);
    connect(addDrawingAction(*menu, tr("&Export Picture…")), &QAction::triggered, this,
            [this] { exportPicture(*m_viewer, m_files->fileName(), *this); });
    menu->addSeparator();
    QAction* print = addDrawingAction(*menu, tr("&Print…"));
    print->setShortcuts(keysOf({QStringLiteral("Ctrl+P")}, {QKeySequence::Print}));
    connect(print, &QAction::triggered, this, [this] { printing().print(); });
    connect(addDrawingAction(*menu, tr("Print Pre&view…")), &QAction::triggered, this,
            [this] { printing().preview(); });
    menu->addSeparator();
    QAction* quit = menu->addAction(tr("&Quit"));
    // With its only window the program ends, so the key that closes a window does the same.
    quit->setShortcuts(
        keysOf({QStringLiteral("Ctrl+Q")}, {QKeySequence::Quit, QKeySequence::Close}));
    connect(quit, &QAction::triggered, this, &QWidget::close);
}

QAction* MainWindow::addDrawingAction(QMenu& menu, const QString& text)
{
    QAction* action = menu.addAction(text);
    m_drawingActions.append(action);
    return action;
}

Printing MainWindow::printing()
{
    return {shownDocument(*m_viewer), m_files->fileName(), *this};
}

void MainWindow::makeHelpMenu()
{
    (new HelpMenu(*this))->addActionsTo(*menuBar()->addMenu(tr("&Help")));
}

void MainWindow::makeEditMenu()
{
    m_history->addActionsTo(*menuBar()->addMenu(tr("&Edit")));
}

void MainWindow::makeViewMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&View"));
    m_navigation->addActionsTo(*menu);
    menu->addSeparator();
    m_choices->addActionsTo(*menu);
    menu->addSeparator();
    m_appearance->addActionsTo(*menu);
}

WindowMemory MainWindow::memory()
{
    return {*this, *m_navigation, *m_appearance, *m_choices};
}

void MainWindow::openDrawing(const QString& fileName)
{
    m_files->open(fileName);
}

void MainWindow::editNextDrawing()
{
    m_editsNext = true;
}

void MainWindow::onDrawingShown()
{
    DXFGraphicsItem* item = shownItem(*m_viewer);
    const bool fits = fitsIntoView(item->boundingRect());
    // Painting it would take what the numbers of the scale cannot give.
    item->setVisible(fits);
    m_navigation->showDrawing(fits ? item->boundingRect() : QRectF());
    m_statusLine->setNotShown(notShownSentence(m_files->skipped()));
    m_emptyPage->showWords(wordsInsteadOf(*item));
    QAction& edit = editAction(*m_viewer);
    edit.setEnabled(fits);
    if (m_editsNext && fits)
        edit.setChecked(true);
    drawingView(*m_viewer).setFocus();
    m_editsNext = false;
}

/// What the window says if there is nothing to be seen of a drawing.
QString MainWindow::wordsInsteadOf(const DXFGraphicsItem& item)
{
    if (!hasSegments(*item.document()))
        return tr("There is nothing in this drawing that can be shown.");
    return item.isVisible() ? QString()
                            : tr("The drawing's coordinates are too large to be shown.");
}

void MainWindow::onFileNameChanged()
{
    const QString fileName = m_files->fileName();
    const bool hasDrawing = !fileName.isEmpty();
    for (QAction* action : qAsConst(m_drawingActions))
        action->setEnabled(hasDrawing);
    statusBar()->clearMessage();
    // In a title [*] is a placeholder, so in a name it must be doubled.
    QString name = hasDrawing ? readableName(QFileInfo(fileName).fileName()) : tr("No drawing");
    setWindowTitle(name.replace(QLatin1String("[*]"), QLatin1String("[*][*]"))
                   + QLatin1String("[*]"));
    setWindowModified(m_history->hasUnsavedEdits());
}

void MainWindow::onGroundChanged()
{
    const QColor ground = colorOf(m_appearance->ground());
    m_emptyPage->setInk(DisplayColors(ground).indexColor(inkNumber));
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(m_files->mayDiscardEdits());
    if (!event->isAccepted())
        return;
    // A choice that is still being read is what the user wants to see.
    memory().remember();
    m_files->reader().cancel();
}
