// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/flatten/Point3.h"

/// @file
/// Arcs as chains of points that lie on them. Angles are radians.

namespace dxfviewer
{

inline constexpr double pi = 3.14159265358979323846;
inline constexpr double fullTurn = 2.0 * pi;

constexpr double radians(double degrees)
{
    return degrees * (pi / 180.0);
}

/// How far an arc goes counter-clockwise from one angle to another, more than 0 and at most a full
/// turn. Equal angles are a full turn apart.
double sweepBetween(double start, double end);

/// How many steps an arc is made of: at least two, and each at most the longest step. Short arcs
/// get more steps: otherwise they would lose much of their height.
int stepsOf(double sweep, double longestStep);

/// What an arc lies on: a circle or, with axes of different length, an ellipse.
struct Ring {
    Point3 center;
    Point3 xAxis;
    Point3 yAxis;

    Point3 at(double angle) const
    {
        return center + xAxis * std::cos(angle) + yAxis * std::sin(angle);
    }
};

/// Appends the points of an arc, its two ends among them. A full turn ends exactly where it began.
void appendArc(Points& points, const Ring& ring, double start, double sweep, double longestStep);

/**
 * Appends the points of the arc between two vertices of a polyline, without the first and with the
 * last.
 *
 * @param bulge  tangent of a quarter of the arc's angle, negative if it goes clockwise
 */
void appendBulge(Points& points, const Point3& from, const Point3& to, double bulge,
                 double longestStep);

} // namespace dxfviewer
