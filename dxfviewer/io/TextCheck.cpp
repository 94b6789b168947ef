// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/TextCheck.h"

#include "dxfviewer/io/GroupScan.h"

#include <algorithm>

namespace dxfviewer
{

std::size_t TextCheck::add(std::string_view piece)
{
    m_sound = m_sound && piece.find('\0') == std::string_view::npos;
    if (!m_sound)
        return piece.size();

    return scanGroups(piece, [this](std::string_view codeLine, std::string_view valueLine) {
        m_sound = addGroup(codeLine, valueLine);
        return m_sound;
    });
}

void TextCheck::addEnd(std::string_view rest)
{
    if (!m_sound)
        return;

    const std::size_t codeLength = rest.find('\n');
    const std::string_view codeLine = rest.substr(0, codeLength);
    if (codeLength == std::string_view::npos) {
        // Without its line feed dxflib drops the line.
        m_longestLine = std::max(m_longestLine, codeLine.size());
    } else {
        const std::string_view valueLine = rest.substr(codeLength + 1);
        m_sound = addGroup(codeLine, valueLine);
    }

    m_sound = m_sound && m_longestLine <= longestLine
              && std::all_of(m_counts.begin(), m_counts.end(),
                             [](const AnnouncedCount& count) { return count.isSoundWithoutEnd(); });
}

inline bool TextCheck::addGroup(std::string_view codeLine, std::string_view valueLine)
{
    m_longestLine = std::max({m_longestLine, codeLine.size(), valueLine.size()});
    if (m_longestLine > longestLine)
        return false;

    const int code = toInt(codeLine);
    if (beginsRecord(code)) {
        if (!isRecordSound())
            return false;
        beginRecord(strippedValue(valueLine));
        return true;
    }
    if (isReal(code) && isBlank(valueLine))
        return false;
    if (isBareVersionComment(code, strippedValue(valueLine)))
        return false;
    return addToRecord(code, valueLine);
}

inline bool TextCheck::addToRecord(int code, std::string_view value)
{
    for (AnnouncedCount& count : m_counts) {
        if (code == count.itemCode()) {
            count.addItem();
        } else if (code == count.countCode()) {
            if (count.isAnnounced() && count.count() != 0)
                return false;
            count.announce(toInt(value));
        }
    }
    if (HatchLoops* loops = m_counts.hatchLoops())
        loops->addGroup(code, value);
    return true;
}

bool TextCheck::isRecordSound()
{
    if (const HatchLoops* loops = m_counts.hatchLoops(); loops && !loops->isSound())
        return false;
    return std::all_of(m_counts.begin(), m_counts.end(),
                       [](const AnnouncedCount& count) { return count.isSound(); });
}

void TextCheck::beginRecord(std::string_view kind)
{
    for (AnnouncedCount& count : m_counts)
        count.endRecord(count.count());
    m_counts.beginRecord(kind);
}

bool isSound(std::string_view text)
{
    TextCheck check;
    check.addEnd(text.substr(check.add(text)));
    return check.isSound();
}

} // namespace dxfviewer
