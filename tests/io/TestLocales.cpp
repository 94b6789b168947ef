// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/io/TestLocales.h"

#include <QFile>

#include <clocale>

namespace dxftest
{

TestLocales::TestLocales()
    : m_cLocale(std::setlocale(LC_ALL, nullptr))
{
    qputenv("LOCPATH", LOCALES_DIR);
}

TestLocales::~TestLocales()
{
    std::locale::global(m_locale);
    std::setlocale(LC_ALL, m_cLocale.c_str());
    qunsetenv("LOCPATH");
}

bool TestLocales::areAvailable() const
{
    return QFile::exists(QStringLiteral(LOCALES_DIR "/made"));
}

} // namespace dxftest
