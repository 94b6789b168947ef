// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/model/PolylineState.h"

#include <QList>
#include <QSharedPointer>

#include <vector>

namespace dxfviewer
{

/**
 * Clones of all entities of a document, in the order of the ids of their originals.
 *
 * Each clone gets its id, the next of the counter, at the moment of the snapshot. But the clones of
 * plain polylines are made only when they are needed. Until then the snapshot holds a state, which
 * the snapshots of several commands share as long as the polyline does not change.
 */
class Snapshot
{
public:
    using EntityList = QList<QSharedPointer<DXFEntity>>;

    Snapshot();
    ~Snapshot();

    /// Forgets what was taken before and makes room for so many entities.
    void begin(int count);
    /// Takes the next entity, in the document's order.
    void add(const QSharedPointer<DXFEntity>& entity);
    /// Says that an entity is about to be added.
    static void announce(const QSharedPointer<DXFEntity>& entity);
    void end();

    /// Whether hosts' own code has made some of the clones. It may have changed the document too.
    bool hasHostsClones() const { return m_hasHostsClones; }

    /// Puts the clones into the list, in place of all that is there. The snapshot is empty then.
    void restore(EntityList& entities);

private:
    Q_DISABLE_COPY(Snapshot)

    /// A plain polyline has a state. The clone of any other entity stands among the other clones.
    struct Entry {
        PolylineState::Pointer state;
        int key;
        // The clone's id, negative if it gets its segments given again. Without a state, the
        // place of the clone among the others.
        int idOrPlace;
    };

    static Entry entryOf(DXFPolyline& polyline);
    Entry entryOf(const QSharedPointer<DXFEntity>& entity);
    QSharedPointer<DXFEntity> cloneOf(const Entry& entry) const;

    std::vector<Entry> m_entries;
    std::vector<QSharedPointer<DXFEntity>> m_otherClones;
    bool m_hasHostsClones = false;
};

} // namespace dxfviewer
