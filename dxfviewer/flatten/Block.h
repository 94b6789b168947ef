// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/flatten/Chains.h"
#include "dxfviewer/flatten/Placement.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

namespace dxfviewer
{

/// A place, or an array of places, where a block is shown.
struct BlockInsert {
    std::size_t block = 0;
    Placement placement;
    /// From column to column and from row to row, in the coordinates that it is placed in.
    Point3 columnStep;
    Point3 rowStep;
    int columns = 1;
    int rows = 1;
    /// Whether the block's base point goes to the origin of the placement. The block of a dimension
    /// stands in place already.
    bool placesBase = true;
    /// Set where a block would contain itself.
    bool isCut = false;

    long long instances() const { return static_cast<long long>(columns) * rows; }
};

/// What a block definition or the drawing itself holds, flattened in its own coordinates.
struct Block {
    /// A chain or an insert, in the order of the drawing.
    struct Item {
        std::uint32_t look;
        std::uint32_t kind;
        /// Number of the insert. -1 for a chain: chains come in the order of the items and need no
        /// number.
        std::int32_t insert;
    };

    bool isDefined = false;
    /// Whether it holds what lies on a layout. Nothing inserts such a block.
    bool isLayout = false;
    Point3 base;
    Chains chains;
    std::vector<BlockInsert> inserts;
    std::vector<Item> items;
    /// Number of entities by their kind.
    std::map<std::size_t, int> shown;
    std::map<std::size_t, int> skipped;
    /// Number of entities that are left out: on a layout, and invisible.
    int elsewhere = 0;
    int invisible = 0;

    /// Number of entities of any kind that show something or could.
    int entityCount() const;
};

} // namespace dxfviewer
