// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

#include <QFlags>
#include <QSharedPointer>
#include <QString>

class DXFAttributes;
class QColor;

/// A record of the LAYER table: a name, state flags, and the attributes of what lies on it.
class DXFVIEWER_EXPORT DXFLayer
{
public:
    /// Bits of group 70. Other bits are kept and written back, but have no name here; the value 2
    /// in particular (frozen in new viewports) does not mean locked.
    enum Flag { Frozen = 1, Locked = 4 };
    Q_DECLARE_FLAGS(Flags, Flag)

    /// The new layer has no attributes.
    DXFLayer(const QString& name, QFlags<DXFLayer::Flag> flags);
    ~DXFLayer();

    QString name() const { return m_name; }
    QFlags<DXFLayer::Flag> flags() const { return m_flags; }
    bool isFrozen() const { return m_flags.testFlag(Frozen); }
    bool isLocked() const { return m_flags.testFlag(Locked); }

    /// Always invalid: a layer has no colour of its own. DXFPaintHelper resolves the colour in its
    /// attributes.
    QColor getColor() const;

    /// Colour, line weight and line type of what is by-layer; may be null.
    QSharedPointer<DXFAttributes> attributes() const { return m_attributes; }
    void setAttributes(QSharedPointer<DXFAttributes> attributes);

    /// One line for the log.
    QString toString() const;

private:
    QString m_name;
    QFlags<DXFLayer::Flag> m_flags;
    QSharedPointer<DXFAttributes> m_attributes;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(DXFLayer::Flags)
