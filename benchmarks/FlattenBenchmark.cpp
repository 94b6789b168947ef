// SPDX-License-Identifier: GPL-2.0-or-later

#include "Comparison.h"

#include "dxfviewer/flatten/FlatteningReader.h"
#include "dxfviewer/model/DXFDocument.h"

namespace
{

using namespace dxfbench;

constexpr int leastRounds = 2;
constexpr int segmentsOfCircle = 64;
constexpr int circlesInBlock = 10;

/// The seconds do not include the destruction of the document.
template <typename Reader>
double secondsToLoad(const QByteArray& text)
{
    DXFDocument document;
    Reader reader(document);
    return secondsOf([&] { reader.load(text); });
}

/// Compares with the plain reader, which has less to do.
void flatten(benchmark::State& state, const Plan& plan)
{
    const QByteArray text = makeText(plan);
    compare(
        state, plan.segments, roundsFor(plan.segments, leastRounds),
        [&] { return secondsToLoad<FlatteningReader>(text); },
        [&] { return secondsToLoad<DXFReader>(text); });
}

/// The text of one small block that is inserted in an array. The text has almost the same length
/// for every array.
QByteArray arrayOfCircles(int instances)
{
    QByteArray text = "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n2\nB\n";
    for (int i = 0; i < circlesInBlock; ++i)
        text += "0\nCIRCLE\n10\n0\n20\n0\n40\n" + QByteArray::number(i + 1) + '\n';
    return text + "0\nENDBLK\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n0\nINSERT\n2\nB\n70\n"
           + QByteArray::number(instances) + "\n44\n25\n0\nENDSEC\n0\nEOF\n";
}

/// How the time grows with the number of segments.
void flattenArray(benchmark::State& state)
{
    const int segments = static_cast<int>(state.range(0));
    const QByteArray text = arrayOfCircles(segments / circlesInBlock / segmentsOfCircle);
    for (auto _ : state) {
        double best = secondsToLoad<FlatteningReader>(text);
        for (int round = 1; round < roundsFor(segments, leastRounds); ++round)
            best = qMin(best, secondsToLoad<FlatteningReader>(text));
        constexpr double nanoseconds = 1e9;
        state.SetIterationTime(best);
        state.SetComplexityN(segments);
        state.counters["ns_per_segment"] = best * nanoseconds / segments;
    }
}

const int registered = registerForAllDrawings("flatten", flatten);
BENCHMARK(flattenArray)
    ->Name("flatten_array/circles")
    ->Arg(64000)
    ->Arg(640000)
    ->Arg(6400000)
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

} // namespace
