// SPDX-License-Identifier: GPL-2.0-or-later

#include "Comparison.h"

#include "dxfviewer/edit/DeleteItems.h"
#include "dxfviewer/model/DXFDocument.h"

#include <QUndoStack>

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace
{

using namespace dxfbench;

constexpr int leastRounds = 2;
constexpr int batches = 10;
constexpr int idsPerBatch = 5;

/// The steps of an editing session, in the order in which they are taken.
enum Step {
    FirstBatch,
    FurtherBatch,
    UndoOne,
    RedoOne,
    UndoAll,
    RedoAll,
    DeleteAll,
    Sum,
    StepCount
};

using StepSeconds = std::array<double, StepCount>;

/// A few ids from all over the drawing, different ones for each batch.
QVector<int> batch(const QVector<int>& ids, int number)
{
    QVector<int> some;
    const int stride = static_cast<int>(ids.size()) / idsPerBatch;
    for (int i = 0; i < idsPerBatch; ++i)
        some.append(ids.at(i * stride + stride / (batches + 1) * number));
    return some;
}

StepSeconds editOnce(const Plan& plan)
{
    StepSeconds seconds;
    const auto document = makeReadyDocument(plan);
    const QVector<int> ids = segmentIdsOf(*document);
    const Spans spans = spansOf(*document);
    seconds[Sum] = secondsOf([&] { benchmark::DoNotOptimize(plainSum(spans)); });

    QUndoStack stack;
    const auto push = [&](const QVector<int>& deleted) {
        return secondsOf([&] { stack.push(new DeleteItems(document, deleted)); });
    };
    seconds[FirstBatch] = push(batch(ids, 0));
    seconds[FurtherBatch] = push(batch(ids, 1));
    for (int i = 2; i < batches; ++i)
        seconds[FurtherBatch] = std::min(seconds[FurtherBatch], push(batch(ids, i)));
    seconds[UndoOne] = secondsOf([&] { stack.undo(); });
    seconds[RedoOne] = secondsOf([&] { stack.redo(); });
    seconds[UndoAll] = secondsOf([&] { stack.setIndex(0); });
    seconds[RedoAll] = secondsOf([&] { stack.setIndex(batches); });
    stack.clear();
    seconds[DeleteAll] = push(segmentIdsOf(*document));
    return seconds;
}

/// One session measures all steps, so it runs only for the first benchmark that needs it.
const StepSeconds& secondsFor(const Plan& plan)
{
    static std::map<std::pair<Shape, int>, StepSeconds> known;
    const auto [entry, isNew] = known.try_emplace({plan.shape, plan.segments});
    if (!isNew)
        return entry->second;

    StepSeconds& best = entry->second;
    best = editOnce(plan);
    for (int round = 1; round < roundsFor(plan.segments, leastRounds); ++round) {
        const StepSeconds seconds = editOnce(plan);
        std::transform(best.cbegin(), best.cend(), seconds.cbegin(), best.begin(),
                       [](double a, double b) { return std::min(a, b); });
    }
    return best;
}

template <Step step>
void erase(benchmark::State& state, const Plan& plan)
{
    for (auto _ : state) {
        const StepSeconds& seconds = secondsFor(plan);
        report(state, {seconds[step], seconds[Sum]}, plan.segments);
    }
}

const int registered = registerForAllDrawings("delete_first_batch", erase<FirstBatch>)
                       + registerForAllDrawings("delete_further_batch", erase<FurtherBatch>)
                       + registerForAllDrawings("delete_all", erase<DeleteAll>)
                       + registerForAllDrawings("undo_one", erase<UndoOne>)
                       + registerForAllDrawings("redo_one", erase<RedoOne>)
                       + registerForAllDrawings("undo_ten", erase<UndoAll>)
                       + registerForAllDrawings("redo_ten", erase<RedoAll>);

} // namespace
