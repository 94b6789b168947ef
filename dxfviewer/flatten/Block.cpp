// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/Block.h"

namespace dxfviewer
{

int Block::entityCount() const
{
    int count = elsewhere + invisible + static_cast<int>(inserts.size());
    for (const auto& [kind, number] : shown)
        count += number;
    for (const auto& [kind, number] : skipped)
        count += number;
    return count;
}

} // namespace dxfviewer
