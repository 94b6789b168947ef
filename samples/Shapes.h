// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "Drawing.h"

#include <utility>
#include <vector>

namespace samples
{

inline constexpr double pi = 3.14159265358979323846;

struct Point {
    double x = 0.0;
    double y = 0.0;
};

using Edge = std::pair<Point, Point>;

Point operator+(Point a, Point b);
/// The point at this distance from the centre, in this direction (radians).
Point polar(Point center, double radius, double angle);

Path line(Point from, Point to);
Path openPath(const std::vector<Point>& points);
Path closedPath(const std::vector<Point>& points);
Path rectangle(Point corner, double width, double height);
/// A cross of two lines through the centre.
std::vector<Path> cross(Point center, double halfLength);

/// An open arc. It has a corner every few degrees, so that it looks round where bulges are not
/// drawn. Each edge has its bulge, so that it is exact where they are.
Path arc(Point center, double radius, double fromAngle, double toAngle);
Path circle(Point center, double radius);
Path roundedRectangle(Point corner, double width, double height, double radius);

/// Continues a path where another begins.
void append(Path& path, const Path& next);
Path closed(Path path);
/// The path turned about the origin by this angle (radians), then moved.
Path placed(const Path& path, double angle, Point offset);

/// Joins edges that share end points into the longest possible paths. Edges are followed in their
/// own direction: each must begin where another ends.
std::vector<Path> joined(const std::vector<Edge>& edges);
/// The path without those corners that lie on the straight line between their neighbours.
Path withoutCollinear(const Path& path);

} // namespace samples
