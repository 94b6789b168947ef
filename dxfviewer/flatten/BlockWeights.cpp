// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/BlockWeights.h"

#include "dxfviewer/flatten/Drawing.h"
#include "dxfviewer/io/WorkMeter.h"

#include <algorithm>

namespace dxfviewer
{

BlockWeights::BlockWeights(Drawing& drawing, long long most, WorkMeter& meter)
    : m_most(most)
    , m_states(drawing.blockCount(), State::New)
    , m_weights(drawing.blockCount())
{
    follow(drawing, meter);
}

/// Follows all inserts without recursion: blocks may be nested deeper than function calls can.
void BlockWeights::follow(Drawing& drawing, WorkMeter& meter)
{
    std::vector<Step> way{{Drawing::model, 0}};
    m_states[Drawing::model] = State::Open;
    while (!way.empty()) {
        meter.add();
        Step& step = way.back();
        Block& block = drawing.block(step.block);
        if (step.insert == block.inserts.size()) {
            m_weights[step.block] = weightOf(drawing, step.block);
            m_states[step.block] = State::Known;
            way.pop_back();
            continue;
        }
        BlockInsert& insert = block.inserts[step.insert++];
        insert.isCut = m_states[insert.block] == State::Open;
        if (m_states[insert.block] == State::New) {
            m_states[insert.block] = State::Open;
            way.push_back({insert.block, 0});
        }
    }
}

long long BlockWeights::weightOf(const Drawing& drawing, std::size_t block) const
{
    const Block& content = drawing.block(block);
    long long weight = std::min(m_most, static_cast<long long>(content.chains.points().size()));
    for (const BlockInsert& insert : content.inserts) {
        const long long inner = insert.isCut ? 0 : m_weights[insert.block];
        if (inner == 0)
            continue;
        const long long each = inner + 1;
        const long long room = m_most - weight;
        weight = insert.instances() > room / each ? m_most : weight + insert.instances() * each;
    }
    return weight;
}

} // namespace dxfviewer
