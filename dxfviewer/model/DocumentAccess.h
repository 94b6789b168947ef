// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/EntitySummaries.h"

#include <memory>

namespace dxfviewer
{

/// What the library may do with a document that hosts may not.
class DocumentAccess
{
public:
    using EntityList = EntitySummaries::EntityList;
    using Summaries = std::shared_ptr<EntitySummaries>;

    DocumentAccess() = delete;

    /// The summaries of the document's entities, current at the moment of the call. Whoever holds
    /// them can go on with them when the document has got new ones.
    static Summaries summaries(const DXFDocument& document)
    {
        if (!document.m_summaries || !document.m_summaries->areCurrent())
            document.m_summaries = std::make_shared<EntitySummaries>(document.m_entities);
        return document.m_summaries;
    }

    /// The list itself, for a change of the whole list: one entity at a time would take quadratic
    /// time. The summaries are not those of the changed list.
    static EntityList& entities(DXFDocument& document)
    {
        document.m_summaries.reset();
        return document.m_entities;
    }

    /// For summaries that have taken in a change of the list.
    static void setSummaries(DXFDocument& document, Summaries summaries)
    {
        document.m_summaries = std::move(summaries);
    }
};

} // namespace dxfviewer
