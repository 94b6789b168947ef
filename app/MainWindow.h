// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QMainWindow>

class Appearance;
class DrawingFiles;
class DXFGraphicsItem;
class DXFViewer;
class EditHistory;
class Printing;
class QAction;
class EmptyPage;
class Navigation;
class StatusLine;
class ViewChoices;
class WindowMemory;

/**
 * The program's window: the drawing window in its middle, and around it what the program adds.
 *
 * It only puts the parts together: each of them does one job by itself.
 *
 * Note: in edit mode of the drawing window a drag with the left button erases even if Ctrl is held.
 */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Shows the drawing, after the user has agreed to throw unsaved edits away. If it cannot be
    /// read, a box says why, and the drawing on screen stays.
    void openDrawing(const QString& fileName);
    /// Switches edit mode on as soon as the next drawing is on screen.
    void editNextDrawing();

protected:
    void closeEvent(QCloseEvent* event) override;

private Q_SLOTS:
    void onDrawingShown();
    void onFileNameChanged();
    void onGroundChanged();

private:
    void makeFileMenu();
    void makeEditMenu();
    void makeHelpMenu();
    Printing printing();
    QAction* addDrawingAction(QMenu& menu, const QString& text);
    void makeViewMenu();
    WindowMemory memory();
    static QString wordsInsteadOf(const DXFGraphicsItem& item);

    DXFViewer* m_viewer;
    EditHistory* m_history;
    DrawingFiles* m_files;
    // Actions that need a drawing.
    QVector<QAction*> m_drawingActions;
    ViewChoices* m_choices;
    Navigation* m_navigation;
    Appearance* m_appearance;
    StatusLine* m_statusLine;
    EmptyPage* m_emptyPage;
    bool m_editsNext = false;
};
