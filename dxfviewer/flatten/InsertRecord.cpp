// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/InsertRecord.h"

#include "dxfviewer/flatten/Block.h"
#include "dxfviewer/flatten/Curves.h"
#include "dxfviewer/flatten/Record.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace
{

using namespace dxfviewer;

BlockInsert plainInsert(const Record& record)
{
    const Placement turn = extruded(record.point(210, up)) * moved(record.point(10))
                           * turned(radians(record.number(50)));
    BlockInsert insert;
    insert.placement =
        turn * scaled({record.number(41, 1.0), record.number(42, 1.0), record.number(43, 1.0)});
    // The scale applies to the block, not to the steps.
    insert.columnStep = turn.mapVector({record.number(44), 0.0, 0.0});
    insert.rowStep = turn.mapVector({0.0, record.number(45), 0.0});
    insert.columns = std::max(1, record.integer(70, 1));
    insert.rows = std::max(1, record.integer(71, 1));
    return insert;
}

BlockInsert dimensionInsert(const Record& record)
{
    BlockInsert insert;
    insert.placesBase = false;
    insert.placement.origin = extruded(record.point(210, up)).map(record.point(12));
    return insert;
}

/// A table tells its direction by a vector.
BlockInsert tableInsert(const Record& record)
{
    const Point3 z = normalized(record.point(210, up), up);
    const Point3 x = normalized(record.point(11), {1.0, 0.0, 0.0});
    BlockInsert insert;
    insert.placement = {x, cross(z, x), z, record.point(10)};
    return insert;
}

struct InsertKind {
    std::string_view name;
    BlockInsert (*insertOf)(const Record&);
};

constexpr std::array insertKinds{
    InsertKind{"INSERT", plainInsert},
    InsertKind{"DIMENSION", dimensionInsert},
    InsertKind{"ARC_DIMENSION", dimensionInsert},
    InsertKind{"LARGE_RADIAL_DIMENSION", dimensionInsert},
    InsertKind{"ACAD_TABLE", tableInsert},
};

const InsertKind* kindOf(const Record& record)
{
    const auto kind = std::find_if(
        insertKinds.begin(), insertKinds.end(),
        [&record](const InsertKind& candidate) { return candidate.name == record.name(); });
    return kind == insertKinds.end() ? nullptr : &*kind;
}

} // namespace

namespace dxfviewer
{

bool insertsBlock(const Record& record)
{
    return kindOf(record) != nullptr;
}

BlockInsert insertOf(const Record& record)
{
    const InsertKind* kind = kindOf(record);
    return kind ? kind->insertOf(record) : BlockInsert();
}

} // namespace dxfviewer
