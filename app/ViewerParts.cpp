// SPDX-License-Identifier: GPL-2.0-or-later

#include "ViewerParts.h"

#include <dxfviewer/edit/DXFEditor.h>
#include <dxfviewer/model/DXFDocument.h>
#include <dxfviewer/render/DXFGraphicsItem.h>
#include <dxfviewer/viewer/DXFViewer.h>

#include <QAction>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QToolBar>

QAction& editAction(const DXFViewer& viewer)
{
    return *viewer.findChild<QAction*>(QStringLiteral("actionEdit_dxf"));
}

QGraphicsView& drawingView(const DXFViewer& viewer)
{
    return *viewer.findChild<QGraphicsView*>(QStringLiteral("graphicsView"));
}

QToolBar& toolBar(const DXFViewer& viewer)
{
    return *viewer.findChild<QToolBar*>(QStringLiteral("mainToolBar"));
}

DXFEditor* currentEditor(const DXFViewer& viewer)
{
    const auto items = drawingView(viewer).scene()->items();
    for (QGraphicsItem* item : items) {
        if (auto* editor = qobject_cast<DXFEditor*>(item->toGraphicsObject()))
            return editor;
    }
    return nullptr;
}

DXFGraphicsItem* shownItem(const DXFViewer& viewer)
{
    const auto items = drawingView(viewer).scene()->items();
    for (QGraphicsItem* item : items) {
        if (auto* drawing = dynamic_cast<DXFGraphicsItem*>(item))
            return drawing;
    }
    return nullptr;
}

QSharedPointer<DXFDocument> shownDocument(const DXFViewer& viewer)
{
    const DXFGraphicsItem* item = shownItem(viewer);
    return item ? item->document() : nullptr;
}
