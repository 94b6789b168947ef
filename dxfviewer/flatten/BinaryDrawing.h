// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace dxfviewer
{

/// Whether these are the bytes of a drawing in the binary form of the format.
bool isBinaryDrawing(std::string_view bytes);

/// The same drawing as text. It ends before the first group that cannot be read.
std::string textOfBinary(std::string_view bytes);

} // namespace dxfviewer
