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
 * Visits all entries of a list of entities, null ones included, in order.
 *
 * Entities lie scattered in memory. In a large drawing a walk would wait for each of them, so it
 * asks for the next ones ahead of time. approach() is called with an entity eight visits before the
 * entity is visited. It is not called for the first eight.
 */
template <typename Visit, typename Approach>
void forEachEntity(const QList<QSharedPointer<DXFEntity>>& entities, Visit visit, Approach approach)
{
    constexpr int approached = 8;
    constexpr int asked = 16;
    constexpr int located = 32;
    const auto begin = entities.cbegin();
    const auto count = entities.size();
    using Index = decltype(entities.size());
    for (Index i = 0; i < count; ++i) {
        if (i + located < count)
            prefetch(&*(begin + (i + located)));
        if (i + asked < count)
            prefetch((begin + (i + asked))->data());
        if (i + approached < count)
            approach(*(begin + (i + approached)));
        visit(*(begin + i));
    }
}

template <typename Visit>
void forEachEntity(const QList<QSharedPointer<DXFEntity>>& entities, Visit visit)
{
    forEachEntity(entities, visit, [](const QSharedPointer<DXFEntity>&) {});
}

} // namespace dxfviewer
