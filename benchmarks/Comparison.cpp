// SPDX-License-Identifier: GPL-2.0-or-later

#include "Comparison.h"

#include <algorithm>
#include <ctime>
#include <limits>
#include <string>

namespace dxfbench
{

namespace
{

constexpr int sizes[] = {10000, 100000, 1000000};
constexpr int segmentsInAllRounds = 1000000;
constexpr int mostRounds = 30;
constexpr double nanoseconds = 1e9;

struct NamedShape {
    const char* name;
    Shape shape;
};
constexpr NamedShape shapes[] = {{"one_polyline", Shape::OnePolyline},
                                 {"ten_each", Shape::TenEach},
                                 {"one_each", Shape::OneEach}};

} // namespace

double threadSeconds()
{
    timespec time;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / nanoseconds;
}

int roundsFor(int segments, int least)
{
    return std::clamp(segmentsInAllRounds / segments, least, mostRounds);
}

Times bestOf(int rounds, const Timed& operation, const Timed& limit)
{
    Times best{std::numeric_limits<double>::max(), std::numeric_limits<double>::max()};
    for (int round = 0; round < rounds; ++round) {
        best.operation = std::min(best.operation, operation());
        best.limit = std::min(best.limit, limit());
    }
    return best;
}

void report(benchmark::State& state, const Times& times, int segments)
{
    state.SetIterationTime(times.operation);
    state.SetComplexityN(segments);
    state.counters["ns_per_segment"] = times.operation * nanoseconds / segments;
    state.counters["limit_ns_per_segment"] = times.limit * nanoseconds / segments;
    state.counters["ratio"] = times.operation / times.limit;
}

void compare(benchmark::State& state, int segments, int rounds, const Timed& operation,
             const Timed& limit)
{
    for (auto _ : state)
        report(state, bestOf(rounds, operation, limit), segments);
}

int registerForAllDrawings(const char* name, Body body)
{
    for (const NamedShape& named : shapes) {
        const std::string fullName = std::string(name) + '/' + named.name;
        auto* added = benchmark::RegisterBenchmark(
            fullName.c_str(), [body, shape = named.shape](benchmark::State& state) {
                Plan plan;
                plan.shape = shape;
                plan.segments = static_cast<int>(state.range(0));
                body(state, plan);
            });
        for (int size : sizes)
            added->Arg(size);
        added->UseManualTime()
            ->Iterations(1)
            ->Unit(benchmark::kMillisecond)
            ->Complexity(benchmark::oN);
    }
    return 0;
}

} // namespace dxfbench
