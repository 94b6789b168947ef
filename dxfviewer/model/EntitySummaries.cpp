// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/EntitySummaries.h"

#include "dxfviewer/model/EntityVisits.h"
#include "dxfviewer/model/Polylines.h"

#include <algorithm>

namespace dxfviewer
{

namespace
{

/// Goes through the blocks with places that are in order.
class BlockSearch
{
public:
    explicit BlockSearch(std::vector<EntitySummaries::Block>& blocks)
        : m_block(blocks.begin())
    {
    }

    /// The block that holds a place. The next place must not lie in an earlier block.
    EntitySummaries::Block& at(int place)
    {
        while (place >= m_first + m_block->count)
            m_first += (m_block++)->count;
        return *m_block;
    }

    /// The first place of the block that was found.
    int first() const { return m_first; }

private:
    std::vector<EntitySummaries::Block>::iterator m_block;
    int m_first = 0;
};

} // namespace

EntitySummaries::EntitySummaries(const EntityList& entities)
    : m_moment(Changes::now())
{
    const auto placeOf = [](int n) {
        return n;
    };
    const auto add = [this](const QSharedPointer<DXFEntity>& entity) {
        append(asPlainPolyline(entity.data()));
        return true;
    };
    visitEntities(entities, static_cast<int>(entities.size()), placeOf, add);
}

void EntitySummaries::append(const DXFPolyline* polyline)
{
    Block& block = blockFor(polyline != nullptr);
    ++block.count;
    block.states.reset();
    if (polyline)
        block.polylines.emplace_back(*polyline);
}

/// The last block if it takes one more entity, else a new one.
EntitySummaries::Block& EntitySummaries::blockFor(bool isPlain)
{
    if (m_blocks.empty() || m_blocks.back().isPlain() != isPlain
        || m_blocks.back().count >= Block::mostEntities)
        m_blocks.emplace_back();
    return m_blocks.back();
}

void EntitySummaries::takeIn(Block& block, int place, const DXFPolyline& polyline)
{
    block.polylines[static_cast<std::size_t>(place)] = PolylineSummary(polyline);
    // Even if nothing has changed now: the polyline may be listed twice.
    block.states.reset();
    m_moment = Changes::now();
}

void EntitySummaries::takeInDeletion(const EntityList& former, const std::vector<int>& changed,
                                     const std::vector<int>& removed, const EntityList& added)
{
    refresh(former, changed);
    remove(removed);
    for (const auto& entity : added)
        append(asPlainPolyline(entity.data()));
    m_moment = Changes::now();
}

void EntitySummaries::refresh(const EntityList& entities, const std::vector<int>& places)
{
    BlockSearch search(m_blocks);
    for (const int place : places) {
        Block& block = search.at(place);
        block.states.reset();
        if (const DXFPolyline* polyline = asPlainPolyline(entities.at(place).data()))
            block.polylines[static_cast<std::size_t>(place - search.first())] =
                PolylineSummary(*polyline);
    }
}

void EntitySummaries::remove(const std::vector<int>& places)
{
    struct Found {
        Block* block;
        int place;
    };
    std::vector<Found> found;
    BlockSearch search(m_blocks);
    for (const int place : places) {
        Block& block = search.at(place);
        found.push_back({&block, place - search.first()});
    }
    // From the end: what stands before a removed entity keeps its place.
    std::for_each(found.crbegin(), found.crend(), [](const Found& one) {
        auto& polylines = one.block->polylines;
        if (one.block->isPlain())
            polylines.erase(polylines.begin() + one.place);
        --one.block->count;
    });
    const auto isEmpty = [](const Block& block) {
        return block.count == 0;
    };
    m_blocks.erase(std::remove_if(m_blocks.begin(), m_blocks.end(), isEmpty), m_blocks.end());
}

} // namespace dxfviewer
