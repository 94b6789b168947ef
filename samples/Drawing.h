// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <string>
#include <vector>

namespace samples
{

/// A corner of a path, with the bulge of the edge that leaves it: the tangent of a quarter of the
/// arc's angle, 0 for a straight edge.
struct Vertex {
    double x = 0.0;
    double y = 0.0;
    double bulge = 0.0;
};

/// The corners of a polyline, and whether an edge leads from the last to the first.
struct Path {
    std::vector<Vertex> vertices;
    bool isClosed = false;
};

struct Layer {
    std::string name;
    /// The colour number, for programs that know no other colours.
    int color = 7;
    /// The colour as 0xRRGGBB.
    int trueColor = 0xC0C0C0;
    std::string lineType = "CONTINUOUS";
};

/// Builds a DXF drawing: layers, and entities on them. Angles are in degrees, counter-clockwise.
class Drawing
{
public:
    /// The dash scale is the length of the shortest dash of a dashed line, in drawing units.
    Drawing(std::vector<Layer> layers, double dashScale);

    /// Draws with the colour and the line type of the layer.
    void add(const std::string& layer, const Path& path);
    void add(const std::string& layer, const std::vector<Path>& paths);

    void addLine(const std::string& layer, double x1, double y1, double x2, double y2);
    void addCircle(const std::string& layer, double x, double y, double radius);
    void addArc(const std::string& layer, double x, double y, double radius, double from,
                double to);
    /// The place is the middle of the text's base line.
    void addText(const std::string& layer, double x, double y, double height, double angle,
                 const std::string& text);
    void addInsert(const std::string& layer, const std::string& block, double x, double y,
                   double scale, double angle);

    /// The block is what is added between these two calls, around the origin.
    void beginBlock(const std::string& name);
    void endBlock();

    /// The drawing as the text of a DXF file.
    std::string text() const;

private:
    /// The groups that every entity begins with.
    void begin(const std::string& type, const std::string& layer, const std::string& subclass);
    /// Continues the entity that was begun last.
    void write(const std::string& groups);

    std::vector<Layer> m_layers;
    double m_dashScale;
    std::string m_entities;
    std::string m_blocks;
    bool m_isInBlock = false;
    int m_lastHandle;
};

} // namespace samples
