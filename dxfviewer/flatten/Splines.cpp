// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/Splines.h"

#include "dxfviewer/flatten/Fineness.h"
#include "dxfviewer/io/WorkMeter.h"

#include <algorithm>
#include <array>

namespace
{

using dxfviewer::Fineness;
using dxfviewer::Point3;
using dxfviewer::Points;
using dxfviewer::Spline;
using dxfviewer::WorkMeter;

// Nobody draws with a higher degree, and one point would take longer than a whole drawing.
constexpr int highestDegree = 32;

// How often a piece that turns too much is cut in three.
constexpr int mostCuts = 5;

/// The angle between two directions, 0 if one of them has no length.
double turnBetween(const Point3& a, const Point3& b)
{
    const double turn = std::atan2(length(cross(a, b)), dot(a, b));
    return std::isfinite(turn) ? turn : 0.0;
}

/// How far a curve that is flattened so finely may turn and still be one segment. A third of an
/// arc's step turns by a third of its angle against its neighbour.
double straightTurn(const Fineness& fineness)
{
    return fineness.longestStep / 3.0;
}

/// Puts points on a curve, closer where it turns.
template <typename Curve>
class Tracer
{
public:
    Tracer(Points& points, const Curve& curve, const Fineness& fineness)
        : m_points(points)
        , m_curve(curve)
        , m_longestTurn(straightTurn(fineness))
        , m_mostPoints(fineness.mostPoints)
        , m_meter(fineness.meter)
    {
    }

    /// Without the first point and with the last.
    void trace(double begin, double end)
    {
        m_meter.add(m_curve.work());
        trace({begin, m_curve.at(begin)}, {end, m_curve.at(end)}, mostCuts);
    }

private:
    struct Place {
        double parameter;
        Point3 point;
    };

    Place between(const Place& begin, const Place& end, double share) const
    {
        const double parameter = begin.parameter + (end.parameter - begin.parameter) * share;
        return {parameter, m_curve.at(parameter)};
    }

    void trace(const Place& begin, const Place& end, int cuts)
    {
        if (m_points.size() >= m_mostPoints)
            return;
        m_meter.add(m_curve.work());
        // Two points between: a single one would lie on the straight line when a piece bends both
        // ways.
        const Place a = between(begin, end, 1.0 / 3.0);
        const Place b = between(begin, end, 2.0 / 3.0);
        const bool isStraight =
            turnBetween(a.point - begin.point, b.point - a.point) <= m_longestTurn
            && turnBetween(b.point - a.point, end.point - b.point) <= m_longestTurn;
        if (isStraight || cuts == 0) {
            m_points.push_back(end.point);
            return;
        }
        trace(begin, a, cuts - 1);
        trace(a, b, cuts - 1);
        trace(b, end, cuts - 1);
    }

    Points& m_points;
    const Curve& m_curve;
    double m_longestTurn;
    std::size_t m_mostPoints;
    WorkMeter& m_meter;
};

/// A rational B-spline between two knots.
class KnotSpan
{
public:
    KnotSpan(const Spline& spline, std::size_t span)
        : m_spline(spline)
        , m_degree(static_cast<std::size_t>(spline.degree))
        , m_span(span)
    {
    }

    /// The work for a point or two.
    std::size_t work() const { return m_degree * m_degree; }

    /// Whether it turns by less than an angle altogether. It turns no more than the polygon of its
    /// control points.
    bool isStraight(double longestTurn) const
    {
        Point3 former;
        double turn = 0.0;
        for (std::size_t i = m_span - m_degree; i < m_span && turn <= longestTurn; ++i) {
            const Point3 leg = m_spline.controlPoints[i + 1] - m_spline.controlPoints[i];
            if (leg == Point3{})
                continue;
            turn += turnBetween(former, leg);
            former = leg;
        }
        return turn <= longestTurn;
    }

    Point3 at(double parameter) const
    {
        std::array<Weighted, highestDegree + 1> points;
        for (std::size_t i = 0; i <= m_degree; ++i)
            points[i] = weighted(m_span - m_degree + i);
        for (std::size_t level = 1; level <= m_degree; ++level) {
            for (std::size_t i = m_degree; i >= level; --i) {
                const double low = m_spline.knots[m_span - m_degree + i];
                const double high = m_spline.knots[m_span + 1 + i - level];
                const double share = (parameter - low) / (high - low);
                points[i].scaled = points[i - 1].scaled * (1.0 - share) + points[i].scaled * share;
                points[i].weight = points[i - 1].weight * (1.0 - share) + points[i].weight * share;
            }
        }
        const Weighted& result = points[m_degree];
        return {result.scaled.x / result.weight, result.scaled.y / result.weight,
                result.scaled.z / result.weight};
    }

private:
    struct Weighted {
        Point3 scaled;
        double weight = 1.0;
    };

    Weighted weighted(std::size_t index) const
    {
        const double weight = m_spline.weights.empty() ? 1.0 : m_spline.weights[index];
        return {m_spline.controlPoints[index] * weight, weight};
    }

    const Spline& m_spline;
    std::size_t m_degree;
    std::size_t m_span;
};

/// A cubic from point to point with given directions.
struct Cubic {
    Point3 start;
    Point3 startTangent;
    Point3 end;
    Point3 endTangent;
    double size = 1.0;

    /// The work for a point or two.
    static std::size_t work() { return 1; }

    Point3 at(double share) const
    {
        const double rest = 1.0 - share;
        return start * (rest * rest * (1.0 + 2.0 * share))
               + end * (share * share * (3.0 - 2.0 * share))
               + startTangent * (size * share * rest * rest)
               - endTangent * (size * share * share * rest);
    }
};

/// Knots that begin and end at the first and the last control point.
std::vector<double> clampedKnots(std::size_t points, std::size_t degree)
{
    std::vector<double> knots;
    knots.reserve(points + degree + 1);
    for (std::size_t i = 0; i < points + degree + 1; ++i)
        knots.push_back(static_cast<double>(std::clamp(i, degree, points) - degree));
    return knots;
}

std::vector<double> evenKnots(std::size_t count)
{
    std::vector<double> knots;
    knots.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        knots.push_back(static_cast<double>(i));
    return knots;
}

/// The spline with its first points again at its end.
void wrap(Spline& spline)
{
    const auto degree = static_cast<std::size_t>(spline.degree);
    for (std::size_t i = 0; i < degree; ++i) {
        spline.controlPoints.push_back(spline.controlPoints[i]);
        if (!spline.weights.empty())
            spline.weights.push_back(spline.weights[i]);
    }
}

/// The spline with lists that fit each other.
Spline repaired(const Spline& given)
{
    Spline spline = given;
    if (spline.weights.size() != spline.controlPoints.size())
        spline.weights.clear();
    const auto degree = static_cast<std::size_t>(spline.degree);

    const bool isSorted = std::is_sorted(spline.knots.begin(), spline.knots.end());
    const bool goesRound = spline.isPeriodic || spline.isClosed;
    const std::size_t wrapped = spline.controlPoints.size() + 2 * degree + 1;
    if (goesRound && (spline.knots.empty() || spline.knots.size() == wrapped)) {
        wrap(spline);
        if (spline.knots.empty() || !isSorted)
            spline.knots = evenKnots(wrapped);
    }
    const std::size_t points = spline.controlPoints.size();
    if (!isSorted || spline.knots.size() != points + degree + 1
        || !(spline.knots[degree] < spline.knots[points]))
        spline.knots = clampedKnots(points, degree);
    return spline;
}

/// Appends what lies between two knots, without the first point.
void appendSpan(Points& points, const KnotSpan& curve, double begin, double end, std::size_t pieces,
                const Fineness& fineness)
{
    Tracer<KnotSpan> tracer(points, curve, fineness);
    const double width = (end - begin) / static_cast<double>(pieces);
    for (std::size_t i = 0; i < pieces; ++i)
        tracer.trace(begin + width * static_cast<double>(i),
                     i + 1 == pieces ? end : begin + width * static_cast<double>(i + 1));
}

bool appendControlled(Points& points, const Spline& given, const Fineness& fineness)
{
    Spline limited = given;
    limited.degree = static_cast<int>(
        std::min(static_cast<std::size_t>(given.degree), given.controlPoints.size() - 1));
    if (limited.degree < 1 || limited.degree > highestDegree)
        return false;
    const Spline spline = repaired(limited);
    const auto degree = static_cast<std::size_t>(spline.degree);
    // A curve of a higher degree may bend more often: one look at three pieces is not enough.
    const std::size_t pieces = std::max<std::size_t>(1, degree - std::min<std::size_t>(degree, 2));
    // A weight that is not positive pulls the curve away from its control points.
    const bool staysAtPoints = std::all_of(spline.weights.begin(), spline.weights.end(),
                                           [](double weight) { return weight > 0.0; });

    bool hasBegun = false;
    for (std::size_t span = degree;
         span < spline.controlPoints.size() && points.size() < fineness.mostPoints; ++span) {
        fineness.meter.add(degree);
        const double begin = spline.knots[span];
        const double end = spline.knots[span + 1];
        if (!(begin < end))
            continue;
        const KnotSpan curve(spline, span);
        if (!hasBegun)
            points.push_back(curve.at(begin));
        hasBegun = true;
        if (staysAtPoints && curve.isStraight(straightTurn(fineness)))
            points.push_back(curve.at(end));
        else
            appendSpan(points, curve, begin, end, pieces, fineness);
    }
    return hasBegun;
}

/// Solves equations whose unknowns are linked to their neighbours only. Row i says:
/// low[i] x[i-1] + middle[i] x[i] + high[i] x[i+1] = right[i].
struct Chained {
    std::vector<double> low;
    std::vector<double> middle;
    std::vector<double> high;
    Points right;

    explicit Chained(std::size_t count)
        : low(count)
        , middle(count)
        , high(count)
        , right(count)
    {
    }

    Points solved() const
    {
        const std::size_t count = middle.size();
        std::vector<double> share(count);
        Points result(count);
        double pivot = middle[0];
        share[0] = high[0] / pivot;
        result[0] = right[0] * (1.0 / pivot);
        for (std::size_t i = 1; i < count; ++i) {
            pivot = middle[i] - low[i] * share[i - 1];
            share[i] = high[i] / pivot;
            result[i] = (right[i] - result[i - 1] * low[i]) * (1.0 / pivot);
        }
        for (std::size_t i = count - 1; i-- > 0;)
            result[i] = result[i] - result[i + 1] * share[i];
        return result;
    }
};

std::vector<double> distancesAlong(const Points& fit)
{
    std::vector<double> distances;
    distances.reserve(fit.size());
    for (std::size_t i = 0; i + 1 < fit.size(); ++i)
        distances.push_back(length(fit[i + 1] - fit[i]));
    return distances;
}

/// Row i of the equations that make the curve bend evenly at an inner point.
void setBend(Chained& equations, std::size_t row, const Point3& before, const Point3& at,
             const Point3& after)
{
    const double back = length(at - before);
    const double forth = length(after - at);
    equations.low[row] = forth;
    equations.middle[row] = 2.0 * (back + forth);
    equations.high[row] = back;
    equations.right[row] = ((at - before) * (forth / back) + (after - at) * (back / forth)) * 3.0;
}

void setEnd(Chained& equations, std::size_t row, const Point3& tangent, const Point3& chord)
{
    const double size = length(chord);
    const Point3 direction = normalized(tangent, {});
    equations.middle[row] = 1.0;
    equations.right[row] = direction;
    if (direction != Point3{})
        return;
    // An end without a tangent does not bend.
    equations.middle[row] = 2.0;
    (row == 0 ? equations.high : equations.low)[row] = 1.0;
    equations.right[row] = chord * (3.0 / size);
}

Points openTangents(const Spline& spline, const Points& fit)
{
    const std::size_t last = fit.size() - 1;
    Chained equations(fit.size());
    setEnd(equations, 0, spline.startTangent, fit[1] - fit[0]);
    for (std::size_t i = 1; i < last; ++i)
        setBend(equations, i, fit[i - 1], fit[i], fit[i + 1]);
    setEnd(equations, last, spline.endTangent, fit[last] - fit[last - 1]);
    return equations.solved();
}

/// The same for a curve that goes round; the last point is the first one again.
Points closedTangents(const Points& fit)
{
    const std::size_t count = fit.size() - 1;
    Chained equations(count);
    for (std::size_t i = 0; i < count; ++i)
        setBend(equations, i, fit[(i + count - 1) % count], fit[i], fit[i + 1]);

    // The first and the last unknown are linked too. Two solutions without that link are combined
    // into one with it.
    const double corner = equations.low[0];
    const double otherCorner = equations.high[count - 1];
    const double gamma = -equations.middle[0];
    equations.low[0] = 0.0;
    equations.high[count - 1] = 0.0;
    equations.middle[0] -= gamma;
    equations.middle[count - 1] -= corner * otherCorner / gamma;
    const Points plain = equations.solved();
    std::fill(equations.right.begin(), equations.right.end(), Point3{});
    equations.right[0].x = gamma;
    equations.right[count - 1].x = otherCorner;
    const Points linked = equations.solved();

    const double scale = 1.0 + linked[0].x + corner * linked[count - 1].x / gamma;
    const Point3 share = (plain[0] + plain[count - 1] * (corner / gamma)) * (1.0 / scale);
    Points tangents(plain);
    for (std::size_t i = 0; i < count; ++i)
        tangents[i] = plain[i] - share * linked[i].x;
    tangents.push_back(tangents.front());
    return tangents;
}

bool appendFitted(Points& points, const Spline& spline, const Fineness& fineness)
{
    Points fit = spline.fitPoints;
    const bool goesRound = spline.isClosed || spline.isPeriodic;
    if (goesRound && !fit.empty())
        fit.push_back(fit.front());
    fit.erase(std::unique(fit.begin(), fit.end()), fit.end());
    if (fit.size() < 2)
        return false;

    const bool isRing = goesRound && fit.size() > 3;
    const Points tangents = isRing ? closedTangents(fit) : openTangents(spline, fit);
    const std::vector<double> distances = distancesAlong(fit);
    points.push_back(fit.front());
    for (std::size_t i = 0; i + 1 < fit.size() && points.size() < fineness.mostPoints; ++i) {
        const Cubic cubic{fit[i], tangents[i], fit[i + 1], tangents[i + 1], distances[i]};
        Tracer<Cubic>(points, cubic, fineness).trace(0.0, 1.0);
        points.back() = fit[i + 1];
    }
    return true;
}

} // namespace

namespace dxfviewer
{

bool appendSpline(Points& points, const Spline& spline, const Fineness& fineness)
{
    if (spline.controlPoints.empty())
        return appendFitted(points, spline, fineness);
    return spline.controlPoints.size() > 1 && spline.degree > 0
           && appendControlled(points, spline, fineness);
}

} // namespace dxfviewer
