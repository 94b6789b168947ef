// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QTimer>

#include <memory>

class DXFDocument;
class DXFViewer;
class EditHistory;
class QAction;
class QMenu;
class QWidget;
class WaitCursor;

/**
 * The file that is shown: opening another, saving, and the questions on the way.
 *
 * The drawing window does not say when a drawing is on screen, nor which file it is from. This
 * does.
 */
class DrawingFiles : public QObject
{
    Q_OBJECT

public:
    /// Boxes and dialogs belong to the program's window.
    DrawingFiles(DXFViewer& viewer, EditHistory& history, QWidget& window);
    ~DrawingFiles() override;

    /// Adds Open and Save As.
    void addActionsTo(QMenu& menu);

    /// Shows the drawing, after the user has agreed to throw unsaved edits away. If it cannot be
    /// read, a box says why, and the drawing on screen stays.
    void open(const QString& fileName);
    bool saveAs();
    /// Asks before unsaved edits are thrown away, and offers to save them.
    bool mayDiscardEdits();

    /// Empty if no drawing is shown.
    QString fileName() const { return m_fileName; }

Q_SIGNALS:
    void fileNameChanged();
    /// The drawing is on screen.
    void drawingShown();

private Q_SLOTS:
    void chooseDrawing();
    void onDrawingDue();

private:
    void load(const QString& fileName, const QByteArray& text);
    bool save(const QString& fileName);
    void setFileName(const QString& fileName);

    DXFViewer& m_viewer;
    EditHistory& m_history;
    QWidget& m_window;
    QAction* m_saveAction = nullptr;

    QString m_fileName;
    // The file that was opened holds more than the window can save, until it is replaced.
    QString m_richerFile;

    // Restarted by each load: runs out when its drawing must be on screen.
    QTimer m_drawingDue;
    QSharedPointer<DXFDocument> m_previousDocument;
    std::unique_ptr<WaitCursor> m_waitCursor;
};
