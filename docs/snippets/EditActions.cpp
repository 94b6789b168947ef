// SPDX-License-Identifier: GPL-2.0-or-later

#include "docs/snippets/Embedding.h"

// [actions]
#include <dxfviewer/viewer/DXFViewer.h>

#include <QAction>
#include <QMenu>
#include <QUndoGroup>
#include <QUndoStack>

void addEditActions(DXFViewer& viewer, QMenu& menu)
{
    auto* group = new QUndoGroup(&viewer);
    auto* edit = viewer.findChild<QAction*>(QStringLiteral("actionEdit_dxf"));
    menu.addAction(edit);
    menu.addAction(group->createUndoAction(group));
    menu.addAction(group->createRedoAction(group));

    // The window's own slot runs first: the stack is there when this one does. When edit mode ends,
    // its stack is no longer active, and it leaves the group when it is destroyed.
    QObject::connect(edit, &QAction::toggled, group, [group, &viewer] {
        if (QUndoStack* stack = editStack(viewer)) {
            group->addStack(stack);
            group->setActiveStack(stack);
        }
    });
}
// [actions]
