// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/DrawingText.h"

#include "dxfviewer/flatten/BinaryDrawing.h"
#include "dxfviewer/flatten/CodePage.h"
#include "dxfviewer/flatten/Record.h"
#include "dxfviewer/io/GroupScan.h"
#include "dxfviewer/io/WorkMeter.h"

#include <algorithm>

namespace
{

using namespace dxfviewer;

// From this release on texts are UTF-8.
constexpr std::string_view firstUtf8Release = "AC1021";

constexpr std::string_view escape = R"(\U+)";
constexpr std::size_t digitsOfEscape = 4;

/// What the header tells about texts.
struct Header {
    std::string_view release;
    std::string_view codePage;
};

Header headerOf(std::string_view text, IReadingSteps* steps)
{
    WorkMeter meter(steps);
    Header header;
    std::string_view variable;
    scanGroups(text, [&](std::string_view codeLine, std::string_view valueLine) {
        meter.add();
        constexpr int variableCode = 9;
        const int code = toInt(codeLine);
        const std::string_view value = trimmed(valueLine);
        if (code == variableCode)
            variable = value;
        else if (variable == "$ACADVER")
            header.release = value;
        else if (variable == "$DWGCODEPAGE")
            header.codePage = value;
        if (code != variableCode)
            variable = {};
        return code != 0 || value != "ENDSEC";
    });
    return header;
}

bool isPlain(std::string_view text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// A text in which some lines, or all, are written in the drawing's code page.
std::string inUtf8(std::string_view text, IReadingSteps* steps)
{
    const Header header = headerOf(text, steps);
    WorkMeter meter(steps);
    const bool hasUtf8 = header.release >= firstUtf8Release;
    const CodePage codePage(header.codePage);
    std::string result;
    result.reserve(text.size() + text.size() / 4);
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at != end) {
        meter.add();
        // Line by line, so that an incomplete character does not take the line end with it.
        const char* const lineStop = lineEnd(at, end);
        const std::string_view line(at, static_cast<std::size_t>(lineStop - at));
        if (isPlain(line) || (hasUtf8 && isUtf8(line, steps)))
            result += line;
        else
            result += codePage.toUtf8(line, steps);
        at = lineStop;
        if (at != end) {
            result += '\n';
            ++at;
        }
    }
    return result;
}

/// The number in an escape that stands at a place of a text, or nothing.
std::optional<char32_t> escapedAt(std::string_view text, std::size_t at)
{
    if (text.substr(at, escape.size()) != escape)
        return std::nullopt;
    const std::string_view digits = text.substr(at + escape.size(), digitsOfEscape);
    char32_t number = 0;
    for (const char c : digits) {
        constexpr char32_t base = 16;
        constexpr char32_t firstLetter = 10;
        if (c >= '0' && c <= '9')
            number = number * base + static_cast<char32_t>(c - '0');
        else if (c >= 'A' && c <= 'F')
            number = number * base + static_cast<char32_t>(c - 'A') + firstLetter;
        else if (c >= 'a' && c <= 'f')
            number = number * base + static_cast<char32_t>(c - 'a') + firstLetter;
        else
            return std::nullopt;
    }
    return digits.size() == digitsOfEscape ? std::optional<char32_t>(number) : std::nullopt;
}

bool isFirstHalf(char32_t number)
{
    return number >= 0xd800 && number < 0xdc00;
}

bool isSecondHalf(char32_t number)
{
    return number >= 0xdc00 && number < 0xe000;
}

/// Whether the character would change the lines of the text, or is invisible.
bool isControl(char32_t number)
{
    return number < 0x20 || (number >= 0x7f && number < 0xa0);
}

std::string withoutEscapes(std::string_view text, IReadingSteps* steps)
{
    WorkMeter meter(steps);
    constexpr std::size_t escapeLength = escape.size() + digitsOfEscape;
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        meter.add();
        const std::size_t at = std::min(text.find(escape), text.size());
        result += text.substr(0, at);
        text.remove_prefix(at);
        if (text.empty())
            break;
        const std::optional<char32_t> first = escapedAt(text, 0);
        const std::optional<char32_t> second =
            first && isFirstHalf(*first) ? escapedAt(text, escapeLength) : std::nullopt;
        if (second && isSecondHalf(*second)) {
            appendUtf8(result, 0x10000 + ((*first - 0xd800) << 10U) + (*second - 0xdc00));
            text.remove_prefix(2 * escapeLength);
        } else if (first && !isControl(*first) && !isFirstHalf(*first) && !isSecondHalf(*first)) {
            appendUtf8(result, *first);
            text.remove_prefix(escapeLength);
        } else {
            result += text.front();
            text.remove_prefix(1);
        }
    }
    return result;
}

} // namespace

namespace dxfviewer
{

std::optional<std::string> utf8TextOf(std::string_view bytes, IReadingSteps* steps)
{
    std::optional<std::string> text;
    if (isBinaryDrawing(bytes))
        text = textOfBinary(bytes, steps);
    if (!isUtf8(text ? *text : bytes, steps))
        text = inUtf8(text ? *text : bytes, steps);
    if ((text ? std::string_view(*text) : bytes).find(escape) != std::string_view::npos)
        text = withoutEscapes(text ? *text : bytes, steps);
    return text;
}

} // namespace dxfviewer
