// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/model/DXFPolyline.h"

#include <QSharedPointer>

#include <typeinfo>

namespace dxfviewer
{

/// What DXFEntity::type() returns for a polyline.
inline constexpr int polylineType = 0;
/// What it returns for an entity of unknown kind.
inline constexpr int unknownType = -1;

/// The entity as a polyline; null if it is null or another kind.
inline DXFPolyline* asPolyline(DXFEntity* entity)
{
    return entity && entity->type() == polylineType ? static_cast<DXFPolyline*>(entity) : nullptr;
}

/// The entity if it is a polyline and not of a subclass; else null. What a subclass holds and does
/// is its own.
inline const DXFPolyline* asPlainPolyline(const DXFEntity* entity)
{
    return entity && typeid(*entity) == typeid(DXFPolyline)
               ? static_cast<const DXFPolyline*>(entity)
               : nullptr;
}

inline DXFPolyline* asPlainPolyline(DXFEntity* entity)
{
    return const_cast<DXFPolyline*>(asPlainPolyline(static_cast<const DXFEntity*>(entity)));
}

inline DXFPolyline* asPolyline(const QSharedPointer<DXFEntity>& entity)
{
    return asPolyline(entity.data());
}

} // namespace dxfviewer
