// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <string>
#include <string_view>

class IReadingSteps;

namespace dxfviewer
{

/**
 * The text of a drawing, changed so that dxflib survives it and reads what it says.
 *
 * - A line ends at its first zero byte, and is cut at the length that dxflib can take, but not
 *   inside a UTF-8 sequence.
 * - A blank number becomes 0.
 * - A count is lowered to the number of items in its record. It is added where dxflib would use the
 *   count of an earlier record.
 * - A comment that dxflib cannot read is removed.
 *
 * Everything else stays, in its order. The result is sound (see TextCheck) and at most three times
 * as long. A text that was sound changes only at its end: a value without line feed gets one, a
 * code without value gets an empty one, and a code without line feed, which dxflib does not read,
 * is removed.
 *
 * @param steps  asked now and then whether to go on; may be null
 */
std::string repaired(std::string_view text, IReadingSteps* steps = nullptr);

} // namespace dxfviewer
