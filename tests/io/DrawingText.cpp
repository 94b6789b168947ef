// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/io/DrawingText.h"

#include <array>
#include <sstream>

namespace dxftest
{

std::string textOf(const std::vector<Group>& groups)
{
    std::string text;
    for (const Group& group : groups)
        text += ' ' + std::to_string(group.code) + '\n' + group.value + '\n';
    return text;
}

std::string drawingOf(const std::vector<Group>& entities)
{
    return textOf({{0, "SECTION"}, {2, "ENTITIES"}}) + textOf(entities)
           + textOf({{0, "ENDSEC"}, {0, "EOF"}});
}

QByteArray bytesOf(const std::vector<Group>& entities)
{
    return QByteArray::fromStdString(drawingOf(entities));
}

std::vector<Group> groupsOf(const std::string& text)
{
    std::vector<Group> groups;
    std::istringstream lines(text);
    std::string code;
    std::string value;
    while (std::getline(lines, code) && std::getline(lines, value))
        groups.push_back({std::stoi(code), value});
    return groups;
}

int DrawingGenerator::number(int first, int last)
{
    return std::uniform_int_distribution<int>(first, last)(m_random);
}

std::string DrawingGenerator::real()
{
    return std::to_string(number(-100000, 100000)) + "." + std::to_string(number(0, 999));
}

void DrawingGenerator::addPoints(std::vector<Group>& groups, int count, int firstCode)
{
    for (int i = 0; i < count; ++i) {
        groups.push_back({firstCode, real()});
        groups.push_back({firstCode + 10, real()});
        if (number(0, 1) == 0)
            groups.push_back({firstCode + 20, real()});
    }
}

void DrawingGenerator::addRecord(std::vector<Group>& groups)
{
    const int points = number(0, 6);
    switch (number(0, 11)) {
    case 0:
        groups.push_back({0, "LWPOLYLINE"});
        groups.push_back({8, "walls"});
        groups.push_back({90, std::to_string(points)});
        groups.push_back({70, std::to_string(number(0, 1))});
        addPoints(groups, points, 10);
        break;
    case 1:
        groups.push_back({0, "POLYLINE"});
        groups.push_back({70, "1"});
        for (int i = 0; i < points; ++i) {
            groups.push_back({0, "VERTEX"});
            addPoints(groups, 1, 10);
        }
        groups.push_back({0, "SEQEND"});
        break;
    case 2:
        groups.push_back({0, "SPLINE"});
        groups.push_back({72, std::to_string(points)});
        groups.push_back({73, std::to_string(points)});
        groups.push_back({74, "1"});
        for (int i = 0; i < points; ++i)
            groups.push_back({40, real()});
        addPoints(groups, points, 10);
        addPoints(groups, 1, 11);
        break;
    case 3:
        groups.push_back({0, "LEADER"});
        groups.push_back({76, std::to_string(points)});
        addPoints(groups, points, 10);
        break;
    case 4:
        groups.push_back({0, "HATCH"});
        groups.push_back({91, "1"});
        groups.push_back({92, "2"});
        groups.push_back({72, "0"});
        groups.push_back({93, std::to_string(points)});
        addPoints(groups, points, 10);
        break;
    case 5:
        groups.push_back({0, "HATCH"});
        groups.push_back({92, "1"});
        groups.push_back({93, "1"});
        groups.push_back({72, "1"});
        addPoints(groups, 1, 10);
        addPoints(groups, 1, 11);
        break;
    case 6:
        groups.push_back({0, "LINE"});
        addPoints(groups, 1, 10);
        addPoints(groups, 1, 11);
        break;
    case 7:
        groups.push_back({0, "TEXT"});
        groups.push_back({1, "some text"});
        groups.push_back({1001, "APP"});
        groups.push_back({1040, real()});
        break;
    case 8:
        groups.push_back({0, "LAYER"});
        groups.push_back({2, "layer " + std::to_string(number(0, 50))});
        groups.push_back({70, std::to_string(number(0, 7))});
        groups.push_back({62, std::to_string(number(1, 255))});
        break;
    case 9:
        groups.push_back({0, "LTYPE"});
        groups.push_back({2, "type " + std::to_string(number(0, 50))});
        groups.push_back({73, "2"});
        groups.push_back({40, real()});
        groups.push_back({49, real()});
        groups.push_back({49, real()});
        break;
    case 10:
        groups.push_back({9, "$SETTING"});
        groups.push_back({40, real()});
        break;
    default:
        groups.push_back({999, "a comment"});
        groups.push_back({0, "IMAGE"});
        groups.push_back({340, "1F"});
        break;
    }
}

std::vector<Group> DrawingGenerator::makeDrawing(int records)
{
    std::vector<Group> groups{{0, "SECTION"}, {2, "ENTITIES"}};
    for (int i = 0; i < records; ++i)
        addRecord(groups);
    groups.push_back({0, "ENDSEC"});
    groups.push_back({0, "EOF"});
    return groups;
}

void DrawingGenerator::damage(std::vector<Group>& groups)
{
    static constexpr std::array codes{0,  9,  10, 11, 20, 40, 41,  42,   72,   73,
                                      74, 76, 90, 92, 93, 49, 999, 1040, 1100, -5};
    static const std::array<std::string, 18> values{
        "-2147483648", "2147483647", "1073741825",
        "100000000",   "-1",         "0",
        "3",           "",           "  ",
        "\r",          "dxflib",     "LWPOLYLINE",
        "SPLINE",      "LEADER",     "HATCH",
        "VERTEX",      "4294967298", std::string("1\0002", 3)};
    for (int changes = number(1, 12); changes > 0; --changes) {
        const auto at = groups.begin() + number(0, static_cast<int>(groups.size()) - 1);
        const int code = codes[static_cast<std::size_t>(number(0, codes.size() - 1))];
        const std::string& value =
            values[static_cast<std::size_t>(number(0, static_cast<int>(values.size()) - 1))];
        switch (number(0, 6)) {
        case 0:
            groups.erase(at);
            if (groups.empty())
                groups.push_back({0, "EOF"});
            break;
        case 1:
            at->code = code;
            break;
        case 2:
            at->value = value;
            break;
        case 3:
            groups.insert(at, {code, value});
            break;
        case 4:
            groups.insert(at, Group(*at));
            break;
        case 5:
            at->value = std::string(static_cast<std::size_t>(number(1015, 1035)), 'x');
            break;
        default:
            // Codes and values change places from here on.
            at->value += '\n';
            break;
        }
    }
}

} // namespace dxftest
