// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace dxftest
{

/// What a host or a user can do.
enum class Op {
    /// The first step, or never: the host then never calls exec(), and processes events itself.
    OwnLoop,
    NewWindow,
    DeleteWindow,
    DeleteWindowLater,
    CloseWindow,
    LoadBytes,
    LoadBadBytes,
    LoadFile,
    LoadBadFile,
    ShowLoaded,
    BeginEdit,
    ToggleEdit,
    CallEditSlot,
    CallSlot,
    Press,
    Move,
    Release,
    DoubleClick,
    Stroke,
    Leave,
    Key,
    ControlKey,
    Shortcut,
    Wheel,
    ZoomSteps,
    FitView,
    Resize,
    Scroll,
    Undo,
    Redo,
    GetData,
    Paint,
    TurnEventLoop,
    WaitForEraser,
    AddNullEntity,
    AddForeignEntity,
    AddPolyline,
    DeleteEntity,
    Select,
    Hover,
    OverridePen,
    RefreshItem,
    ActOnDeleteRequest,
    ActOnStackMove,
    AnswerSignal,
    ActOnMessage,
    GroupUndo,
    GroupRedo,
    DeleteItem,
    DeleteOverlay,
    DeleteTool,
    ClearScene,
    DeleteScene,
    DeleteView,
};

/**
 * One action. Any step may follow any other: numbers are taken modulo the number of choices, and a
 * step that is not possible is skipped.
 */
struct Step {
    Op op;
    int window;
    int a;
    int b;
};

using Sequence = QVector<Step>;

Sequence randomSequence(unsigned seed, int length);

/// A test that runs the sequence, ready to be compiled.
QString codeOf(const Sequence& sequence);

/// A sequence as text for another process.
QByteArray serialized(const Sequence& sequence);
Sequence deserialized(const QByteArray& text);

} // namespace dxftest
