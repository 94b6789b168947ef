// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/TextShapes.h"

#include "dxfviewer/flatten/Chains.h"
#include "dxfviewer/flatten/Curves.h"
#include "dxfviewer/flatten/Fineness.h"
#include "dxfviewer/flatten/Placement.h"
#include "dxfviewer/flatten/Record.h"
#include "dxfviewer/flatten/TextContent.h"
#include "dxfviewer/flatten/TextOutlines.h"
#include "dxfviewer/io/WorkMeter.h"

#include <algorithm>
#include <string_view>

namespace
{

using namespace dxfviewer;

// Nobody can read steeper letters, and they would become endlessly wide.
constexpr double steepestOblique = 85.0;

// From one line of a paragraph to the next, in heights of capitals.
constexpr double lineSpacing = 5.0 / 3.0;

enum Horizontal { Left, Center, Right, Aligned, Middle, Fit };
enum Vertical { Baseline, Bottom, MiddleHeight, Top };

/// A slant to the right.
Placement slanted(double radians)
{
    Placement placement;
    placement.yAxis.x = std::tan(radians);
    return placement;
}

/// Where a single line of text begins, relative to its anchor, in heights of capitals.
Point3 startOf(int horizontal, int vertical, double width, double depth)
{
    Point3 start;
    if (horizontal == Center || horizontal == Middle)
        start.x = -width / 2.0;
    else if (horizontal == Right)
        start.x = -width;
    if (horizontal == Middle || vertical == MiddleHeight)
        start.y = -0.5;
    else if (vertical == Bottom)
        start.y = depth;
    else if (vertical == Top)
        start.y = -1.0;
    return start;
}

struct LinePlace {
    Point3 anchor;
    double angle;
    /// Along the line and across it.
    double width;
    double height;
    int horizontal;
    int vertical;
};

LinePlace placeOf(const Record& record, double textWidth)
{
    const int verticalCode = record.name() == "ATTRIB" ? 74 : 73;
    LinePlace place{record.point(10),  radians(record.number(50)), record.number(41, 1.0),
                    record.number(40), record.integer(72),         record.integer(verticalCode)};
    place.width *= place.height;
    if (place.horizontal == Left && place.vertical == Baseline)
        return place;
    const Point3 other = record.point(11, place.anchor);
    if (place.horizontal != Aligned && place.horizontal != Fit) {
        place.anchor = other;
        return place;
    }
    // Between two points. Aligned letters keep their proportion.
    const Point3 line = other - place.anchor;
    const double size = std::hypot(line.x, line.y);
    if (size > 0.0 && textWidth > 0.0) {
        const double former = place.width;
        place.angle = std::atan2(line.y, line.x);
        place.width = size / textWidth;
        if (place.horizontal == Aligned && former != 0.0)
            place.height *= place.width / former;
    }
    place.horizontal = Left;
    place.vertical = Baseline;
    return place;
}

bool appendLineOfText(Chains& chains, const Record& record, const Fineness& fineness,
                      const TextOutlines& outlines)
{
    constexpr int backwards = 2;
    constexpr int upsideDown = 4;
    const QString text = lineOfText(record);
    const double textWidth = outlines.widthOf(text);
    const LinePlace place = placeOf(record, textWidth);
    if (!(place.height > 0.0) || !std::isfinite(place.height))
        return false;

    const int generation = record.integer(71);
    const Point3 size{(generation & backwards) != 0 ? -place.width : place.width,
                      (generation & upsideDown) != 0 ? -place.height : place.height, 1.0};
    const double oblique = std::clamp(record.number(51), -steepestOblique, steepestOblique);
    const Placement placement =
        extruded(record.point(210, up)) * moved(place.anchor) * turned(place.angle)
        * slanted(radians(oblique)) * scaled(size)
        * moved(startOf(place.horizontal, place.vertical, textWidth, outlines.depth()));
    outlines.append(chains, text, placement, fineness);
    return true;
}

/// The lines of paragraphs, broken at blanks where they are longer than a width. 0 means no limit.
QStringList brokenLines(const QStringList& paragraphs, double width, const TextOutlines& outlines,
                        WorkMeter& meter)
{
    if (!(width > 0.0))
        return paragraphs;
    const double blank = outlines.widthOf(QStringLiteral(" "));
    QStringList lines;
    for (const QString& paragraph : paragraphs) {
        QString line;
        double used = 0.0;
        const auto words = paragraph.split(QLatin1Char(' '));
        for (const QString& word : words) {
            meter.add(1 + static_cast<std::size_t>(word.size()));
            const double size = outlines.widthOf(word);
            if (!line.isEmpty() && used + blank + size > width) {
                lines.append(line);
                line.clear();
                used = 0.0;
            }
            if (!line.isEmpty()) {
                line += QLatin1Char(' ');
                used += blank;
            }
            line += word;
            used += size;
        }
        lines.append(line);
    }
    return lines;
}

/// The direction may be given by a vector or an angle. The later of the two counts.
bool endsWithVector(const Record& record)
{
    bool isVector = false;
    for (const Record::Group group : record) {
        if (group.code == 11 || group.code == 21 || group.code == 50)
            isVector = group.code != 50;
    }
    return isVector;
}

/// The axes of paragraphs. An angle turns them in the entity's own plane; a vector is given in the
/// drawing's coordinates already.
Placement axesOf(const Record& record)
{
    const Point3 extrusion = record.point(210, up);
    const Point3 x = normalized(record.point(11), {});
    if (!endsWithVector(record))
        return extruded(extrusion) * turned(radians(record.number(50)));
    if (x == Point3{})
        return extruded(extrusion);
    const Point3 z = normalized(extrusion, up);
    return {x, cross(z, x), z, {}};
}

bool appendParagraphs(Chains& chains, const Record& record, const Fineness& fineness,
                      const TextOutlines& outlines)
{
    const double height = record.number(40);
    if (!(height > 0.0) || !std::isfinite(height))
        return false;
    const QStringList lines = brokenLines(linesOfParagraphs(record, fineness.meter),
                                          record.number(41) / height, outlines, fineness.meter);

    // Nine places of the anchor, row by row from the top left.
    constexpr int places = 9;
    constexpr int columns = 3;
    const int attachment = std::clamp(record.integer(71, 1), 1, places) - 1;
    const int column = attachment % columns;
    const int row = attachment / columns;
    const double spacing = lineSpacing * record.number(44, 1.0);
    const double below = static_cast<double>(lines.size() - 1) * spacing;
    double y = -1.0 + row * (below + 1.0) / 2.0;

    const Placement placement =
        moved(record.point(10)) * axesOf(record) * scaled({height, height, 1.0});
    for (const QString& line : lines) {
        const double x = -outlines.widthOf(line) * column / 2.0;
        outlines.append(chains, line, placement * moved({x, y, 0.0}), fineness);
        y -= spacing;
    }
    return true;
}

} // namespace

namespace dxfviewer
{

bool isText(const Record& record)
{
    const std::string_view name = record.name();
    return name == "TEXT" || name == "ATTRIB" || name == "MTEXT";
}

bool appendText(Chains& chains, const Record& record, const Fineness& fineness,
                const TextOutlines& outlines)
{
    return record.name() == "MTEXT" ? appendParagraphs(chains, record, fineness, outlines)
                                    : appendLineOfText(chains, record, fineness, outlines);
}

} // namespace dxfviewer
