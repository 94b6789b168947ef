// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "BackgroundReader.h"
#include "FileMark.h"
#include "LastFolder.h"
#include "RecentFiles.h"
#include "Settings.h"

#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QTimer>

class DXFDocument;
class DXFViewer;
class EditHistory;
class QAction;
class QMenu;
class QWidget;

/**
 * The file that is shown: opening another, saving, and the questions on the way.
 *
 * A drawing is read in the background; the one that is shown stays until then. The drawing window
 * does not say when a drawing is on screen or which file it is from. This class does.
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
    /// Saves to the file of the last save, or asks for a name the first time.
    bool save();
    bool saveAs();
    /// Asks before unsaved edits are thrown away, and offers to save them.
    bool mayDiscardEdits();

    /// How drawings are read from now on. The one that is shown is read again, if the user agrees
    /// to throw unsaved edits away; otherwise nothing changes, and false is returned.
    bool setChoices(const ReadingChoices& choices);
    ReadingChoices choices() const { return m_choices; }
    /// How many entities of the drawing are not shown, by their names in DXF.
    QMap<QString, int> skipped() const { return m_skipped; }

    /// Empty if no drawing is shown.
    QString fileName() const { return m_fileName; }

    BackgroundReader& reader() { return m_reader; }

Q_SIGNALS:
    void fileNameChanged();
    /// The drawing is about to be shown. A slot can prepare it for that.
    void drawingRead(DXFDocument& document);
    /// The drawing is on screen.
    void drawingShown();

private Q_SLOTS:
    void chooseDrawing();
    void onRead(const QString& fileName, const DrawingRead& result);
    void onDrawingDue();

private:
    QAction* addAction(QMenu& menu, const QString& text, const char* key);
    void show(const QString& fileName, const DrawingRead& drawing);
    bool mayReplace(const QString& fileName);
    bool write(const QString& fileName);
    void setFileName(const QString& fileName);

    DXFViewer& m_viewer;
    EditHistory& m_history;
    QWidget& m_window;
    BackgroundReader m_reader;
    Settings m_settings;
    RecentFiles m_recent;
    LastFolder m_folder;
    QVector<QAction*> m_drawingActions;

    QString m_fileName;
    // The file that was opened: it holds more than the window can save. Empty once it is replaced.
    QString m_richerFile;
    // The file of the last save. It is replaced without a question if nobody else has changed it.
    FileMark m_saved;
    // The edits that the user has agreed to throw away for the drawing that is being read.
    int m_discardedRevision = 0;

    ReadingChoices m_choices;
    QMap<QString, int> m_shown;
    QMap<QString, int> m_skipped;

    // Runs until the drawing that was read last is on screen.
    QTimer m_drawingDue;
    QSharedPointer<DXFDocument> m_awaited;
    QSharedPointer<DXFDocument> m_previousDocument;
};
