// SPDX-License-Identifier: GPL-2.0-or-later

#include "Comparison.h"

#include "dxfviewer/edit/DeleteItems.h"
#include "dxfviewer/model/DXFDocument.h"

#include <QUndoStack>

#include <malloc.h>

namespace
{

using namespace dxfbench;

constexpr int deletedIds = 5;

/// What is allocated now, with what the allocator itself needs for it.
double heapBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd);
}

/// The drawing that is shown: read and set up.
void memoryOfDrawing(benchmark::State& state, const Plan& plan)
{
    const QByteArray text = makeText(plan);
    for (auto _ : state) {
        const double before = heapBytes();
        QSharedPointer<DXFDocument> document;
        state.SetIterationTime(secondsOf([&] {
            document = DXFDocument::load(text);
            document->setup();
        }));
        const double after = heapBytes();
        state.counters["bytes_per_segment"] = (after - before) / plan.segments;
        state.SetComplexityN(plan.segments);
    }
}

/// A command on the undo stack that deleted a few segments.
void memoryOfCommand(benchmark::State& state, const Plan& plan)
{
    const auto document = makeReadyDocument(plan);
    const QVector<int> ids = segmentIdsOf(*document);
    const auto entities = document->entities().size();
    QUndoStack stack;
    // The first command on a drawing gives every polyline its vertices anew.
    stack.push(new DeleteItems(document, {ids.first()}));
    for (auto _ : state) {
        const double before = heapBytes();
        state.SetIterationTime(secondsOf(
            [&] { stack.push(new DeleteItems(document, ids.mid(ids.size() / 2, deletedIds))); }));
        const double after = heapBytes();
        state.counters["bytes_per_entity"] = (after - before) / static_cast<double>(entities);
        state.SetComplexityN(plan.segments);
    }
}

const int registered = registerForAllDrawings("memory_of_drawing", memoryOfDrawing)
                       + registerForAllDrawings("memory_of_command", memoryOfCommand);

} // namespace
