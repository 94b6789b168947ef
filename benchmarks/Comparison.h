// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "Drawings.h"

#include <benchmark/benchmark.h>

#include <functional>

namespace dxfbench
{

/// Seconds of processor time that the calling thread has used so far. On a busy machine they are
/// more reliable than a clock.
double threadSeconds();

template <typename Action>
double secondsOf(Action&& action)
{
    const double start = threadSeconds();
    action();
    return threadSeconds() - start;
}

/// Runs an operation and returns the seconds that the measured part took.
using Timed = std::function<double()>;

/// The number of measurements, at least the given one. Small drawings are measured more often than
/// large ones, because their figures vary more.
int roundsFor(int segments, int least);

/// Seconds of an operation, and of a simpler one that gives a lower limit. Both run in turn in each
/// round, and the best round counts.
struct Times {
    double operation = 0.0;
    double limit = 0.0;
};
Times bestOf(int rounds, const Timed& operation, const Timed& limit);

/// Reports the operation's time, the times per segment, and the ratio of both.
void report(benchmark::State& state, const Times& times, int segments);

/// Calls bestOf() and report(): the body of most benchmarks.
void compare(benchmark::State& state, int segments, int rounds, const Timed& operation,
             const Timed& limit);

using Body = void (*)(benchmark::State& state, const Plan& plan);

/// Registers a benchmark for the three shapes and three sizes up to a million segments. Each runs
/// once and times itself. The complexity over the sizes is reported.
int registerForAllDrawings(const char* name, Body body);

} // namespace dxfbench
