// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

#include <QMainWindow>
#include <QPointer>
#include <QSharedPointer>

#include <memory>

class DXFDocument;
class DXFEditor;
class DXFGraphicsItem;
class QAction;
class QByteArray;
class QToolBar;
class QUndoView;
class Ui_Viewer;
class View;

/**
 * A ready window that shows a DXF drawing and lets the user erase parts of it.
 *
 * The host hands a drawing in with loadData() or loadDocument() and takes it back with getData().
 * The user switches the action "Edit .dxf" on and sweeps the eraser; Undo and Redo then stand in
 * the tool bar. There is one edit mode in the whole process: switching it on in one window ends it
 * in any other, and so does destroying any window.
 */
class DXFVIEWER_EXPORT DXFViewer : public QMainWindow
{
    Q_OBJECT

public:
    explicit DXFViewer(QWidget* parent = nullptr);
    ~DXFViewer() override;

    /**
     * Reads a drawing from a file; it is shown 5 ms later, from the event loop.
     *
     * The view is fitted to the drawing once, at that moment: show the window first. On failure the
     * reason goes to the debug channel and the picture stays, but getData() returns what was read.
     * A drawing that was loaded before and is not shown yet is then lost: when its 5 ms are over,
     * the document of the failed load is shown.
     */
    void loadData(const QString& fileName);
    /// The same from the text of a DXF file, up to its first zero byte.
    void loadData(const QByteArray& text);
    /**
     * Shows a document that the host has read itself, with any reader, in the way that loadData()
     * shows one: getData() returns it at once, and it is on the screen 5 ms later.
     *
     * The window shares the document from then on: edits go into it. A null pointer counts as a
     * failed load: the window's document is then a new empty one.
     */
    void loadDocument(QSharedPointer<DXFDocument> document);

    /// The drawing with all edits as release-12 DXF: layers, line types and polylines. Empty if
    /// nothing was ever loaded or if it could not be written.
    QByteArray getData();

private Q_SLOTS:
    void on_actionOpen_dxf_triggered();
    void on_actionSave_dxf_triggered();
    void on_actionEdit_dxf_toggled(bool arg1);
    void postLoad();

private:
    template <typename Source>
    void load(const Source& source);
    void finishLoad(bool isRead);
    void showDocument();
    bool hasItem() const;
    void deleteItem();
    void endEditingOfItem();
    void offerUndo(DXFEditor& editor);

    Ui_Viewer* m_ui;
    DXFGraphicsItem* m_graphicsItem = nullptr;
    QSharedPointer<DXFDocument> m_document;
    // A host can reach the parts of the window and may destroy them. Setting another central widget
    // destroys the view; clearing the scene destroys the item.
    QPointer<QUndoView> m_undoView;
    QPointer<View> m_view;
    QPointer<QToolBar> m_toolBar;
    QPointer<QAction> m_editAction;
    std::weak_ptr<const void> m_itemLife;
};
