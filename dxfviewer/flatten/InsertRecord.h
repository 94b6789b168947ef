// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

namespace dxfviewer
{

class Record;
struct BlockInsert;

/// Whether an entity of this kind shows a block.
bool insertsBlock(const Record& record);

/// Where such an entity shows its block. The caller sets which block that is.
BlockInsert insertOf(const Record& record);

} // namespace dxfviewer
