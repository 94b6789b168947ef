// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "StrokeHistory.h"

#include <QObject>
#include <QUndoGroup>

class DXFEditor;
class DXFViewer;
class QMenu;
class QShortcut;

/**
 * Edit mode: its undo stacks, one after the other, and whether there are unsaved edits.
 *
 * Edit mode has a stack of its own each time. Edits whose stack is gone can no longer be undone,
 * only saved. The drawing window must be destroyed before its history, so that its stack leaves the
 * group.
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

    /// A new number after each edit, undo and redo.
    int revision() const { return m_revision; }

Q_SIGNALS:
    /// hasUnsavedEdits() may have changed.
    void changed();
    /// The user should know this: a sentence for the status bar.
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
    // The stacks, of which one is active.
    QUndoGroup m_group;
    StrokeHistory m_strokes;
    QShortcut* m_escape;
    int m_revision = 0;
    // About this period of edit mode, or the one that has just ended.
    bool m_hasSteps = false;
    bool m_isGivingUp = false;
    bool m_hasLastingEdits = false;
    bool m_hasUnsavedEdits = false;
};
