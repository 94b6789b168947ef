// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QByteArray>

#include <random>
#include <string>
#include <vector>

namespace dxftest
{

/// A code and its value.
struct Group {
    int code;
    std::string value;
};

/// The groups as the text of a file.
std::string textOf(const std::vector<Group>& groups);

/// The groups within an ENTITIES section, with the end of the file.
std::string drawingOf(const std::vector<Group>& entities);
QByteArray bytesOf(const std::vector<Group>& entities);

/// The groups of a text whose lines come in pairs.
std::vector<Group> groupsOf(const std::string& text);

/// Makes sound drawings, with records of every kind that has counts and of others.
class DrawingGenerator
{
public:
    explicit DrawingGenerator(unsigned seed)
        : m_random(seed)
    {
    }

    std::vector<Group> makeDrawing(int records);

    /// Changes a few groups into what a broken or hostile file may hold.
    void damage(std::vector<Group>& groups);

    int number(int first, int last);

private:
    void addRecord(std::vector<Group>& groups);
    void addPoints(std::vector<Group>& groups, int count, int firstCode);
    std::string real();

    std::mt19937 m_random;
};

} // namespace dxftest
