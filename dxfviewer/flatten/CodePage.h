// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QtGlobal>

#include <string>
#include <string_view>

class IReadingSteps;

namespace dxfviewer
{

/// The code page in which a drawing that is not UTF-8 writes its texts.
class CodePage
{
public:
    /// @param name  as drawings write it ("ANSI_1252"). An unknown name stands for the code page of
    ///              western Europe.
    explicit CodePage(std::string_view name);
    ~CodePage();

    /// A line in UTF-8. Bytes that the code page does not define become characters of their own, so
    /// that different texts stay different.
    ///
    /// @param steps  asked now and then whether to go on; may be null
    std::string toUtf8(std::string_view line, IReadingSteps* steps = nullptr) const;

private:
    Q_DISABLE_COPY(CodePage)

    // A descriptor of iconv.
    void* m_converter;
};

/// Whether a text is sound UTF-8. Plain ASCII is.
///
/// @param steps  asked now and then whether to go on; may be null
bool isUtf8(std::string_view text, IReadingSteps* steps = nullptr);

/// Appends a character.
void appendUtf8(std::string& text, char32_t character);

} // namespace dxfviewer
