// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/Utf8.h"

#include <QString>

namespace
{

constexpr std::size_t longestSequence = 4;

bool isContinuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xc0) == 0x80;
}

/// Length of the sequence that a byte begins; 0 if it begins none.
std::size_t sequenceLength(char lead)
{
    const auto byte = static_cast<unsigned char>(lead);
    if (byte < 0x80)
        return 1;
    if (byte >= 0xc2 && byte < 0xe0)
        return 2;
    if (byte >= 0xe0 && byte < 0xf0)
        return 3;
    if (byte >= 0xf0 && byte < 0xf5)
        return 4;
    return 0;
}

} // namespace

namespace dxfviewer
{

QString decoded(const std::string& text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

std::string encoded(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    return std::string(utf8.constData(), static_cast<std::size_t>(utf8.size()));
}

std::size_t utf8Prefix(std::string_view text, std::size_t longest)
{
    if (text.size() <= longest)
        return text.size();

    std::size_t start = longest;
    while (start > 0 && longest - start < longestSequence && isContinuation(text[start]))
        --start;
    const bool cutsSequence = start < longest && start + sequenceLength(text[start]) > longest;
    return cutsSequence ? start : longest;
}

} // namespace dxfviewer
