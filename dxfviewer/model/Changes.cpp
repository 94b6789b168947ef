// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/Changes.h"

#include <atomic>

namespace dxfviewer
{

namespace
{

// Odd while somebody knows the value, even after a change.
std::atomic<Changes::Moment> counter{0};

bool isKnown(Changes::Moment value)
{
    return value % 2 != 0;
}

} // namespace

Changes::Moment Changes::now()
{
    Moment value = counter.load(std::memory_order_relaxed);
    while (!isKnown(value)) {
        if (counter.compare_exchange_weak(value, value + 1, std::memory_order_relaxed))
            return value + 1;
    }
    return value;
}

bool Changes::isNow(Moment moment)
{
    return counter.load(std::memory_order_relaxed) == moment;
}

void Changes::note()
{
    Moment value = counter.load(std::memory_order_relaxed);
    while (isKnown(value)
           && !counter.compare_exchange_weak(value, value + 1, std::memory_order_relaxed)) {
    }
}

} // namespace dxfviewer
