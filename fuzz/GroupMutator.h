// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace dxffuzz
{

/// A group of a drawing: the line with its code and the line with its value.
struct Group {
    std::string code;
    std::string value;
};

using Groups = std::vector<Group>;

Groups groupsOf(std::string_view text);
std::string textOf(const Groups& groups);

/**
 * Changes a drawing in ways that are hard for readers: a group or a record is lost, repeated or
 * misplaced, a count is wrong, a number is extreme, a line is too long.
 *
 * Mutations of single bytes find little: they only break the pairs of lines that groups are made
 * of.
 */
class GroupMutator
{
public:
    explicit GroupMutator(unsigned seed);

    void mutate(Groups& groups);
    /// The beginning of one drawing and the end of another.
    Groups cross(const Groups& head, const Groups& tail);

private:
    struct Range {
        std::size_t begin;
        std::size_t end;
    };

    std::size_t below(std::size_t limit);
    template <typename List>
    auto pick(const List& list);
    std::size_t place(const Groups& groups);
    Range someGroups(const Groups& groups);
    Range someRecord(const Groups& groups);
    std::string hostileValue();

    void eraseGroups(Groups& groups);
    void eraseRecord(Groups& groups);
    void repeatGroups(Groups& groups);
    void repeatRecord(Groups& groups);
    void moveRecord(Groups& groups);
    void swapGroups(Groups& groups);
    void insertGroup(Groups& groups);
    void insertRecord(Groups& groups);
    void changeCode(Groups& groups);
    void changeValue(Groups& groups);
    void changeCount(Groups& groups);
    void lengthenLine(Groups& groups);
    void insertByte(Groups& groups);
    void endLinesInCrLf(Groups& groups);

    std::mt19937 m_random;
};

} // namespace dxffuzz
