// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/model/DXFPolyline.h"

namespace dxfviewer
{

class IdSet;

/**
 * What the library may do with a polyline that hosts may not.
 */
class PolylineAccess
{
public:
    PolylineAccess() = delete;

    /// The segments themselves. In a walk over all polylines even a shared copy of each list is
    /// dear: it is counted in memory that the walk would otherwise only read.
    static const QVector<Segment>& segments(const DXFPolyline& polyline)
    {
        return polyline.m_segments;
    }

    /// A document makes the list of ids ready once for all of its polylines.
    static void selectSegments(DXFPolyline& polyline, const IdSet& ids)
    {
        polyline.selectSegments(ids);
    }
    static void hoverSegments(DXFPolyline& polyline, const IdSet& ids)
    {
        polyline.hoverSegments(ids);
    }

    /// For who knows all vertices beforehand: adding them one by one takes room for more.
    static void setVertices(DXFPolyline& polyline, const QVector<DXFVertex>& vertices)
    {
        polyline.m_vertices = vertices;
    }

    /// Does what setSegments() does but for taking the segments: the next setup() makes new ones.
    static void setVerticesAlong(DXFPolyline& polyline, const Segment* begin, const Segment* end)
    {
        polyline.setVerticesAlong(begin, end);
    }

    /// Gives each segment the id and the flags of its counterpart in a list of the same length, so
    /// that a redo makes the same pieces as before.
    static void takeSegmentIdsFrom(DXFPolyline& polyline, const QVector<Segment>& segments)
    {
        polyline.takeSegmentIdsFrom(segments);
    }
};

} // namespace dxfviewer
