// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/flatten/Point3.h"

#include <array>
#include <optional>
#include <vector>

namespace dxfviewer
{

class Chains;
class Record;
struct Fineness;

/// Appends the chain of a light polyline, which is one record.
bool appendLightPolyline(Chains& chains, const Record& record, const Fineness& fineness);

/// A polyline or a mesh whose vertices are records of their own.
class OldPolyline
{
public:
    /// Takes the record that comes before the vertices.
    explicit OldPolyline(const Record& record);

    void addVertex(const Record& record);

    /// Appends its chains, which may be none.
    void appendTo(Chains& chains, const Fineness& fineness) const;

private:
    struct Vertex {
        Point3 point;
        double bulge;
        int flags;
        /// The corners of a face of a mesh, counted from 1; a negative one hides the edge that it
        /// begins.
        std::array<int, 4> corners;
    };

    bool has(int flag) const { return (m_flags & flag) != 0; }
    Points pointsWith(int vertexFlags) const;
    void appendFlat(Chains& chains, const Fineness& fineness) const;
    void appendSpatial(Chains& chains) const;
    void appendGrid(Chains& chains, const Fineness& fineness) const;
    void appendFaces(Chains& chains, const Fineness& fineness) const;

    int m_flags;
    /// Nothing if only the vertices have one.
    std::optional<double> m_elevation;
    Point3 m_extrusion;
    int m_rows;
    int m_columns;
    int m_fittedRows;
    int m_fittedColumns;
    std::vector<Vertex> m_vertices;
};

} // namespace dxfviewer
