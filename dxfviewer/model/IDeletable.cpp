// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/IDeletable.h"

#include "dxfviewer/model/Changes.h"

#include <limits>

IDeletable& IDeletable::operator=(const IDeletable& other)
{
    m_selected = other.m_selected;
    m_hovered = other.m_hovered;
    m_id = other.m_id;
    noteChange();
    return *this;
}

int IDeletable::regenerateID()
{
    m_id = unassigned;
    noteChange();
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

/// A first id needs no note: what has none yet is looked at in every walk.
void IDeletable::noteChange()
{
    dxfviewer::Changes::note();
}
