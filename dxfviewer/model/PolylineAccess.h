// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/model/DXFPolyline.h"
#include "dxfviewer/model/IdSet.h"

namespace dxfviewer
{

/**
 * What the library may do with a polyline that hosts may not.
 *
 * Most of it is for walks over all polylines of a drawing. They look at what the polyline itself
 * holds, and open its list of segments, which lies elsewhere in memory, only where they have to.
 */
class PolylineAccess
{
public:
    using Bounds = DXFPolyline::Bounds;
    using Derived = DXFPolyline::Derived;
    using Geometry = DXFPolyline::Geometry;

    PolylineAccess() = delete;

    /// The segments themselves: even a shared copy of a list counts it, in memory that a walk
    /// would otherwise only read.
    static const QVector<Segment>& segments(const DXFPolyline& polyline)
    {
        return polyline.m_geometry.segments;
    }

    static const Bounds& bounds(const DXFPolyline& polyline) { return polyline.m_geometry.bounds; }

    /// The vertices, which are made for the caller if the polyline does not keep them.
    static QVector<DXFVertex> vertices(const DXFPolyline& polyline);

    /// For who knows all vertices beforehand: adding them one by one takes room for more.
    static void setVertices(DXFPolyline& polyline, const QVector<DXFVertex>& vertices)
    {
        polyline.m_geometry.derived = Derived::None;
        polyline.m_geometry.vertices = vertices;
    }

    /// Gives back most of the room that was made for further vertices.
    static void trim(DXFPolyline& polyline) { polyline.m_geometry.trimVertices(); }

    static bool isAnySegmentSelected(const DXFPolyline& polyline)
    {
        return polyline.m_geometry.isAnySelected;
    }

    /// Like DXFPolyline::setSelectedSegments(), with a list that serves for all polylines.
    static void selectSegments(DXFPolyline& polyline, const IdSet& ids)
    {
        if (!hasAllIds(polyline))
            polyline.assignIds();
        if (polyline.m_geometry.isAnySelected || mayHaveAny(polyline, ids))
            polyline.selectSegments(ids);
    }

    /// Like DXFPolyline::setHoveredSegments(), with a list that serves for all polylines.
    static void hoverSegments(DXFPolyline& polyline, const IdSet& ids)
    {
        if (!hasAllIds(polyline))
            polyline.assignIds();
        if (polyline.m_geometry.isAnyHovered || mayHaveAny(polyline, ids))
            polyline.hoverSegments(ids);
    }

    /// Whether setSegments() with the segments that the polyline has would do nothing.
    static bool isMadeOfItsSegments(const DXFPolyline& polyline)
    {
        return polyline.m_geometry.derived == Derived::AllPoints && polyline.m_geometry.needsSetup;
    }

    static bool hasSegments(const DXFPolyline& polyline)
    {
        return polyline.m_geometry.leastId <= polyline.m_geometry.greatestId;
    }

    /// Whether the ids of some segments may be in the set. If not, they are certainly not.
    static bool mayHaveAny(const DXFPolyline& polyline, const IdSet& ids)
    {
        return !hasAllIds(polyline)
               || ids.mayContainAny(polyline.m_geometry.leastId, polyline.m_geometry.greatestId);
    }

    /// Gives each segment the id and the flags of its counterpart in a list of the same length, so
    /// that a redo makes the same pieces as before.
    static void takeSegmentIdsFrom(DXFPolyline& polyline, const QVector<Segment>& segments)
    {
        polyline.takeSegmentIdsFrom(segments);
    }

    /// The id of an object, less than all ids if it has none yet.
    static int assignedId(const IDeletable& object) { return object.m_id; }
    static void setId(IDeletable& object, int id) { object.m_id = id; }

    /// What a clone shares with the polyline; vertices may be left out of it.
    static const Geometry& geometry(const DXFPolyline& polyline) { return polyline.m_geometry; }
    static Geometry& geometry(DXFPolyline& polyline) { return polyline.m_geometry; }

    /// The attributes themselves: a copy counts them, which takes longer than a look at them.
    static const QSharedPointer<DXFAttributes>& attributes(const DXFPolyline& polyline)
    {
        return polyline.m_attributes;
    }

    /// What delete commands keep of the polyline; null if there is nothing.
    static PolylineState* state(const DXFPolyline& polyline) { return polyline.m_state; }
    static void setState(DXFPolyline& polyline, PolylineState* state) { polyline.m_state = state; }

private:
    static bool hasAllIds(const DXFPolyline& polyline)
    {
        return polyline.m_geometry.leastId != IDeletable::unassigned;
    }
};

inline QVector<DXFVertex> PolylineAccess::vertices(const DXFPolyline& polyline)
{
    const Geometry& geometry = polyline.m_geometry;
    const bool areKept = geometry.derived == Derived::None || !geometry.vertices.isEmpty();
    return areKept ? geometry.vertices : geometry.derivedVertices();
}

} // namespace dxfviewer
