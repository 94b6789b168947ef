// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/Snapshot.h"

#include "dxfviewer/model/EntityWalk.h"

#include <algorithm>
#include <cstdlib>
#include <typeinfo>
#include <utility>

namespace dxfviewer
{

namespace
{

using Match = PolylineState::Match;

/// The entity if it is a polyline and not of a subclass; else null.
DXFPolyline* asPlainPolyline(DXFEntity* entity)
{
    return entity && typeid(*entity) == typeid(DXFPolyline) ? static_cast<DXFPolyline*>(entity)
                                                            : nullptr;
}

} // namespace

Snapshot::Snapshot() = default;
Snapshot::~Snapshot() = default;

void Snapshot::begin(int count)
{
    m_entries.clear();
    m_otherClones.clear();
    m_hasHostsClones = false;
    m_entries.reserve(static_cast<std::size_t>(count));
}

void Snapshot::add(const QSharedPointer<DXFEntity>& entity)
{
    if (auto* polyline = asPlainPolyline(entity.data()))
        m_entries.push_back(entryOf(*polyline));
    else
        m_entries.push_back(entryOf(entity));
}

void Snapshot::announce(const QSharedPointer<DXFEntity>& entity)
{
    if (const auto* polyline = asPlainPolyline(entity.data()))
        prefetch(PolylineAccess::state(*polyline));
}

Snapshot::Entry Snapshot::entryOf(DXFPolyline& polyline)
{
    // The clone takes its id first, as if it were made now.
    const int cloneId = IDeletable().id();
    PolylineState::Pointer state(PolylineAccess::state(polyline));
    const Match match = state ? state->match(polyline) : Match::Different;
    if (match == Match::Different)
        state = new PolylineState(polyline);
    const bool areSegmentsGivenAgain = match == Match::SegmentsGivenAgain;
    return {std::move(state), polyline.id(), areSegmentsGivenAgain ? -cloneId : cloneId};
}

/// A null entry has no id. It gets a negative key of its own, since no id is negative.
Snapshot::Entry Snapshot::entryOf(const QSharedPointer<DXFEntity>& entity)
{
    const int place = static_cast<int>(m_otherClones.size());
    m_hasHostsClones = m_hasHostsClones || entity;
    m_otherClones.emplace_back(entity ? entity->clone() : nullptr);
    return {{}, entity ? entity->id() : -1 - place, place};
}

/// Of entries with the same key the last one counts.
void Snapshot::end()
{
    const auto isBefore = [](const Entry& a, const Entry& b) {
        return a.key < b.key;
    };
    const auto isSame = [](const Entry& a, const Entry& b) {
        return a.key == b.key;
    };
    if (!std::is_sorted(m_entries.begin(), m_entries.end(), isBefore))
        std::stable_sort(m_entries.begin(), m_entries.end(), isBefore);
    const auto firstKept = std::unique(m_entries.rbegin(), m_entries.rend(), isSame).base();
    m_entries.erase(m_entries.begin(), firstKept);
}

QSharedPointer<DXFEntity> Snapshot::cloneOf(const Entry& entry) const
{
    if (!entry.state)
        return m_otherClones[static_cast<std::size_t>(entry.idOrPlace)];
    return entry.state->clone(std::abs(entry.idOrPlace), entry.idOrPlace < 0);
}

void Snapshot::restore(EntityList& entities)
{
    // All clones are made before anything changes: memory may run short meanwhile.
    std::vector<QSharedPointer<DXFEntity>> clones;
    clones.reserve(m_entries.size());
    for (const Entry& entry : m_entries)
        clones.push_back(cloneOf(entry));

    // Entities are destroyed when the list is complete: the destructor of a host's own entity may
    // look at it.
    EntityList surplus;
    while (entities.size() > static_cast<int>(clones.size()))
        surplus.append(entities.takeLast());
    auto clone = clones.begin();
    for (auto& entity : entities)
        (clone++)->swap(entity);
    for (; clone != clones.end(); ++clone)
        entities.append(*clone);
    m_entries = {};
    m_otherClones = {};
}

} // namespace dxfviewer
