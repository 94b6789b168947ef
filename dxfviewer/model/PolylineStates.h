// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/model/PolylineState.h"

#include <vector>

namespace dxfviewer
{

/**
 * The states of some polylines that stand side by side in a document.
 *
 * Most neighbours stay as they are from step to step. Then the snapshots of all these steps share
 * one list of their states.
 */
struct PolylineStates {
    struct One {
        PolylineState::Pointer state;
        /// The id that the polyline had.
        int id;
        /// How many ids were taken between the first clone of the list and the polyline's own.
        quint16 cloneOffset;
        bool areSegmentsGivenAgain;
    };

    std::vector<One> all;
};

} // namespace dxfviewer
