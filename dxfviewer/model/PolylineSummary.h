// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/model/IdSet.h"
#include "dxfviewer/model/PolylineAccess.h"

namespace dxfviewer
{

/// What a walk over all polylines has to know of one, to see whether the polyline concerns it.
struct PolylineSummary {
    explicit PolylineSummary(const DXFPolyline& polyline)
        : bounds(PolylineAccess::bounds(polyline))
        , id(PolylineAccess::assignedId(polyline))
        , leastSegmentId(PolylineAccess::geometry(polyline).leastId)
        , greatestSegmentId(PolylineAccess::geometry(polyline).greatestId)
        , lineWidth(polyline.lineWidth())
        , isSelected(polyline.isSelected())
        , isHovered(polyline.isHovered())
        , isAnySegmentSelected(PolylineAccess::geometry(polyline).isAnySelected)
        , isAnySegmentHovered(PolylineAccess::geometry(polyline).isAnyHovered)
        , isMadeOfItsSegments(PolylineAccess::isMadeOfItsSegments(polyline))
    {
    }

    /// Whether the polyline and all of its segments have ids.
    bool hasAllIds() const
    {
        return PolylineAccess::isAssigned(id) && PolylineAccess::isAssigned(leastSegmentId);
    }

    /// Whether the ids of some segments may be in the set. False is certain.
    bool mayHaveAny(const IdSet& ids) const
    {
        return !PolylineAccess::isAssigned(leastSegmentId)
               || ids.mayContainAny(leastSegmentId, greatestSegmentId);
    }

    PolylineAccess::Bounds bounds;
    int id;
    int leastSegmentId;
    int greatestSegmentId;
    int lineWidth;
    bool isSelected : 1;
    bool isHovered : 1;
    bool isAnySegmentSelected : 1;
    bool isAnySegmentHovered : 1;
    bool isMadeOfItsSegments : 1;
};

} // namespace dxfviewer
