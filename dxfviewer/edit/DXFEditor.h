// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"
#include "dxfviewer/edit/ISelectionTool.h"

#include <QGraphicsObject>
#include <QPointer>
#include <QRectF>
#include <QUndoStack>

#include <memory>

class DXFGraphicsItem;

/**
 * Edit mode: an overlay that hands the events of a scene to the eraser and turns its requests into
 * undoable commands.
 *
 * It lies over the item in the item's scene, which it joins at once and which owns it from then on
 * as any scene owns its items. It reaches far beyond the drawing, so that strokes may begin
 * outside. Destroying it ends edit mode: the edits stay in the document, the undo history goes, and
 * the item stays disabled, in which state it still takes the presses of the left button.
 */
class DXFVIEWER_EXPORT DXFEditor : public QGraphicsObject
{
    Q_OBJECT

public:
    /// The item must be in a scene. When it is destroyed before the editor, the editor stays
    /// without anything to do.
    explicit DXFEditor(DXFGraphicsItem& item);
    ~DXFEditor() override;

    /// The undo history of this period of edit mode, at most ten commands. Never null, owned by
    /// the editor.
    QUndoStack* stack();

    /// Ends edit mode and destroys the editor. A slot of the stack's signals may bring this about,
    /// and the stack is then in the middle of a move: the overlay leaves its scene at once, and the
    /// stack its group, without any command, but both live until events are handled after the
    /// move. Not safe there: to destroy the editor directly, and to end it from a slot that was
    /// connected to redoTextChanged() during the same move.
    void end();

    /// The scene's rectangle grown by 50000 drawing units on every side. In a scene that has no
    /// rectangle of its own it is the item's that is grown.
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
    // Before the stack, which tells its group when it goes: what listens there may ask the scene,
    // and the scene this overlay, for rectangles.
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
