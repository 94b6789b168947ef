// SPDX-License-Identifier: GPL-2.0-or-later

#include "Drawing.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <utility>

namespace samples
{

namespace
{

constexpr int firstHandle = 0x20;
constexpr int closedFlag = 1;
constexpr int centeredFlag = 1;

struct LineType {
    const char* name;
    const char* description;
    /// Lengths of dashes and, negative, of gaps, to be scaled.
    std::vector<double> dashes;
};

const std::array<LineType, 4>& lineTypes()
{
    static const std::array<LineType, 4> types = {{
        {"CONTINUOUS", "Solid line", {}},
        {"DASHED", "Dashed __ __ __ __", {2.0, -1.0}},
        {"HIDDEN", "Hidden _ _ _ _ _ _", {1.0, -0.5}},
        {"CENTER", "Center ____ _ ____ _", {5.0, -1.0, 1.0, -1.0}},
    }};
    return types;
}

/// A number with at most three decimals, the same on every machine.
std::string number(double value)
{
    std::array<char, 64> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), "%.3f", value);
    std::string text(buffer.data(), static_cast<std::size_t>(length));
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
    return text == "-0" ? "0" : text;
}

std::string group(int code, const std::string& value)
{
    return std::to_string(code) + '\n' + value + '\n';
}

std::string group(int code, int value)
{
    return group(code, std::to_string(value));
}

std::string group(int code, double value)
{
    return group(code, number(value));
}

/// A point, whose x has this code.
std::string place(int code, double x, double y)
{
    return group(code, x) + group(code + 10, y);
}

std::string lineTypeRecord(const LineType& type, double scale)
{
    double length = 0.0;
    std::string dashes;
    for (const double dash : type.dashes) {
        length += std::abs(dash * scale);
        dashes += group(49, dash * scale);
    }
    return group(0, "LTYPE") + group(2, type.name) + group(70, 0) + group(3, type.description)
           + group(72, 'A') + group(73, static_cast<int>(type.dashes.size())) + group(40, length)
           + dashes;
}

std::string layerRecord(const Layer& layer)
{
    return group(0, "LAYER") + group(2, layer.name) + group(70, 0) + group(62, layer.color)
           + group(420, layer.trueColor) + group(6, layer.lineType);
}

template <typename Records, typename Format>
std::string table(const char* name, const Records& records, Format format)
{
    std::string text =
        group(0, "TABLE") + group(2, name) + group(70, static_cast<int>(records.size()));
    for (const auto& record : records)
        text += format(record);
    return text + group(0, "ENDTAB");
}

std::string section(const char* name, const std::string& content)
{
    return group(0, "SECTION") + group(2, name) + content + group(0, "ENDSEC");
}

std::string hexadecimal(int value)
{
    std::array<char, 16> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%X", static_cast<unsigned>(value));
    return buffer.data();
}

} // namespace

Drawing::Drawing(std::vector<Layer> layers, double dashScale)
    : m_layers(std::move(layers))
    , m_dashScale(dashScale)
    , m_lastHandle(firstHandle)
{
}

void Drawing::add(const std::string& layer, const Path& path)
{
    begin("LWPOLYLINE", layer, "AcDbPolyline");
    write(group(90, static_cast<int>(path.vertices.size()))
          + group(70, path.isClosed ? closedFlag : 0));
    for (const Vertex& vertex : path.vertices) {
        write(place(10, vertex.x, vertex.y));
        if (vertex.bulge != 0.0)
            write(group(42, vertex.bulge));
    }
}

void Drawing::add(const std::string& layer, const std::vector<Path>& paths)
{
    for (const Path& path : paths)
        add(layer, path);
}

void Drawing::addLine(const std::string& layer, double x1, double y1, double x2, double y2)
{
    begin("LINE", layer, "AcDbLine");
    write(place(10, x1, y1) + place(11, x2, y2));
}

void Drawing::addCircle(const std::string& layer, double x, double y, double radius)
{
    begin("CIRCLE", layer, "AcDbCircle");
    write(place(10, x, y) + group(40, radius));
}

void Drawing::addArc(const std::string& layer, double x, double y, double radius, double from,
                     double to)
{
    begin("ARC", layer, "AcDbCircle");
    write(place(10, x, y) + group(40, radius) + group(100, "AcDbArc") + group(50, from)
          + group(51, to));
}

void Drawing::addText(const std::string& layer, double x, double y, double height, double angle,
                      const std::string& text)
{
    begin("TEXT", layer, "AcDbText");
    write(place(10, x, y) + group(40, height) + group(1, text) + group(50, angle)
          + group(72, centeredFlag) + place(11, x, y) + group(100, "AcDbText"));
}

void Drawing::addInsert(const std::string& layer, const std::string& block, double x, double y,
                        double scale, double angle)
{
    begin("INSERT", layer, "AcDbBlockReference");
    write(group(2, block) + place(10, x, y) + group(41, scale) + group(42, scale) + group(43, scale)
          + group(50, angle));
}

void Drawing::beginBlock(const std::string& name)
{
    m_isInBlock = true;
    begin("BLOCK", "0", "AcDbBlockBegin");
    write(group(2, name) + group(70, 0) + place(10, 0, 0) + group(3, name));
}

void Drawing::endBlock()
{
    begin("ENDBLK", "0", "AcDbBlockEnd");
    m_isInBlock = false;
}

void Drawing::begin(const std::string& type, const std::string& layer, const std::string& subclass)
{
    write(group(0, type) + group(5, hexadecimal(++m_lastHandle)) + group(100, "AcDbEntity")
          + group(8, layer) + group(100, subclass));
}

void Drawing::write(const std::string& groups)
{
    (m_isInBlock ? m_blocks : m_entities) += groups;
}

std::string Drawing::text() const
{
    const auto scaledLineType = [this](const LineType& type) {
        return lineTypeRecord(type, m_dashScale);
    };
    return section("HEADER", group(9, "$ACADVER") + group(1, "AC1018"))
           + section("TABLES", table("LTYPE", lineTypes(), scaledLineType)
                                   + table("LAYER", m_layers, layerRecord))
           + (m_blocks.empty() ? "" : section("BLOCKS", m_blocks)) + section("ENTITIES", m_entities)
           + group(0, "EOF");
}

} // namespace samples
