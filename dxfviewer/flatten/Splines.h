// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/flatten/Point3.h"

#include <cstddef>

namespace dxfviewer
{

struct Fineness;

/// A spline as a drawing gives it. Lists that do not fit each other are allowed.
struct Spline {
    int degree = 3;
    bool isPeriodic = false;
    bool isClosed = false;
    std::vector<double> knots;
    /// One for each control point, or none.
    std::vector<double> weights;
    Points controlPoints;

    /// Used if there are no control points.
    Points fitPoints;
    /// Directions at the ends of the fit points, or null vectors.
    Point3 startTangent;
    Point3 endTangent;
};

/**
 * Appends the points of a spline.
 *
 * From point to point it turns by about the longest step of an arc at most.
 *
 * @returns false if it cannot be drawn: too few points or too high a degree
 */
bool appendSpline(Points& points, const Spline& spline, const Fineness& fineness);

} // namespace dxfviewer
