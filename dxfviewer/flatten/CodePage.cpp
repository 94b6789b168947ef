// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/CodePage.h"

#include "dxfviewer/flatten/Record.h"
#include "dxfviewer/io/WorkMeter.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>

#include <iconv.h>

namespace
{

constexpr const char* target = "UTF-8";
constexpr const char* usualCodePage = "CP1252";

/// Prefixes of code pages that have a number.
constexpr std::array<std::string_view, 3> numberedFamilies{"ANSI_", "DOS", "CP"};

bool isInvalid(iconv_t converter)
{
    // That is what iconv_open() returns for a failure.
    return reinterpret_cast<std::intptr_t>(converter) == -1;
}

/// A letter of a name in upper case; null if no name may have it. iconv() reads options after a
/// slash.
char letterOf(char c)
{
    if (c >= 'a' && c <= 'z')
        return static_cast<char>(c - 'a' + 'A');
    const bool isKnown = (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' || c == '_';
    return isKnown ? c : '\0';
}

/// Empty if it cannot be the name of a code page.
std::string nameForIconv(std::string_view name)
{
    std::string result;
    for (const char c : dxfviewer::trimmed(name)) {
        if (letterOf(c) == '\0')
            return {};
        result += letterOf(c);
    }
    for (const std::string_view family : numberedFamilies) {
        if (result.compare(0, family.size(), family) == 0)
            return "CP" + result.substr(family.size());
    }
    return result;
}

iconv_t openConverter(std::string_view name)
{
    const std::string known = nameForIconv(name);
    if (known.empty())
        return iconv_open(target, usualCodePage);
    iconv_t converter = iconv_open(target, known.c_str());
    return isInvalid(converter) ? iconv_open(target, usualCodePage) : converter;
}

/// Length of the sound sequence that a text begins with; 0 if it begins with none.
std::size_t soundSequence(std::string_view text)
{
    const auto byteAt = [text](std::size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
    };
    const unsigned lead = byteAt(0);
    if (lead < 0x80)
        return 1;
    const std::size_t length = lead >= 0xf0 ? 4 : lead >= 0xe0 ? 3 : 2;
    if (lead < 0xc2 || lead > 0xf4)
        return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if ((byteAt(i) & 0xc0) != 0x80)
            return 0;
    }
    // Longer than its character needs, one half of a pair, or beyond the last character.
    const unsigned second = byteAt(1);
    const bool isWrong = (lead == 0xe0 && second < 0xa0) || (lead == 0xed && second >= 0xa0)
                         || (lead == 0xf0 && second < 0x90) || (lead == 0xf4 && second >= 0x90);
    return isWrong ? 0 : length;
}

} // namespace

namespace dxfviewer
{

CodePage::CodePage(std::string_view name)
    : m_converter(openConverter(name))
{
}

CodePage::~CodePage()
{
    if (!isInvalid(m_converter))
        iconv_close(m_converter);
}

std::string CodePage::toUtf8(std::string_view line, IReadingSteps* steps) const
{
    WorkMeter meter(steps);
    std::string result;
    if (!isInvalid(m_converter))
        iconv(m_converter, nullptr, nullptr, nullptr, nullptr);
    // iconv() does not write there.
    char* from = const_cast<char*>(line.data());
    std::size_t left = line.size();
    while (left > 0) {
        meter.add();
        std::array<char, 256> buffer;
        char* to = buffer.data();
        std::size_t room = buffer.size();
        const bool isStuck =
            isInvalid(m_converter)
            || (iconv(m_converter, &from, &left, &to, &room) == static_cast<std::size_t>(-1)
                && errno != E2BIG);
        result.append(buffer.data(), buffer.size() - room);
        if (isStuck && left > 0) {
            appendUtf8(result, static_cast<unsigned char>(*from));
            ++from;
            --left;
        }
    }
    // A code page that makes line ends from other bytes would change the lines.
    std::replace(result.begin(), result.end(), '\n', ' ');
    return result;
}

bool isUtf8(std::string_view text, IReadingSteps* steps)
{
    WorkMeter meter(steps);
    while (!text.empty()) {
        meter.add();
        const std::size_t length = soundSequence(text);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

void appendUtf8(std::string& text, char32_t character)
{
    constexpr unsigned payloadBits = 6;
    const auto continuation = [character](unsigned shift) {
        return static_cast<char>(0x80 | ((character >> shift) & 0x3f));
    };
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xc0 | (character >> payloadBits));
        text += continuation(0);
    } else if (character < 0x10000) {
        text += static_cast<char>(0xe0 | (character >> (2 * payloadBits)));
        text += continuation(payloadBits);
        text += continuation(0);
    } else {
        text += static_cast<char>(0xf0 | (character >> (3 * payloadBits)));
        text += continuation(2 * payloadBits);
        text += continuation(payloadBits);
        text += continuation(0);
    }
}

} // namespace dxfviewer
