// SPDX-License-Identifier: GPL-2.0-or-later

#include "StrokeMemory.h"

#include "Polylines.h"

#include <dxfviewer/model/DXFDocument.h>

#include <algorithm>

namespace
{

// The library keeps these anyway.
constexpr int fewestSteps = 10;
// The stack keeps a list of its steps, and nobody goes back further.
constexpr int mostSteps = 100000;

// The memory of steps: the first step makes a record of each entity, which later steps share. Each
// step keeps an entry for each entity, and the segments of the polylines that it cuts.
constexpr qint64 recordBytes = 160;
constexpr qint64 bytesPerStep = 1024;
constexpr qint64 bytesPerEntity = 24;
constexpr qint64 bytesPerSegment = 90;

qint64 segmentsOfLargest(const DXFDocument& document)
{
    qint64 largest = 0;
    const auto entities = document.entities();
    for (const auto& entity : entities) {
        if (const DXFPolyline* polyline = asPolyline(entity))
            largest = std::max<qint64>(largest, polyline->segments().size());
    }
    return largest;
}

} // namespace

int stepsThatFit(qint64 memoryBytes, const DXFDocument& document)
{
    const qint64 perStep = bytesPerStep + bytesPerEntity * document.entities().size()
                           + bytesPerSegment * segmentsOfLargest(document);
    const qint64 forSteps = memoryBytes - recordBytes * document.entities().size();
    return static_cast<int>(std::clamp<qint64>(forSteps / perStep, fewestSteps, mostSteps));
}
