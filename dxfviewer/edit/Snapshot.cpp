// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/Snapshot.h"

#include "dxfviewer/model/EntityVisits.h"
#include "dxfviewer/model/Polylines.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace dxfviewer
{

namespace
{

using Entity = QSharedPointer<DXFEntity>;
using Match = PolylineState::Match;

int takeId()
{
    return IDeletable().id();
}

/// The id that follows so many ids later. The greatest id is followed by 1.
int laterId(int id, unsigned offset)
{
    const auto left = static_cast<unsigned>(std::numeric_limits<int>::max() - id);
    return static_cast<int>(offset <= left ? static_cast<unsigned>(id) + offset : offset - left);
}

PolylineStates::One stateOf(DXFPolyline& polyline, quint16 cloneOffset)
{
    PolylineState::Pointer state(PolylineAccess::state(polyline));
    const Match match = state ? state->match(polyline) : Match::Different;
    if (match == Match::Different)
        state = new PolylineState(polyline);
    return {std::move(state), polyline.id(), cloneOffset, match == Match::SegmentsGivenAgain};
}

void approachState(const Entity& entity)
{
    if (const auto* polyline = asPlainPolyline(entity.data()))
        prefetch(PolylineAccess::state(*polyline));
}

/// Takes the states of neighbouring plain polylines and an id for the clone of each.
class StatesTaker
{
public:
    StatesTaker(const QList<Entity>& entities, int first, int count)
        : m_states(std::make_shared<PolylineStates>())
    {
        m_states->all.reserve(static_cast<std::size_t>(count));
        const auto placeOf = [first](int n) {
            return first + n;
        };
        const auto add = [this](const Entity& entity) {
            this->add(static_cast<DXFPolyline&>(*entity));
            return true;
        };
        visitEntities(entities, count, placeOf, add, approachState);
    }

    std::shared_ptr<const PolylineStates> states() const { return m_states; }
    int firstCloneId() const { return m_firstCloneId; }

    /// Whether the clones of a later snapshot will have the same offsets.
    bool canBeShared() const { return m_idsTaken == m_states->all.size(); }

private:
    void add(DXFPolyline& polyline)
    {
        // The clone takes its id first, as if it were made now.
        const int cloneId = takeId();
        if (m_states->all.empty())
            m_firstCloneId = cloneId;
        const quint16 cloneOffset = m_idsTaken++;
        // A polyline without an id takes one as well.
        if (!PolylineAccess::isAssigned(PolylineAccess::assignedId(polyline)))
            ++m_idsTaken;
        m_states->all.push_back(stateOf(polyline, cloneOffset));
    }

    std::shared_ptr<PolylineStates> m_states;
    int m_firstCloneId = 0;
    quint16 m_idsTaken = 0;
};

} // namespace

Snapshot::Snapshot() = default;
Snapshot::~Snapshot() = default;

void Snapshot::take(const EntityList& entities, EntitySummaries& summaries)
{
    m_parts.clear();
    m_nullEntities = 0;
    m_hasHostsClones = false;
    int first = 0;
    for (Block& block : summaries.blocks()) {
        if (block.isPlain())
            addPlain(entities, first, block);
        else
            std::for_each(entities.cbegin() + first, entities.cbegin() + first + block.count,
                          [this](const Entity& entity) { addOther(entity); });
        first += block.count;
    }
}

/// Adds the polylines of a block. If nothing has changed them, their states are known. A host's
/// clone() may change them, but then the block is not used again.
void Snapshot::addPlain(const EntityList& entities, int first, Block& block)
{
    if (auto states = block.states.lock()) {
        const int firstCloneId = takeId();
        for (int taken = 1; taken < block.count; ++taken)
            takeId();
        m_parts.push_back({std::move(states), firstCloneId, {}, 0});
        return;
    }
    const StatesTaker taker(entities, first, block.count);
    m_parts.push_back({taker.states(), taker.firstCloneId(), {}, 0});
    if (taker.canBeShared())
        block.states = taker.states();
}

/// A null entry has no id. It gets a negative one of its own, since no id is negative.
void Snapshot::addOther(const QSharedPointer<DXFEntity>& entity)
{
    m_hasHostsClones = m_hasHostsClones || entity;
    Entity clone(entity ? entity->clone() : nullptr);
    const int id = entity ? entity->id() : -++m_nullEntities;
    m_parts.push_back({{}, 0, std::move(clone), id});
}

/// Of entities with the same id the last one counts.
std::vector<Snapshot::Place> Snapshot::placesInOrder() const
{
    std::vector<Place> places;
    for (const Part& part : m_parts) {
        if (!part.states)
            places.push_back({part.otherId, &part, 0});
        for (std::size_t i = 0; part.states && i < part.states->all.size(); ++i)
            places.push_back({part.states->all[i].id, &part, i});
    }
    const auto isBefore = [](const Place& a, const Place& b) {
        return a.id < b.id;
    };
    const auto isSame = [](const Place& a, const Place& b) {
        return a.id == b.id;
    };
    if (!std::is_sorted(places.begin(), places.end(), isBefore))
        std::stable_sort(places.begin(), places.end(), isBefore);
    const auto firstKept = std::unique(places.rbegin(), places.rend(), isSame).base();
    places.erase(places.begin(), firstKept);
    return places;
}

QSharedPointer<DXFEntity> Snapshot::cloneOf(const Place& place)
{
    const Part& part = *place.part;
    if (!part.states)
        return part.otherClone;
    const PolylineStates::One& one = part.states->all[place.index];
    const bool isShared = part.states.use_count() > 1 || one.state->ref.loadRelaxed() > 1;
    return one.state->clone(laterId(part.firstCloneId, one.cloneOffset), one.areSegmentsGivenAgain,
                            isShared);
}

void Snapshot::restore(EntityList& entities)
{
    // All clones are made before anything changes: memory may run short meanwhile.
    std::vector<QSharedPointer<DXFEntity>> clones;
    const std::vector<Place> places = placesInOrder();
    clones.reserve(places.size());
    for (const Place& place : places)
        clones.push_back(cloneOf(place));

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
    m_parts = {};
}

} // namespace dxfviewer
