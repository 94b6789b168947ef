// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

#include <QGraphicsObject>
#include <QPointer>
#include <QUndoStack>

#include <memory>

class DXFGraphicsItem;
class ISelectionTool;
class QRectF;

/**
 * Edit mode: an overlay that hands the events of a scene to the eraser and turns its requests into
 * undoable commands.
 *
 * The constructor adds it to the item's scene, over the item. The scene owns it from then on, as it
 * owns all its items. It reaches far beyond the drawing, so that strokes may begin outside.
 * Destroying it ends edit mode: the edits stay in the document, the undo history is lost, and the
 * item stays disabled. A disabled item still takes the presses of the left button.
 */
class DXFVIEWER_EXPORT DXFEditor : public QGraphicsObject
{
    Q_OBJECT

public:
    /// The item must be in a scene. If it is destroyed before the editor, the editor stays but does
    /// nothing.
    explicit DXFEditor(DXFGraphicsItem& item);
    ~DXFEditor() override;

    /// The undo history of this period of edit mode, at most ten commands. Never null, owned by
    /// the editor.
    QUndoStack* stack();

    /// Ends edit mode and destroys the editor. A slot of the stack's signals may call this while
    /// the stack is in the middle of a move. Then the overlay leaves its scene at once, and the
    /// stack loses its commands and is no longer active in its group, but both live until events
    /// are handled after the move. Two things are not safe in such a slot: to destroy the editor
    /// directly, and to end it from a slot that was connected to redoTextChanged() during the same
    /// move.
    void end();

    /// The scene's rectangle grown by 50000 drawing units on every side. In a scene without a
    /// rectangle of its own, the item's rectangle is grown instead.
    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

protected:
    bool sceneEvent(QEvent* event) override;

private Q_SLOTS:
    void onDeleteRequested();
    void redrawDoc();
    void setupTool();
    void cleanupTool();

private:
    bool itemIsAlive() const;
    QRectF sceneRect() const;
    void releaseItem();
    void leaveScene();
    void noteMove();
    void forgetMove();
    void deleteAfterMoves();

    DXFGraphicsItem& m_item;
    // Declared before the stack and so destroyed after it. A stack tells its group when it is
    // destroyed: a slot may then ask the scene for rectangles, and the scene asks this overlay.
    std::weak_ptr<const void> m_itemLife;
    mutable bool m_isAskingScene = false;
    mutable bool m_sceneHasNoRect = false;
    bool m_isEnding = false;
    bool m_endsAfterMoves = false;
    int m_stackMoves = 0;
    QMetaObject::Connection m_lastOfMove;
    QUndoStack m_stack;
    QPointer<ISelectionTool> m_tool;
};
