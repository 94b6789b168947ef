// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"
#include "dxfviewer/model/DXFEntity.h"
#include "dxfviewer/model/DXFVertex.h"
#include "dxfviewer/model/Segment.h"

#include <QVector>

namespace dxfviewer
{
class IdSet;
class PolylineAccess;
class PolylineState;
} // namespace dxfviewer

/**
 * A polyline: the vertices that the file gives, and the straight segments derived from them.
 *
 * Segments carry ids and flags of their own, so that they can be picked and erased one by one.
 * They are made by setup(), and replaced, together with the vertices, by setSegments().
 * Coordinates are drawing units.
 */
class DXFVIEWER_EXPORT DXFPolyline : public DXFEntity
{
public:
    /// @param mVertices  mesh vertex count M (group 71)
    /// @param nVertices  mesh vertex count N (group 72)
    /// @param flags      polyline flags (group 70); bit 0 means closed
    DXFPolyline(unsigned int mVertices, unsigned int nVertices, unsigned int flags);
    DXFPolyline(const DXFPolyline&);
    DXFPolyline& operator=(const DXFPolyline&);
    ~DXFPolyline() override;

    /// Always 0.
    int type() override;
    QString toString() const override;

    /**
     * Makes the segments from the vertices, with new ids, unless that is done already.
     *
     * A closed polyline of three or more vertices gets one more segment, at the end. It runs from
     * the first vertex to the last, against the direction of the others. This is intended.
     */
    void setup() override;

    /**
     * A copy that the caller owns. It has an id of its own; its segments keep theirs.
     */
    DXFPolyline* clone() override;

    const QVector<DXFVertex>& vertices() const;
    int vertexNumber() const;
    unsigned int mVertices() const { return m_geometry.mVertices; }
    unsigned int nVertices() const { return m_geometry.nVertices; }
    unsigned int flags() const { return m_geometry.flags; }
    bool isClosed() const;

    /// Adds a vertex at the end. Its segment is made only by a setup() that still has work to do:
    /// the first one, or the first one after setSegments().
    void appendPoint(const DXFVertex& vertex);

    /// The segments as they are now; empty before the first setup(). Copying them is cheap.
    QVector<Segment> segments() const { return m_geometry.segments; }

    /**
     * Gives the polyline the geometry of a chain of segments.
     *
     * The vertices become the first start point and all end points, without bulges. Later start
     * points are not read, so a gap between two segments is bridged. The polyline becomes closed if
     * the first start point and the last end point coincide, and open otherwise. The given segments
     * keep their ids and flags until the next setup(). An empty chain clears the segments but keeps
     * vertices and flags: the next setup() makes the old segments from them again.
     */
    void setSegments(const QVector<Segment>& segments);

    /// Selects the segments whose ids are listed and deselects all others.
    void setSelectedSegments(QVector<int> ids);
    /// Marks the segments whose ids are listed as hovered, and no others.
    void setHoveredSegments(QVector<int> ids);

private:
    friend class dxfviewer::PolylineAccess;

    /// A rectangle around all segments, a little too large. If a coordinate is not a finite number,
    /// the bounds are NaN, for which neither < nor > ever holds.
    struct Bounds {
        float left;
        float top;
        float right;
        float bottom;
    };

    /// Which vertices can be computed from the segments, and so need not be stored.
    enum class Derived : quint8 { None, AllPoints, AllButTheLastPoint };

    /// What a clone shares with its original, besides the data that every entity has.
    struct Geometry {
        Geometry(unsigned int mVertices, unsigned int nVertices, unsigned int flags);

        int vertexNumber() const;
        QPointF pointAt(int vertex) const;
        QVector<DXFVertex> derivedVertices() const;
        void keepVertices() const;
        void trimVertices();
        void setClosed(bool closed);
        void summarize();

        bool needsSetup = true;
        Derived derived = Derived::None;
        // A summary of the segments. Walks over all polylines read it first, so that they open few
        // lists. An unassigned id is smaller than all others. The range of ids and the bounds may
        // be wider than the segments need.
        bool isAnySelected;
        bool isAnyHovered;
        int leastId;
        int greatestId;
        Bounds bounds;
        unsigned int mVertices;
        unsigned int nVertices;
        unsigned int flags;
        QVector<Segment> segments;
        // Empty while they can be computed from the segments and nobody has asked for them.
        mutable QVector<DXFVertex> vertices;
    };

    bool isMadeOf(const QVector<Segment>& segments) const;
    QVector<Segment> newSegments(bool getsClosed) const;
    void takeSegmentIdsFrom(const QVector<Segment>& segments);
    void assignIds();
    void selectSegments(const dxfviewer::IdSet& ids);
    void hoverSegments(const dxfviewer::IdSet& ids);

    Geometry m_geometry;
    // Nothing reads these two: painting uses the values of DXFEntity. They belong to the fixed
    // members of a polyline and stay only for that reason.
    QColor m_ownColor;
    int m_ownLineWidth = 0;
    // A caller of vertices() has a reference to them, which must stay valid.
    mutable bool m_areVerticesKnown = false;
    // The state that delete commands keep of the polyline. They own it. When it is destroyed, it
    // sets this pointer to null.
    dxfviewer::PolylineState* m_state = nullptr;
};
