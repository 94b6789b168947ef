// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/DXFEntity.h"

#include "dxfviewer/model/Changes.h"
#include "dxfviewer/model/DXFAttributes.h"

#include <utility>

using dxfviewer::Changes;

DXFEntity::DXFEntity() = default;
DXFEntity::DXFEntity(const DXFEntity&) = default;
DXFEntity& DXFEntity::operator=(const DXFEntity&) = default;
DXFEntity::~DXFEntity() = default;

void DXFEntity::setColor(QColor color)
{
    m_color = color;
    Changes::note();
}

void DXFEntity::setLineWidth(int lineWidth)
{
    m_lineWidth = lineWidth;
    Changes::note();
}

void DXFEntity::setAttributes(QSharedPointer<DXFAttributes> attributes)
{
    m_attributes = std::move(attributes);
    Changes::note();
}
