// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "Drawings.h"

#include <benchmark/benchmark.h>

#include <functional>

namespace dxfbench
{

/// Seconds of processor time that the calling thread has taken so far. On a busy machine they tell
/// more than the clock on the wall.
double threadSeconds();

template <typename Action>
double secondsOf(Action&& action)
{
    const double start = threadSeconds();
    action();
    return threadSeconds() - start;
}

/// Does something and returns the seconds that the part of interest took.
using Timed = std::function<double()>;

/// How often something is measured: small drawings more often than large ones, because their
/// figures are the noisier ones, and all at least as often as said.
int roundsFor(int segments, int least);

/// Seconds of an operation and of what it cannot be quicker than, the best of some rounds in which
/// both took turns.
struct Times {
    double operation = 0.0;
    double limit = 0.0;
};
Times bestOf(int rounds, const Timed& operation, const Timed& limit);

/// Reports the operation's time, the times per segment, and the ratio of both.
void report(benchmark::State& state, const Times& times, int segments);

/// bestOf() and report() in one: the body of most benchmarks.
void compare(benchmark::State& state, int segments, int rounds, const Timed& operation,
             const Timed& limit);

using Body = void (*)(benchmark::State& state, const Plan& plan);

/// Registers a benchmark for the three shapes and three sizes up to a million segments. It times
/// itself, once for each, and its complexity over the sizes is reported.
int registerForAllDrawings(const char* name, Body body);

} // namespace dxfbench
