// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QList>
#include <QSharedPointer>

class DXFEntity;

namespace dxfviewer
{

/// Asks the processor to fetch memory that will be read soon.
inline void prefetch(const void* address)
{
    // Entities may be null.
    if (!address)
        return;
#ifdef __GNUC__
    __builtin_prefetch(address);
    __builtin_prefetch(static_cast<const char*>(address) + 64);
#else
    Q_UNUSED(address)
#endif
}

/**
 * Visits some entries of a list of entities in order, until a visit returns false.
 *
 * Entities lie scattered in memory. In a large drawing a walk would wait for each of them, so it
 * asks for the next ones ahead of time.
 *
 * @param count     how many entries to visit
 * @param placeOf   returns the place in the list of the entry that is visited as the nth
 * @param approach  called with an entity eight visits before the entity is visited
 */
template <typename PlaceOf, typename Visit, typename Approach>
void visitEntities(const QList<QSharedPointer<DXFEntity>>& entities, int count, PlaceOf placeOf,
                   Visit visit, Approach approach)
{
    constexpr int approached = 8;
    constexpr int asked = 16;
    constexpr int located = 32;
    const auto isInRange = [count](int n) {
        return n >= 0 && n < count;
    };
    const auto begin = entities.cbegin();
    for (int n = -located; n < count; ++n) {
        if (isInRange(n + located))
            prefetch(&*(begin + placeOf(n + located)));
        if (isInRange(n + asked))
            prefetch((begin + placeOf(n + asked))->data());
        if (isInRange(n + approached))
            approach(*(begin + placeOf(n + approached)));
        if (n >= 0 && !visit(*(begin + placeOf(n))))
            return;
    }
}

template <typename PlaceOf, typename Visit>
void visitEntities(const QList<QSharedPointer<DXFEntity>>& entities, int count, PlaceOf placeOf,
                   Visit visit)
{
    visitEntities(entities, count, placeOf, visit, [](const QSharedPointer<DXFEntity>&) {});
}

} // namespace dxfviewer
