// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QMainWindow>

class DrawingFiles;
class DXFViewer;
class EditHistory;
class Printing;
class QAction;

/**
 * The program's window: the drawing window in its middle, and around it what the program adds.
 *
 * It only puts the parts together: each of them does one job by itself.
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
    void onDrawingShown();
    void onFileNameChanged();

private:
    void makeFileMenu();
    void makeEditMenu();
    void makeHelpMenu();
    Printing printing();
    QAction* addDrawingAction(QMenu& menu, const QString& text);

    DXFViewer* m_viewer;
    EditHistory* m_history;
    DrawingFiles* m_files;
    // For which there must be a drawing.
    QVector<QAction*> m_drawingActions;
    bool m_editsNext = false;
};
