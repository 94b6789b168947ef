// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <dxfviewer/model/DXFDocument.h>
#include <dxfviewer/model/DXFPolyline.h>

#include <QSharedPointer>

#include <algorithm>

/// The entity as a polyline; null if it is null or another kind.
inline const DXFPolyline* asPolyline(const QSharedPointer<DXFEntity>& entity)
{
    constexpr int polylineType = 0;
    return entity && entity->type() == polylineType ? static_cast<const DXFPolyline*>(entity.data())
                                                    : nullptr;
}

/// Whether there is anything to be seen of a drawing: a polyline of one vertex has no segments.
inline bool hasSegments(const DXFDocument& document)
{
    const auto entities = document.entities();
    return std::any_of(entities.cbegin(), entities.cend(), [](const auto& entity) {
        const DXFPolyline* polyline = asPolyline(entity);
        return polyline && !polyline->segments().isEmpty();
    });
}
