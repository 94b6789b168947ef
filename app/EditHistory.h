// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QObject>
#include <QUndoGroup>

class DXFViewer;
class QMenu;

/**
 * The undo stacks of edit mode, one after the other, and whether there are edits that no file has.
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

    /// Adds "Edit .dxf", Undo and Redo.
    void addActionsTo(QMenu& menu);

    bool hasUnsavedEdits() const { return m_hasUnsavedEdits; }
    /// All edits made so far are in a file.
    void noteSaved();
    /// Another drawing takes the place of this one.
    void forgetEdits();

Q_SIGNALS:
    /// hasUnsavedEdits() may have changed.
    void changed();

private Q_SLOTS:
    void onEditToggled(bool isOn);
    void onCleanChanged(bool isClean);

private:
    void update();

    DXFViewer& m_viewer;
    // Its actions follow the stacks.
    QUndoGroup m_group;
    bool m_hasLastingEdits = false;
    bool m_hasUnsavedEdits = false;
};
