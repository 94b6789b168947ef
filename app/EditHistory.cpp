// SPDX-License-Identifier: GPL-2.0-or-later

#include "EditHistory.h"

#include "ViewerParts.h"

#include <dxfviewer/edit/DXFEditor.h>
#include <dxfviewer/viewer/DXFViewer.h>

#include <QAction>
#include <QMenu>
#include <QUndoStack>

EditHistory::EditHistory(DXFViewer& viewer, QObject* parent)
    : QObject(parent)
    , m_viewer(viewer)
{
    // The window's own slot was connected first, so edit mode is on or off when this one runs.
    connect(&editAction(m_viewer), &QAction::toggled, this, &EditHistory::onEditToggled);
    connect(&m_group, &QUndoGroup::cleanChanged, this, &EditHistory::onCleanChanged);
}

EditHistory::~EditHistory() = default;

void EditHistory::addActionsTo(QMenu& menu)
{
    menu.addAction(&editAction(m_viewer));
    menu.addSeparator();
    QAction* undo = m_group.createUndoAction(this, tr("Undo"));
    undo->setShortcut(QKeySequence::fromString(QStringLiteral("Ctrl+Z")));
    menu.addAction(undo);
    QAction* redo = m_group.createRedoAction(this, tr("Redo"));
    redo->setShortcut(QKeySequence::fromString(QStringLiteral("Ctrl+Shift+Z")));
    menu.addAction(redo);
}

void EditHistory::noteSaved()
{
    m_hasLastingEdits = false;
    if (m_group.activeStack())
        m_group.activeStack()->setClean();
    update();
}

void EditHistory::forgetEdits()
{
    m_hasLastingEdits = false;
    update();
}

void EditHistory::onEditToggled(bool isOn)
{
    // The old stack has left the group when edit mode ended.
    DXFEditor* editor = isOn ? currentEditor(m_viewer) : nullptr;
    if (!editor)
        return;
    m_group.addStack(editor->stack());
    m_group.setActiveStack(editor->stack());
}

void EditHistory::onCleanChanged(bool /*isClean*/)
{
    // Without a stack the edits made so far are there to stay.
    if (!m_group.activeStack())
        m_hasLastingEdits = m_hasUnsavedEdits;
    update();
}

void EditHistory::update()
{
    const QUndoStack* stack = m_group.activeStack();
    m_hasUnsavedEdits = m_hasLastingEdits || (stack && !stack->isClean());
    Q_EMIT changed();
}
