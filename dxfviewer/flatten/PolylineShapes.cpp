// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/PolylineShapes.h"

#include "dxfviewer/flatten/Chains.h"
#include "dxfviewer/flatten/Curves.h"
#include "dxfviewer/flatten/Fineness.h"
#include "dxfviewer/flatten/Placement.h"
#include "dxfviewer/flatten/Record.h"
#include "dxfviewer/io/WorkMeter.h"

#include <algorithm>
#include <unordered_set>

namespace
{

using namespace dxfviewer;

constexpr int closedFlag = 1;
constexpr int splineFitFlag = 4;
constexpr int spatialFlag = 8;
constexpr int gridFlag = 16;
constexpr int closedAcrossFlag = 32;
constexpr int facesFlag = 64;

constexpr int fittedVertexFlag = 8;
constexpr int frameVertexFlag = 16;
constexpr int meshVertexFlag = 64;
constexpr int faceVertexFlag = 128;

struct BulgedVertex {
    Point3 point;
    double bulge = 0.0;
};

/// Appends the chain through vertices in the plane of an entity.
void appendBulged(Chains& chains, const std::vector<BulgedVertex>& vertices, bool isClosed,
                  const Placement& placement, const Fineness& fineness)
{
    if (vertices.size() < 2)
        return;

    Points& points = chains.open();
    const std::size_t begin = points.size();
    points.push_back(vertices.front().point);
    for (std::size_t i = 1; i < vertices.size() && points.size() < fineness.mostPoints; ++i) {
        const std::size_t before = points.size();
        appendBulge(points, vertices[i - 1].point, vertices[i].point, vertices[i - 1].bulge,
                    fineness.longestStep);
        fineness.meter.add(points.size() - before);
    }
    // A polyline that repeats its first vertex at its end is closed already.
    if (isClosed && vertices.back().point != vertices.front().point)
        appendBulge(points, vertices.back().point, vertices.front().point, vertices.back().bulge,
                    fineness.longestStep);
    std::for_each(points.begin() + static_cast<std::ptrdiff_t>(begin), points.end(),
                  [&placement](Point3& point) { point = placement.map(point); });
    chains.close();
}

/// Appends a chain through every step-th point, and back to the first if it is closed.
void appendEvery(Chains& chains, const Points& points, std::size_t first, std::size_t step,
                 std::size_t count, bool isClosed)
{
    for (std::size_t i = 0; i < count; ++i)
        chains.open().push_back(points[first + i * step]);
    // Between two points the way back is the same line.
    if (isClosed && count > 2)
        chains.open().push_back(points[first]);
    chains.close();
}

std::optional<double> elevationOf(const Record& record)
{
    // Drawings of old releases give it by a code of its own.
    for (const int code : {30, 38}) {
        if (record.has(code))
            return record.number(code);
    }
    return std::nullopt;
}

/// The edges of a mesh that are drawn already, by any of their faces.
class DrawnEdges
{
public:
    /// Whether the edge is new.
    bool add(unsigned from, unsigned to)
    {
        const auto [low, high] = std::minmax(from, to);
        constexpr int halfOfKey = 32;
        return m_edges.insert(static_cast<unsigned long long>(high) << halfOfKey | low).second;
    }

private:
    std::unordered_set<unsigned long long> m_edges;
};

} // namespace

namespace dxfviewer
{

bool appendLightPolyline(Chains& chains, const Record& record, const Fineness& fineness)
{
    bool isClosed = false;
    double elevation = 0.0;
    Point3 extrusion = up;
    std::vector<BulgedVertex> vertices;
    for (const Record::Group group : record) {
        fineness.meter.add();
        if (group.code == 10)
            vertices.push_back({{group.number(), 0.0, 0.0}, 0.0});
        else if (group.code == 20 && !vertices.empty())
            vertices.back().point.y = group.number();
        else if (group.code == 42 && !vertices.empty())
            vertices.back().bulge = group.number();
        else if (group.code == 38)
            elevation = group.number();
        else if (group.code == 70)
            isClosed = (group.integer() & closedFlag) != 0;
        else if (group.code == 210)
            extrusion.x = group.number();
        else if (group.code == 220)
            extrusion.y = group.number();
        else if (group.code == 230)
            extrusion.z = group.number();
    }
    for (BulgedVertex& vertex : vertices)
        vertex.point.z = elevation;
    appendBulged(chains, vertices, isClosed, extruded(extrusion), fineness);
    return true;
}

OldPolyline::OldPolyline(const Record& record)
    : m_flags(record.integer(70))
    , m_elevation(elevationOf(record))
    , m_extrusion(record.point(210, up))
    , m_rows(record.integer(71))
    , m_columns(record.integer(72))
    , m_fittedRows(record.integer(73))
    , m_fittedColumns(record.integer(74))
{
}

void OldPolyline::addVertex(const Record& record)
{
    m_vertices.push_back(
        {record.point(10),
         record.number(42),
         record.integer(70),
         {record.integer(71), record.integer(72), record.integer(73), record.integer(74)}});
}

void OldPolyline::appendTo(Chains& chains, const Fineness& fineness) const
{
    if (has(facesFlag))
        appendFaces(chains, fineness);
    else if (has(gridFlag))
        appendGrid(chains, fineness);
    else if (has(spatialFlag))
        appendSpatial(chains);
    else
        appendFlat(chains, fineness);
}

void OldPolyline::appendFlat(Chains& chains, const Fineness& fineness) const
{
    std::vector<BulgedVertex> vertices;
    vertices.reserve(m_vertices.size());
    for (const Vertex& vertex : m_vertices) {
        if ((vertex.flags & frameVertexFlag) == 0)
            vertices.push_back(
                {{vertex.point.x, vertex.point.y, m_elevation.value_or(vertex.point.z)},
                 vertex.bulge});
    }
    appendBulged(chains, vertices, has(closedFlag), extruded(m_extrusion), fineness);
}

void OldPolyline::appendSpatial(Chains& chains) const
{
    Points points;
    for (const Vertex& vertex : m_vertices) {
        if ((vertex.flags & frameVertexFlag) == 0)
            points.push_back(vertex.point);
    }
    if (points.size() < 2)
        return;
    if (has(closedFlag) && points.back() != points.front())
        points.push_back(points.front());
    chains.open().insert(chains.open().end(), points.begin(), points.end());
    chains.close();
}

Points OldPolyline::pointsWith(int vertexFlags) const
{
    Points points;
    for (const Vertex& vertex : m_vertices) {
        if ((vertex.flags & (fittedVertexFlag | frameVertexFlag)) == vertexFlags)
            points.push_back(vertex.point);
    }
    return points;
}

/// A grid that was smoothed is shown by the points of its surface, and not by its frame.
void OldPolyline::appendGrid(Chains& chains, const Fineness& fineness) const
{
    const bool isFitted = has(splineFitFlag);
    const Points points = pointsWith(isFitted ? fittedVertexFlag : 0);
    const int givenRows = isFitted ? m_fittedRows : m_rows;
    const int givenColumns = isFitted ? m_fittedColumns : m_columns;
    if (givenRows < 1 || givenColumns < 1)
        return;

    const auto columns = static_cast<std::size_t>(givenColumns);
    const std::size_t rows = std::min(static_cast<std::size_t>(givenRows), points.size() / columns);
    if (rows == 0)
        return;
    const bool isWhole = rows == static_cast<std::size_t>(givenRows);
    for (std::size_t row = 0; row < rows && chains.points().size() < fineness.mostPoints; ++row) {
        fineness.meter.add(columns);
        appendEvery(chains, points, row * columns, 1, columns, has(closedAcrossFlag));
    }
    for (std::size_t column = 0; column < columns && chains.points().size() < fineness.mostPoints;
         ++column) {
        fineness.meter.add(rows);
        appendEvery(chains, points, column, columns, rows, has(closedFlag) && isWhole);
    }
}

void OldPolyline::appendFaces(Chains& chains, const Fineness& fineness) const
{
    Points points;
    for (const Vertex& vertex : m_vertices) {
        if ((vertex.flags & meshVertexFlag) != 0)
            points.push_back(vertex.point);
    }

    DrawnEdges drawn;
    for (const Vertex& face : m_vertices) {
        fineness.meter.add();
        if ((face.flags & faceVertexFlag) == 0 || (face.flags & meshVertexFlag) != 0)
            continue;
        const auto end = std::find(face.corners.begin(), face.corners.end(), 0);
        const auto count = static_cast<std::size_t>(end - face.corners.begin());
        bool isOpen = false;
        for (std::size_t i = 0; i < count; ++i) {
            const long long from = std::abs(static_cast<long long>(face.corners[i]));
            const long long to = std::abs(static_cast<long long>(face.corners[(i + 1) % count]));
            const auto known = static_cast<long long>(points.size());
            if (face.corners[i] < 0 || from > known || to > known
                || !drawn.add(static_cast<unsigned>(from), static_cast<unsigned>(to))) {
                chains.close();
                isOpen = false;
                continue;
            }
            if (!isOpen)
                chains.open().push_back(points[static_cast<std::size_t>(from - 1)]);
            isOpen = true;
            chains.open().push_back(points[static_cast<std::size_t>(to - 1)]);
        }
        chains.close();
    }
}

} // namespace dxfviewer
