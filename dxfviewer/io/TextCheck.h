// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <string_view>

class IReadingSteps;

namespace dxfviewer
{

/// Whether dxflib survives a drawing's text and reads what it says.
///
/// @param steps  asked now and then whether to go on; may be null
bool isSound(std::string_view text, IReadingSteps* steps = nullptr);

} // namespace dxfviewer
