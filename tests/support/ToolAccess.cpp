// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/support/ToolAccess.h"

#include "dxfviewer/edit/DXFEditor.h"
#include "dxfviewer/edit/ISelectionTool.h"

#include <QPointer>

namespace dxftest
{

namespace
{

using ToolMember = QPointer<ISelectionTool> DXFEditor::*;

ToolMember toolMember();

// C++ does not check access to the names in an explicit instantiation.
template <ToolMember member>
struct Access {
    friend ToolMember toolMember() { return member; }
};

template struct Access<&DXFEditor::m_tool>;

} // namespace

ISelectionTool* toolOf(const DXFEditor& overlay)
{
    return overlay.*toolMember();
}

} // namespace dxftest
