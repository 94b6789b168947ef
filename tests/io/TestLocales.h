// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QtGlobal>

#include <locale>
#include <string>

namespace dxftest
{

/**
 * Makes locales available while it lives: de_DE.UTF-8, ps_AF.UTF-8 and en_IN.UTF-8, which write
 * numbers in another way, and tr_TR.ISO-8859-9, in which the capital of i is another letter.
 *
 * Afterwards the locales of C and C++ are what they were.
 */
class TestLocales
{
public:
    TestLocales();
    ~TestLocales();

    /// Whether there was a localedef to make them when the tests were built.
    bool areAvailable() const;

private:
    Q_DISABLE_COPY(TestLocales)

    std::string m_cLocale;
    std::locale m_locale;
};

} // namespace dxftest
