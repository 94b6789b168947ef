// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/monkey/Step.h"

#include <QTextStream>

#include <algorithm>
#include <array>
#include <random>

namespace dxftest
{

namespace
{

struct OpInfo {
    Op op;
    const char* name;
    /// How often it is chosen, compared with the others.
    int weight;
};

constexpr std::array operations{
    OpInfo{Op::OwnLoop, "OwnLoop", 0},
    OpInfo{Op::NewWindow, "NewWindow", 8},
    OpInfo{Op::DeleteWindow, "DeleteWindow", 2},
    OpInfo{Op::DeleteWindowLater, "DeleteWindowLater", 1},
    OpInfo{Op::CloseWindow, "CloseWindow", 1},
    OpInfo{Op::LoadBytes, "LoadBytes", 8},
    OpInfo{Op::LoadBadBytes, "LoadBadBytes", 2},
    OpInfo{Op::LoadFile, "LoadFile", 2},
    OpInfo{Op::LoadBadFile, "LoadBadFile", 2},
    OpInfo{Op::ShowLoaded, "ShowLoaded", 16},
    OpInfo{Op::BeginEdit, "BeginEdit", 40},
    OpInfo{Op::ToggleEdit, "ToggleEdit", 6},
    OpInfo{Op::CallEditSlot, "CallEditSlot", 3},
    OpInfo{Op::CallSlot, "CallSlot", 2},
    OpInfo{Op::Press, "Press", 40},
    OpInfo{Op::Move, "Move", 160},
    OpInfo{Op::Release, "Release", 40},
    OpInfo{Op::DoubleClick, "DoubleClick", 6},
    OpInfo{Op::Stroke, "Stroke", 120},
    OpInfo{Op::Leave, "Leave", 6},
    OpInfo{Op::Key, "Key", 10},
    OpInfo{Op::ControlKey, "ControlKey", 8},
    OpInfo{Op::Shortcut, "Shortcut", 4},
    OpInfo{Op::Wheel, "Wheel", 15},
    OpInfo{Op::ZoomSteps, "ZoomSteps", 8},
    OpInfo{Op::FitView, "FitView", 40},
    OpInfo{Op::Resize, "Resize", 6},
    OpInfo{Op::Scroll, "Scroll", 8},
    OpInfo{Op::Undo, "Undo", 60},
    OpInfo{Op::Redo, "Redo", 40},
    OpInfo{Op::GetData, "GetData", 5},
    OpInfo{Op::Paint, "Paint", 4},
    OpInfo{Op::TurnEventLoop, "TurnEventLoop", 30},
    OpInfo{Op::WaitForEraser, "WaitForEraser", 3},
    OpInfo{Op::AddNullEntity, "AddNullEntity", 3},
    OpInfo{Op::AddForeignEntity, "AddForeignEntity", 3},
    OpInfo{Op::AddPolyline, "AddPolyline", 8},
    OpInfo{Op::DeleteEntity, "DeleteEntity", 3},
    OpInfo{Op::Select, "Select", 25},
    OpInfo{Op::Hover, "Hover", 8},
    OpInfo{Op::OverridePen, "OverridePen", 2},
    OpInfo{Op::RefreshItem, "RefreshItem", 2},
    OpInfo{Op::ActOnDeleteRequest, "ActOnDeleteRequest", 12},
    OpInfo{Op::ActOnStackMove, "ActOnStackMove", 8},
    OpInfo{Op::AnswerSignal, "AnswerSignal", 20},
    OpInfo{Op::ActOnMessage, "ActOnMessage", 6},
    OpInfo{Op::GroupUndo, "GroupUndo", 8},
    OpInfo{Op::GroupRedo, "GroupRedo", 6},
    OpInfo{Op::DeleteItem, "DeleteItem", 1},
    OpInfo{Op::DeleteOverlay, "DeleteOverlay", 1},
    OpInfo{Op::DeleteTool, "DeleteTool", 1},
    OpInfo{Op::ClearScene, "ClearScene", 1},
    OpInfo{Op::DeleteScene, "DeleteScene", 1},
    OpInfo{Op::DeleteView, "DeleteView", 1},
};

constexpr int windows = 3;
constexpr int argumentLimit = 4096;

const char* nameOf(Op op)
{
    return std::find_if(operations.begin(), operations.end(),
                        [op](const OpInfo& info) { return info.op == op; })
        ->name;
}

int totalWeight()
{
    int total = 0;
    for (const OpInfo& info : operations)
        total += info.weight;
    return total;
}

Op operationAt(int weight)
{
    auto info = operations.begin();
    while (weight >= info->weight)
        weight -= info++->weight;
    return info->op;
}

} // namespace

Sequence randomSequence(unsigned seed, int length)
{
    // Not the distributions of the standard library: they differ between libraries.
    std::mt19937 random(seed);
    const auto below = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    // The sequence starts with a window, so that the first steps have something to act on.
    Sequence sequence;
    if (seed % 2 == 0)
        sequence.append({Op::OwnLoop, 0, 0, 0});
    sequence +=
        Sequence{{Op::NewWindow, 0, 0, 0}, {Op::LoadBytes, 0, 0, 0}, {Op::ShowLoaded, 0, 0, 0}};
    const int total = totalWeight();
    while (sequence.size() < length) {
        const Op op = operationAt(below(total));
        const int window = below(windows);
        const int a = below(argumentLimit);
        const int b = below(argumentLimit);
        sequence.append({op, window, a, b});
    }
    return sequence;
}

QString codeOf(const Sequence& sequence)
{
    QString code;
    QTextStream out(&code);
    out << "TEST(MonkeyReplayTest, SequenceLeavesEverythingInOrder)\n{\n    expectSurvives({\n";
    for (const Step& step : sequence) {
        out << "        {Op::" << nameOf(step.op) << ", " << step.window << ", " << step.a << ", "
            << step.b << "},\n";
    }
    out << "    });\n}\n";
    out.flush();
    return code;
}

QByteArray serialized(const Sequence& sequence)
{
    QByteArray text;
    for (const Step& step : sequence) {
        for (const int number : {static_cast<int>(step.op), step.window, step.a, step.b})
            text += QByteArray::number(number) + ' ';
        text += '\n';
    }
    return text;
}

Sequence deserialized(const QByteArray& text)
{
    Sequence sequence;
    const auto lines = text.split('\n');
    for (const QByteArray& line : lines) {
        const auto numbers = line.split(' ');
        if (numbers.size() < 4)
            continue;
        sequence.append({static_cast<Op>(numbers[0].toInt()), numbers[1].toInt(),
                         numbers[2].toInt(), numbers[3].toInt()});
    }
    return sequence;
}

} // namespace dxftest
