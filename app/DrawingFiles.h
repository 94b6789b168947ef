// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "BackgroundReader.h"
#include "DrawingSaver.h"
#include "FileMark.h"
#include "HandOver.h"
#include "LastFolder.h"
#include "RecentFiles.h"
#include "Settings.h"

#include <QObject>
#include <QString>

class DXFDocument;
class DXFViewer;
class EditHistory;
class QAction;
class QMenu;
class QWidget;

/**
 * Which drawing is shown, and how it is read: opening another, reloading, and the questions on the
 * way.
 *
 * A drawing is read in the background; the one that is shown stays until then.
 */
class DrawingFiles : public QObject
{
    Q_OBJECT

public:
    /// Boxes and dialogs belong to the program's window.
    DrawingFiles(DXFViewer& viewer, EditHistory& history, QWidget& window);
    ~DrawingFiles() override;

    /// Adds Open, Open Recent, Reload, Save and Save As.
    void addActionsTo(QMenu& menu);

    /// Shows the drawing, after the user has agreed to throw unsaved edits away. If it cannot be
    /// read, a box says why, and the drawing on screen stays.
    void open(const QString& fileName);
    /// Asks before unsaved edits are thrown away, and offers to save them.
    bool mayDiscardEdits() { return m_saver.mayDiscardEdits(); }

    /// How drawings are read from now on. The one that is shown is read again, if the user agrees
    /// to throw unsaved edits away; otherwise nothing changes, and false is returned. If it cannot
    /// be read, or that is cancelled, the choices are again those of what is shown.
    bool setChoices(const ReadingChoices& choices);
    ReadingChoices choices() const { return m_choices; }
    /// How many entities of the drawing are not shown, by their names in DXF.
    QMap<QString, int> skipped() const { return m_saver.drawing().skipped; }

    /// Empty if no drawing is shown.
    QString fileName() const { return m_saver.fileName(); }

    BackgroundReader& reader() { return m_reader; }

Q_SIGNALS:
    void fileNameChanged();
    void choicesChanged();
    /// The drawing is about to be shown. A slot can prepare it for that.
    void drawingRead(DXFDocument& document);
    /// The drawing is on screen.
    void drawingShown();

private Q_SLOTS:
    void chooseDrawing();
    void onRead(const QString& fileName, const DrawingRead& result);
    void noteFile();
    void keepShownChoices();

private:
    void read(const QString& fileName);
    void show(const QString& fileName, const DrawingRead& drawing);
    void changeChoices(const ReadingChoices& choices);

    EditHistory& m_history;
    QWidget& m_window;
    BackgroundReader m_reader;
    HandOver m_handOver;
    DrawingSaver m_saver;
    Settings m_settings;
    RecentFiles m_recent;
    LastFolder m_folder;
    QAction* m_reload = nullptr;

    ReadingChoices m_choices;
    // About the drawing that is being read: its file as it was before that, and the edits that the
    // user has agreed to throw away for it.
    FileMark m_mark;
    int m_discardedRevision = 0;
};
