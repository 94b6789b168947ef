// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <cstddef>
#include <vector>

namespace dxfviewer
{

class Drawing;
class WorkMeter;

/// How much each block of a drawing makes, computed before any block is inserted.
class BlockWeights
{
public:
    /// Cuts the inserts by which a block would contain itself.
    BlockWeights(Drawing& drawing, long long most, WorkMeter& meter);

    /// The number of vertices and inserted blocks that one instance of a block makes, or the most
    /// if it makes more. 0 if it shows nothing, however often it is inserted.
    long long of(std::size_t block) const { return m_weights[block]; }
    /// Whether an insert of the drawing leads to the block, even if the block shows nothing.
    bool isReached(std::size_t block) const { return m_states[block] == State::Known; }

private:
    enum class State { New, Open, Known };
    /// A block on the way from the drawing down to the block that is looked at.
    struct Step {
        std::size_t block;
        std::size_t insert;
    };

    void follow(Drawing& drawing, WorkMeter& meter);
    long long weightOf(const Drawing& drawing, std::size_t block) const;

    long long m_most;
    std::vector<State> m_states;
    std::vector<long long> m_weights;
};

} // namespace dxfviewer
