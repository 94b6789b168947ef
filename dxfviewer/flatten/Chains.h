// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/flatten/Point3.h"

#include <cstddef>
#include <vector>

namespace dxfviewer
{

/// Chains of straight segments, one behind the other. Each has at least two points.
class Chains
{
public:
    /// How much the list holds at one moment, to go back to it.
    struct Mark {
        std::size_t points;
        std::size_t chains;
    };

    std::size_t size() const { return m_ends.size(); }
    const Points& points() const { return m_points; }
    /// Where a chain's points begin and end among all points.
    std::size_t begin(std::size_t chain) const { return chain == 0 ? 0 : m_ends[chain - 1]; }
    std::size_t end(std::size_t chain) const { return m_ends[chain]; }

    /// The points of the chain that is being made go to the end of this list.
    Points& open() { return m_points; }
    /// Ends the chain that is being made. What has fewer than two points is dropped.
    void close();

    Mark mark() const { return {m_points.size(), m_ends.size()}; }
    void goBackTo(const Mark& mark);
    bool isFiniteSince(const Mark& mark) const;

private:
    Points m_points;
    std::vector<std::size_t> m_ends;
};

} // namespace dxfviewer
