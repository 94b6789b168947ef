// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/viewer/DXFViewer.h"

#include "dxfviewer/edit/DXFEditor.h"
#include "dxfviewer/io/DXFReader.h"
#include "dxfviewer/io/DXFWriter.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/render/DXFGraphicsItem.h"

#include "ui_Viewer.h"

#include <QCoreApplication>
#include <QDebug>
#include <QGraphicsScene>
#include <QPointer>
#include <QScopedPointer>
#include <QTimer>
#include <QUndoView>
#include <QVector>

#include <utility>

namespace
{

constexpr int postLoadDelayMs = 5;
constexpr double sceneMarginUnits = 5000.0;
constexpr double viewMarginUnits = 10.0;

// The editor belongs to its scene as well, and may be gone when the slot lets go of it.
QPointer<DXFEditor> livingEditor;
// Whose item it works on, or worked on: the item may be gone as well.
const DXFViewer* editingWindow = nullptr;

struct EndIfAlive {
    static void cleanup(DXFEditor* editor)
    {
        if (!editor || editor != livingEditor)
            return;
        livingEditor.clear();
        editor->end();
    }
};

// One slot for the whole process, not one per window: there is one edit mode at a time. It is
// emptied when the application object goes, because an editor does not survive that.
QScopedPointer<DXFEditor, EndIfAlive> tool;
bool isEmptiedAtExit = false;

void emptySlotAtExit()
{
    isEmptiedAtExit = false;
    tool.reset();
}

void fillSlot(DXFEditor* editor, const DXFViewer* window)
{
    if (!isEmptiedAtExit) {
        qAddPostRoutine(emptySlotAtExit);
        isEmptiedAtExit = true;
    }
    // The former one goes last: what listens to its end finds the slot in order.
    DXFEditor* const former = livingEditor;
    livingEditor = editor;
    editingWindow = window;
    tool.reset(editor);
    if (former)
        former->end();
}

QRectF grown(const QRectF& rect, double margin)
{
    return rect.adjusted(-margin, -margin, margin, margin);
}

/// A view of undo histories that is never shown and outlives its window. Kept within reach, so
/// that leak checkers do not report what is meant.
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
    tool.reset();
    deleteItem();
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
    // Held here as well: what listens to the log may load something else meanwhile.
    const auto document = QSharedPointer<DXFDocument>::create();
    m_document = document;
    // Nor need the window outlive the messages.
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
    if (!m_document)
        return QByteArray();
    return DXFWriter(*m_document).save();
}

void DXFViewer::postLoad()
{
    endEditingOfItem();
    deleteItem();
    QGraphicsScene* scene = m_view ? m_view->scene() : nullptr;
    if (!scene)
        return;

    m_graphicsItem = new DXFGraphicsItem;
    m_itemLife = m_graphicsItem->lifeToken();
    m_graphicsItem->setDocument(m_document);
    scene->addItem(m_graphicsItem);
    const QRectF bounds = m_graphicsItem->boundingRect();
    scene->setSceneRect(grown(bounds, sceneMarginUnits));
    m_view->fitInView(grown(bounds, viewMarginUnits), Qt::KeepAspectRatio);
}

bool DXFViewer::hasItem() const
{
    return !m_itemLife.expired();
}

void DXFViewer::deleteItem()
{
    if (hasItem())
        delete m_graphicsItem;
    m_graphicsItem = nullptr;
}

/// Ends edit mode if it works on this window's item, which is about to go.
void DXFViewer::endEditingOfItem()
{
    if (!livingEditor || editingWindow != this)
        return;
    if (m_editAction)
        m_editAction->setChecked(false);
    tool.reset();
}

void DXFViewer::on_actionOpen_dxf_triggered()
{
    // There is no file dialog: from its own action the slot loads nothing, and called directly it
    // loads a fixed drawing. Both are meant.
    m_document.reset(new DXFDocument);
    const DXFReader unused(*m_document);
    const bool isFromAction = sender() == m_ui->actionOpen_dxf;
    loadData(isFromAction ? QString() : QStringLiteral("samples/floor-plan.dxf"));
}

void DXFViewer::on_actionSave_dxf_triggered()
{
    // A writer that writes nothing. That is meant: drawings are taken out with getData().
    if (m_document)
        const DXFWriter unused(*m_document);
}

void DXFViewer::on_actionEdit_dxf_toggled(bool arg1)
{
    if (!arg1 || !hasItem()) {
        tool.reset();
        return;
    }
    fillSlot(new DXFEditor(*m_graphicsItem), this);
    // The end of the former editor may have brought about the end of this one.
    if (!tool)
        return;
    QUndoStack* stack = tool->stack();
    if (m_undoView)
        m_undoView->setStack(stack);
    if (!m_toolBar)
        return;
    m_toolBar->addAction(
        stack->createUndoAction(tool.data(), QCoreApplication::translate("Viewer", "Undo")));
    m_toolBar->addAction(
        stack->createRedoAction(tool.data(), QCoreApplication::translate("Viewer", "Redo")));
}
