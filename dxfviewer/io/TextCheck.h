// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <string_view>

namespace dxfviewer
{

/// Whether dxflib survives a drawing's text and reads what it says.
bool isSound(std::string_view text);

} // namespace dxfviewer
