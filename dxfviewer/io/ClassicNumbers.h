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
    // That of C; a host may have set it apart from that of C++.
    std::string m_hostCLocale;
};

} // namespace dxfviewer
