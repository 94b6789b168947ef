// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QtAlgorithms>
#include <QtGlobal>

#include <climits>
#include <cstddef>
#include <cstring>
#include <limits>
#include <string_view>

/// @file
/// A drawing's text as dxflib sees it: pairs of lines, a code and a value. This runs for every line
/// of every drawing, so it is defined here to be inlined.

namespace dxfviewer
{

/// The longest line that dxflib's parser survives. The line feed is not counted, a carriage return
/// is.
inline constexpr std::size_t longestLine = 1023;

/// The first line feed, or the end.
inline const char* lineEnd(const char* at, const char* end)
{
#if Q_BYTE_ORDER == Q_LITTLE_ENDIAN
    // Most lines are too short for memchr to pay off.
    constexpr quint64 ones = 0x0101010101010101U;
    constexpr quint64 highBits = 0x8080808080808080U;
    constexpr int bitsPerByte = 8;
    while (end - at >= static_cast<std::ptrdiff_t>(sizeof(quint64))) {
        quint64 word;
        std::memcpy(&word, at, sizeof word);
        word ^= ones * '\n';
        if (const quint64 found = (word - ones) & ~word & highBits)
            return at + qCountTrailingZeroBits(found) / bitsPerByte;
        at += sizeof word;
    }
#endif
    if (at == end)
        return end;
    const void* found = std::memchr(at, '\n', static_cast<std::size_t>(end - at));
    return found ? static_cast<const char*>(found) : end;
}

inline bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

inline bool isBlank(std::string_view text)
{
    for (const char c : text) {
        if (!isBlank(c))
            return false;
    }
    return true;
}

/// What strtol makes of a line, converted to int: dxflib reads codes and counts that way.
inline int toInt(std::string_view line)
{
    const char* at = line.data();
    const char* const end = at + line.size();
    while (at != end && isBlank(*at))
        ++at;
    const bool negative = at != end && *at == '-';
    if (at != end && (*at == '-' || *at == '+'))
        ++at;

    constexpr unsigned base = 10;
    constexpr std::ptrdiff_t safeDigits = std::numeric_limits<int>::digits10;
    unsigned long value = 0;
    if (end - at <= safeDigits) {
        for (; at != end; ++at) {
            const auto digit = static_cast<unsigned>(*at - '0');
            if (digit >= base)
                break;
            value = value * base + digit;
        }
        return negative ? -static_cast<int>(value) : static_cast<int>(value);
    }

    const unsigned long limit =
        negative ? static_cast<unsigned long>(LONG_MAX) + 1 : static_cast<unsigned long>(LONG_MAX);
    for (; at != end; ++at) {
        const auto digit = static_cast<unsigned>(*at - '0');
        if (digit >= base)
            break;
        value = value > (limit - digit) / base ? limit : value * base + digit;
    }
    return static_cast<int>(negative ? 0 - value : value);
}

/// Whether dxflib reads the values of a code as real numbers.
inline bool isReal(int code)
{
    return (code >= 10 && code <= 59) || (code >= 110 && code <= 149)
           || (code >= 210 && code <= 239) || (code >= 1010 && code <= 1059);
}

/// Whether a code begins a record and so ends the one before.
inline bool beginsRecord(int code)
{
    return code == 0 || code == 9;
}

/// The value of a line as dxflib compares it.
inline std::string_view strippedValue(std::string_view line)
{
    while (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    return line;
}

/// Whether dxflib reads past the end of this value, where it looks for a version.
inline bool isBareVersionComment(int code, std::string_view value)
{
    constexpr int comment = 999;
    return code == comment && value == "dxflib";
}

/**
 * Calls a function with each pair of lines, as long as it returns true.
 *
 * The last value may lack its line feed or be missing. Returns what was not visited. At the end of
 * a text that is a code without line feed, which dxflib never reads.
 */
template <typename Visit>
std::string_view scanGroups(std::string_view text, Visit visit)
{
    const char* at = text.data();
    const char* const end = at + text.size();
    for (;;) {
        const char* const codeEnd = lineEnd(at, end);
        if (codeEnd == end)
            break;
        const char* const value = codeEnd + 1;
        const char* const valueEnd = lineEnd(value, end);
        const std::string_view codeLine(at, static_cast<std::size_t>(codeEnd - at));
        const std::string_view valueLine(value, static_cast<std::size_t>(valueEnd - value));
        at = valueEnd == end ? end : valueEnd + 1;
        if (!visit(codeLine, valueLine))
            break;
    }
    return {at, static_cast<std::size_t>(end - at)};
}

} // namespace dxfviewer
