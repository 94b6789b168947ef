// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QSharedPointer>

class DXFDocument;
class DXFEditor;
class DXFGraphicsItem;
class DXFViewer;
class QAction;
class QGraphicsView;
class QToolBar;

// What a host can reach inside the window: by the object names in its form, which do not change,
// and by the public classes of the items in its scene.

/// The checkable action "Edit .dxf".
QAction& editAction(const DXFViewer& viewer);

QGraphicsView& drawingView(const DXFViewer& viewer);

QToolBar& toolBar(const DXFViewer& viewer);

/// The overlay that edit mode puts into the window's scene; null if the window is not in edit mode.
/// It is destroyed when edit mode ends, and any other window can end it.
DXFEditor* currentEditor(const DXFViewer& viewer);

/// The item that shows the drawing; null before the first.
DXFGraphicsItem* shownItem(const DXFViewer& viewer);

/// The drawing on screen; null before the first. A loaded drawing is there some milliseconds later,
/// or never if it could not be read.
QSharedPointer<DXFDocument> shownDocument(const DXFViewer& viewer);
