// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/model/DocumentAccess.h"
#include "dxfviewer/model/EntityVisits.h"
#include "dxfviewer/model/Polylines.h"

#include <algorithm>
#include <array>

namespace dxfviewer
{

/**
 * One walk over all entities of a document, in order.
 *
 * It visits those of which their summary says that they may be concerned, and all of which nothing
 * is known. Code of a host that a visit calls may change whatever it likes. From then on every
 * entity is visited.
 */
class EntityWalk
{
public:
    using Entity = QSharedPointer<DXFEntity>;

    explicit EntityWalk(const DXFDocument& document)
        : m_entities(document.entities())
        , m_summaries(DocumentAccess::summaries(document))
    {
    }

    /// For visits that change nothing themselves.
    template <typename IsConcerned, typename Visit>
    void look(IsConcerned isConcerned, Visit visit)
    {
        walk(isConcerned, visit, [](Block&, int, const Entity&) {});
    }

    /// For visits that may change the entity that they visit.
    template <typename IsConcerned, typename Visit>
    void change(IsConcerned isConcerned, Visit visit)
    {
        walk(isConcerned, visit, [this](Block& block, int place, const Entity& entity) {
            if (block.isPlain())
                m_summaries->takeIn(block, place, *asPlainPolyline(entity.data()));
        });
    }

private:
    using Block = EntitySummaries::Block;

    template <typename IsConcerned, typename Visit, typename Note>
    void walk(IsConcerned isConcerned, Visit visit, Note note)
    {
        int first = 0;
        for (Block& block : m_summaries->blocks()) {
            const int next = visitBlock(block, first, isConcerned, visit, note);
            if (!m_summaries->areCurrent()) {
                std::for_each(m_entities.cbegin() + next, m_entities.cend(), visit);
                return;
            }
            first = next;
        }
    }

    /// Visits the entities of a block that are concerned, and returns where to go on: behind the
    /// block or, if the summaries are out of date, behind the last visited entity.
    template <typename IsConcerned, typename Visit, typename Note>
    int visitBlock(Block& block, int first, IsConcerned isConcerned, Visit visit, Note note)
    {
        std::array<int, Block::mostEntities> concerned;
        int count = 0;
        for (int i = 0; i < block.count; ++i) {
            if (!block.isPlain() || isConcerned(block.polylines[static_cast<std::size_t>(i)]))
                concerned[static_cast<std::size_t>(count++)] = i;
        }
        const auto placeOf = [&](int n) {
            return first + concerned[static_cast<std::size_t>(n)];
        };
        int visited = 0;
        const auto visitOne = [&](const Entity& entity) {
            visit(entity);
            note(block, placeOf(visited) - first, entity);
            ++visited;
            return m_summaries->areCurrent();
        };
        visitEntities(m_entities, count, placeOf, visitOne);
        if (m_summaries->areCurrent())
            return first + block.count;
        return visited == 0 ? first : placeOf(visited - 1) + 1;
    }

    // Copies: a visit may change the document.
    QList<Entity> m_entities;
    DocumentAccess::Summaries m_summaries;
};

} // namespace dxfviewer
