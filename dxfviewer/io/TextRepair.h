// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>

class IReadingSteps;

namespace dxfviewer
{

/**
 * The text of a drawing, changed so that dxflib survives it and reads what it says. Nothing if the
 * text is sound: if it is like that already.
 *
 * - A line ends at its first zero byte, and is cut at the length that dxflib can take, but not
 *   inside a UTF-8 sequence.
 * - A blank number becomes 0.
 * - A count is lowered to the number of items in its record. It is added where dxflib would use the
 *   count of an earlier record.
 * - A comment that dxflib cannot read is removed.
 * - At the end, a value without line feed gets one, a code without value gets an empty one, and a
 *   code without line feed, which dxflib does not read, is removed. A sound text may end like that.
 *
 * Everything else stays, in its order. The result is sound, and at most three times as long as the
 * text.
 *
 * @param steps  asked now and then whether to go on; may be null
 */
std::optional<std::string> repaired(std::string_view text, IReadingSteps* steps = nullptr);

} // namespace dxfviewer
