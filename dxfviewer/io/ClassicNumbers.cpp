// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/ClassicNumbers.h"

#include <clocale>

namespace dxfviewer
{

ClassicNumbers::ClassicNumbers()
    : m_hostCLocale(std::setlocale(LC_ALL, nullptr))
{
    // A locale without a name: setting it leaves the one of C alone.
    if (m_hostLocale != std::locale::classic())
        std::locale::global(std::locale(std::locale::classic(), new std::numpunct<char>));
}

ClassicNumbers::~ClassicNumbers()
{
    if (std::locale() != m_hostLocale)
        std::locale::global(m_hostLocale);
    // Setting a locale of C++ that has a name sets the one of C as well.
    if (m_hostCLocale != std::setlocale(LC_ALL, nullptr))
        std::setlocale(LC_ALL, m_hostCLocale.c_str());
}

} // namespace dxfviewer
