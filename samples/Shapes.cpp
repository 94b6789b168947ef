// SPDX-License-Identifier: GPL-2.0-or-later

#include "Shapes.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace samples
{

namespace
{

constexpr double arcStep = pi / 24.0;
constexpr double pointsPerUnit = 1e4;

/// Points that differ by rounding only have the same key.
using Key = std::pair<long long, long long>;

Key keyOf(Point point)
{
    return {std::llround(point.x * pointsPerUnit), std::llround(point.y * pointsPerUnit)};
}

bool isOnLine(const Vertex& a, const Vertex& b, const Vertex& c)
{
    constexpr double tolerance = 1e-9;
    return std::abs((b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x)) < tolerance;
}

/// The edges by their starting point, and which of them are not yet part of a path.
class EdgeIndex
{
public:
    explicit EdgeIndex(const std::vector<Edge>& edges)
        : m_edges(edges)
        , m_isUsed(edges.size(), false)
    {
        for (std::size_t i = 0; i < edges.size(); ++i) {
            m_byStart.emplace(keyOf(edges[i].first), i);
            ++m_arrivals[keyOf(edges[i].second)];
        }
    }

    /// Whether a path must begin with this edge: no other leads to it.
    bool isHead(std::size_t i) const { return m_arrivals.count(keyOf(m_edges[i].first)) == 0; }
    bool isUsed(std::size_t i) const { return m_isUsed[i]; }

    Path follow(std::size_t i)
    {
        const Key start = keyOf(m_edges[i].first);
        std::vector<Point> points{m_edges[i].first};
        for (;;) {
            m_isUsed[i] = true;
            points.push_back(m_edges[i].second);
            const auto range = m_byStart.equal_range(keyOf(m_edges[i].second));
            const auto next = std::find_if(range.first, range.second, [this](const auto& entry) {
                return !m_isUsed[entry.second];
            });
            if (next == range.second)
                break;
            i = next->second;
        }
        if (keyOf(points.back()) != start)
            return openPath(points);
        points.pop_back();
        return closedPath(points);
    }

private:
    const std::vector<Edge>& m_edges;
    std::vector<bool> m_isUsed;
    std::multimap<Key, std::size_t> m_byStart;
    std::map<Key, int> m_arrivals;
};

} // namespace

Point operator+(Point a, Point b)
{
    return {a.x + b.x, a.y + b.y};
}

Point polar(Point center, double radius, double angle)
{
    return {center.x + radius * std::cos(angle), center.y + radius * std::sin(angle)};
}

Path line(Point from, Point to)
{
    return openPath({from, to});
}

Path openPath(const std::vector<Point>& points)
{
    Path path;
    for (const Point& point : points)
        path.vertices.push_back({point.x, point.y});
    return path;
}

Path closedPath(const std::vector<Point>& points)
{
    return closed(openPath(points));
}

Path rectangle(Point corner, double width, double height)
{
    return closedPath({corner, corner + Point{width, 0}, corner + Point{width, height},
                       corner + Point{0, height}});
}

std::vector<Path> cross(Point center, double halfLength)
{
    return {line(center + Point{-halfLength, 0}, center + Point{halfLength, 0}),
            line(center + Point{0, -halfLength}, center + Point{0, halfLength})};
}

Path arc(Point center, double radius, double fromAngle, double toAngle)
{
    const double sweep = toAngle - fromAngle;
    const int count = std::max(2, static_cast<int>(std::lround(std::abs(sweep) / arcStep)));
    const double step = sweep / count;
    Path path;
    for (int i = 0; i <= count; ++i) {
        const Point point = polar(center, radius, fromAngle + i * step);
        path.vertices.push_back({point.x, point.y, i < count ? std::tan(step / 4.0) : 0.0});
    }
    return path;
}

Path circle(Point center, double radius)
{
    Path path = arc(center, radius, 0.0, 2.0 * pi);
    path.vertices.pop_back();
    return closed(path);
}

Path roundedRectangle(Point corner, double width, double height, double radius)
{
    const double left = corner.x + radius;
    const double right = corner.x + width - radius;
    const double low = corner.y + radius;
    const double high = corner.y + height - radius;
    Path path = arc({left, low}, radius, pi, 1.5 * pi);
    append(path, arc({right, low}, radius, 1.5 * pi, 2.0 * pi));
    append(path, arc({right, high}, radius, 0.0, 0.5 * pi));
    append(path, arc({left, high}, radius, 0.5 * pi, pi));
    return closed(path);
}

void append(Path& path, const Path& next)
{
    path.vertices.insert(path.vertices.end(), next.vertices.begin(), next.vertices.end());
}

Path closed(Path path)
{
    path.isClosed = true;
    return path;
}

Path placed(const Path& path, double angle, Point offset)
{
    Path result = path;
    for (Vertex& vertex : result.vertices) {
        const double x = vertex.x;
        const double y = vertex.y;
        vertex.x = x * std::cos(angle) - y * std::sin(angle) + offset.x;
        vertex.y = x * std::sin(angle) + y * std::cos(angle) + offset.y;
    }
    return result;
}

std::vector<Path> joined(const std::vector<Edge>& edges)
{
    EdgeIndex index(edges);
    std::vector<Path> paths;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        if (index.isHead(i) && !index.isUsed(i))
            paths.push_back(index.follow(i));
    }
    // The remaining edges form rings.
    for (std::size_t i = 0; i < edges.size(); ++i) {
        if (!index.isUsed(i))
            paths.push_back(index.follow(i));
    }
    return paths;
}

Path withoutCollinear(const Path& path)
{
    const std::size_t count = path.vertices.size();
    Path result;
    result.isClosed = path.isClosed;
    for (std::size_t i = 0; i < count; ++i) {
        const bool isEnd = !path.isClosed && (i == 0 || i + 1 == count);
        const Vertex& before = path.vertices[(i + count - 1) % count];
        const Vertex& after = path.vertices[(i + 1) % count];
        if (isEnd || !isOnLine(before, path.vertices[i], after))
            result.vertices.push_back(path.vertices[i]);
    }
    return result;
}

} // namespace samples
