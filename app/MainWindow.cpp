// SPDX-License-Identifier: GPL-2.0-or-later

#include "MainWindow.h"

#include "DrawingFile.h"
#include "FileNames.h"
#include "Picture.h"
#include "ViewerParts.h"
#include "WaitCursor.h"

#include <dxfviewer/edit/DXFEditor.h>
#include <dxfviewer/model/DXFDocument.h>
#include <dxfviewer/viewer/DXFViewer.h>

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGraphicsView>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>
#include <QUndoStack>
#include <QUrl>

namespace
{

// The drawing window shows a drawing 5 ms after it was loaded. This is later, whatever else the
// event loop has to do.
constexpr int drawingDueMs = 50;

constexpr QSize initialSize(1100, 800);

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
{
    setCentralWidget(m_viewer);
    resize(initialSize);
    makeFileMenu();
    makeEditMenu();
    statusBar();

    prepareView(drawingView(*m_viewer));
    setAcceptDrops(true);

    // The window's own slot was connected first, so edit mode is on or off when this one runs.
    connect(&editAction(*m_viewer), &QAction::toggled, this, &MainWindow::onEditToggled);
    connect(&m_undoGroup, &QUndoGroup::cleanChanged, this, &MainWindow::onCleanChanged);
    m_drawingDue.setSingleShot(true);
    m_drawingDue.setInterval(drawingDueMs);
    connect(&m_drawingDue, &QTimer::timeout, this, &MainWindow::onDrawingDue);
    updateState();
}

MainWindow::~MainWindow()
{
    // Its stack leaves the group, so it must go first.
    delete m_viewer;
}

void MainWindow::makeFileMenu()
{
    // The drawing window has hidden actions of its own for Ctrl+O and Ctrl+S. Hidden, they leave
    // the keys to these.
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    QAction* open = menu->addAction(tr("&Open…"));
    open->setShortcut(QKeySequence::fromString(QStringLiteral("Ctrl+O")));
    connect(open, &QAction::triggered, this, &MainWindow::chooseDrawing);
    m_saveAction = menu->addAction(tr("&Save As…"));
    m_saveAction->setShortcut(QKeySequence::fromString(QStringLiteral("Ctrl+S")));
    connect(m_saveAction, &QAction::triggered, this, &MainWindow::saveAs);
    m_exportAction = menu->addAction(tr("Export &Picture…"));
    connect(m_exportAction, &QAction::triggered, this, &MainWindow::exportPicture);
    menu->addSeparator();
    QAction* quit = menu->addAction(tr("&Quit"));
    quit->setShortcut(QKeySequence::fromString(QStringLiteral("Ctrl+Q")));
    connect(quit, &QAction::triggered, this, &QWidget::close);
}

void MainWindow::makeEditMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Edit"));
    menu->addAction(&editAction(*m_viewer));
    menu->addSeparator();
    QAction* undo = m_undoGroup.createUndoAction(this, tr("Undo"));
    undo->setShortcut(QKeySequence::fromString(QStringLiteral("Ctrl+Z")));
    menu->addAction(undo);
    QAction* redo = m_undoGroup.createRedoAction(this, tr("Redo"));
    redo->setShortcut(QKeySequence::fromString(QStringLiteral("Ctrl+Shift+Z")));
    menu->addAction(redo);
}

void MainWindow::openDrawing(const QString& fileName)
{
    if (!mayDiscardEdits())
        return;
    m_waitCursor = std::make_unique<WaitCursor>();
    QString reason;
    const auto text = readDrawing(fileName, reason);
    if (text)
        load(fileName, *text);
    else
        showError(tr("The drawing cannot be opened."), fileName, reason);
}

void MainWindow::load(const QString& fileName, const QByteArray& text)
{
    // Edit mode would go on with the old drawing until the new one is on screen.
    editAction(*m_viewer).setChecked(false);
    m_previousDocument = shownDocument(*m_viewer);
    m_fileName = QFileInfo(fileName).absoluteFilePath();
    m_richerFile = m_fileName;
    m_hasLastingEdits = false;
    statusBar()->clearMessage();
    updateState();
    m_viewer->loadData(text);
    m_drawingDue.start();
}

void MainWindow::onDrawingDue()
{
    m_waitCursor.reset();
    const auto document = shownDocument(*m_viewer);
    const bool isShown = document != m_previousDocument;
    m_previousDocument.reset();
    if (!isShown) {
        // What the window would save now is not what it shows.
        const QString fileName = m_fileName;
        m_fileName.clear();
        updateState();
        showError(tr("The drawing cannot be opened."), fileName, tr("It cannot be read."));
        return;
    }
    if (document->entities().isEmpty())
        statusBar()->showMessage(
            tr("There are no polylines in this drawing, so nothing is shown."));
    if (m_editsNext)
        editAction(*m_viewer).setChecked(true);
    m_editsNext = false;
}

void MainWindow::editNextDrawing()
{
    m_editsNext = true;
}

void MainWindow::chooseDrawing()
{
    QFileDialog dialog(this, tr("Open"), QFileInfo(m_fileName).path());
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters({tr("DXF drawings (*.dxf *.DXF)"), tr("All files (*)")});
    const QString fileName = chosenFile(dialog);
    if (!fileName.isEmpty())
        openDrawing(fileName);
}

bool MainWindow::saveAs()
{
    QFileDialog dialog(this, tr("Save As"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters({tr("DXF drawings (*.dxf *.DXF)")});
    dialog.setDefaultSuffix(QStringLiteral("dxf"));
    dialog.selectFile(nameForEditedCopy(m_fileName));
    const QString fileName = chosenFile(dialog);
    return !fileName.isEmpty() && mayReplace(fileName) && save(fileName);
}

bool MainWindow::save(const QString& fileName)
{
    const QByteArray text = m_viewer->getData();
    QString reason;
    if (text.isEmpty())
        reason =
            tr("The drawing could not be written to a temporary file. The folder for temporary "
               "files may be full.");
    if (text.isEmpty() || !writeFile(fileName, text, reason)) {
        showError(tr("The drawing cannot be saved."), fileName, reason);
        return false;
    }
    if (isSameFile(fileName, m_richerFile))
        m_richerFile.clear();
    m_fileName = fileName;
    m_hasLastingEdits = false;
    if (m_undoGroup.activeStack())
        m_undoGroup.activeStack()->setClean();
    updateState();
    return true;
}

/// Asks before a file is replaced by less than it holds.
bool MainWindow::mayReplace(const QString& fileName)
{
    if (!isSameFile(fileName, m_richerFile))
        return true;
    QMessageBox box(QMessageBox::Warning, QString(), tr("Replace the drawing that was opened?"),
                    QMessageBox::Cancel, this);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(
        tr("%1\n\nOnly layers, line types and polylines are saved. Everything else that the file "
           "holds is lost: lines, arcs, texts, dimensions, hatches, blocks and the colours of "
           "single "
           "polylines. Once anything was erased, closed polylines lose their closing edge, and "
           "bulges "
           "become straight.")
            .arg(readableName(fileName)));
    QPushButton* replace = box.addButton(tr("Replace"), QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == replace;
}

void MainWindow::exportPicture()
{
    const auto document = shownDocument(*m_viewer);
    if (!document)
        return;
    QStringList filters;
    for (const QString& suffix : Picture::suffixes())
        filters += tr("%1 pictures (*.%2)").arg(suffix.toUpper(), suffix);
    QFileDialog dialog(this, tr("Export Picture"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(filters);
    dialog.setDefaultSuffix(Picture::suffixes().constFirst());
    connect(&dialog, &QFileDialog::filterSelected, &dialog,
            [&dialog, &filters](const QString& filter) {
                const auto index = filters.indexOf(filter);
                dialog.setDefaultSuffix(Picture::suffixes().value(index));
            });
    const QFileInfo info(m_fileName);
    dialog.selectFile(info.dir().filePath(info.completeBaseName() + QLatin1Char('.')
                                          + Picture::suffixes().constFirst()));
    const QString fileName = chosenFile(dialog);
    if (fileName.isEmpty())
        return;

    const QBrush background = drawingView(*m_viewer).backgroundBrush();
    QString reason;
    m_waitCursor = std::make_unique<WaitCursor>();
    const bool isWritten = Picture(document, background).write(fileName, reason);
    m_waitCursor.reset();
    if (!isWritten)
        showError(tr("The picture cannot be written."), fileName, reason);
}

void MainWindow::onEditToggled(bool isOn)
{
    // The old stack has left the group when edit mode ended.
    DXFEditor* editor = isOn ? currentEditor(*m_viewer) : nullptr;
    if (!editor)
        return;
    m_undoGroup.addStack(editor->stack());
    m_undoGroup.setActiveStack(editor->stack());
}

void MainWindow::onCleanChanged(bool isClean)
{
    // Without a stack the edits made so far are there to stay.
    if (!m_undoGroup.activeStack())
        m_hasLastingEdits = isWindowModified();
    else
        setWindowModified(m_hasLastingEdits || !isClean);
}

void MainWindow::updateState()
{
    const bool hasDrawing = !m_fileName.isEmpty();
    m_saveAction->setEnabled(hasDrawing);
    m_exportAction->setEnabled(hasDrawing);
    // A title has a mark of its own in brackets, so that in a name it must be doubled.
    QString name = hasDrawing ? readableName(QFileInfo(m_fileName).fileName()) : tr("No drawing");
    setWindowTitle(name.replace(QLatin1String("[*]"), QLatin1String("[*][*]"))
                   + QLatin1String("[*]"));
    const QUndoStack* stack = m_undoGroup.activeStack();
    setWindowModified(m_hasLastingEdits || (stack && !stack->isClean()));
}

/// Asks before unsaved edits are thrown away, and offers to save them.
bool MainWindow::mayDiscardEdits()
{
    if (!isWindowModified())
        return true;
    QMessageBox box(QMessageBox::Question, QString(), tr("Save the edited drawing?"),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(readableName(QFileInfo(m_fileName).fileName()));
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return saveAs();
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

QString MainWindow::chosenFile(QFileDialog& dialog)
{
    if (dialog.exec() != QDialog::Accepted)
        return QString();
    return dialog.selectedFiles().value(0);
}

void MainWindow::showError(const QString& what, const QString& fileName, const QString& reason)
{
    m_waitCursor.reset();
    QMessageBox box(QMessageBox::Critical, QString(), what, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(readableName(fileName) + QLatin1String("\n\n") + reason);
    box.exec();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayDiscardEdits());
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
