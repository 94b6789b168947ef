// SPDX-License-Identifier: GPL-2.0-or-later

#include "BracketPart.h"

#include "Shapes.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace samples
{

namespace
{

constexpr double plateWidth = 240.0;
constexpr double plateHeight = 150.0;
constexpr double plateThickness = 18.0;
constexpr Point bore{90.0, 75.0};

std::vector<Layer> layers()
{
    return {
        {"0", 7, 0xC0C0C0, "CONTINUOUS"},
        {"OUTLINE", 7, 0xF5F1E6, "CONTINUOUS"},
        {"HOLES", 131, 0x77D7F5, "CONTINUOUS"},
        {"GEAR", 2, 0xF2B84B, "CONTINUOUS"},
        {"HIDDEN-EDGES", 252, 0x8FA3B5, "HIDDEN"},
        {"CENTER-LINES", 23, 0xF0806A, "CENTER"},
        {"DIMENSIONS", 121, 0x9CCB90, "CONTINUOUS"},
        {"HATCH", 252, 0x7C93A8, "CONTINUOUS"},
        {"FRAME", 8, 0x8497A6, "CONTINUOUS"},
    };
}

void addHole(Drawing& drawing, Point center, double radius)
{
    drawing.add("HOLES", circle(center, radius));
    drawing.add("CENTER-LINES", cross(center, radius * 1.5));
}

/// A hole with straight sides and round ends.
Path slot(Point center, double length, double width)
{
    const double radius = width / 2;
    const double reach = (length - width) / 2;
    Path path = arc(center + Point{reach, 0}, radius, -pi / 2, pi / 2);
    append(path, arc(center + Point{-reach, 0}, radius, pi / 2, 3 * pi / 2));
    return closed(path);
}

void addPlate(Drawing& drawing)
{
    constexpr double inset = 18.0;
    drawing.add("OUTLINE", roundedRectangle({0, 0}, plateWidth, plateHeight, inset));
    drawing.add("OUTLINE", roundedRectangle({4, 4}, plateWidth - 8, plateHeight - 8, inset - 4));
    for (const double x : {inset, plateWidth - inset}) {
        for (const double y : {inset, plateHeight - inset})
            addHole(drawing, {x, y}, 7);
    }
    for (const double y : {45.0, 105.0}) {
        drawing.add("HOLES", slot({195, y}, 56, 18));
        drawing.add("CENTER-LINES", cross({195, y}, 36));
    }
}

/// The bearing seat: a bore, its collar, a circle of screws about it, and a keyway.
void addBore(Drawing& drawing)
{
    constexpr double screwCircle = 46.0;
    constexpr int screws = 6;
    constexpr double radius = 26.0;
    constexpr double keyHalfWidth = 5.0;
    constexpr double keyDepth = 31.0;

    const double keyAngle = std::asin(keyHalfWidth / radius);
    Path path = arc(bore, radius, pi / 2 + keyAngle, 5 * pi / 2 - keyAngle);
    append(path,
           openPath({bore + Point{keyHalfWidth, keyDepth}, bore + Point{-keyHalfWidth, keyDepth}}));
    drawing.add("HOLES", closed(path));
    drawing.add("OUTLINE", circle(bore, 34));
    drawing.add("OUTLINE", circle(bore, 58));
    drawing.add("CENTER-LINES", circle(bore, screwCircle));
    drawing.add("CENTER-LINES", cross(bore, 66));
    for (int i = 0; i < screws; ++i) {
        const Point at = polar(bore, screwCircle, i * 2 * pi / screws);
        drawing.add("HOLES", circle(at, 4.5));
        drawing.add("HIDDEN-EDGES", arc(at, 6, pi / 4, 7 * pi / 4));
    }
}

/// The bracket seen from its side: the plate on edge, and a rib that rises from it.
void addSideView(Drawing& drawing)
{
    constexpr Point at{290, 0};
    constexpr double foot = 90.0;
    constexpr double ribRadius = 12.0;

    Path path = openPath({at, at + Point{foot, 0}, at + Point{foot, plateThickness}});
    // Inner corner, rounded to the other side than the outer ones.
    append(path, arc(at + Point{plateThickness + ribRadius, plateThickness + ribRadius}, ribRadius,
                     3 * pi / 2, pi));
    append(path, openPath({at + Point{plateThickness, plateHeight - 6}}));
    append(path, arc(at + Point{plateThickness - 6, plateHeight - 6}, 6, 0, pi / 2));
    append(path, openPath({at + Point{0, plateHeight}}));
    drawing.add("OUTLINE", closed(path));
    drawing.add("OUTLINE",
                openPath({at + Point{plateThickness, 110}, at + Point{75, plateThickness}}));

    for (const double y : {bore.y - 26, bore.y + 26, 18.0 - 7, 18.0 + 7, 132.0 - 7, 132.0 + 7})
        drawing.add("HIDDEN-EDGES", line(at + Point{0, y}, at + Point{plateThickness, y}));
    for (const double x : {60.0, 72.0})
        drawing.add("HIDDEN-EDGES", line(at + Point{x, 0}, at + Point{x, plateThickness}));
    drawing.add("CENTER-LINES",
                line(at + Point{-12, bore.y}, at + Point{plateThickness + 16, bore.y}));
    drawing.add("CENTER-LINES", line(at + Point{66, -10}, at + Point{66, plateThickness + 10}));
}

struct GearSize {
    int teeth = 28;
    double root = 47.0;
    double pitch = 52.0;
    double tip = 57.0;
};

/// One tooth, from the middle of the gap before it to the middle of the gap after it: the root is
/// an arc, the flanks lean, the tip is an arc again.
Path tooth(Point center, const GearSize& size, int index)
{
    const double share = 2 * pi / size.teeth;
    const double start = index * share;
    const double flank = pi / 2 / size.teeth;
    const double middle = start + share / 2;
    Path path = arc(center, size.root, start, middle - flank * 1.35);
    append(path, openPath({polar(center, size.pitch, middle - flank)}));
    append(path, arc(center, size.tip, middle - flank * 0.45, middle + flank * 0.45));
    append(path, openPath({polar(center, size.pitch, middle + flank)}));
    Path root = arc(center, size.root, middle + flank * 1.35, start + share);
    // The next tooth begins where this one ends.
    root.vertices.pop_back();
    append(path, root);
    return path;
}

/// A window between two spokes of the wheel.
Path spokeWindow(Point center, double inner, double outer, double fromAngle, double toAngle)
{
    Path path = arc(center, outer, fromAngle, toAngle);
    append(path, arc(center, inner, toAngle - 0.12, fromAngle + 0.12));
    return closed(path);
}

void addGear(Drawing& drawing)
{
    constexpr Point center{325, 245};
    constexpr int spokes = 5;
    constexpr double halfSpoke = 0.16;
    const GearSize size;

    Path rim;
    for (int i = 0; i < size.teeth; ++i)
        append(rim, tooth(center, size, i));
    drawing.add("GEAR", closed(rim));
    for (int i = 0; i < spokes; ++i) {
        const double from = i * 2 * pi / spokes;
        drawing.add("GEAR", spokeWindow(center, 21, 39, from + halfSpoke,
                                        from + 2 * pi / spokes - halfSpoke));
    }
    drawing.add("GEAR", circle(center, 15));
    drawing.add("HOLES", circle(center, 8));
    drawing.add("CENTER-LINES", circle(center, size.pitch));
    drawing.add("CENTER-LINES", cross(center, 66));
}

/// The plate cut along its middle. The cut parts are hatched.
void addSectionView(Drawing& drawing)
{
    constexpr Point at{0, 200};
    constexpr double hatchEvery = 5.0;
    struct Solid {
        double from;
        double to;
    };
    // What the bore and the slots leave of the plate.
    constexpr std::array<Solid, 3> solids = {{{0, 64}, {116, 167}, {223, plateWidth}}};
    for (const Solid& solid : solids) {
        drawing.add("OUTLINE",
                    rectangle(at + Point{solid.from, 0}, solid.to - solid.from, plateThickness));
        for (double x = solid.from - plateThickness + hatchEvery; x < solid.to; x += hatchEvery) {
            const double left = std::max(x, solid.from);
            const double right = std::min(x + plateThickness, solid.to);
            drawing.add("HATCH", line(at + Point{left, left - x}, at + Point{right, right - x}));
        }
    }
    drawing.add("OUTLINE", line(at, at + Point{plateWidth, 0}));
    drawing.add("OUTLINE",
                line(at + Point{0, plateThickness}, at + Point{plateWidth, plateThickness}));
    // The collar stands above the plate.
    for (const double x : {bore.x - 34, bore.x + 26})
        drawing.add("OUTLINE", rectangle(at + Point{x, plateThickness}, 8, 14));
    drawing.add("CENTER-LINES", line(at + Point{bore.x, -10}, at + Point{bore.x, 46}));
}

/// A dimension line with its arrows, between two points that lie level or plumb, with the lines
/// that lead to the edges measured.
void addDimension(Drawing& drawing, Point from, Point to, Point toEdge)
{
    constexpr double arrowLength = 6.0;
    constexpr double arrowHalfWidth = 1.4;
    const double angle = std::atan2(to.y - from.y, to.x - from.x);
    const Path arrow =
        closedPath({{0, 0}, {arrowLength, arrowHalfWidth}, {arrowLength, -arrowHalfWidth}});
    drawing.add("DIMENSIONS", line(from, to));
    drawing.add("DIMENSIONS", placed(arrow, angle, from));
    drawing.add("DIMENSIONS", placed(arrow, angle + pi, to));
    drawing.add("DIMENSIONS", line(from, from + toEdge));
    drawing.add("DIMENSIONS", line(to, to + toEdge));
}

void addDimensions(Drawing& drawing)
{
    addDimension(drawing, {0, -22}, {plateWidth, -22}, {0, 20});
    addDimension(drawing, {18, -12}, {bore.x, -12}, {0, 10});
    addDimension(drawing, {-22, 0}, {-22, plateHeight}, {20, 0});
    addDimension(drawing, {290, -22}, {380, -22}, {0, 20});
    addDimension(drawing, {290, plateHeight + 12}, {290 + plateThickness, plateHeight + 12},
                 {0, -10});
    addDimension(drawing, {0, 240}, {plateWidth, 240}, {0, -20});
}

void addFrame(Drawing& drawing)
{
    constexpr Point corner{-45, -95};
    constexpr double width = 460.0;
    constexpr double height = 425.0;
    drawing.add("FRAME", rectangle(corner, width, height));
    drawing.add("FRAME", rectangle(corner + Point{5, 5}, width - 10, height - 10));
    // The title block in the lower right corner, left empty.
    constexpr Point title{220, -90};
    drawing.add("FRAME", rectangle(title, 190, 40));
    for (const double y : {10.0, 20.0})
        drawing.add("FRAME", line(title + Point{0, y}, title + Point{190, y}));
    drawing.add("FRAME", line(title + Point{60, 0}, title + Point{60, 40}));
    drawing.add("FRAME", line(title + Point{130, 0}, title + Point{130, 20}));
}

} // namespace

Drawing bracketPart()
{
    Drawing drawing(layers(), 3.0);
    addFrame(drawing);
    addPlate(drawing);
    addBore(drawing);
    addSideView(drawing);
    addSectionView(drawing);
    addGear(drawing);
    addDimensions(drawing);
    return drawing;
}

} // namespace samples
