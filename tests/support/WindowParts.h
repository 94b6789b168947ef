// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QPointF>
#include <QSharedPointer>
#include <QVector>

class DXFDocument;
class DXFEditor;
class DXFGraphicsItem;
class DXFViewer;
class QAction;
class QByteArray;
class QGraphicsScene;
class QString;
class QToolBar;
class View;

namespace dxftest
{

/// A polyline of a drawing to be read.
struct Chain {
    QVector<QPointF> points;
    bool isClosed = false;
};

/// The text of a DXF file that holds these polylines, with every digit of their coordinates.
QByteArray drawingText(const QVector<Chain>& chains);

// The parts of a window, found as a host finds them.
View& viewOf(const DXFViewer& window);
QGraphicsScene& sceneOf(const DXFViewer& window);
QToolBar& toolBarOf(const DXFViewer& window);
QAction& actionOf(const DXFViewer& window, const char* name);
QAction& editActionOf(const DXFViewer& window);

/// The items that show a document.
QVector<DXFGraphicsItem*> itemsOf(const DXFViewer& window);
/// The document on the screen, or null.
QSharedPointer<DXFDocument> shownDocument(const DXFViewer& window);
/// The overlays of edit mode.
QVector<DXFEditor*> editorsOf(const DXFViewer& window);

/// Hands the window a drawing and waits until it is shown.
bool loadAndShow(DXFViewer& window, const QByteArray& text);
bool loadAndShow(DXFViewer& window, const QString& fileName);

} // namespace dxftest
