// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/Curves.h"

#include <algorithm>

namespace
{

// Angles in files are rounded: what is this near to a full turn is one.
constexpr double roundingOfAngles = 1e-9;

// A remainder this small, in steps, is rounding and not worth another step.
constexpr double roundingOfSteps = 1e-9;

constexpr int fewestSteps = 2;

// Below this many steps the middle of the highest one may miss more than a five-hundredth of the
// arc's size.
constexpr double stepsThatKeepHeight = 6.0;

// The arc looks straight, and the quotient of the sines would lose its digits.
constexpr double straightBulge = 1e-12;

} // namespace

namespace dxfviewer
{

double sweepBetween(double start, double end)
{
    double sweep = std::fmod(end - start, fullTurn);
    if (sweep < 0.0)
        sweep += fullTurn;
    return sweep < roundingOfAngles || sweep > fullTurn - roundingOfAngles ? fullTurn : sweep;
}

int stepsOf(double sweep, double longestStep)
{
    const double needed = std::abs(sweep) / longestStep;
    const double wanted = std::max(needed, std::sqrt(stepsThatKeepHeight * needed));
    return std::max(fewestSteps, static_cast<int>(std::ceil(wanted - roundingOfSteps)));
}

void appendArc(Points& points, const Ring& ring, double start, double sweep, double longestStep)
{
    const int steps = stepsOf(sweep, longestStep);
    const std::size_t first = points.size();
    for (int i = 0; i <= steps; ++i)
        points.push_back(ring.at(start + sweep * i / steps));
    if (sweep == fullTurn)
        points.back() = points[first];
}

void appendBulge(Points& points, const Point3& from, const Point3& to, double bulge,
                 double longestStep)
{
    const Point3 chord = to - from;
    if (std::abs(bulge) > straightBulge && (chord.x != 0.0 || chord.y != 0.0)) {
        // Computed without the centre, which may be far away. The chord from the first vertex to
        // each point grows with the sine of half its arc, and turns by half its arc.
        const double halfSweep = 2.0 * std::atan(bulge);
        const int steps = stepsOf(2.0 * halfSweep, longestStep);
        for (int i = 1; i < steps; ++i) {
            const double half = halfSweep * i / steps;
            const double size = std::sin(half) / std::sin(halfSweep);
            const double cosine = size * std::cos(half - halfSweep);
            const double sine = size * std::sin(half - halfSweep);
            points.push_back({from.x + chord.x * cosine - chord.y * sine,
                              from.y + chord.x * sine + chord.y * cosine, from.z});
        }
    }
    points.push_back(to);
}

} // namespace dxfviewer
