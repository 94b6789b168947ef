// SPDX-License-Identifier: GPL-2.0-or-later

#include "docs/snippets/Embedding.h"

// [stack]
#include <dxfviewer/edit/DXFEditor.h>
#include <dxfviewer/viewer/DXFViewer.h>

#include <QGraphicsScene>
#include <QGraphicsView>

QUndoStack* editStack(const DXFViewer& viewer)
{
    const auto* view = viewer.findChild<QGraphicsView*>(QStringLiteral("graphicsView"));
    const auto items = view->scene()->items();
    for (QGraphicsItem* item : items) {
        if (auto* editor = qobject_cast<DXFEditor*>(item->toGraphicsObject()))
            return editor->stack();
    }
    return nullptr;
}
// [stack]
