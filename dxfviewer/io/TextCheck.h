// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/io/RecordCounts.h"

#include <cstddef>
#include <string_view>

namespace dxfviewer
{

/**
 * Tells whether dxflib survives a drawing's text and reads what it says.
 *
 * The text may come in pieces. What was found does not go away with more text.
 */
class TextCheck
{
public:
    /// Looks at the start of what is left of the text, and returns how much it has looked at. What
    /// is not looked at must come again, with more text.
    std::size_t add(std::string_view piece);
    /// Looks at what add() has left of the last piece.
    void addEnd(std::string_view rest);

    bool isSound() const { return m_sound; }

private:
    bool addGroup(std::string_view codeLine, std::string_view valueLine);
    bool addToRecord(int code, std::string_view value);
    bool isRecordSound();
    void beginRecord(std::string_view kind);

    RecordCounts m_counts;
    std::size_t m_longestLine = 0;
    bool m_sound = true;
};

/// Whether a text is sound as a whole.
bool isSound(std::string_view text);

} // namespace dxfviewer
