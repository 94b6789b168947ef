// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <string>
#include <string_view>

class IReadingSteps;

namespace dxfviewer
{

/// Whether these are the bytes of a drawing in the binary form of the format.
bool isBinaryDrawing(std::string_view bytes);

/// The same drawing as text. It ends before the first group that cannot be read.
///
/// @param steps  asked now and then whether to go on; may be null
std::string textOfBinary(std::string_view bytes, IReadingSteps* steps = nullptr);

} // namespace dxfviewer
