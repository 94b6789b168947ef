// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/IDeletable.h"

#include <limits>

int IDeletable::regenerateID()
{
    m_id = unassigned;
    return id();
}

int IDeletable::assignId() const
{
    static qint32 cnt = 0;

    // After two thousand million ids the counter starts again: a signed overflow would be
    // undefined.
    cnt = cnt == std::numeric_limits<qint32>::max() ? 1 : cnt + 1;
    m_id = cnt;
    return m_id;
}
