// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QMainWindow>
#include <QSharedPointer>
#include <QTimer>
#include <QUndoGroup>

#include <memory>

class DXFDocument;
class DXFViewer;
class QFileDialog;
class WaitCursor;

/**
 * A program's main window, with the drawing window in its middle: what a host has to add.
 *
 * That is a menu bar, files and questions, and the state that the drawing window does not keep:
 * which file is shown and whether it has edits that were not saved.
 *
 * Two habits of the drawing window are good to know. In edit mode a drag with the left button
 * erases, with Ctrl held as well: the eraser gets the press before the view can pan. And after edit
 * mode the drawing still takes the presses of the left button, without doing anything: a host that
 * wants them itself filters the events of the view's viewport.
 */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Shows the drawing, after the user has agreed to throw unsaved edits away. If it cannot be
    /// read, a box says why, and the drawing on screen stays. Show this window first: the drawing
    /// is fitted to it once.
    void openDrawing(const QString& fileName);
    /// Switches edit mode on as soon as the next drawing is on screen.
    void editNextDrawing();

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private Q_SLOTS:
    void chooseDrawing();
    bool saveAs();
    void exportPicture();
    void onEditToggled(bool isOn);
    void onCleanChanged(bool isClean);
    void onDrawingDue();

private:
    void makeFileMenu();
    void makeEditMenu();
    void load(const QString& fileName, const QByteArray& text);
    bool save(const QString& fileName);
    void updateState();
    bool mayDiscardEdits();
    bool mayReplace(const QString& fileName);
    QString chosenFile(QFileDialog& dialog);
    void showError(const QString& what, const QString& fileName, const QString& reason);

    DXFViewer* m_viewer;
    // Edit mode has a stack of its own each time; the group's actions follow them.
    QUndoGroup m_undoGroup;
    QAction* m_saveAction = nullptr;
    QAction* m_exportAction = nullptr;

    QString m_fileName;
    // The file that was opened holds more than the window can save, until it is replaced.
    QString m_richerFile;
    // Edits whose stack is gone can no longer be undone, only saved.
    bool m_hasLastingEdits = false;

    // Restarted by each load: runs out when its drawing must be on screen.
    QTimer m_drawingDue;
    QSharedPointer<DXFDocument> m_previousDocument;
    std::unique_ptr<WaitCursor> m_waitCursor;
    bool m_editsNext = false;
};
