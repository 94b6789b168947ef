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

/// A DXF drawing in the making: layers, and polylines on them.
class Drawing
{
public:
    /// The dash scale is the length in drawing units of the shortest dash of a dashed line.
    Drawing(std::vector<Layer> layers, double dashScale);

    /// Draws with the colour and the line type of the layer.
    void add(const std::string& layer, const Path& path);
    void add(const std::string& layer, const std::vector<Path>& paths);

    /// The drawing as the text of a DXF file.
    std::string text() const;

private:
    std::vector<Layer> m_layers;
    double m_dashScale;
    std::string m_entities;
    int m_lastHandle;
};

} // namespace samples
