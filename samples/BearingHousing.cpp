// SPDX-License-Identifier: GPL-2.0-or-later

#include "BearingHousing.h"

#include "Shapes.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace samples
{

namespace
{

// The bearing, from its middle outwards.
constexpr double shaftRadius = 16.0;
constexpr double innerRing = 21.0;
constexpr double ballCircle = 25.0;
constexpr double ballRadius = 5.0;
constexpr double outerRing = 29.0;
constexpr double seatRadius = 34.0;
constexpr double housingRadius = 45.0;

// The front view, and the section to the right of it.
constexpr Point middle{120, 175};
constexpr double sectionMiddle = 285.0;
constexpr double baseBottom = 115.0;
constexpr double baseTop = 133.0;
constexpr std::array<double, 2> bolts = {58.0, 182.0};

std::vector<Layer> layers()
{
    return {
        {"0", 7, 0xC0C0C0, "CONTINUOUS"},
        {"OUTLINE", 7, 0xF5F1E6, "CONTINUOUS"},
        {"BEARING", 131, 0x77D7F5, "CONTINUOUS"},
        {"BOLTS", 2, 0xF2B84B, "CONTINUOUS"},
        {"HIDDEN-EDGES", 252, 0x8FA3B5, "HIDDEN"},
        {"CENTER-LINES", 23, 0xF0806A, "CENTER"},
        {"DIMENSIONS", 121, 0x9CCB90, "CONTINUOUS"},
        {"HATCH", 252, 0x7C93A8, "CONTINUOUS"},
        {"FRAME", 8, 0x8497A6, "CONTINUOUS"},
    };
}

void addBox(Drawing& drawing, const std::string& layer, Point corner, double width, double height)
{
    const Point opposite = corner + Point{width, height};
    drawing.addLine(layer, corner.x, corner.y, opposite.x, corner.y);
    drawing.addLine(layer, opposite.x, corner.y, opposite.x, opposite.y);
    drawing.addLine(layer, opposite.x, opposite.y, corner.x, opposite.y);
    drawing.addLine(layer, corner.x, opposite.y, corner.x, corner.y);
}

/// The blocks, drawn around their own origin: each is in the drawing more than once.
void addBlocks(Drawing& drawing)
{
    constexpr double headRadius = 9.0;
    drawing.beginBlock("BOLT-FROM-ABOVE");
    for (int i = 0; i < 6; ++i) {
        const Point from = polar({}, headRadius, i * pi / 3);
        const Point to = polar({}, headRadius, (i + 1) * pi / 3);
        drawing.addLine("0", from.x, from.y, to.x, to.y);
    }
    drawing.addCircle("0", 0, 0, headRadius * std::cos(pi / 6));
    drawing.addArc("HIDDEN-EDGES", 0, 0, 5, 90, 360);
    drawing.endBlock();

    drawing.beginBlock("BOLT-FROM-ASIDE");
    addBox(drawing, "0", {-11, 0}, 22, 2);
    addBox(drawing, "0", {-headRadius, 2}, 2 * headRadius, 7);
    for (const double x : {-headRadius / 2, headRadius / 2})
        drawing.addLine("0", x, 2, x, 9);
    drawing.addArc("0", 0, 2, 7.5, 55, 125);
    for (const double x : {-5.0, 5.0})
        drawing.addLine("HIDDEN-EDGES", x, 0, x, baseBottom - baseTop - 8);
    drawing.addLine("HIDDEN-EDGES", -5, baseBottom - baseTop - 8, 5, baseBottom - baseTop - 8);
    drawing.addLine("CENTER-LINES", 0, 14, 0, baseBottom - baseTop - 14);
    drawing.endBlock();

    drawing.beginBlock("BALL");
    drawing.addCircle("0", 0, 0, ballRadius);
    drawing.addArc("0", 0, 0, ballRadius * 0.6, 100, 170);
    drawing.endBlock();

    drawing.beginBlock("ARROW");
    drawing.addLine("0", 0, 0, 4, 0.9);
    drawing.addLine("0", 4, 0.9, 4, -0.9);
    drawing.addLine("0", 4, -0.9, 0, 0);
    drawing.endBlock();
}

/// The outline of base and housing: mirrored about the middle, so each line comes twice.
void addHousing(Drawing& drawing)
{
    constexpr double fillet = 10.0;
    constexpr double halfBase = 80.0;
    constexpr double corner = 5.0;
    drawing.addLine("OUTLINE", middle.x - halfBase, baseBottom, middle.x + halfBase, baseBottom);
    for (const double side : {-1.0, 1.0}) {
        const auto x = [side](double distance) {
            return middle.x + side * distance;
        };
        const double turn = side < 0 ? 90 : 0;
        drawing.addLine("OUTLINE", x(halfBase), baseBottom, x(halfBase), baseTop - corner);
        drawing.addArc("OUTLINE", x(halfBase - corner), baseTop - corner, corner, turn, turn + 90);
        drawing.addLine("OUTLINE", x(halfBase - corner), baseTop, x(housingRadius + fillet),
                        baseTop);
        drawing.addArc("OUTLINE", x(housingRadius + fillet), baseTop + fillet, fillet,
                       side < 0 ? 270 : 180, side < 0 ? 360 : 270);
        drawing.addLine("OUTLINE", x(housingRadius), baseTop + fillet, x(housingRadius), middle.y);
        drawing.addLine("OUTLINE", x(seatRadius), middle.y, x(housingRadius), middle.y);
    }
    drawing.addArc("OUTLINE", middle.x, middle.y, housingRadius, 0, 180);
    // The grease nipple.
    addBox(drawing, "BOLTS", middle + Point{-4, housingRadius}, 8, 4);
    addBox(drawing, "BOLTS", middle + Point{-2.5, housingRadius + 4}, 5, 3);
    drawing.addArc("BOLTS", middle.x, middle.y + housingRadius + 9, 2.8, 315, 225);
    for (const double x : bolts)
        drawing.addInsert("BOLTS", "BOLT-FROM-ASIDE", x, baseTop, 1, 0);
}

void addBearing(Drawing& drawing)
{
    constexpr int balls = 12;
    for (const double radius : {seatRadius, outerRing, innerRing})
        drawing.addCircle("BEARING", middle.x, middle.y, radius);
    for (int i = 0; i < balls; ++i) {
        const Point at = polar(middle, ballCircle, i * 2 * pi / balls);
        drawing.addInsert("BEARING", "BALL", at.x, at.y, 1, 0);
    }

    constexpr double keyHalfWidth = 4.0;
    constexpr double keyBottom = 11.0;
    const double keyAngle = std::asin(keyHalfWidth / shaftRadius) * 180 / pi;
    const double keyTop = shaftRadius * std::cos(keyAngle * pi / 180);
    drawing.addArc("OUTLINE", middle.x, middle.y, shaftRadius, 90 + keyAngle, 450 - keyAngle);
    for (const double x : {middle.x - keyHalfWidth, middle.x + keyHalfWidth})
        drawing.addLine("OUTLINE", x, middle.y + keyTop, x, middle.y + keyBottom);
    drawing.addLine("OUTLINE", middle.x - keyHalfWidth, middle.y + keyBottom,
                    middle.x + keyHalfWidth, middle.y + keyBottom);
    drawing.addLine("CENTER-LINES", middle.x - 58, middle.y, middle.x + 58, middle.y);
    drawing.addLine("CENTER-LINES", middle.x, 105, middle.x, middle.y + 66);
}

void addHatch(Drawing& drawing, Point corner, double width, double height)
{
    constexpr double step = 4.0;
    const Point opposite = corner + Point{width, height};
    // Lines of y = x + c, at the same places in all parts of the section.
    const double first = std::ceil((corner.y - opposite.x) / step) * step;
    for (double c = first; c < opposite.y - corner.x; c += step) {
        const double left = std::max(corner.x, corner.y - c);
        const double right = std::min(opposite.x, opposite.y - c);
        if (right - left > 0.01)
            drawing.addLine("HATCH", left, left + c, right, right + c);
    }
}

/// Base, housing and bearing cut along the middle, seen from the right.
void addSection(Drawing& drawing)
{
    constexpr double halfBase = 35.0;
    constexpr double halfHousing = 25.0;
    constexpr double halfBearing = 13.0;
    const auto addCut = [&drawing](double halfWidth, double bottom, double top) {
        const Point corner{sectionMiddle - halfWidth, bottom};
        addBox(drawing, "OUTLINE", corner, 2 * halfWidth, top - bottom);
        addHatch(drawing, corner, 2 * halfWidth, top - bottom);
    };
    addCut(halfBase, baseBottom, baseTop);
    addCut(halfHousing, baseTop, middle.y - seatRadius);
    addCut(halfHousing, middle.y + seatRadius, middle.y + housingRadius);

    for (const double side : {-1.0, 1.0}) {
        const auto y = [side](double radius) {
            return middle.y + side * radius;
        };
        const double left = sectionMiddle - halfBearing;
        addBox(drawing, "BEARING", {left, std::min(y(outerRing), y(seatRadius))}, 2 * halfBearing,
               seatRadius - outerRing);
        addBox(drawing, "BEARING", {left, std::min(y(shaftRadius), y(innerRing))}, 2 * halfBearing,
               innerRing - shaftRadius);
        drawing.addInsert("BEARING", "BALL", sectionMiddle, y(ballCircle), 1, 0);
        for (const double x : {-halfHousing, halfHousing})
            drawing.addLine("OUTLINE", sectionMiddle + x, y(seatRadius), sectionMiddle + x,
                            y(shaftRadius + 2));
        drawing.addLine("OUTLINE", sectionMiddle - 48, y(shaftRadius), sectionMiddle + 48,
                        y(shaftRadius));
        // The shaft is broken off at both ends.
        drawing.addArc("OUTLINE", sectionMiddle + side * 48, middle.y + shaftRadius / 2,
                       shaftRadius / 2, 90, 270);
        drawing.addArc("OUTLINE", sectionMiddle + side * 48, middle.y - shaftRadius / 2,
                       shaftRadius / 2, 270, 90);
    }
    drawing.addLine("CENTER-LINES", sectionMiddle - 64, middle.y, sectionMiddle + 64, middle.y);
    drawing.addLine("CENTER-LINES", sectionMiddle, 105, sectionMiddle, middle.y + 54);
    drawing.addText("DIMENSIONS", sectionMiddle, 240, 6, 0, "A - A");
}

void addViewFromAbove(Drawing& drawing)
{
    constexpr double y = 62.0;
    constexpr double radius = 8.0;
    constexpr double halfWidth = 80.0;
    constexpr double halfDepth = 30.0;
    const auto x = [](double distance) {
        return middle.x + distance;
    };
    for (const double side : {-1.0, 1.0}) {
        drawing.addLine("OUTLINE", x(radius - halfWidth), y + side * halfDepth,
                        x(halfWidth - radius), y + side * halfDepth);
        drawing.addLine("OUTLINE", x(side * halfWidth), y + radius - halfDepth, x(side * halfWidth),
                        y + halfDepth - radius);
        const double turn = side < 0 ? 90 : 0;
        drawing.addArc("OUTLINE", x(side * (halfWidth - radius)), y + halfDepth - radius, radius,
                       turn, turn + 90);
        drawing.addArc("OUTLINE", x(side * (halfWidth - radius)), y + radius - halfDepth, radius,
                       270 - turn, 360 - turn);
        drawing.addLine("OUTLINE", x(side * shaftRadius), y - 25, x(side * shaftRadius), y - 40);
        drawing.addLine("OUTLINE", x(side * shaftRadius), y + 25, x(side * shaftRadius), y + 40);
    }
    addBox(drawing, "OUTLINE", {x(-housingRadius), y - 25}, 2 * housingRadius, 50);
    drawing.addCircle("BOLTS", middle.x, y, 4);
    drawing.addCircle("BOLTS", middle.x, y, 2.5);
    for (const double bolt : bolts) {
        drawing.addInsert("BOLTS", "BOLT-FROM-ABOVE", bolt, y, 1, 15);
        drawing.addLine("CENTER-LINES", bolt, y - 16, bolt, y + 16);
    }
    drawing.addLine("CENTER-LINES", x(-90), y, x(90), y);
    drawing.addLine("CENTER-LINES", middle.x, y - 46, middle.x, y + 46);
}

/// A level or plumb dimension line with its arrows and its text, and lines to the edges measured.
void addDimension(Drawing& drawing, Point from, Point to, Point toEdge, const std::string& text)
{
    const double angle = std::atan2(to.y - from.y, to.x - from.x);
    const double degrees = angle * 180 / pi;
    drawing.addLine("DIMENSIONS", from.x, from.y, to.x, to.y);
    drawing.addInsert("DIMENSIONS", "ARROW", from.x, from.y, 1, degrees);
    drawing.addInsert("DIMENSIONS", "ARROW", to.x, to.y, 1, degrees + 180);
    for (const Point end : {from, to})
        drawing.addLine("DIMENSIONS", end.x, end.y, end.x + toEdge.x, end.y + toEdge.y);
    const Point above = polar({(from.x + to.x) / 2, (from.y + to.y) / 2}, 1.5, angle + pi / 2);
    drawing.addText("DIMENSIONS", above.x, above.y, 4.5, degrees, text);
}

void addDimensions(Drawing& drawing)
{
    addDimension(drawing, {bolts[0], 20}, {bolts[1], 20}, {0, 24}, "124");
    addDimension(drawing, {40, 10}, {200, 10}, {0, 24}, "160");
    addDimension(drawing, {22, baseBottom}, {22, middle.y}, {38, 0}, "60");
    addDimension(drawing, {222, 32}, {222, 92}, {-20, 0}, "60");
    addDimension(drawing, {250, 98}, {320, 98}, {0, 15}, "70");
    addDimension(drawing, {348, middle.y - shaftRadius}, {348, middle.y + shaftRadius}, {-12, 0},
                 "%%c32");
    addDimension(drawing, {366, middle.y - seatRadius}, {366, middle.y + seatRadius}, {-54, 0},
                 "%%c68 H7");
    // The radius of the housing, along a line of its own.
    const Point onArc = polar(middle, housingRadius, pi / 4);
    const Point outside = polar(middle, housingRadius + 22, pi / 4);
    drawing.addLine("DIMENSIONS", onArc.x, onArc.y, outside.x, outside.y);
    drawing.addLine("DIMENSIONS", outside.x, outside.y, outside.x + 16, outside.y);
    drawing.addInsert("DIMENSIONS", "ARROW", onArc.x, onArc.y, 1, 45);
    drawing.addText("DIMENSIONS", outside.x + 9, outside.y + 1.5, 4.5, 0, "R45");
}

void addFrame(Drawing& drawing)
{
    constexpr Point title{245, 0};
    addBox(drawing, "FRAME", {-5, -5}, 400, 265);
    addBox(drawing, "FRAME", {0, 0}, 390, 255);
    addBox(drawing, "FRAME", title, 145, 60);
    for (const double y : {14.0, 28.0, 42.0})
        drawing.addLine("FRAME", title.x, y, title.x + 145, y);
    drawing.addLine("FRAME", title.x + 95, 0, title.x + 95, 28);
    drawing.addText("FRAME", title.x + 72, 47, 6, 0, "BEARING HOUSING");
    drawing.addText("FRAME", title.x + 72, 33, 4, 0, "EN-GJL-200, all edges broken 0.5");
    drawing.addText("FRAME", title.x + 47, 19, 4, 0, "Dimensions in mm");
    drawing.addText("FRAME", title.x + 120, 19, 4, 0, "1 : 1");
    drawing.addText("FRAME", title.x + 47, 5, 4, 0, "Bore tolerance %%p0.015");
    drawing.addText("FRAME", title.x + 120, 5, 4, 0, "Sheet 1");
}

} // namespace

Drawing bearingHousing()
{
    Drawing drawing(layers(), 3.0);
    addBlocks(drawing);
    addFrame(drawing);
    addHousing(drawing);
    addBearing(drawing);
    addSection(drawing);
    addViewFromAbove(drawing);
    addDimensions(drawing);
    return drawing;
}

} // namespace samples
