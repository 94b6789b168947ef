// SPDX-License-Identifier: GPL-2.0-or-later

#include "DrawingFiles.h"

#include "DrawingFile.h"
#include "EditHistory.h"
#include "FileNames.h"
#include "Questions.h"
#include "ViewerParts.h"
#include "WaitCursor.h"

#include <dxfviewer/model/DXFDocument.h>
#include <dxfviewer/viewer/DXFViewer.h>

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>

namespace
{

// The drawing window shows a drawing 5 ms after it was loaded. This is later, whatever else the
// event loop has to do.
constexpr int drawingDueMs = 50;

} // namespace

DrawingFiles::DrawingFiles(DXFViewer& viewer, EditHistory& history, QWidget& window)
    : QObject(&window)
    , m_viewer(viewer)
    , m_history(history)
    , m_window(window)
{
    m_drawingDue.setSingleShot(true);
    m_drawingDue.setInterval(drawingDueMs);
    connect(&m_drawingDue, &QTimer::timeout, this, &DrawingFiles::onDrawingDue);
}

DrawingFiles::~DrawingFiles() = default;

void DrawingFiles::addActionsTo(QMenu& menu)
{
    // The drawing window has hidden actions of its own for Ctrl+O and Ctrl+S. Hidden, they leave
    // the keys to these.
    QAction* open = menu.addAction(tr("&Open…"));
    open->setShortcut(QKeySequence::fromString(QStringLiteral("Ctrl+O")));
    connect(open, &QAction::triggered, this, &DrawingFiles::chooseDrawing);
    m_saveAction = menu.addAction(tr("&Save As…"));
    m_saveAction->setShortcut(QKeySequence::fromString(QStringLiteral("Ctrl+S")));
    m_saveAction->setEnabled(!m_fileName.isEmpty());
    connect(m_saveAction, &QAction::triggered, this, &DrawingFiles::saveAs);
}

void DrawingFiles::open(const QString& fileName)
{
    if (!mayDiscardEdits())
        return;
    m_waitCursor = std::make_unique<WaitCursor>();
    QString reason;
    const auto text = readDrawing(fileName, reason);
    if (text) {
        load(fileName, *text);
    } else {
        m_waitCursor.reset();
        showError(m_window, tr("The drawing cannot be opened."), fileName, reason);
    }
}

void DrawingFiles::load(const QString& fileName, const QByteArray& text)
{
    // Edit mode would go on with the old drawing until the new one is on screen.
    editAction(m_viewer).setChecked(false);
    m_previousDocument = shownDocument(m_viewer);
    m_richerFile = QFileInfo(fileName).absoluteFilePath();
    m_history.forgetEdits();
    setFileName(m_richerFile);
    m_viewer.loadData(text);
    m_drawingDue.start();
}

void DrawingFiles::onDrawingDue()
{
    m_waitCursor.reset();
    const bool isShown = shownDocument(m_viewer) != m_previousDocument;
    m_previousDocument.reset();
    if (isShown) {
        Q_EMIT drawingShown();
        return;
    }
    // What the window would save now is not what it shows.
    const QString fileName = m_fileName;
    setFileName(QString());
    showError(m_window, tr("The drawing cannot be opened."), fileName, tr("It cannot be read."));
}

void DrawingFiles::chooseDrawing()
{
    QFileDialog dialog(&m_window, tr("Open"), QFileInfo(m_fileName).path());
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters({tr("DXF drawings (*.dxf *.DXF)"), tr("All files (*)")});
    const QString fileName = chosenFile(dialog);
    if (!fileName.isEmpty())
        open(fileName);
}

bool DrawingFiles::saveAs()
{
    QFileDialog dialog(&m_window, tr("Save As"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters({tr("DXF drawings (*.dxf *.DXF)")});
    dialog.setDefaultSuffix(QStringLiteral("dxf"));
    dialog.selectFile(nameForEditedCopy(m_fileName));
    const QString fileName = chosenFile(dialog);
    if (fileName.isEmpty())
        return false;
    if (isSameFile(fileName, m_richerFile) && !askToReplace(m_window, fileName))
        return false;
    return save(fileName);
}

bool DrawingFiles::save(const QString& fileName)
{
    const QByteArray text = m_viewer.getData();
    QString reason;
    if (text.isEmpty())
        reason =
            tr("The drawing could not be written to a temporary file. The folder for temporary "
               "files may be full.");
    if (text.isEmpty() || !writeFile(fileName, text, reason)) {
        showError(m_window, tr("The drawing cannot be saved."), fileName, reason);
        return false;
    }
    if (isSameFile(fileName, m_richerFile))
        m_richerFile.clear();
    m_history.noteSaved();
    setFileName(fileName);
    return true;
}

bool DrawingFiles::mayDiscardEdits()
{
    if (!m_history.hasUnsavedEdits())
        return true;
    switch (askAboutEdits(m_window, m_fileName)) {
    case EditsAnswer::Save:
        return saveAs();
    case EditsAnswer::Discard:
        return true;
    case EditsAnswer::Cancel:
        break;
    }
    return false;
}

void DrawingFiles::setFileName(const QString& fileName)
{
    m_fileName = fileName;
    if (m_saveAction)
        m_saveAction->setEnabled(!fileName.isEmpty());
    Q_EMIT fileNameChanged();
}
