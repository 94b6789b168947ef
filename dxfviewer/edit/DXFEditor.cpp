// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/DXFEditor.h"

#include "dxfviewer/edit/DeleteItems.h"
#include "dxfviewer/edit/ISelectionTool.h"
#include "dxfviewer/edit/RubberTool.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/render/DXFGraphicsItem.h"

#include <QAction>
#include <QDebug>
#include <QGraphicsScene>
#include <QPainter>
#include <QRectF>
#include <QScopedValueRollback>
#include <QSignalBlocker>

namespace
{

constexpr double overlayMarginUnits = 50000.0;
constexpr int undoLimit = 10;

QRectF grown(const QRectF& rect)
{
    return rect.adjusted(-overlayMarginUnits, -overlayMarginUnits, overlayMarginUnits,
                         overlayMarginUnits);
}

} // namespace

DXFEditor::DXFEditor(DXFGraphicsItem& item)
    : QGraphicsObject(nullptr)
    , m_item(item)
    , m_itemLife(item.lifeToken())
    , m_stack(nullptr)
{
    // The overlay is added later than the item and has the same z value, so it lies on top.
    if (m_item.scene())
        m_item.scene()->addItem(this);
    setAcceptHoverEvents(true);
    setFlag(QGraphicsItem::ItemIsFocusable);
    setFlag(QGraphicsItem::ItemHasNoContents);
    setAcceptedMouseButtons(Qt::LeftButton);
    qDebug("DXFEditor created ");
    setupTool();
    m_stack.setUndoLimit(undoLimit);
    connect(m_tool, SIGNAL(requestDelete()), this, SLOT(onDeleteRequested()), Qt::DirectConnection);
    connect(&m_stack, SIGNAL(indexChanged(int)), this, SLOT(redrawDoc()), Qt::DirectConnection);
    connect(&m_stack, &QUndoStack::indexChanged, this, &DXFEditor::noteMove);
}

DXFEditor::~DXFEditor()
{
    m_isEnding = true;
    releaseItem();
    cleanupTool();
    // Clearing the stack changes its index, and its group sends a signal when the stack is
    // destroyed. A slot of these signals must not find an overlay that is half destroyed.
    leaveScene();
    m_stack.blockSignals(true);
}

void DXFEditor::end()
{
    // A slot that runs during the end may call this again.
    if (m_isEnding)
        return;
    if (m_stackMoves == 0) {
        delete this;
        return;
    }
    m_isEnding = true;
    m_endsAfterMoves = true;
    releaseItem();
    cleanupTool();
    leaveScene();
    // The history is over, even if somebody still holds the stack.
    m_stack.setActive(false);
    const QSignalBlocker blocker(&m_stack);
    m_stack.clear();
}

/// After edit mode the item stays disabled.
void DXFEditor::releaseItem()
{
    if (!itemIsAlive())
        return;
    m_item.removeSceneEventFilter(this);
    m_item.setEnabled(false);
}

/// Takes the overlay out of its scene, and destroys the actions that were made for its stack.
void DXFEditor::leaveScene()
{
    qDeleteAll(findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly));
    if (scene())
        scene()->removeItem(this);
}

/// Counts a move as running until the last signal that it always sends, and until all other slots
/// of that signal have run: the stack still uses its members when they return. A new connection
/// runs last.
void DXFEditor::noteMove()
{
    if (m_stackMoves++ > 0)
        return;
    disconnect(m_lastOfMove);
    m_lastOfMove = connect(&m_stack, &QUndoStack::redoTextChanged, this, &DXFEditor::forgetMove);
}

void DXFEditor::forgetMove()
{
    // A macro of the host sends this signal without a move.
    if (m_stackMoves == 0 || --m_stackMoves > 0 || !m_endsAfterMoves)
        return;
    QMetaObject::invokeMethod(this, &DXFEditor::deleteAfterMoves, Qt::QueuedConnection);
}

void DXFEditor::deleteAfterMoves()
{
    if (m_stackMoves == 0)
        delete this;
}

QUndoStack* DXFEditor::stack()
{
    return &m_stack;
}

QRectF DXFEditor::boundingRect() const
{
    return grown(sceneRect());
}

/// The rectangle of the item's scene. A scene without a rectangle of its own asks its items for
/// theirs, this overlay among them, and grows to hold them. In such a scene the result is the
/// item's rectangle.
QRectF DXFEditor::sceneRect() const
{
    const QRectF itemRect = itemIsAlive() ? m_item.sceneBoundingRect() : QRectF();
    const QGraphicsScene* itemScene = itemIsAlive() ? m_item.scene() : scene();
    if (m_isAskingScene)
        m_sceneHasNoRect = true;
    if (m_isAskingScene || !itemScene)
        return itemRect;

    const QScopedValueRollback<bool> guard(m_isAskingScene, true);
    const QRectF rect = itemScene->sceneRect();
    m_sceneHasNoRect = m_sceneHasNoRect && rect.contains(grown(itemRect));
    return m_sceneHasNoRect ? itemRect : rect;
}

void DXFEditor::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/,
                      QWidget* /*widget*/)
{
    if (!painter)
        return;
    // A tint that shows where the overlay lies. ItemHasNoContents switches it off. This is
    // intended: the tint is seen only if somebody removes the flag.
    const QRectF rect = boundingRect();
    painter->setBrush(QBrush(QColor(0, 255, 0, 40), Qt::SolidPattern));
    painter->drawRects(&rect, 1);
}

bool DXFEditor::sceneEvent(QEvent* event)
{
    // Handling the event may end edit mode and destroy this overlay.
    const QPointer<DXFEditor> self(this);
    if (!m_isEnding && m_tool)
        m_tool->handle(*event);
    if (self)
        redrawDoc();
    return false;
}

void DXFEditor::onDeleteRequested()
{
    const auto document = itemIsAlive() ? m_item.document() : nullptr;
    if (!document)
        return;

    const QVector<int> ids = document->selectedIDs();
    document->setSelected(QVector<int>());
    if (!ids.isEmpty())
        m_stack.push(new DeleteItems(document, ids));
}

void DXFEditor::redrawDoc()
{
    if (itemIsAlive())
        m_item.update();
}

void DXFEditor::setupTool()
{
    if (!itemIsAlive())
        return;
    m_tool = new RubberTool(m_item.document());
    if (QGraphicsItem* marker = m_tool->getMarker()) {
        marker->setParentItem(this);
        marker->setPos(m_item.boundingRect().center());
    }
}

void DXFEditor::cleanupTool()
{
    delete m_tool;
}

bool DXFEditor::itemIsAlive() const
{
    return !m_itemLife.expired();
}
