// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/edit/DXFEditor.h"

#include <QPointer>

namespace dxftest
{

/// An overlay keeps its tool to itself. A host that makes the parts of a window itself can connect
/// to the tool's signal; here the window's own tool is reached for the same.
ISelectionTool* toolOf(const DXFEditor& overlay);

} // namespace dxftest
