// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/BinaryDrawing.h"

#include "dxfviewer/io/WorkMeter.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>

namespace
{

// The binary form begins with the name of a program, this text and a zero.
constexpr std::size_t sentinelLength = 22;
constexpr std::string_view sentinelEnd = " Binary DXF\r\n\x1a";

// Old releases write codes in one byte, and this one before a code that needs two.
constexpr unsigned char longCodeFollows = 255;

// If codes have two bytes, the second byte of the first code is not above this. If they have one,
// that byte is a letter.
constexpr unsigned char highestSecondByte = 3;

enum class Type { Unknown, Text, Real, Short, Long, LongLong, Flag, Data };

struct Range {
    int first;
    int last;
    Type type;
};

constexpr std::array ranges{
    Range{0, 9, Type::Text},         Range{10, 59, Type::Real},     Range{60, 79, Type::Short},
    Range{90, 99, Type::Long},       Range{100, 109, Type::Text},   Range{110, 149, Type::Real},
    Range{160, 169, Type::LongLong}, Range{170, 179, Type::Short},  Range{210, 239, Type::Real},
    Range{270, 289, Type::Short},    Range{290, 299, Type::Flag},   Range{300, 309, Type::Text},
    Range{310, 319, Type::Data},     Range{320, 369, Type::Text},   Range{370, 389, Type::Short},
    Range{390, 399, Type::Text},     Range{400, 409, Type::Short},  Range{410, 419, Type::Text},
    Range{420, 429, Type::Long},     Range{430, 439, Type::Text},   Range{440, 459, Type::Long},
    Range{460, 469, Type::Real},     Range{470, 489, Type::Text},   Range{999, 1003, Type::Text},
    Range{1004, 1004, Type::Data},   Range{1005, 1009, Type::Text}, Range{1010, 1059, Type::Real},
    Range{1060, 1070, Type::Short},  Range{1071, 1071, Type::Long},
};

Type typeOf(int code)
{
    const auto range = std::find_if(ranges.begin(), ranges.end(), [code](const Range& candidate) {
        return code >= candidate.first && code <= candidate.last;
    });
    return range == ranges.end() ? Type::Unknown : range->type;
}

template <typename Number>
void appendNumber(std::string& text, Number number)
{
    constexpr std::size_t longest = 32;
    std::array<char, longest> digits;
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    text.append(digits.data(), result.ptr);
}

/// Goes through the bytes group by group.
class Converter
{
public:
    explicit Converter(std::string_view bytes)
        : m_rest(bytes.substr(sentinelLength))
        , m_hasLongCodes(m_rest.size() > 1
                         && static_cast<unsigned char>(m_rest[0]) != longCodeFollows
                         && static_cast<unsigned char>(m_rest[1]) <= highestSecondByte)
    {
    }

    std::string text(IReadingSteps* steps)
    {
        dxfviewer::WorkMeter meter(steps);
        std::size_t complete = 0;
        while (!m_rest.empty() && appendGroup()) {
            complete = m_text.size();
            meter.add();
        }
        m_text.resize(complete);
        return std::move(m_text);
    }

private:
    /// False if the group is not whole or of no known type.
    bool appendGroup()
    {
        const int code = takeCode();
        appendNumber(m_text, code);
        m_text += '\n';
        appendValue(typeOf(code));
        m_text += '\n';
        return m_isWhole;
    }

    int takeCode()
    {
        if (m_hasLongCodes)
            return take<std::int16_t>();
        const auto code = take<unsigned char>();
        return code == longCodeFollows ? take<std::int16_t>() : code;
    }

    void appendValue(Type type)
    {
        switch (type) {
        case Type::Text:
            appendText();
            break;
        case Type::Real:
            appendNumber(m_text, take<double>());
            break;
        case Type::Short:
            appendNumber(m_text, take<std::int16_t>());
            break;
        case Type::Long:
            appendNumber(m_text, take<std::int32_t>());
            break;
        case Type::LongLong:
            appendNumber(m_text, take<std::int64_t>());
            break;
        case Type::Flag:
            appendNumber(m_text, static_cast<int>(take<unsigned char>()));
            break;
        case Type::Data:
            appendData();
            break;
        case Type::Unknown:
            m_isWhole = false;
            break;
        }
    }

    void appendText()
    {
        const std::size_t length = m_rest.find('\0');
        m_isWhole = m_isWhole && length != std::string_view::npos;
        const std::string_view value = m_rest.substr(0, length);
        m_rest.remove_prefix(m_isWhole ? length + 1 : m_rest.size());
        // A value is one line.
        const std::size_t begin = m_text.size();
        m_text.append(value);
        std::replace_if(
            m_text.begin() + static_cast<std::ptrdiff_t>(begin), m_text.end(),
            [](char c) { return c == '\n' || c == '\r'; }, ' ');
    }

    void appendData()
    {
        const std::size_t length = take<unsigned char>();
        m_isWhole = m_isWhole && length <= m_rest.size();
        constexpr std::string_view digits = "0123456789ABCDEF";
        constexpr unsigned base = 16;
        for (const char c : m_rest.substr(0, length)) {
            const auto byte = static_cast<unsigned char>(c);
            m_text += digits[byte / base];
            m_text += digits[byte % base];
        }
        m_rest.remove_prefix(std::min(length, m_rest.size()));
    }

    /// A number, lowest byte first.
    template <typename Number>
    Number take()
    {
        std::array<unsigned char, sizeof(Number)> bytes{};
        m_isWhole = m_isWhole && bytes.size() <= m_rest.size();
        if (!m_isWhole)
            return {};
        std::memcpy(bytes.data(), m_rest.data(), bytes.size());
        m_rest.remove_prefix(bytes.size());
#if Q_BYTE_ORDER == Q_BIG_ENDIAN
        std::reverse(bytes.begin(), bytes.end());
#endif
        Number number;
        std::memcpy(&number, bytes.data(), bytes.size());
        return number;
    }

    std::string_view m_rest;
    bool m_hasLongCodes;
    bool m_isWhole = true;
    std::string m_text;
};

} // namespace

namespace dxfviewer
{

bool isBinaryDrawing(std::string_view bytes)
{
    const std::string_view start = bytes.substr(0, sentinelLength);
    return start.size() == sentinelLength && start.back() == '\0'
           && start.substr(sentinelLength - 1 - sentinelEnd.size(), sentinelEnd.size())
                  == sentinelEnd;
}

std::string textOfBinary(std::string_view bytes, IReadingSteps* steps)
{
    return Converter(bytes).text(steps);
}

} // namespace dxfviewer
