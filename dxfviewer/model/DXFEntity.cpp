// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/DXFEntity.h"

#include "dxfviewer/model/DXFAttributes.h"

#include <utility>

DXFEntity::DXFEntity() = default;
DXFEntity::DXFEntity(const DXFEntity&) = default;
DXFEntity& DXFEntity::operator=(const DXFEntity&) = default;
DXFEntity::~DXFEntity() = default;

void DXFEntity::setAttributes(QSharedPointer<DXFAttributes> attributes)
{
    m_attributes = std::move(attributes);
}
