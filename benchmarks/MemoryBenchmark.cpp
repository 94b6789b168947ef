// SPDX-License-Identifier: GPL-2.0-or-later

#include "Comparison.h"

#include "dxfviewer/edit/DeleteItems.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/Polylines.h"

#include <QUndoStack>

#include <algorithm>

#include <malloc.h>

namespace
{

using namespace dxfbench;

constexpr int deletedIds = 5;

/// The allocated bytes, with those that the allocator itself needs.
double heapBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd);
}

/// The memory of a drawing that is read and set up.
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

/// The bytes of the segment lists of all polylines that lose a segment. A deletion makes new lists
/// for them.
double changedBytes(const DXFDocument& document, const QVector<int>& deleted)
{
    constexpr double bytesPerSegment = sizeof(Segment);
    double bytes = 0.0;
    const auto entities = document.entities();
    for (const auto& entity : entities) {
        const auto segments = dxfviewer::asPolyline(entity)->segments();
        const bool losesOne = std::any_of(segments.cbegin(), segments.cend(), [&](const auto& one) {
            return deleted.contains(one.id());
        });
        if (losesOne)
            bytes += bytesPerSegment * static_cast<double>(segments.size());
    }
    return bytes;
}

/// The memory of a command on the undo stack that deleted a few segments, without the lists that it
/// changed.
void memoryOfCommand(benchmark::State& state, const Plan& plan)
{
    const auto document = makeReadyDocument(plan);
    const QVector<int> ids = segmentIdsOf(*document);
    const QVector<int> deleted = ids.mid(ids.size() / 2, deletedIds);
    QUndoStack stack;
    // The first command on a drawing makes new vertices for every polyline.
    stack.push(new DeleteItems(document, {ids.first()}));
    for (auto _ : state) {
        const double changed = changedBytes(*document, deleted);
        const double before = heapBytes();
        state.SetIterationTime(secondsOf([&] { stack.push(new DeleteItems(document, deleted)); }));
        const double taken = heapBytes() - before - changed;
        state.counters["bytes_per_entity"] =
            taken / static_cast<double>(document->entities().size());
        state.SetComplexityN(plan.segments);
    }
}

const int registered = registerForAllDrawings("memory_of_drawing", memoryOfDrawing)
                       + registerForAllDrawings("memory_of_command", memoryOfCommand);

} // namespace
