// SPDX-License-Identifier: GPL-2.0-or-later

#include "DrawingFiles.h"

#include "EditHistory.h"
#include "Keys.h"
#include "Questions.h"

#include <dxfviewer/model/DXFDocument.h>

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>

namespace
{

constexpr int dialogWaitMs = 100;

} // namespace

DrawingFiles::DrawingFiles(DXFViewer& viewer, EditHistory& history, QWidget& window)
    : QObject(&window)
    , m_history(history)
    , m_window(window)
    , m_handOver(viewer)
    , m_saver(viewer, history, window)
    , m_recent(m_settings)
    , m_folder(m_settings)
{
    connect(&m_handOver, &HandOver::shown, this, &DrawingFiles::drawingShown);
    connect(&m_saver, &DrawingSaver::saved, this, &DrawingFiles::noteFile);
    connect(&m_reader, &BackgroundReader::finished, this, &DrawingFiles::onRead);
    connect(&m_reader, &BackgroundReader::cancelled, this, &DrawingFiles::keepShownChoices);
    connect(&m_recent, &RecentFiles::chosen, this, &DrawingFiles::open);
}

DrawingFiles::~DrawingFiles() = default;

void DrawingFiles::addActionsTo(QMenu& menu)
{
    // The drawing window has actions of its own for Ctrl+O and Ctrl+S. They are hidden, so the keys
    // reach the actions here.
    QAction* chooses = menu.addAction(tr("&Open…"), this, &DrawingFiles::chooseDrawing);
    chooses->setShortcuts(keysOf({QStringLiteral("Ctrl+O")}, {QKeySequence::Open}));
    m_recent.serve(*menu.addMenu(tr("Open &Recent")));
    m_reload = menu.addAction(tr("Re&load"), this, [this] { open(fileName()); });
    m_reload->setShortcuts(keysOf({QStringLiteral("F5")}, {QKeySequence::Refresh}));
    menu.addSeparator();
    m_saver.addActionsTo(menu);
    m_reload->setEnabled(!fileName().isEmpty());
}

void DrawingFiles::open(const QString& fileName)
{
    if (mayDiscardEdits())
        read(QFileInfo(fileName).absoluteFilePath());
}

void DrawingFiles::read(const QString& fileName)
{
    m_discardedRevision = m_history.revision();
    m_mark = FileMark(fileName);
    m_reader.read(fileName, m_choices);
}

bool DrawingFiles::setChoices(const ReadingChoices& choices)
{
    if (choices == m_choices)
        return true;
    if (!mayDiscardEdits())
        return false;
    changeChoices(choices);
    // A drawing that is being read now is read again, too.
    const QString name = m_reader.isReading() ? m_reader.fileName() : fileName();
    if (!name.isEmpty())
        read(name);
    return true;
}

void DrawingFiles::changeChoices(const ReadingChoices& choices)
{
    if (choices == m_choices)
        return;
    m_choices = choices;
    Q_EMIT choicesChanged();
}

/// What was to be read in another way is not shown.
void DrawingFiles::keepShownChoices()
{
    // Without a drawing on screen the choices are for the next one.
    if (!fileName().isEmpty())
        changeChoices(m_saver.drawing().choices);
}

void DrawingFiles::noteFile()
{
    m_recent.add(fileName());
    m_folder.noteFile(fileName());
    if (m_reload)
        m_reload->setEnabled(true);
    Q_EMIT fileNameChanged();
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
        keepShownChoices();
        if (!QFileInfo::exists(fileName))
            m_recent.remove(fileName);
        showError(m_window, tr("The drawing cannot be opened."), fileName, result.reason);
        return;
    }
    // There may be edits that were made while it was being read.
    if (m_history.revision() == m_discardedRevision || mayDiscardEdits())
        return show(fileName, result);
    keepShownChoices();
    freeInBackground(result.document);
}

void DrawingFiles::show(const QString& fileName, const DrawingRead& drawing)
{
    // Edit mode would go on with the old drawing until the new one is on screen.
    m_history.giveUpDrawing();
    m_saver.follow(fileName, m_mark, drawing);
    noteFile();
    Q_EMIT drawingRead(*drawing.document);
    m_handOver.show(drawing.document);
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
