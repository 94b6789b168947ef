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
     * A closed polyline of three or more vertices gets one segment more, at the end. It runs from
     * the first vertex to the last, against the direction of travel. That is meant.
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

    /// Adds a vertex at the end. The segments follow only while a setup() is due: before the first
    /// one, and after setSegments().
    void appendPoint(const DXFVertex& vertex);

    /// The segments as they are now; empty before the first setup(). Copying them is cheap.
    QVector<Segment> segments() const { return m_geometry.segments; }

    /**
     * Gives the polyline the geometry of a chain of segments.
     *
     * The vertices become the first start point and all end points, without bulges; the start
     * points after the first are not read, so a gap is bridged. The polyline is closed exactly if
     * the first start point and the last end point coincide. The given segments keep their ids and
     * flags until the next setup(). An empty chain clears the segments and leaves vertices and
     * flags, from which the next setup() makes the old segments again.
     */
    void setSegments(const QVector<Segment>& segments);

    /// Selects the segments whose ids are listed and deselects all others.
    void setSelectedSegments(QVector<int> ids);
    /// Hovers the segments whose ids are listed and no others.
    void setHoveredSegments(QVector<int> ids);

private:
    friend class dxfviewer::PolylineAccess;

    /// A rectangle around all segments, a little too large. If a coordinate is no finite number,
    /// the bounds are NaN, for which no comparison holds.
    struct Bounds {
        float left;
        float top;
        float right;
        float bottom;
    };

    /// The vertices that follow from the segments, so that they need not be kept.
    enum class Derived : quint8 { None, AllPoints, AllButTheLastPoint };

    /// What a clone has in common with its original, apart from what every entity has.
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
        // What walks over all polylines ask first, so that few lists have to be opened. An
        // unassigned id is less than all others. The range of ids and the bounds may be wider
        // than need be.
        bool isAnySelected;
        bool isAnyHovered;
        int leastId;
        int greatestId;
        Bounds bounds;
        unsigned int mVertices;
        unsigned int nVertices;
        unsigned int flags;
        QVector<Segment> segments;
        // Empty while they are derived and nobody has asked for them.
        mutable QVector<DXFVertex> vertices;
    };

    bool isMadeOf(const QVector<Segment>& segments) const;
    QVector<Segment> newSegments(bool getsClosed) const;
    void takeSegmentIdsFrom(const QVector<Segment>& segments);
    void assignIds();
    void selectSegments(const dxfviewer::IdSet& ids);
    void hoverSegments(const dxfviewer::IdSet& ids);

    Geometry m_geometry;
    // A second pair that nothing reads: what is painted are the values of DXFEntity. It is part of
    // what a polyline is made of and stays for that reason alone.
    QColor m_ownColor;
    int m_ownLineWidth = 0;
    // Whoever called vertices() has a reference to them, which has to stay good.
    mutable bool m_areVerticesKnown = false;
    // What delete commands keep of the polyline. It belongs to them, and clears this when it goes.
    dxfviewer::PolylineState* m_state = nullptr;
};
