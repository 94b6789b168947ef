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
 * holds. Its list of segments lies elsewhere in memory, and they open it only where they have to.
 */
class PolylineAccess
{
public:
    using Bounds = DXFPolyline::Bounds;
    using Derived = DXFPolyline::Derived;
    using Geometry = DXFPolyline::Geometry;

    PolylineAccess() = delete;

    /// The list itself, not a copy: a copy would change a reference count in memory that a walk
    /// otherwise only reads.
    static const QVector<Segment>& segments(const DXFPolyline& polyline)
    {
        return polyline.m_geometry.segments;
    }

    static const Bounds& bounds(const DXFPolyline& polyline) { return polyline.m_geometry.bounds; }

    /// The vertices. If the polyline does not store them, they are computed for the caller.
    static QVector<DXFVertex> vertices(const DXFPolyline& polyline);

    /// For callers that know all vertices beforehand: adding them one by one reserves room for
    /// more.
    static void setVertices(DXFPolyline& polyline, const QVector<DXFVertex>& vertices)
    {
        polyline.m_geometry.derived = Derived::None;
        polyline.m_geometry.vertices = vertices;
    }

    /// Frees most of the room that was reserved for further vertices.
    static void trim(DXFPolyline& polyline) { polyline.m_geometry.trimVertices(); }

    static bool isAnySegmentSelected(const DXFPolyline& polyline)
    {
        return polyline.m_geometry.isAnySelected;
    }

    /// Like DXFPolyline::setSelectedSegments(), with a prepared list that serves all polylines.
    static void selectSegments(DXFPolyline& polyline, const IdSet& ids)
    {
        if (!hasAllIds(polyline))
            polyline.assignIds();
        if (polyline.m_geometry.isAnySelected || mayHaveAny(polyline, ids))
            polyline.selectSegments(ids);
    }

    /// Like DXFPolyline::setHoveredSegments(), with a prepared list that serves all polylines.
    static void hoverSegments(DXFPolyline& polyline, const IdSet& ids)
    {
        if (!hasAllIds(polyline))
            polyline.assignIds();
        if (polyline.m_geometry.isAnyHovered || mayHaveAny(polyline, ids))
            polyline.hoverSegments(ids);
    }

    /// Whether setSegments() with the polyline's own segments would change nothing.
    static bool isMadeOfItsSegments(const DXFPolyline& polyline)
    {
        return polyline.m_geometry.derived == Derived::AllPoints && polyline.m_geometry.needsSetup;
    }

    static bool hasSegments(const DXFPolyline& polyline)
    {
        return polyline.m_geometry.leastId <= polyline.m_geometry.greatestId;
    }

    /// Whether the ids of some segments may be in the set. False is certain.
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

    /// The id of an object. If it has none yet, the result is smaller than every id.
    static int assignedId(const IDeletable& object) { return object.m_id; }
    static bool isAssigned(int id) { return id != IDeletable::unassigned; }
    static void setId(IDeletable& object, int id) { object.m_id = id; }

    /// What a clone shares with the polyline. It may lack vertices that follow from the segments.
    static const Geometry& geometry(const DXFPolyline& polyline) { return polyline.m_geometry; }
    static Geometry& geometry(DXFPolyline& polyline) { return polyline.m_geometry; }

    /// The pointer itself: a copy would change its reference count, which takes longer than
    /// reading.
    static const QSharedPointer<DXFAttributes>& attributes(const DXFPolyline& polyline)
    {
        return polyline.m_attributes;
    }

    /// The state that delete commands keep of the polyline, or null.
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
