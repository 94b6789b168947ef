// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/model/DXFEntity.h"

namespace dxftest
{

/// An entity of a kind that the library does not know, such as a host may add.
class OtherEntity : public DXFEntity
{
public:
    explicit OtherEntity(int type = -1)
        : m_type(type)
    {
    }

    int type() override { return m_type; }
    QString toString() const override { return QStringLiteral("[OTHER]"); }
    void setup() override { ++m_setupCount; }
    OtherEntity* clone() override
    {
        auto* copy = new OtherEntity(*this);
        copy->regenerateID();
        return copy;
    }

    /// How often setup() was called.
    int setupCount() const { return m_setupCount; }

private:
    int m_type;
    int m_setupCount = 0;
};

} // namespace dxftest
