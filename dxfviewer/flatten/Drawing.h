// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/flatten/Block.h"
#include "dxfviewer/flatten/Look.h"

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace dxfviewer
{

/// A drawing as it was gathered: its blocks are not inserted yet, since one may be defined after
/// its use.
class Drawing
{
public:
    /// What stands in the drawing itself, and not in a block.
    static constexpr std::size_t model = 0;

    Drawing();

    std::size_t blockCount() const { return m_blocks.size(); }
    Block& block(std::size_t id) { return m_blocks[id]; }
    const Block& block(std::size_t id) const { return m_blocks[id]; }
    /// The block of a name, whatever its case. It may never be defined.
    std::size_t blockId(std::string_view name);
    /// The block that a definition fills. A second definition of a name is kept apart and never
    /// inserted.
    std::size_t define(std::string_view name, const Point3& base);

    Looks& looks() { return m_looks; }
    const Looks& looks() const { return m_looks; }

    std::size_t kindId(const std::string& name);
    const std::string& kindName(std::size_t id) const { return m_kindNames[id]; }

private:
    std::deque<Block> m_blocks;
    std::unordered_map<std::string, std::size_t> m_blockIds;
    Looks m_looks;
    std::vector<std::string> m_kindNames;
    std::unordered_map<std::string, std::size_t> m_kindIds;
};

} // namespace dxfviewer
