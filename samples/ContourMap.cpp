// SPDX-License-Identifier: GPL-2.0-or-later

#include "ContourMap.h"

#include "Shapes.h"

#include <array>
#include <cmath>

namespace samples
{

namespace
{

constexpr double mapWidth = 1600.0;
constexpr double mapHeight = 1100.0;
constexpr double gridStep = 10.0;
constexpr int columns = static_cast<int>(mapWidth / gridStep);
constexpr int rows = static_cast<int>(mapHeight / gridStep);

// Contours need no corners closer than this to look smooth.
constexpr double cornerSpacing = 12.0;

constexpr double lowestContour = 205.0;
constexpr double highestContour = 400.0;
constexpr double contourStep = 5.0;
constexpr int contoursPerIndex = 5;
// A level that falls on a corner of the grid would make a contour touch itself there.
constexpr double offLevel = 1e-3;

struct Hill {
    Point top;
    double height;
    double radiusX;
    double radiusY;
};

constexpr std::array<Hill, 9> hills = {{
    {{330, 260}, 130, 210, 150},
    {{480, 340}, 45, 90, 110},
    {{1120, 240}, 105, 230, 140},
    {{1330, 300}, 60, 130, 120},
    {{260, 860}, 95, 180, 170},
    {{720, 930}, 115, 200, 130},
    {{1240, 850}, 150, 220, 170},
    {{1420, 950}, 50, 110, 120},
    {{760, 160}, 28, 120, 90},
}};

/// The middle of the river at this x.
double riverY(double x)
{
    return 560 + 75 * std::sin(x / 210.0) + 35 * std::sin(x / 83.0 + 1.0) - 0.05 * x;
}

double elevation(Point point)
{
    // The country falls along the river, and the river has cut a valley into it.
    double height = 215 - 0.012 * point.x + 0.02 * std::abs(point.y - 540);
    for (const Hill& hill : hills) {
        const double dx = (point.x - hill.top.x) / hill.radiusX;
        const double dy = (point.y - hill.top.y) / hill.radiusY;
        height += hill.height * std::exp(-(dx * dx + dy * dy));
    }
    height += 3.0 * std::sin(point.x / 47.0) * std::sin(point.y / 39.0);
    const double toRiver = (point.y - riverY(point.x)) / 70.0;
    return height - 18.0 * std::exp(-toRiver * toRiver);
}

struct Sample {
    Point at;
    double height;
};

/// The point at this level between two corners. The same two corners give the same point for every
/// cell.
Point crossing(const Sample& low, const Sample& high, double level)
{
    const double t = (level - low.height) / (high.height - low.height);
    return {low.at.x + t * (high.at.x - low.at.x), low.at.y + t * (high.at.y - low.at.y)};
}

/// The contour through a triangle, with the higher ground always on the same side.
void addTriangle(std::array<Sample, 3> corners, double level, std::vector<Edge>& edges)
{
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Sample& apex = corners[i];
        const Sample& next = corners[(i + 1) % 3];
        const Sample& last = corners[(i + 2) % 3];
        const bool isHigh = apex.height > level;
        if (isHigh == (next.height > level) || isHigh == (last.height > level))
            continue;
        if (isHigh)
            edges.emplace_back(crossing(next, apex, level), crossing(last, apex, level));
        else
            edges.emplace_back(crossing(apex, last, level), crossing(apex, next, level));
    }
}

Sample sample(int i, int j)
{
    const Point at{i * gridStep, j * gridStep};
    return {at, elevation(at)};
}

/// The contour of a cell of the grid. With four triangles around its middle a saddle is never
/// ambiguous.
void addCell(int i, int j, double level, std::vector<Edge>& edges)
{
    const std::array<Sample, 4> ring{sample(i, j), sample(i + 1, j), sample(i + 1, j + 1),
                                     sample(i, j + 1)};
    const Point middle = ring[0].at + Point{gridStep / 2, gridStep / 2};
    const Sample center{middle, elevation(middle)};
    for (std::size_t k = 0; k < ring.size(); ++k)
        addTriangle({ring[k], ring[(k + 1) % 4], center}, level, edges);
}

/// The path without the corners that lie close behind another; both ends stay.
Path thinned(const Path& path)
{
    Path result;
    result.isClosed = path.isClosed;
    for (const Vertex& vertex : path.vertices) {
        const bool isEnd = !path.isClosed && &vertex == &path.vertices.back();
        if (isEnd || result.vertices.empty()
            || std::hypot(vertex.x - result.vertices.back().x, vertex.y - result.vertices.back().y)
                   >= cornerSpacing)
            result.vertices.push_back(vertex);
    }
    return result;
}

std::vector<Path> contour(double level)
{
    std::vector<Edge> edges;
    for (int i = 0; i < columns; ++i) {
        for (int j = 0; j < rows; ++j)
            addCell(i, j, level + offLevel, edges);
    }
    std::vector<Path> result;
    for (const Path& path : joined(edges))
        result.push_back(thinned(path));
    return result;
}

void addContours(Drawing& drawing)
{
    int index = 0;
    for (double level = lowestContour; level <= highestContour; level += contourStep, ++index)
        drawing.add(index % contoursPerIndex == 0 ? "INDEX-CONTOURS" : "CONTOURS", contour(level));
}

/// A line beside the middle of the river.
Path bank(double offset)
{
    std::vector<Point> points;
    for (double x = 0; x <= mapWidth; x += gridStep)
        points.push_back({x, riverY(x) + offset * (1.0 + 0.25 * std::sin(x / 60.0))});
    return openPath(points);
}

void addRiver(Drawing& drawing)
{
    drawing.add("RIVER", bank(-9));
    drawing.add("RIVER", bank(9));
    drawing.add("RIVER-MIDDLE", bank(0));
}

/// A path that climbs from one edge of the map to the other, over the bridge.
double pathX(double y)
{
    return 860 + 90 * std::sin(y / 140.0) + 40 * std::sin(y / 57.0);
}

void addPath(Drawing& drawing)
{
    std::vector<Point> points;
    for (double y = 0; y <= mapHeight; y += gridStep)
        points.push_back({pathX(y), y});
    drawing.add("PATHS", openPath(points));
}

void addBridge(Drawing& drawing)
{
    constexpr double halfLength = 24.0;
    constexpr double halfWidth = 6.0;
    constexpr double wing = 6.0;
    double y = mapHeight / 2;
    for (int i = 0; i < 50; ++i)
        y = riverY(pathX(y));
    for (const double side : {-1.0, 1.0}) {
        const double rail = pathX(y) + side * halfWidth;
        drawing.add("BUILDINGS", openPath({{rail + side * wing, y - halfLength - wing},
                                           {rail, y - halfLength},
                                           {rail, y + halfLength},
                                           {rail + side * wing, y + halfLength + wing}}));
    }
}

void addBuildings(Drawing& drawing)
{
    struct House {
        Point at;
        double width;
        double depth;
        double angle;
    };
    constexpr std::array<House, 9> houses = {{{{905, 490}, 26, 14, 0.2},
                                              {{950, 500}, 18, 14, 0.2},
                                              {{990, 512}, 30, 16, 0.1},
                                              {{1040, 505}, 14, 14, 0.4},
                                              {{905, 525}, 16, 12, 0.9},
                                              {{1075, 520}, 22, 12, -0.2},
                                              {{700, 720}, 24, 14, 0.5},
                                              {{735, 740}, 14, 12, 0.5},
                                              {{140, 480}, 28, 16, -0.3}}};
    for (const House& house : houses)
        drawing.add("BUILDINGS",
                    placed(rectangle({0, 0}, house.width, house.depth), house.angle, house.at));
}

/// A wood: the round tops of its trees, seen from above.
void addWood(Drawing& drawing, Point center, double radius, int trees)
{
    constexpr double goldenAngle = 2.39996322972865332;
    for (int i = 0; i < trees; ++i) {
        const Point at = polar(center, radius * std::sqrt((i + 0.5) / trees), i * goldenAngle);
        drawing.add("WOODS", arc(at, 5.0 + i % 3, 0.4 * pi, 2.1 * pi));
    }
}

void addFrame(Drawing& drawing)
{
    constexpr double margin = 25.0;
    constexpr double tickEvery = 100.0;
    drawing.add("FRAME", rectangle({0, 0}, mapWidth, mapHeight));
    drawing.add("FRAME",
                rectangle({-margin, -margin}, mapWidth + 2 * margin, mapHeight + 2 * margin));
    for (double x = 0; x <= mapWidth; x += tickEvery) {
        drawing.add("FRAME", line({x, -margin}, {x, 0}));
        drawing.add("FRAME", line({x, mapHeight}, {x, mapHeight + margin}));
    }
    for (double y = 0; y <= mapHeight; y += tickEvery) {
        drawing.add("FRAME", line({-margin, y}, {0, y}));
        drawing.add("FRAME", line({mapWidth, y}, {mapWidth + margin, y}));
    }
}

void addSummits(Drawing& drawing)
{
    for (const Hill& hill : hills) {
        if (hill.height > 90)
            drawing.add("SUMMITS",
                        closedPath({polar(hill.top, 9, pi / 6), polar(hill.top, 9, 5 * pi / 6),
                                    polar(hill.top, 9, 3 * pi / 2)}));
    }
}

std::vector<Layer> layers()
{
    return {
        {"0", 7, 0xC0C0C0, "CONTINUOUS"},
        {"CONTOURS", 15, 0xA98B62, "CONTINUOUS"},
        {"INDEX-CONTOURS", 2, 0xF0C87A, "CONTINUOUS"},
        {"RIVER", 131, 0x6CC6FF, "CONTINUOUS"},
        {"RIVER-MIDDLE", 4, 0x4A97CF, "DASHED"},
        {"PATHS", 23, 0xF4F0D8, "DASHED"},
        {"BUILDINGS", 221, 0xFF8F7A, "CONTINUOUS"},
        {"WOODS", 121, 0x78C083, "CONTINUOUS"},
        {"SUMMITS", 7, 0xFFFFFF, "CONTINUOUS"},
        {"FRAME", 252, 0x93A4B4, "CONTINUOUS"},
    };
}

} // namespace

Drawing contourMap()
{
    Drawing drawing(layers(), 8.0);
    addContours(drawing);
    addRiver(drawing);
    addPath(drawing);
    addBridge(drawing);
    addBuildings(drawing);
    addWood(drawing, {560, 690}, 70, 45);
    addWood(drawing, {1480, 690}, 75, 55);
    addWood(drawing, {100, 720}, 60, 35);
    addSummits(drawing);
    addFrame(drawing);
    return drawing;
}

} // namespace samples
