// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>

class IReadingSteps;

namespace dxfviewer
{

/**
 * The text of a drawing in UTF-8: from the binary form, from the drawing's code page, and with
 * escaped characters in place of "\U+20AC".
 *
 * Nothing if the bytes are that text already.
 *
 * @param steps  asked now and then whether to go on; may be null
 */
std::optional<std::string> utf8TextOf(std::string_view bytes, IReadingSteps* steps = nullptr);

} // namespace dxfviewer
