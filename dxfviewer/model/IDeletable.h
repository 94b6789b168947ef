// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

#include <QtGlobal>

namespace dxfviewer
{
class PolylineAccess;
}

/**
 * What every selectable thing of a drawing has: an id and two interaction flags.
 *
 * Entities and segments take their ids from one counter, so a list of ids may mix both kinds.
 * The counter is process-wide. Copying an object copies its id and its flags. GUI thread only.
 */
class DXFVIEWER_EXPORT IDeletable
{
public:
    IDeletable() = default;
    IDeletable(const IDeletable&) = default;
    IDeletable& operator=(const IDeletable& other);
    virtual ~IDeletable() = default;

    /// The object's id, at least 1. The first call assigns the counter's next value.
    int id() const { return m_id == unassigned ? assignId() : m_id; }

    /// Replaces the id by the counter's next value and returns it.
    int regenerateID();

    bool isSelected() const { return m_selected; }
    void setSelected(bool selected) { setFlag(m_selected, selected); }

    bool isHovered() const { return m_hovered; }
    void setHovered(bool hovered) { setFlag(m_hovered, hovered); }

private:
    friend class dxfviewer::PolylineAccess;

    static constexpr qint32 unassigned = -1;

    int assignId() const;
    static void noteChange();

    static void setFlag(bool& flag, bool value)
    {
        if (flag == value)
            return;
        flag = value;
        noteChange();
    }

    bool m_selected = false;
    bool m_hovered = false;
    mutable qint32 m_id = unassigned;
};
