// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

class QString;

namespace dxfviewer
{

/// dxflib's texts are UTF-8.
QString decoded(const std::string& text);
std::string encoded(const QString& text);

/**
 * How much of a text to keep so that it is at most as long as said.
 *
 * The cut is never inside a UTF-8 sequence. In a text that is not UTF-8 it may be anywhere.
 */
std::size_t utf8Prefix(std::string_view text, std::size_t longest);

} // namespace dxfviewer
