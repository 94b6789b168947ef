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

    const QVector<DXFVertex>& vertices() const { return m_vertices; }
    int vertexNumber() const { return static_cast<int>(m_vertices.size()); }
    unsigned int mVertices() const { return m_mVertices; }
    unsigned int nVertices() const { return m_nVertices; }
    unsigned int flags() const { return m_flags; }
    bool isClosed() const;

    /// Adds a vertex at the end. The segments follow only while a setup() is due: before the first
    /// one, and after setSegments().
    void appendPoint(const DXFVertex& vertex);

    /// The segments as they are now; empty before the first setup(). Copying them is cheap.
    QVector<Segment> segments() const { return m_segments; }

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

    void takeSegmentIdsFrom(const QVector<Segment>& segments);
    void selectSegments(const dxfviewer::IdSet& ids);
    void hoverSegments(const dxfviewer::IdSet& ids);
    bool isMadeOf(const QVector<Segment>& segments) const;
    void setVerticesAlong(const Segment* begin, const Segment* end);
    void setClosed(bool closed);

    bool m_needsSetup = true;
    // Whether setSegments() made the vertices and they are still those.
    bool m_verticesFollowSegments = false;
    QVector<Segment> m_segments;
    // A second pair that nothing reads: what is painted are the values of DXFEntity. It is part of
    // what a polyline is made of and stays for that reason alone.
    QColor m_ownColor;
    int m_ownLineWidth = 0;
    unsigned int m_mVertices;
    unsigned int m_nVertices;
    unsigned int m_flags;
    QVector<DXFVertex> m_vertices;
};
