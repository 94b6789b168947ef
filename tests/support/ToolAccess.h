// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

class DXFEditor;
class ISelectionTool;

namespace dxftest
{

/// The tool of an overlay is private. A host that makes the parts of a window itself can connect to
/// the tool's signal. Tests of a whole window get the tool from here.
ISelectionTool* toolOf(const DXFEditor& overlay);

} // namespace dxftest
