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

    // Two thousand million ids later the counter starts again: overflowing it is not an option.
    cnt = cnt == std::numeric_limits<qint32>::max() ? 1 : cnt + 1;
    m_id = cnt;
    return m_id;
}
