// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QTemporaryDir>

#include <locale>
#include <string>

namespace dxftest
{

/**
 * Locales that write numbers in another way. They are made for the test, and found while this
 * lives.
 *
 * Afterwards the locales of C and C++ are what they were.
 */
class TestLocales
{
public:
    TestLocales();
    ~TestLocales();

    /// Whether there is a localedef to make them. If it fails, the test fails.
    bool areAvailable() const { return m_available; }

private:
    Q_DISABLE_COPY(TestLocales)

    QTemporaryDir m_folder;
    bool m_available = true;
    std::string m_cLocale;
    std::locale m_locale;
};

} // namespace dxftest
