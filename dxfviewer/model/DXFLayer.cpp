// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/DXFLayer.h"

#include "dxfviewer/model/DXFAttributes.h"

#include <QColor>

#include <utility>

DXFLayer::DXFLayer(const QString& name, QFlags<DXFLayer::Flag> flags)
    : m_name(name)
    , m_flags(flags)
{
}

DXFLayer::~DXFLayer() = default;

QColor DXFLayer::getColor() const
{
    return QColor();
}

void DXFLayer::setAttributes(QSharedPointer<DXFAttributes> attributes)
{
    m_attributes = std::move(attributes);
}

QString DXFLayer::toString() const
{
    const uint flags = static_cast<uint>(static_cast<int>(m_flags));
    return QStringLiteral("[LAYER name: %1, flags: %2]").arg(m_name, QString::number(flags, 16));
}
