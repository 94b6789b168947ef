// SPDX-License-Identifier: GPL-2.0-or-later

#include "Comparison.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/render/DXFGraphicsItem.h"

namespace
{

using namespace dxfbench;

constexpr int leastRounds = 3;
constexpr int polylinesPerLayer = 2;

/// Colours, widths, segments and the bounding rectangle of a drawing that was just read.
void setup(benchmark::State& state, const Plan& plan)
{
    QSharedPointer<DXFDocument> document;
    compare(
        state, plan.segments, roundsFor(plan.segments, leastRounds),
        [&] {
            document = makeDocument(plan);
            DXFGraphicsItem item;
            return secondsOf([&] { item.setDocument(document); });
        },
        [&] {
            const Spans spans = spansOf(*document);
            return secondsOf([&] { benchmark::DoNotOptimize(plainSum(spans)); });
        });
}

/// The same in a drawing with so many layers that a linear search for each would show.
void setupManyLayers(benchmark::State& state)
{
    Plan plan;
    plan.shape = Shape::OneEach;
    plan.segments = static_cast<int>(state.range(0));
    plan.layers = plan.segments / polylinesPerLayer;
    setup(state, plan);
}

const int registered = registerForAllDrawings("setup", setup);
BENCHMARK(setupManyLayers)
    ->Name("setup_many_layers/one_each")
    ->Arg(10000)
    ->Arg(100000)
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

} // namespace
