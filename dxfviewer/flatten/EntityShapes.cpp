// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/EntityShapes.h"

#include "dxfviewer/flatten/Chains.h"
#include "dxfviewer/flatten/Curves.h"
#include "dxfviewer/flatten/Faces.h"
#include "dxfviewer/flatten/Fineness.h"
#include "dxfviewer/flatten/Placement.h"
#include "dxfviewer/flatten/PolylineShapes.h"
#include "dxfviewer/flatten/Record.h"
#include "dxfviewer/flatten/Splines.h"
#include "dxfviewer/io/WorkMeter.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace
{

using namespace dxfviewer;

constexpr int extrusionCode = 210;
constexpr int elevationCode = 38;
constexpr int thirdCoordinate = 30;

Placement placementOf(const Record& record)
{
    return extruded(record.point(extrusionCode, {0.0, 0.0, 1.0}));
}

/// A point in the entity's own coordinates. Old drawings give its height in a group of its own.
Point3 flatPoint(const Record& record, int code, const Point3& missing = {})
{
    Point3 point = record.point(code, missing);
    if (!record.has(thirdCoordinate))
        point.z = record.number(elevationCode, point.z);
    return point;
}

bool appendLine(Chains& chains, const Record& record, const Fineness&)
{
    chains.open().push_back(record.point(10));
    chains.open().push_back(record.point(11));
    chains.close();
    return true;
}

/// A segment without length is a dot on the screen.
bool appendPoint(Chains& chains, const Record& record, const Fineness&)
{
    chains.open().push_back(record.point(10));
    chains.open().push_back(record.point(10));
    chains.close();
    return true;
}

Ring circleOf(const Record& record)
{
    const Placement placement = placementOf(record);
    const double radius = std::abs(record.number(40));
    return {placement.map(flatPoint(record, 10)), placement.xAxis * radius,
            placement.yAxis * radius};
}

bool appendCircle(Chains& chains, const Record& record, const Fineness& fineness)
{
    dxfviewer::appendArc(chains.open(), circleOf(record), 0.0, fullTurn, fineness.longestStep);
    chains.close();
    return true;
}

bool appendCircularArc(Chains& chains, const Record& record, const Fineness& fineness)
{
    const double start = radians(record.number(50));
    const double sweep = sweepBetween(start, radians(record.number(51)));
    if (!std::isfinite(sweep))
        return false;
    dxfviewer::appendArc(chains.open(), circleOf(record), start, sweep, fineness.longestStep);
    chains.close();
    return true;
}

bool appendEllipse(Chains& chains, const Record& record, const Fineness& fineness)
{
    const Point3 normal = normalized(record.point(extrusionCode, up), up);
    const Point3 major = record.point(11);
    const Ring ring{record.point(10), major, cross(normal, major) * record.number(40, 1.0)};
    const double start = record.number(41);
    const double sweep = sweepBetween(start, record.number(42, fullTurn));
    if (!std::isfinite(sweep))
        return false;
    dxfviewer::appendArc(chains.open(), ring, start, sweep, fineness.longestStep);
    chains.close();
    return true;
}

/// Sets a coordinate of the last point; the first coordinate begins a new one.
void addCoordinate(Points& points, int coordinate, double value)
{
    if (coordinate == 0)
        points.push_back({value, 0.0, 0.0});
    else if (points.empty())
        return;
    else if (coordinate == 1)
        points.back().y = value;
    else
        points.back().z = value;
}

Spline splineOf(const Record& record, WorkMeter& meter)
{
    constexpr int closedBit = 1;
    constexpr int periodicBit = 2;
    Spline spline;
    spline.degree = record.integer(71, spline.degree);
    spline.isClosed = (record.integer(70) & closedBit) != 0;
    spline.isPeriodic = (record.integer(70) & periodicBit) != 0;
    spline.startTangent = record.point(12);
    spline.endTangent = record.point(13);
    for (const Record::Group group : record) {
        meter.add();
        switch (group.code) {
        case 10:
        case 20:
        case 30:
            addCoordinate(spline.controlPoints, group.code / 10 - 1, group.number());
            break;
        case 11:
        case 21:
        case 31:
            addCoordinate(spline.fitPoints, group.code / 10 - 1, group.number());
            break;
        case 40:
            spline.knots.push_back(group.number());
            break;
        case 41:
            spline.weights.push_back(group.number());
            break;
        default:
            break;
        }
    }
    return spline;
}

bool appendSplineEntity(Chains& chains, const Record& record, const Fineness& fineness)
{
    const bool isDrawn = appendSpline(chains.open(), splineOf(record, fineness.meter), fineness);
    chains.close();
    return isDrawn;
}

/// A leader is a chain, or a curve through its points.
bool appendLeader(Chains& chains, const Record& record, const Fineness& fineness)
{
    constexpr int splinePath = 1;
    Spline spline;
    for (const Record::Group group : record) {
        fineness.meter.add();
        if (group.code == 10 || group.code == 20 || group.code == 30)
            addCoordinate(spline.fitPoints, group.code / 10 - 1, group.number());
    }
    if (record.integer(72) == splinePath)
        appendSpline(chains.open(), spline, fineness);
    else
        chains.open().insert(chains.open().end(), spline.fitPoints.begin(), spline.fitPoints.end());
    chains.close();
    return true;
}

/// The corners of a face. The fourth is the third if it is not given.
Face cornersOf(const Record& record)
{
    Face face;
    for (std::size_t i = 0; i < face.corners.size(); ++i) {
        const Point3 missing = i == 3 ? face.corners[2] : Point3{};
        face.corners[i] = record.point(10 + static_cast<int>(i), missing);
    }
    return face;
}

bool appendFaceEntity(Chains& chains, const Record& record, const Fineness&)
{
    Face face = cornersOf(record);
    face.hiddenEdges = static_cast<unsigned>(record.integer(70));
    appendFace(chains, face);
    return true;
}

/// The corners of a solid are given row by row.
bool appendSolid(Chains& chains, const Record& record, const Fineness&)
{
    const Placement placement = placementOf(record);
    Face face = cornersOf(record);
    std::swap(face.corners[2], face.corners[3]);
    for (Point3& corner : face.corners) {
        if (!record.has(thirdCoordinate))
            corner.z = record.number(elevationCode, corner.z);
        corner = placement.map(corner);
    }
    appendFace(chains, face);
    return true;
}

struct ShapeKind {
    std::string_view name;
    bool (*append)(Chains&, const Record&, const Fineness&);
};

constexpr std::array shapeKinds{
    ShapeKind{"LWPOLYLINE", appendLightPolyline},
    ShapeKind{"LINE", appendLine},
    ShapeKind{"POINT", appendPoint},
    ShapeKind{"ARC", appendCircularArc},
    ShapeKind{"CIRCLE", appendCircle},
    ShapeKind{"SPLINE", appendSplineEntity},
    ShapeKind{"ELLIPSE", appendEllipse},
    ShapeKind{"SOLID", appendSolid},
    ShapeKind{"TRACE", appendSolid},
    ShapeKind{"3DFACE", appendFaceEntity},
    ShapeKind{"3DLINE", appendLine},
    ShapeKind{"LEADER", appendLeader},
};

} // namespace

namespace dxfviewer
{

bool appendEntity(Chains& chains, const Record& record, const Fineness& fineness)
{
    const auto kind =
        std::find_if(shapeKinds.begin(), shapeKinds.end(), [&record](const ShapeKind& candidate) {
            return candidate.name == record.name();
        });
    return kind != shapeKinds.end() && kind->append(chains, record, fineness);
}

} // namespace dxfviewer
