// SPDX-License-Identifier: GPL-2.0-or-later

#include "EditHistory.h"

#include "ViewerParts.h"

#include <dxfviewer/edit/DXFEditor.h>
#include <dxfviewer/render/DXFGraphicsItem.h>
#include <dxfviewer/viewer/DXFViewer.h>

#include <QAction>
#include <QMenu>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QToolBar>
#include <QUndoStack>

EditHistory::EditHistory(DXFViewer& viewer, QObject* parent)
    : QObject(parent)
    , m_viewer(viewer)
    , m_strokes(drawingView(viewer), this)
    , m_escape(new QShortcut(Qt::Key_Escape, &viewer))
{
    QAction& edit = editAction(m_viewer);
    // The window's own slot was connected first, so edit mode is on or off when this one runs.
    connect(&edit, &QAction::toggled, this, &EditHistory::onEditToggled);
    connect(&m_group, &QUndoGroup::cleanChanged, this, &EditHistory::onCleanChanged);
    connect(&m_strokes, &StrokeHistory::beginningLost, this, [this] {
        Q_EMIT told(tr("The stroke was too long: its first part can no longer be undone."));
    });
    // Without edit mode the key belongs to others.
    m_escape->setEnabled(false);
    connect(m_escape, &QShortcut::activated, &edit, [&edit] { edit.setChecked(false); });
    toolBar(m_viewer).addAction(m_strokes.undoAction());
    toolBar(m_viewer).addAction(m_strokes.redoAction());
}

EditHistory::~EditHistory() = default;

void EditHistory::addActionsTo(QMenu& menu)
{
    menu.addAction(&editAction(m_viewer));
    menu.addSeparator();
    menu.addAction(m_strokes.undoAction());
    menu.addAction(m_strokes.redoAction());
}

void EditHistory::noteSaved()
{
    m_hasLastingEdits = false;
    if (m_group.activeStack())
        m_group.activeStack()->setClean();
    update();
}

void EditHistory::giveUpDrawing()
{
    const QScopedValueRollback<bool> guard(m_isGivingUp, true);
    editAction(m_viewer).setChecked(false);
    m_hasLastingEdits = false;
    update();
}

void EditHistory::onEditToggled(bool isOn)
{
    m_escape->setEnabled(isOn);
    // The old stack is no longer active in the group: edit mode has ended.
    if (DXFEditor* editor = isOn ? currentEditor(m_viewer) : nullptr)
        follow(*editor);
    else if (m_hasSteps && !m_isGivingUp)
        Q_EMIT told(tr("The edits stay in the drawing, but they can no longer be undone."));
    m_hasSteps = false;
}

void EditHistory::follow(DXFEditor& editor)
{
    m_strokes.follow(editor, *shownDocument(m_viewer));
    connect(&editor, &QObject::destroyed, this, &EditHistory::onEditorGone, Qt::QueuedConnection);
    connect(editor.stack(), &QUndoStack::indexChanged, this, &EditHistory::onStackMoved);
    m_group.addStack(editor.stack());
    m_group.setActiveStack(editor.stack());
}

void EditHistory::onEditorGone()
{
    // The end of edit mode leaves the drawing disabled, and a disabled item takes the presses that
    // would pan.
    if (DXFGraphicsItem* item = shownItem(m_viewer))
        item->setEnabled(true);
}

void EditHistory::onStackMoved()
{
    ++m_revision;
    m_hasSteps = m_strokes.hasSteps();
}

void EditHistory::onCleanChanged(bool /*isClean*/)
{
    // Without a stack the edits made so far cannot be undone any more.
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
