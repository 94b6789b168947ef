// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/model/EntitySummaries.h"
#include "dxfviewer/model/PolylineStates.h"

#include <QList>
#include <QSharedPointer>

#include <memory>
#include <vector>

namespace dxfviewer
{

/**
 * Clones of all entities of a document, in the order of the ids of their originals.
 *
 * Each clone gets its id, the next of the counter, at the moment of the snapshot. But the clones of
 * plain polylines are made only when they are needed. Until then the snapshot holds their states,
 * which the snapshots of several commands share as long as the polylines do not change.
 */
class Snapshot
{
public:
    using EntityList = QList<QSharedPointer<DXFEntity>>;

    Snapshot();
    ~Snapshot();

    /// Takes all entities of a list, whose summaries are current, and forgets what was taken
    /// before.
    void take(const EntityList& entities, EntitySummaries& summaries);

    /// Whether hosts' own code has made some of the clones. It may have changed the document too.
    bool hasHostsClones() const { return m_hasHostsClones; }

    /// Puts the clones into the list, in place of all that is there. The snapshot is empty then.
    void restore(EntityList& entities);

private:
    Q_DISABLE_COPY(Snapshot)

    using Block = EntitySummaries::Block;

    /// Either neighbouring plain polylines, or one other entity.
    struct Part {
        std::shared_ptr<const PolylineStates> states;
        /// The id of the first clone.
        int firstCloneId;
        QSharedPointer<DXFEntity> otherClone;
        int otherId;
    };

    /// A clone to be made, and the id of its original.
    struct Place {
        int id;
        const Part* part;
        std::size_t index;
    };

    void addPlain(const EntityList& entities, int first, Block& block);
    void addOther(const QSharedPointer<DXFEntity>& entity);
    std::vector<Place> placesInOrder() const;
    static QSharedPointer<DXFEntity> cloneOf(const Place& place);

    std::vector<Part> m_parts;
    int m_nullEntities = 0;
    bool m_hasHostsClones = false;
};

} // namespace dxfviewer
