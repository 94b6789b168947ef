// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/GroupWriter.h"

#include "dxfviewer/io/Utf8.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace
{

// What dxflib passes to printf: the second is for a variant of release 12 with short numbers.
constexpr int decimals = 16;
constexpr int shortDecimals = 6;
// Sign, 309 digits before the point, the point, the decimals.
constexpr std::size_t longestReal = 1 + 309 + 1 + decimals;
constexpr std::size_t longestInt = 11;

// A reader with a buffer of 1,024 bytes gets the whole line, with its line end and the zero.
constexpr std::size_t longestWrittenLine = 1022;

constexpr std::size_t flushLength = 1 << 16;
constexpr std::size_t longestGroup = 2048;

// A file that cannot exist: the base class opens one, but must not write to ours.
constexpr const char* noFile = "";

bool isControl(char c)
{
    constexpr unsigned char firstPrintable = 0x20;
    constexpr unsigned char del = 0x7f;
    return static_cast<unsigned char>(c) < firstPrintable || static_cast<unsigned char>(c) == del;
}

} // namespace

namespace dxfviewer
{

GroupWriter::GroupWriter(const char* fileName, DL_Codes::version fileVersion)
    : DL_WriterA(noFile, fileVersion)
    , m_file(std::fopen(fileName, "wb"))
    , m_failed(!m_file)
{
    m_text.reserve(flushLength + longestGroup);
    // The text is collected here; a second buffer would only copy it.
    if (m_file)
        std::setvbuf(m_file.get(), nullptr, _IONBF, 0);
}

GroupWriter::~GroupWriter() = default;

void GroupWriter::dxfReal(int code, double value) const
{
    std::array<char, longestReal> text;
    const int precision = version == DL_Codes::AC1009_MIN ? shortDecimals : decimals;
    // The format cannot hold a number that is not finite.
    const double written = std::isfinite(value) ? value : 0.0;
    const auto result = std::to_chars(text.data(), text.data() + text.size(), written,
                                      std::chars_format::fixed, precision);
    const char* end = result.ptr;
    // One digit stays after the point.
    while (end[-1] == '0' && end[-2] != '.')
        --end;

    appendCode(code);
    appendLine({text.data(), static_cast<std::size_t>(end - text.data())});
}

void GroupWriter::dxfInt(int code, int value) const
{
    std::array<char, longestInt> text;
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value);

    appendCode(code);
    appendLine({text.data(), static_cast<std::size_t>(result.ptr - text.data())});
}

void GroupWriter::dxfHex(int code, int value) const
{
    constexpr int base = 16;
    std::array<char, longestInt> text;
    const auto result =
        std::to_chars(text.data(), text.data() + text.size(), static_cast<unsigned>(value), base);
    std::transform(text.data(), result.ptr, text.data(),
                   [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });

    appendCode(code);
    appendLine({text.data(), static_cast<std::size_t>(result.ptr - text.data())});
}

void GroupWriter::dxfString(int code, const char* value) const
{
    dxfString(code, std::string(value ? value : ""));
}

void GroupWriter::dxfString(int code, const std::string& value) const
{
    const auto line = std::string_view(value).substr(0, utf8Prefix(value, longestWrittenLine));

    appendCode(code);
    const std::size_t start = m_text.size();
    appendLine(line);
    const auto first = m_text.begin() + static_cast<std::ptrdiff_t>(start);
    std::replace_if(first, m_text.end() - 1, isControl, ' ');
}

void GroupWriter::appendCode(int code) const
{
    // Flushing here keeps a group in one piece.
    flushIfLong();
    std::array<char, longestInt> text;
    const auto result = std::to_chars(text.data(), text.data() + text.size(), code);
    const auto length = static_cast<std::size_t>(result.ptr - text.data());
    constexpr std::size_t width = 3;
    m_text.append(width - std::min(width, length), ' ');
    appendLine({text.data(), length});
}

void GroupWriter::appendLine(std::string_view line) const
{
    m_text.append(line);
    m_text.push_back('\n');
}

void GroupWriter::flushIfLong() const
{
    if (m_text.size() >= flushLength)
        flush();
}

void GroupWriter::flush() const
{
    if (m_file && std::fwrite(m_text.data(), 1, m_text.size(), m_file.get()) != m_text.size())
        m_failed = true;
    m_text.clear();
}

bool GroupWriter::finish()
{
    flush();
    if (m_file && std::fclose(m_file.release()) != 0)
        m_failed = true;
    return !m_failed;
}

} // namespace dxfviewer
