// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/monkey/Driver.h"

#include "fuzz/Drawing.h"
#include "tests/monkey/Drawings.h"
#include "tests/monkey/Invariants.h"
#include "tests/support/OtherEntity.h"
#include "tests/support/ToolAccess.h"

#include "dxfviewer/edit/DXFEditor.h"
#include "dxfviewer/edit/ISelectionTool.h"
#include "dxfviewer/model/DXFPolyline.h"
#include "dxfviewer/render/DXFGraphicsItem.h"
#include "dxfviewer/viewer/DXFViewer.h"
#include "dxfviewer/viewer/View.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QGraphicsScene>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace dxftest
{

namespace
{

constexpr std::size_t mostWindows = 3;
constexpr int mostEntities = 60;
constexpr int showDelayMs = 8;
constexpr int eraserPeriodMs = 60;
constexpr std::array buttons{Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton,
                             Qt::MiddleButton};

/// Like QObject::findChild(), which with some Qt 6 crashes while a widget destroys its children.
template <typename Object>
Object* childOf(const QObject* parent, const QString& name = QString())
{
    for (QObject* child : parent->children()) {
        if (!child)
            continue;
        if (auto* object = qobject_cast<Object*>(child);
            object && (name.isEmpty() || object->objectName() == name))
            return object;
        if (auto* object = childOf<Object>(child, name))
            return object;
    }
    return nullptr;
}

View* viewOf(const DXFViewer* viewer)
{
    return viewer ? childOf<View>(viewer) : nullptr;
}

QGraphicsScene* sceneOf(const DXFViewer* viewer)
{
    const View* view = viewOf(viewer);
    return view ? view->scene() : nullptr;
}

DXFGraphicsItem* itemOf(const DXFViewer* viewer)
{
    const QGraphicsScene* scene = sceneOf(viewer);
    const auto items = scene ? documentItemsIn(*scene) : QList<DXFGraphicsItem*>();
    return items.isEmpty() ? nullptr : items.first();
}

DXFEditor* overlayOf(const DXFViewer* viewer)
{
    const QGraphicsScene* scene = sceneOf(viewer);
    const auto overlays = scene ? overlaysIn(*scene) : QList<DXFEditor*>();
    return overlays.isEmpty() ? nullptr : overlays.first();
}

QSharedPointer<DXFDocument> documentOf(const DXFViewer* viewer)
{
    const DXFGraphicsItem* item = itemOf(viewer);
    return item ? item->document() : nullptr;
}

QAction* editActionOf(const DXFViewer* viewer)
{
    return childOf<QAction>(viewer, QStringLiteral("actionEdit_dxf"));
}

Qt::MouseButton buttonAt(int which)
{
    return buttons[static_cast<std::size_t>(which) % buttons.size()];
}

/// Where one of the segments is seen, if there is any.
std::optional<QPoint> segmentIn(const View& view, const DXFDocument& document, int which)
{
    const auto polylines = dxffuzz::polylinesOf(document);
    if (polylines.isEmpty())
        return std::nullopt;
    const auto segments = polylines[which % polylines.size()]->segments();
    if (segments.isEmpty())
        return std::nullopt;
    const QPoint at = view.mapFromScene(segments[which / 7 % segments.size()].line().center());
    return view.viewport()->rect().contains(at) ? std::make_optional(at) : std::nullopt;
}

/// A point of the viewport, often where there is something to erase, or one just outside.
QPoint placeIn(const DXFViewer* viewer, int a, int b)
{
    const View& view = *viewOf(viewer);
    if (const auto document = documentOf(viewer); document && b % 4 != 0) {
        if (const auto at = segmentIn(view, *document, a))
            return *at;
    }
    constexpr int outside = 10;
    const QSize size = view.viewport()->size() + QSize(2 * outside, 2 * outside);
    return {a % size.width() - outside, b % size.height() - outside};
}

// The numbers of the actions in slots.
constexpr int slotActions = 16;
constexpr int goodLoad = 6;
constexpr int badLoad = 7;

bool isLoad(int which)
{
    const int action = which % slotActions;
    return action == goodLoad || action == badLoad;
}

QVector<int> idsOf(const DXFDocument& document)
{
    QVector<int> ids;
    for (const DXFPolyline* polyline : dxffuzz::polylinesOf(document)) {
        ids.append(polyline->id());
        const auto segments = polyline->segments();
        for (const Segment& segment : segments)
            ids.append(segment.id());
    }
    return ids;
}

} // namespace

Driver::Driver()
{
    QApplication::setQuitOnLastWindowClosed(false);
}

Driver::~Driver()
{
    m_answerToMessage = nullptr;
    for (const auto& window : m_windows)
        destroy(window->viewer);
    // An editor that ended while its stack moved is destroyed here.
    QCoreApplication::processEvents();
}

void Driver::perform(const Step& step)
{
    destroyDoomed();
    if (step.op == Op::NewWindow)
        openWindow(step);
    else if (step.op == Op::TurnEventLoop)
        turnEventLoop(1 + step.a % 4);
    else if (Window* window = windowOf(step))
        performIn(*window, step);
}

/// Destroys what deleteLater() would destroy in a host that has an event loop: not inside a slot,
/// and not in the loop of a dialog.
void Driver::destroyDoomed()
{
    for (const auto& viewer : std::exchange(m_doomed, {}))
        destroy(viewer);
}

/// Destroys a window or a part of one. Slots that are called meanwhile must not use the window.
void Driver::destroy(QObject* object)
{
    if (!object)
        return;
    m_dying.append(object);
    delete object;
    m_dying.removeLast();
}

void Driver::clear(QGraphicsScene* scene)
{
    if (!scene)
        return;
    m_dying.append(scene);
    scene->clear();
    m_dying.removeLast();
}

bool Driver::isDying(const QPointer<DXFViewer>& viewer) const
{
    return !viewer || m_dying.contains(viewer.data());
}

void Driver::hear(const QString& message)
{
    // The platform logs this in the middle of its own work, where Qt does not allow the host to
    // act.
    if (message.startsWith(QLatin1String("This plugin does not support")))
        return;
    if (const auto answer = std::exchange(m_answerToMessage, nullptr))
        answer(message);
}

Driver::Window* Driver::windowOf(const Step& step)
{
    m_windows.erase(std::remove_if(m_windows.begin(), m_windows.end(),
                                   [](const auto& window) { return !window->viewer; }),
                    m_windows.end());
    if (m_windows.empty())
        return nullptr;
    // Only one window can be in edit mode, and most steps are about edit mode.
    const auto edited = std::find_if(m_windows.begin(), m_windows.end(), [](const auto& window) {
        return overlayOf(window->viewer) != nullptr;
    });
    if (edited != m_windows.end() && step.window % 4 != 0)
        return edited->get();
    return m_windows[static_cast<std::size_t>(step.window) % m_windows.size()].get();
}

/// Opens a window with a drawing, and destroys those that have no scene any more.
void Driver::openWindow(const Step& step)
{
    for (const auto& window : m_windows) {
        if (!sceneOf(window->viewer))
            destroy(window->viewer);
    }
    windowOf(step);
    if (m_windows.size() >= mostWindows)
        return;
    auto window = std::make_unique<Window>();
    window->viewer = new DXFViewer;
    window->viewer->resize(400, 300);
    window->viewer->show();
    window->viewer->loadData(goodDrawing(step.a));
    m_windows.push_back(std::move(window));
}

void Driver::performIn(Window& window, const Step& step)
{
    DXFViewer& viewer = *window.viewer;
    switch (step.op) {
    case Op::DeleteWindow:
        destroy(&viewer);
        return;
    case Op::DeleteWindowLater:
        m_doomed.append(&viewer);
        return;
    case Op::CloseWindow:
        viewer.close();
        viewer.show();
        return;
    case Op::LoadBytes:
    case Op::LoadBadBytes:
    case Op::LoadFile:
    case Op::LoadBadFile:
        load(window, step);
        return;
    case Op::ShowLoaded:
        QTest::qWait(showDelayMs);
        return;
    case Op::BeginEdit:
        if (!overlayOf(&viewer))
            editActionOf(&viewer)->setChecked(false);
        if (window.viewer)
            editActionOf(&viewer)->setChecked(true);
        return;
    case Op::AnswerSignal:
        answerSignal(window, step);
        return;
    case Op::ActOnMessage: {
        const QPointer<DXFViewer> watched = &viewer;
        m_answerToMessage = [this, watched, step](const QString& message) {
            // The overlay is not complete, and cannot be destroyed yet.
            const bool isMaking = message.startsWith(QLatin1String("DXFEditor created"));
            const bool isSettingUp = message.contains(QLatin1String("BYBLOCK"));
            // After a load the shown drawing and the one that getData() returns would be different.
            const int which = isSettingUp && isLoad(step.a) ? 0 : step.a;
            // It cannot be destroyed in the slots of this action either.
            if (isMaking)
                m_dying.append(this);
            actInSlot(watched, which, isMaking ? Freedom::DestroysNothing : Freedom::Full);
            if (isMaking)
                m_dying.removeLast();
        };
        return;
    }
    case Op::GroupUndo:
        m_group.undo();
        return;
    case Op::GroupRedo:
        m_group.redo();
        return;
    case Op::ToggleEdit:
        editActionOf(&viewer)->trigger();
        return;
    case Op::CallEditSlot:
        QMetaObject::invokeMethod(&viewer, "on_actionEdit_dxf_toggled",
                                  Q_ARG(bool, step.a % 3 != 0));
        return;
    case Op::CallSlot:
        callSlot(window, step.a);
        return;
    case Op::Shortcut: {
        constexpr std::array keys{Qt::Key_E, Qt::Key_O, Qt::Key_S, Qt::Key_Z};
        const QScopedValueRollback<int> depth(m_eventDepth, m_eventDepth + 1);
        QTest::keyClick(&viewer, keys[static_cast<std::size_t>(step.a) % keys.size()],
                        Qt::ControlModifier);
        return;
    }
    case Op::Resize:
        viewer.resize(1 + step.a % 1200, 1 + step.b % 900);
        return;
    case Op::GetData:
        viewer.getData();
        return;
    case Op::Paint:
        viewer.grab();
        return;
    default:
        break;
    }

    if (DXFEditor* overlay = overlayOf(&viewer))
        performOnOverlay(*overlay, step);
    if (DXFGraphicsItem* item = itemOf(window.viewer))
        performOnItem(*item, step);
    if (viewOf(window.viewer))
        performOnBehalfOfHost(window, step);
}

void Driver::load(Window& window, const Step& step)
{
    DXFViewer& viewer = *window.viewer;
    noteLoad(&viewer);
    const bool isGood = step.op == Op::LoadBytes || step.op == Op::LoadFile;
    const QByteArray text = isGood ? goodDrawing(step.a) : badDrawing(step.a);
    if (step.op == Op::LoadBytes || step.op == Op::LoadBadBytes) {
        viewer.loadData(text);
    } else if (step.b % 3 == 0 && !isGood) {
        viewer.loadData(step.a % 2 ? m_folder.path() : QString());
    } else {
        QFile file(m_folder.filePath(QStringLiteral("drawing.dxf")));
        if (file.open(QIODevice::WriteOnly))
            file.write(text);
        file.close();
        viewer.loadData(file.fileName());
    }
}

void Driver::noteLoad(const DXFViewer* viewer)
{
    for (const auto& window : m_windows) {
        if (window->viewer == viewer) {
            window->replaced = documentOf(viewer);
            window->isShowingItsDocument = false;
        }
    }
}

void Driver::callSlot(Window& window, int which)
{
    constexpr std::array slotNames{"on_actionOpen_dxf_triggered", "on_actionSave_dxf_triggered",
                                   "postLoad"};
    const auto index = static_cast<std::size_t>(which) % slotNames.size();
    if (index == 0) {
        noteLoad(window.viewer);
    }
    QMetaObject::invokeMethod(window.viewer, slotNames[index]);
}

void Driver::performOnOverlay(DXFEditor& overlay, const Step& step)
{
    switch (step.op) {
    case Op::Undo:
        overlay.stack()->undo();
        return;
    case Op::Redo:
        overlay.stack()->redo();
        return;
    case Op::ActOnDeleteRequest:
        actOnDeleteRequest(overlay, step);
        return;
    case Op::ActOnStackMove: {
        const QPointer<DXFViewer> viewer = windowOf(step)->viewer;
        const auto done = std::make_shared<bool>(false);
        connect(overlay.stack(), &QUndoStack::indexChanged, this, [this, viewer, step, done] {
            const QScopedValueRollback<bool> moving(m_isStackMoving, true);
            if (!std::exchange(*done, true))
                actInSlot(viewer, step.a, Freedom::ClearsNothing);
        });
        return;
    }
    case Op::DeleteTool:
        QMetaObject::invokeMethod(&overlay, "cleanupTool");
        return;
    case Op::DeleteOverlay:
        destroy(&overlay);
        return;
    default:
        return;
    }
}

void Driver::performOnItem(DXFGraphicsItem& item, const Step& step)
{
    const auto document = item.document();
    switch (step.op) {
    case Op::OverridePen:
        if (step.a % 2)
            item.setOverridePen(QPen(Qt::green, step.b % 9));
        else
            item.resetOverridePen();
        return;
    case Op::RefreshItem:
        if (document)
            item.refresh();
        return;
    case Op::DeleteItem:
        delete &item;
        return;
    default:
        break;
    }

    if (!document)
        return;
    switch (step.op) {
    case Op::AddNullEntity:
        document->addEntity(nullptr);
        return;
    case Op::AddForeignEntity:
        document->addEntity(QSharedPointer<OtherEntity>::create(step.a % 3 - 1 ? -1 : 7));
        return;
    case Op::AddPolyline:
        addPolyline(*document, step.a);
        return;
    case Op::DeleteEntity: {
        const auto entities = document->entities();
        if (!entities.isEmpty())
            document->deleteEntity(entities[step.a % entities.size()]);
        return;
    }
    case Op::Select:
    case Op::Hover:
        select(*document, step);
        return;
    default:
        return;
    }
}

void Driver::addPolyline(DXFDocument& document, int which)
{
    if (document.entities().size() >= mostEntities)
        return;
    const auto polyline = QSharedPointer<DXFPolyline>::create(0U, 0U, which % 5 == 0 ? 1U : 0U);
    const auto points = oddPoints(which);
    for (const QPointF& point : points)
        polyline->appendPoint(DXFVertex(point.x(), point.y(), 0.0, true, 0.0));
    // A host may forget to call it.
    if (which % 7 != 0)
        polyline->setup();
    document.addEntity(polyline);
}

void Driver::select(DXFDocument& document, const Step& step)
{
    const QVector<int> known = idsOf(document);
    QVector<int> ids{-1, 0, step.b};
    for (int i = 0; i < step.a % 8 && !known.isEmpty(); ++i)
        ids.append(known[(step.b + i * i) % known.size()]);
    if (step.op == Op::Hover) {
        document.setHovered(ids);
        return;
    }
    document.setSelected(ids);
    m_problem = problemOfSelection(document, ids);
}

void Driver::performOnBehalfOfHost(Window& window, const Step& step)
{
    View& view = *viewOf(window.viewer);
    const QPoint at = placeIn(window.viewer, step.a, step.b);
    switch (step.op) {
    case Op::Press:
        press(window, at, buttonAt(step.a));
        return;
    case Op::Move:
        mouse(window, QEvent::MouseMove, at);
        return;
    case Op::Release:
        release(window, at, buttonAt(step.a));
        return;
    case Op::DoubleClick:
        press(window, at, buttonAt(step.a));
        release(window, at, buttonAt(step.a));
        window.held |= buttonAt(step.a);
        mouse(window, QEvent::MouseButtonDblClick, at, buttonAt(step.a));
        release(window, at, buttonAt(step.a));
        return;
    case Op::Stroke:
        stroke(window, step);
        return;
    case Op::Leave:
        leave(window);
        return;
    case Op::Key:
        key(window, step);
        return;
    case Op::ControlKey:
        controlKey(window, step.a % 4 == 0);
        return;
    case Op::Wheel:
        wheel(window, step);
        return;
    case Op::ZoomSteps:
        zoom(window, step);
        return;
    case Op::FitView:
        if (const DXFGraphicsItem* item = itemOf(window.viewer))
            view.fitInView(item->boundingRect(), Qt::KeepAspectRatio);
        return;
    case Op::Scroll:
        view.horizontalScrollBar()->setValue((step.a - 2048) * step.b);
        view.verticalScrollBar()->setValue((step.b - 2048) * step.a);
        return;
    case Op::WaitForEraser:
        if (window.held.testFlag(Qt::LeftButton))
            QTest::qWait(eraserPeriodMs);
        return;
    case Op::ClearScene:
        clear(view.scene());
        return;
    case Op::DeleteScene:
        if (step.a % 2)
            destroy(view.scene());
        else
            view.setScene(nullptr);
        return;
    case Op::DeleteView:
        destroy(&view);
        return;
    default:
        return;
    }
}

void Driver::mouse(Window& window, QEvent::Type type, const QPoint& at, Qt::MouseButton button)
{
    View* view = viewOf(window.viewer);
    if (!view)
        return;
    QWidget* viewport = view->viewport();
    const QScopedValueRollback<int> depth(m_eventDepth, m_eventDepth + 1);
    QMouseEvent event(type, at, viewport->mapTo(viewport->window(), at), viewport->mapToGlobal(at),
                      button, window.held, window.modifiers);
    QApplication::sendEvent(viewport, &event);
}

void Driver::press(Window& window, const QPoint& at, Qt::MouseButton button)
{
    window.held |= button;
    mouse(window, QEvent::MouseButtonPress, at, button);
}

void Driver::release(Window& window, const QPoint& at, Qt::MouseButton button)
{
    window.held &= ~Qt::MouseButtons(button);
    mouse(window, QEvent::MouseButtonRelease, at, button);
}

void Driver::stroke(Window& window, const Step& step)
{
    constexpr int moves = 4;
    const QPoint from = placeIn(window.viewer, step.a, step.b);
    const QPoint to = placeIn(window.viewer, step.b * 7, step.a * 3);
    press(window, from, Qt::LeftButton);
    for (int i = 1; i <= moves && window.viewer; ++i)
        mouse(window, QEvent::MouseMove, from + (to - from) * i / moves);
    if (window.viewer)
        release(window, to, Qt::LeftButton);
}

void Driver::leave(Window& window)
{
    QEvent event(QEvent::Leave);
    QApplication::sendEvent(viewOf(window.viewer)->viewport(), &event);
}

void Driver::key(Window& window, const Step& step)
{
    constexpr std::array keys{Qt::Key_Delete, Qt::Key_Escape, Qt::Key_Tab,   Qt::Key_Left,
                              Qt::Key_PageUp, Qt::Key_A,      Qt::Key_Space, Qt::Key_Backspace};
    const auto index = static_cast<std::size_t>(step.a) % keys.size();
    QKeyEvent down(QEvent::KeyPress, keys[index], window.modifiers);
    QApplication::sendEvent(viewOf(window.viewer), &down);
    if (View* view = viewOf(window.viewer)) {
        QKeyEvent up(QEvent::KeyRelease, keys[index], window.modifiers);
        QApplication::sendEvent(view, &up);
    }
}

void Driver::controlKey(Window& window, bool down)
{
    window.modifiers = down ? Qt::ControlModifier : Qt::NoModifier;
    QKeyEvent event(down ? QEvent::KeyPress : QEvent::KeyRelease, Qt::Key_Control,
                    window.modifiers);
    QApplication::sendEvent(viewOf(window.viewer), &event);
}

void Driver::wheel(Window& window, const Step& step)
{
    constexpr std::array turns{120, -120, 1, -1, 0, 100000, -100000, -2147483647 - 1};
    const int turn = turns[static_cast<std::size_t>(step.a) % turns.size()];
    View& view = *viewOf(window.viewer);
    const QPoint at = placeIn(window.viewer, step.a, step.b);
    const QPoint delta = step.b % 5 == 0 ? QPoint(turn, 0) : QPoint(0, turn);
    const QScopedValueRollback<int> depth(m_eventDepth, m_eventDepth + 1);
    QWheelEvent event(at, view.viewport()->mapToGlobal(at), QPoint(), delta, window.held,
                      step.b % 3 ? Qt::ControlModifier : window.modifiers, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(view.viewport(), &event);
}

void Driver::zoom(Window& window, const Step& step)
{
    const QPointer<View> view = viewOf(window.viewer);
    const int steps = step.b % 4 == 0 ? step.a % 400 : step.a % 12;
    for (int i = 0; view && i < steps; ++i)
        view->zoomCalc(step.b % 2 ? 1 : -1);
}

void Driver::turnEventLoop(int turns)
{
    for (int i = 0; i < turns; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void Driver::actOnDeleteRequest(DXFEditor& overlay, const Step& step)
{
    ISelectionTool* tool = toolOf(overlay);
    if (!tool)
        return;
    const QPointer<DXFViewer> viewer = windowOf(step)->viewer;
    const auto done = std::make_shared<bool>(false);
    connect(tool, &ISelectionTool::requestDelete, this, [this, viewer, step, done] {
        if (!std::exchange(*done, true))
            actInSlot(viewer, step.a, Freedom::Full);
    });
}

/// Connects to a signal of edit mode or of the window's parts. The action runs a few times, also
/// inside itself.
void Driver::answerSignal(Window& window, const Step& step)
{
    const QPointer<DXFViewer> viewer = window.viewer;
    DXFEditor* overlay = overlayOf(viewer);
    QUndoStack* stack = overlay ? overlay->stack() : nullptr;
    const auto onStack = [&](auto signal) {
        if (stack)
            answer(stack, signal, Freedom::ClearsNothing, viewer, step.b);
    };
    if (stack && step.a % 3 == 0) {
        // The group emits signals here before it has finished with the stack.
        const QScopedValueRollback<bool> silent(m_isSilent, true);
        m_group.addStack(stack);
        m_group.setActiveStack(stack);
    }
    switch (step.a % 11) {
    case 0:
        answer(editActionOf(viewer), &QAction::toggled, Freedom::Full, viewer, step.b);
        return;
    case 1:
        if (overlay)
            answer(overlay, &QObject::destroyed, Freedom::Full, viewer, step.b);
        return;
    case 2:
        onStack(&QUndoStack::indexChanged);
        return;
    case 3:
        onStack(&QUndoStack::canUndoChanged);
        return;
    case 4:
        onStack(&QUndoStack::undoTextChanged);
        return;
    case 5:
        onStack(&QUndoStack::canRedoChanged);
        return;
    case 6:
        onStack(&QUndoStack::redoTextChanged);
        return;
    case 7:
        onStack(&QUndoStack::cleanChanged);
        return;
    case 8:
        answer(&m_group, &QUndoGroup::activeStackChanged, Freedom::ClearsNothing, viewer, step.b);
        return;
    case 9:
        // A scene without a fixed rectangle emits this in the middle of other work.
        if (itemOf(viewer))
            answer(sceneOf(viewer), &QGraphicsScene::sceneRectChanged, Freedom::Full, viewer,
                   step.b);
        return;
    default:
        answer(&m_group, &QUndoGroup::indexChanged, Freedom::ClearsNothing, viewer, step.b);
        return;
    }
}

template <typename Sender, typename Signal>
void Driver::answer(Sender* sender, Signal signal, Freedom freedom, QPointer<DXFViewer> viewer,
                    int which)
{
    const auto answersLeft = std::make_shared<int>(1 + which % 3);
    connect(sender, signal, this, [=] {
        if (m_isSilent || *answersLeft == 0)
            return;
        --*answersLeft;
        const QScopedValueRollback<bool> moving(
            m_isStackMoving, m_isStackMoving || freedom == Freedom::ClearsNothing);
        actInSlot(viewer, which / 3, freedom);
    });
}

void Driver::actInSlot(QPointer<DXFViewer> viewer, int which, Freedom freedom)
{
    if (isDying(viewer))
        return;
    switch (which % slotActions) {
    case 0:
        openDialog(which / 16);
        return;
    case 1:
        QCoreApplication::processEvents();
        return;
    case 2:
        viewer->getData();
        return;
    case 3:
    case 4:
        editActionOf(viewer)->trigger();
        return;
    case 5:
        if (const auto document = documentOf(viewer))
            document->setSelected(idsOf(*document).mid(0, which % 16));
        return;
    case goodLoad:
        noteLoad(viewer);
        viewer->loadData(goodDrawing(which));
        openDialog(1);
        return;
    case badLoad:
        noteLoad(viewer);
        viewer->loadData(badDrawing(which));
        return;
    case 8:
        if (DXFEditor* overlay = overlayOf(viewer))
            overlay->stack()->undo();
        return;
    case 9:
        if (DXFEditor* overlay = overlayOf(viewer))
            overlay->stack()->redo();
        return;
    case 10:
        editActionOf(viewer)->setChecked(false);
        turnEventLoop(2);
        return;
    case 11:
        for (const auto& window : m_windows) {
            if (!isDying(window->viewer) && window->viewer != viewer)
                editActionOf(window->viewer)->trigger();
        }
        return;
    case 12:
        m_group.redo();
        return;
    default:
        destroyInSlot(viewer, which, freedom);
        return;
    }
}

/// Destroys or clears something, if that is allowed. During an event Qt forbids to destroy its
/// receiver, and an object that is being destroyed must not be destroyed again.
void Driver::destroyInSlot(QPointer<DXFViewer> viewer, int which, Freedom freedom)
{
    const bool mayDestroy =
        freedom != Freedom::DestroysNothing && m_eventDepth == 0 && m_dying.isEmpty();
    const bool mayClear = mayDestroy && freedom == Freedom::Full && !m_isStackMoving;
    switch (which / 16 % 3) {
    case 0:
        if (mayDestroy)
            destroy(viewer);
        else
            m_doomed.append(viewer);
        return;
    case 1:
        if (mayClear)
            clear(sceneOf(viewer));
        return;
    default:
        if (mayClear)
            destroy(viewOf(viewer));
        return;
    }
}

/// Opens a dialog from a slot, as a host may do. The event loop and the eraser's timer run
/// meanwhile.
void Driver::openDialog(int which)
{
    if (m_isDialogOpen)
        return;
    const QScopedValueRollback<bool> open(m_isDialogOpen, true);
    QDialog dialog;
    QTimer::singleShot(which % 3 * eraserPeriodMs, &dialog, &QDialog::accept);
    dialog.exec();
}

QString Driver::problem()
{
    if (!m_problem.isEmpty())
        return m_problem;
    // The checks must not run the action for messages.
    const QScopedValueRollback<std::function<void(const QString&)>> deaf(m_answerToMessage, {});
    int overlays = 0;
    for (const auto& window : m_windows) {
        if (!window->viewer)
            continue;
        if (const QGraphicsScene* scene = sceneOf(window->viewer)) {
            overlays += static_cast<int>(overlaysIn(*scene).size());
            if (documentItemsIn(*scene).size() > 1)
                return QStringLiteral("a scene has two items");
        }
        const QString problem = problemOf(*window);
        if (!problem.isEmpty())
            return problem;
    }
    return overlays > 1 ? QStringLiteral("there are two overlays") : QString();
}

QString Driver::problemOf(Window& window)
{
    const auto document = documentOf(window.viewer);
    if (!document)
        return QString();
    const QString problem = dxftest::problemOf(*document);
    if (!problem.isEmpty())
        return problem;

    // Until a new drawing is shown, getData() returns the new one, not the shown one.
    if (document != window.replaced) {
        window.replaced.clear();
        window.isShowingItsDocument = true;
    }
    const auto shapes = dxffuzz::shapesOf(*document);
    if (!window.isShowingItsDocument || dxffuzz::areIdentical(shapes, window.saved))
        return QString();
    window.saved = shapes;
    return problemOfSaving(*document, window.viewer->getData());
}

} // namespace dxftest
