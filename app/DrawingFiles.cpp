// SPDX-License-Identifier: GPL-2.0-or-later

#include "DrawingFiles.h"

#include "DrawingFile.h"
#include "EditHistory.h"
#include "FileNames.h"
#include "KindWords.h"
#include "Questions.h"
#include "ViewerParts.h"

#include <dxfviewer/model/DXFDocument.h>
#include <dxfviewer/viewer/DXFViewer.h>

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QGraphicsView>
#include <QMenu>

#include <utility>

namespace
{

// The drawing window shows a drawing 5 ms after it was loaded.
constexpr int drawingDueMs = 5;

constexpr int dialogWaitMs = 100;

} // namespace

DrawingFiles::DrawingFiles(DXFViewer& viewer, EditHistory& history, QWidget& window)
    : QObject(&window)
    , m_viewer(viewer)
    , m_history(history)
    , m_window(window)
    , m_recent(m_settings)
    , m_folder(m_settings)
{
    m_drawingDue.setSingleShot(true);
    m_drawingDue.setInterval(drawingDueMs);
    connect(&m_drawingDue, &QTimer::timeout, this, &DrawingFiles::onDrawingDue);
    connect(&m_reader, &BackgroundReader::finished, this, &DrawingFiles::onRead);
    connect(&m_recent, &RecentFiles::chosen, this, &DrawingFiles::open);
}

DrawingFiles::~DrawingFiles() = default;

void DrawingFiles::addActionsTo(QMenu& menu)
{
    // The drawing window has actions of its own for Ctrl+O and Ctrl+S. They are hidden, so the keys
    // reach the actions here.
    connect(addAction(menu, tr("&Open…"), "Ctrl+O"), &QAction::triggered, this,
            &DrawingFiles::chooseDrawing);
    m_recent.serve(*menu.addMenu(tr("Open &Recent")));
    QAction* reload = addAction(menu, tr("Re&load"), "F5");
    connect(reload, &QAction::triggered, this, [this] { open(m_fileName); });
    menu.addSeparator();
    QAction* save = addAction(menu, tr("&Save"), "Ctrl+S");
    connect(save, &QAction::triggered, this, &DrawingFiles::save);
    QAction* saveAs = addAction(menu, tr("Save &As…"), "Ctrl+Shift+S");
    connect(saveAs, &QAction::triggered, this, &DrawingFiles::saveAs);
    m_drawingActions = {reload, save, saveAs};
    setFileName(m_fileName);
}

QAction* DrawingFiles::addAction(QMenu& menu, const QString& text, const char* key)
{
    QAction* action = menu.addAction(text);
    action->setShortcut(QKeySequence::fromString(QLatin1String(key)));
    return action;
}

void DrawingFiles::open(const QString& fileName)
{
    if (!mayDiscardEdits())
        return;
    m_discardedRevision = m_history.revision();
    m_reader.read(QFileInfo(fileName).absoluteFilePath(), m_choices);
}

bool DrawingFiles::setChoices(const ReadingChoices& choices)
{
    if (choices == m_choices)
        return true;
    if (!mayDiscardEdits())
        return false;
    m_choices = choices;
    // A drawing that is being read now is read again, too.
    const QString fileName = m_reader.isReading() ? m_reader.fileName() : m_fileName;
    m_discardedRevision = m_history.revision();
    if (!fileName.isEmpty())
        m_reader.read(fileName, m_choices);
    return true;
}

void DrawingFiles::onRead(const QString& fileName, const DrawingRead& result)
{
    // The user has asked for another drawing and does not wait for this one any more.
    if (m_reader.isReading())
        return freeInBackground(result.document);
    // A dialog concerns the drawing that is shown, and that must not change behind it.
    if (QApplication::activeModalWidget()) {
        QTimer::singleShot(dialogWaitMs, this,
                           [this, fileName, result] { onRead(fileName, result); });
        return;
    }
    if (!result.document) {
        if (!QFileInfo::exists(fileName))
            m_recent.remove(fileName);
        showError(m_window, tr("The drawing cannot be opened."), fileName, result.reason);
        return;
    }
    // There may be edits that were made while it was being read.
    if (m_history.revision() == m_discardedRevision || mayDiscardEdits())
        show(fileName, result);
    else
        freeInBackground(result.document);
}

void DrawingFiles::show(const QString& fileName, const DrawingRead& drawing)
{
    // Edit mode would go on with the old drawing until the new one is on screen.
    m_history.giveUpDrawing();
    m_previousDocument = shownDocument(m_viewer);
    m_awaited = drawing.document;
    m_shown = drawing.shown;
    m_skipped = drawing.skipped;
    m_richerFile = fileName;
    m_saved = FileMark();
    setFileName(fileName);
    m_recent.add(fileName);
    m_folder.noteFile(fileName);
    Q_EMIT drawingRead(*m_awaited);
    // The drawing must not be seen before it is fitted.
    drawingView(m_viewer).setUpdatesEnabled(false);
    m_viewer.loadDocument(m_awaited);
    m_drawingDue.start();
}

void DrawingFiles::onDrawingDue()
{
    if (shownDocument(m_viewer) != m_awaited) {
        m_drawingDue.start();
        return;
    }
    m_awaited.reset();
    freeInBackground(std::exchange(m_previousDocument, nullptr));
    Q_EMIT drawingShown();
    drawingView(m_viewer).setUpdatesEnabled(true);
}

void DrawingFiles::chooseDrawing()
{
    QFileDialog dialog(&m_window, tr("Open"), m_folder.path());
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters({tr("DXF drawings (*.dxf *.DXF)"), tr("All files (*)")});
    const QString fileName = chosenFile(dialog);
    if (fileName.isEmpty())
        return;
    // Noted even if the drawing cannot be read: then the user wants another from there.
    m_folder.noteFile(fileName);
    open(fileName);
}

bool DrawingFiles::save()
{
    if (!m_saved.isOf(m_fileName))
        return saveAs();
    if (m_saved.isChanged()
        && !askToReplace(m_window, m_fileName,
                         tr("Another program has changed it since it was saved. These changes are "
                            "lost.")))
        return false;
    return write(m_fileName);
}

bool DrawingFiles::saveAs()
{
    QFileDialog dialog(&m_window, tr("Save As"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // One question is enough, and the program's own says more.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setNameFilters({tr("DXF drawings (*.dxf *.DXF)")});
    dialog.setDefaultSuffix(QStringLiteral("dxf"));
    dialog.selectFile(m_saved.isOf(m_fileName) ? m_fileName : nameForEditedCopy(m_fileName));
    const QString fileName = chosenFile(dialog);
    return !fileName.isEmpty() && mayReplace(fileName) && write(fileName);
}

bool DrawingFiles::mayReplace(const QString& fileName)
{
    if (!QFileInfo::exists(fileName))
        return true;
    if (!isSameFile(fileName, m_richerFile))
        return askToReplace(m_window, fileName, tr("What it holds now is lost."));
    return askToReplace(m_window, fileName,
                        m_choices.onlyPolylines ? plainLossesSentence()
                                                : changesSentence(m_shown, m_skipped));
}

bool DrawingFiles::write(const QString& fileName)
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
    m_saved = FileMark(fileName);
    m_history.noteSaved();
    m_recent.add(fileName);
    m_folder.noteFile(fileName);
    setFileName(fileName);
    return true;
}

bool DrawingFiles::mayDiscardEdits()
{
    if (!m_history.hasUnsavedEdits())
        return true;
    switch (askAboutEdits(m_window, m_fileName)) {
    case EditsAnswer::Save:
        return save();
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
    for (QAction* action : qAsConst(m_drawingActions))
        action->setEnabled(!fileName.isEmpty());
    Q_EMIT fileNameChanged();
}
