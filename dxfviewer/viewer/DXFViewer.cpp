// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/viewer/DXFViewer.h"

#include "dxfviewer/edit/DXFEditor.h"
#include "dxfviewer/io/DXFReader.h"
#include "dxfviewer/io/DXFWriter.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/render/DXFGraphicsItem.h"
#include "dxfviewer/viewer/CurrentEditor.h"

#include "ui_Viewer.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDebug>
#include <QGraphicsScene>
#include <QPointer>
#include <QTimer>
#include <QUndoView>
#include <QVector>

#include <memory>
#include <utility>

using dxfviewer::CurrentEditor;

namespace
{

constexpr int postLoadDelayMs = 5;
constexpr double sceneMarginUnits = 5000.0;
constexpr double viewMarginUnits = 10.0;

// One for the whole process, not one per window: there is one edit mode at a time. It ends when the
// application object is destroyed, because an editor does not survive that.
CurrentEditor currentEditor;
bool isEndedAtExit = false;

void endEditModeAtExit()
{
    isEndedAtExit = false;
    currentEditor.end();
}

DXFEditor* beginEditMode(DXFGraphicsItem& item, const DXFViewer& window)
{
    if (!std::exchange(isEndedAtExit, true))
        qAddPostRoutine(endEditModeAtExit);
    return currentEditor.begin(item, window);
}

QRectF grown(const QRectF& rect, double margin)
{
    return rect.adjusted(-margin, -margin, margin, margin);
}

/// A view of undo histories that is never shown and outlives its window. This is intended. The list
/// keeps it reachable, so that leak checkers do not report it.
QUndoView* makeUndoView()
{
    static auto& undoViews = *new QVector<QUndoView*>;
    undoViews.append(new QUndoView);
    return undoViews.constLast();
}

} // namespace

DXFViewer::DXFViewer(QWidget* parent)
    : QMainWindow(parent)
    , m_ui(new Ui_Viewer)
    , m_undoView(makeUndoView())
{
    m_ui->setupUi(this);
    m_view = m_ui->graphicsView;
    // The view sends this signal before its scene is destroyed. Slots that run later must not find
    // a half-destroyed view here.
    connect(m_view, &QObject::destroyed, this, [this] { m_view.clear(); });
    m_toolBar = m_ui->mainToolBar;
    m_editAction = m_ui->actionEdit_dxf;
    // Drawings come in and go out through loadData() and getData(). Hiding the actions also frees
    // their shortcuts for the host.
    m_ui->actionOpen_dxf->setVisible(false);
    m_ui->actionSave_dxf->setVisible(false);
    m_ui->actionDelete_Objects->setVisible(false);
}

DXFViewer::~DXFViewer()
{
    currentEditor.end();
    deleteItem();
    // The view is destroyed after the members of this class.
    if (m_view)
        m_view->disconnect(this);
    delete m_ui;
}

void DXFViewer::loadData(const QString& fileName)
{
    load(fileName);
}

void DXFViewer::loadData(const QByteArray& text)
{
    load(text);
}

template <typename Source>
void DXFViewer::load(const Source& source)
{
    // Held here as well: a message handler may load something else meanwhile.
    const auto document = QSharedPointer<DXFDocument>::create();
    m_document = document;
    // A message handler may also destroy the window.
    const QPointer<DXFViewer> self(this);
    const bool isRead = DXFReader(*document).load(source);
    if (self)
        finishLoad(isRead);
}

void DXFViewer::loadDocument(QSharedPointer<DXFDocument> document)
{
    const bool isRead = !document.isNull();
    m_document = isRead ? std::move(document) : QSharedPointer<DXFDocument>::create();
    finishLoad(isRead);
}

void DXFViewer::finishLoad(bool isRead)
{
    if (isRead)
        QTimer::singleShot(postLoadDelayMs, this, SLOT(postLoad()));
    else
        qDebug("Load failed");
}

QByteArray DXFViewer::getData()
{
    const auto document = m_document;
    return document ? DXFWriter(*document).save() : QByteArray();
}

void DXFViewer::postLoad()
{
    // Each of these runs slots of the host, and they may destroy the window.
    const QPointer<DXFViewer> self(this);
    endEditingOfItem();
    if (self)
        deleteItem();
    if (self && m_view && m_view->scene())
        showDocument();
}

void DXFViewer::showDocument()
{
    const QPointer<DXFViewer> self(this);
    auto item = std::make_unique<DXFGraphicsItem>();
    // This may send messages, and their handler may run an event loop in which another drawing is
    // shown. That drawing is the later one and stays.
    item->setDocument(m_document);
    QGraphicsScene* scene = self && m_view ? m_view->scene() : nullptr;
    if (!scene || hasItem())
        return;

    const QRectF bounds = item->boundingRect();
    m_itemLife = item->lifeToken();
    m_graphicsItem = item.release();
    scene->addItem(m_graphicsItem);
    const auto itemLife = m_itemLife;
    const QPointer<View> view = m_view;
    scene->setSceneRect(grown(bounds, sceneMarginUnits));
    if (view && !itemLife.expired())
        view->fitInView(grown(bounds, viewMarginUnits), Qt::KeepAspectRatio);
}

bool DXFViewer::hasItem() const
{
    return !m_itemLife.expired();
}

void DXFViewer::deleteItem()
{
    DXFGraphicsItem* item = std::exchange(m_graphicsItem, nullptr);
    if (hasItem())
        delete item;
}

/// Ends edit mode if it works on this window's item, which is about to be destroyed.
void DXFViewer::endEditingOfItem()
{
    if (!currentEditor.isOf(*this))
        return;
    const QPointer<DXFViewer> self(this);
    if (m_editAction)
        m_editAction->setChecked(false);
    // The action may have been unchecked before, or be checked again.
    if (self && currentEditor.isOf(*this))
        currentEditor.end();
}

void DXFViewer::on_actionOpen_dxf_triggered()
{
    // There is no file dialog. From its own action the slot loads nothing; called directly it loads
    // a fixed drawing. Both are intended.
    m_document.reset(new DXFDocument);
    // Reads nothing. It stands for reading the file that a dialog would have chosen.
    const DXFReader unused(*m_document);
    const bool isFromAction = sender() == m_ui->actionOpen_dxf;
    loadData(isFromAction ? QString() : QStringLiteral("samples/floor-plan.dxf"));
}

void DXFViewer::on_actionSave_dxf_triggered()
{
    // Writes nothing. This is intended: the host takes drawings out with getData(). It stands for
    // writing the file that a dialog would have chosen.
    if (m_document)
        const DXFWriter unused(*m_document);
}

void DXFViewer::on_actionEdit_dxf_toggled(bool arg1)
{
    if (!arg1 || !hasItem()) {
        currentEditor.end();
        return;
    }
    const QPointer<DXFViewer> self(this);
    DXFEditor* editor = beginEditMode(*m_graphicsItem, *this);
    if (self && editor)
        offerUndo(*editor);
}

void DXFViewer::offerUndo(DXFEditor& editor)
{
    QUndoStack* stack = editor.stack();
    // They are children of the editor and may be destroyed with it before they get into the tool
    // bar.
    const QPointer<QAction> undo(
        stack->createUndoAction(&editor, QCoreApplication::translate("Viewer", "Undo")));
    const QPointer<QAction> redo(
        stack->createRedoAction(&editor, QCoreApplication::translate("Viewer", "Redo")));
    const QPointer<QToolBar> toolBar = m_toolBar;
    if (m_undoView)
        m_undoView->setStack(stack);
    for (const auto& action : {undo, redo}) {
        if (toolBar && action)
            toolBar->addAction(action);
    }
}
