// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QtGlobal>

#include <locale>
#include <string>

namespace dxfviewer
{

/**
 * Makes streams read numbers with a point and without grouping, whatever locale the host has set.
 *
 * Afterwards the locales of C and of C++ are what they were.
 */
class ClassicNumbers
{
public:
    ClassicNumbers();
    ~ClassicNumbers();

private:
    Q_DISABLE_COPY(ClassicNumbers)

    std::locale m_hostLocale;
    // The locale of C. A host may have set it to another one than the locale of C++.
    std::string m_hostCLocale;
};

} // namespace dxfviewer
