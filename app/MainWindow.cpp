// SPDX-License-Identifier: GPL-2.0-or-later

#include "MainWindow.h"

#include "DrawingFiles.h"
#include "EditHistory.h"
#include "FileNames.h"
#include "HelpMenu.h"
#include "PictureExport.h"
#include "Printing.h"
#include "ReadingBar.h"
#include "ViewerParts.h"

#include <dxfviewer/model/DXFDocument.h>
#include <dxfviewer/viewer/DXFViewer.h>

#include <QAction>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QGraphicsView>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>

namespace
{

constexpr QSize initialSize(1100, 800);

// Long enough to be read.
constexpr int messageMs = 8000;

/// The first drawing among what is dragged; empty if there is none.
QString draggedDrawing(const QMimeData* data)
{
    const auto urls = data->urls();
    for (const QUrl& url : urls) {
        QString fileName = url.toLocalFile();
        if (fileName.endsWith(QLatin1String(".dxf"), Qt::CaseInsensitive))
            return fileName;
    }
    return QString();
}

void prepareView(QGraphicsView& view)
{
    // The view would take what is dropped on it, and do nothing with it.
    view.setAcceptDrops(false);
    view.viewport()->setAcceptDrops(false);
    // A scroll bar that comes after the drawing was fitted covers a part of it.
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_viewer(new DXFViewer)
    , m_history(new EditHistory(*m_viewer, this))
    , m_files(new DrawingFiles(*m_viewer, *m_history, *this))
{
    setCentralWidget(m_viewer);
    resize(initialSize);
    makeFileMenu();
    makeEditMenu();
    makeHelpMenu();
    statusBar()->addPermanentWidget(new ReadingBar(m_files->reader()));

    prepareView(drawingView(*m_viewer));
    setAcceptDrops(true);

    connect(m_history, &EditHistory::changed, this,
            [this] { setWindowModified(m_history->hasUnsavedEdits()); });
    connect(m_history, &EditHistory::told, this,
            [this](const QString& sentence) { statusBar()->showMessage(sentence, messageMs); });
    connect(m_files, &DrawingFiles::fileNameChanged, this, &MainWindow::onFileNameChanged);
    connect(m_files, &DrawingFiles::drawingShown, this, &MainWindow::onDrawingShown);
    onFileNameChanged();
}

MainWindow::~MainWindow()
{
    // What works on it outlives it, the history of its edits above all.
    delete m_viewer;
}

void MainWindow::makeFileMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    m_files->addActionsTo(*menu);
    connect(addDrawingAction(*menu, tr("Export &Picture…")), &QAction::triggered, this,
            [this] { exportPicture(*m_viewer, m_files->fileName(), *this); });
    menu->addSeparator();
    QAction* print = addDrawingAction(*menu, tr("&Print…"));
    print->setShortcut(QKeySequence::fromString(QStringLiteral("Ctrl+P")));
    connect(print, &QAction::triggered, this, [this] { printing().print(); });
    connect(addDrawingAction(*menu, tr("Print Pre&view…")), &QAction::triggered, this,
            [this] { printing().preview(); });
    menu->addSeparator();
    QAction* quit = menu->addAction(tr("&Quit"));
    quit->setShortcut(QKeySequence::fromString(QStringLiteral("Ctrl+Q")));
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
    if (shownDocument(*m_viewer)->entities().isEmpty())
        statusBar()->showMessage(
            tr("There are no polylines in this drawing, so nothing is shown."));
    if (m_editsNext)
        editAction(*m_viewer).setChecked(true);
    m_editsNext = false;
}

void MainWindow::onFileNameChanged()
{
    const QString fileName = m_files->fileName();
    const bool hasDrawing = !fileName.isEmpty();
    for (QAction* action : qAsConst(m_drawingActions))
        action->setEnabled(hasDrawing);
    statusBar()->clearMessage();
    // A title has a mark of its own in brackets, so that in a name it must be doubled.
    QString name = hasDrawing ? readableName(QFileInfo(fileName).fileName()) : tr("No drawing");
    setWindowTitle(name.replace(QLatin1String("[*]"), QLatin1String("[*][*]"))
                   + QLatin1String("[*]"));
    setWindowModified(m_history->hasUnsavedEdits());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(m_files->mayDiscardEdits());
    if (event->isAccepted())
        m_files->reader().cancel();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!draggedDrawing(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const QString fileName = draggedDrawing(event->mimeData());
    if (fileName.isEmpty())
        return;
    event->acceptProposedAction();
    // The program that the drawing comes from waits for this event, and must not wait for an
    // answer from the user.
    QTimer::singleShot(0, this, [this, fileName] { openDrawing(fileName); });
}
