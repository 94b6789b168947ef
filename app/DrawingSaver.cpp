// SPDX-License-Identifier: GPL-2.0-or-later

#include "DrawingSaver.h"

#include "DrawingFile.h"
#include "EditHistory.h"
#include "FileNames.h"
#include "Keys.h"
#include "KindWords.h"
#include "Questions.h"

#include <dxfviewer/viewer/DXFViewer.h>

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeySequence>
#include <QMenu>

DrawingSaver::DrawingSaver(DXFViewer& viewer, EditHistory& history, QWidget& window)
    : m_viewer(viewer)
    , m_history(history)
    , m_window(window)
    , m_save(makeAction(tr("&Save"), keysOf({QStringLiteral("Ctrl+S")}, {QKeySequence::Save})))
    , m_saveAs(makeAction(tr("Save &As…"),
                          keysOf({QStringLiteral("Ctrl+Shift+S")}, {QKeySequence::SaveAs})))
{
    connect(m_save, &QAction::triggered, this, &DrawingSaver::save);
    connect(m_saveAs, &QAction::triggered, this, &DrawingSaver::saveAs);
}

DrawingSaver::~DrawingSaver() = default;

QAction* DrawingSaver::makeAction(const QString& text, const QList<QKeySequence>& keys)
{
    auto* action = new QAction(text, &m_window);
    action->setShortcuts(keys);
    action->setEnabled(false);
    return action;
}

void DrawingSaver::addActionsTo(QMenu& menu)
{
    menu.addActions({m_save, m_saveAs});
}

void DrawingSaver::setFileName(const QString& fileName)
{
    m_fileName = fileName;
    for (QAction* action : {m_save, m_saveAs})
        action->setEnabled(!fileName.isEmpty());
}

void DrawingSaver::follow(const QString& fileName, const FileMark& mark, const DrawingRead& drawing)
{
    setFileName(fileName);
    m_drawing = drawing;
    m_drawing.document.reset();
    // If it was written after it was read, the window shows an older state, which must not replace
    // the newer one without a question.
    const bool showsSaved = m_saved.isOf(fileName) && m_saved == mark && !m_saved.isChanged();
    m_richerFile = showsSaved ? QString() : fileName;
    if (!showsSaved)
        m_saved = FileMark();
}

bool DrawingSaver::save()
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

bool DrawingSaver::saveAs()
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

bool DrawingSaver::mayReplace(const QString& fileName)
{
    if (!QFileInfo::exists(fileName))
        return true;
    return askToReplace(m_window, fileName,
                        isSameFile(fileName, m_richerFile) ? changesSentence(m_drawing)
                                                           : tr("What it holds now is lost."));
}

bool DrawingSaver::write(const QString& fileName)
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
    setFileName(fileName);
    m_history.noteSaved();
    Q_EMIT saved();
    return true;
}

bool DrawingSaver::mayDiscardEdits()
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
