// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "StrokeHistory.h"

#include <QObject>
#include <QPointer>
#include <QUndoGroup>

class DXFEditor;
class DXFViewer;
class QMenu;
class QShortcut;

/**
 * Edit mode: its undo stacks, one after the other, and whether there are edits that no file has.
 *
 * Edit mode has a stack of its own each time. Edits whose stack is gone can no longer be undone,
 * only saved. The drawing window must go before its history: its stack leaves the group.
 */
class EditHistory : public QObject
{
    Q_OBJECT

public:
    explicit EditHistory(DXFViewer& viewer, QObject* parent = nullptr);
    ~EditHistory() override;

    /// Adds "Edit .dxf", Undo and Redo. Escape leaves edit mode.
    void addActionsTo(QMenu& menu);

    bool hasUnsavedEdits() const { return m_hasUnsavedEdits; }
    /// All edits made so far are in a file.
    void noteSaved();
    /// Ends edit mode because another drawing takes the place of this one, and forgets the edits.
    void giveUpDrawing();

    /// Another number after each edit, undo and redo.
    int revision() const { return m_revision; }

Q_SIGNALS:
    /// hasUnsavedEdits() may have changed.
    void changed();
    /// There is something that the user should know; a sentence for the status bar.
    void told(const QString& sentence);

private Q_SLOTS:
    void onEditToggled(bool isOn);
    void onEditorGone();
    void onCleanChanged(bool isClean);
    void onStackMoved();

private:
    void follow(DXFEditor& editor);
    void update();

    DXFViewer& m_viewer;
    // Its actions follow the stacks.
    QUndoGroup m_group;
    StrokeHistory m_strokes;
    QShortcut* m_escape;
    int m_revision = 0;
    // Of the present period of edit mode, or the one that has just ended.
    bool m_hasSteps = false;
    bool m_isGivingUp = false;
    bool m_hasLastingEdits = false;
    bool m_hasUnsavedEdits = false;
};
