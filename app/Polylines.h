// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <dxfviewer/model/DXFPolyline.h>

#include <QSharedPointer>

/// The entity as a polyline; null if it is null or another kind.
inline const DXFPolyline* asPolyline(const QSharedPointer<DXFEntity>& entity)
{
    constexpr int polylineType = 0;
    return entity && entity->type() == polylineType ? static_cast<const DXFPolyline*>(entity.data())
                                                    : nullptr;
}
