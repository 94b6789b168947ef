// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "DrawingRead.h"
#include "FileMark.h"

#include <QList>
#include <QObject>
#include <QString>

class DXFViewer;
class EditHistory;
class QAction;
class QKeySequence;
class QMenu;
class QWidget;

/**
 * Saves the drawing on screen, and asks before that loses something.
 *
 * A file that this class has written is replaced without a question, as long as nobody else has
 * changed it.
 */
class DrawingSaver : public QObject
{
    Q_OBJECT

public:
    /// Boxes, dialogs and actions belong to the program's window.
    DrawingSaver(DXFViewer& viewer, EditHistory& history, QWidget& window);
    ~DrawingSaver() override;

    /// Another drawing is on screen. The mark was taken before its file was read.
    void follow(const QString& fileName, const FileMark& mark, const DrawingRead& drawing);

    /// The file of the drawing on screen: the one it was read from, or the one it was saved to.
    /// Empty if no drawing is shown.
    QString fileName() const { return m_fileName; }
    /// What is known about the drawing on screen, without its document.
    const DrawingRead& drawing() const { return m_drawing; }

    /// Adds Save and Save As.
    void addActionsTo(QMenu& menu);

    /// Saves to the file of the last save, or asks for a name the first time.
    bool save();
    bool saveAs();
    /// Asks before unsaved edits are thrown away, and offers to save them.
    bool mayDiscardEdits();

Q_SIGNALS:
    void saved();

private:
    QAction* makeAction(const QString& text, const QList<QKeySequence>& keys);
    void setFileName(const QString& fileName);
    bool mayReplace(const QString& fileName);
    bool write(const QString& fileName);

    DXFViewer& m_viewer;
    EditHistory& m_history;
    QWidget& m_window;
    QAction* m_save;
    QAction* m_saveAs;
    QString m_fileName;
    DrawingRead m_drawing;
    // The file that was opened: it holds more than the window can save. Empty once it is replaced.
    QString m_richerFile;
    // The file of the last save.
    FileMark m_saved;
};
