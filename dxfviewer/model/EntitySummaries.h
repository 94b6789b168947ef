// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/model/Changes.h"
#include "dxfviewer/model/PolylineStates.h"
#include "dxfviewer/model/PolylineSummary.h"

#include <QList>
#include <QSharedPointer>

#include <memory>
#include <vector>

class DXFEntity;

namespace dxfviewer
{

/**
 * What walks over a document ask of its entities, side by side in memory.
 *
 * Entities lie scattered, and to read a little of each takes longer than all else that a walk does.
 * Summaries are copies. They hold as long as nothing in the process changes but what is taken in
 * here.
 */
class EntitySummaries
{
public:
    using EntityList = QList<QSharedPointer<DXFEntity>>;

    /// Neighbours in the document: either plain polylines, or entities of which nothing is known.
    struct Block {
        static constexpr int mostEntities = 512;

        bool isPlain() const { return !polylines.empty(); }

        int count = 0;
        /// One for each entity, or none if nothing is known of them.
        std::vector<PolylineSummary> polylines;
        /// What the last snapshot has taken, if the polylines are still in these states. Only
        /// snapshots own states.
        std::weak_ptr<const PolylineStates> states;
    };

    explicit EntitySummaries(const EntityList& entities);

    bool areCurrent() const { return Changes::isNow(m_moment); }

    /// The blocks in the document's order.
    std::vector<Block>& blocks() { return m_blocks; }

    /// Takes in what the caller, and nobody else, has done to one polyline of a block.
    void takeIn(Block& block, int place, const DXFPolyline& polyline);

    /// Takes in what a deletion, and nobody else, has done: it has changed the entities at some
    /// places, removed those at others, and added some. The places are in order, and are those of
    /// the list before the deletion.
    void takeInDeletion(const EntityList& former, const std::vector<int>& changed,
                        const std::vector<int>& removed, const EntityList& added);

private:
    void append(const DXFPolyline* polyline);
    Block& blockFor(bool isPlain);
    void refresh(const EntityList& entities, const std::vector<int>& places);
    void remove(const std::vector<int>& places);

    std::vector<Block> m_blocks;
    Changes::Moment m_moment;
};

} // namespace dxfviewer
