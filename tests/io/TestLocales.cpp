// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/io/TestLocales.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>

#include <array>
#include <clocale>

namespace
{

/// A locale that writes numbers as the named one does. To make the complete locale takes seconds.
QByteArray numbersOf(const char* name)
{
    constexpr std::array plain{"LC_CTYPE", "LC_COLLATE", "LC_TIME", "LC_MESSAGES"};
    constexpr std::array copied{"LC_NUMERIC",     "LC_MONETARY",      "LC_PAPER",
                                "LC_NAME",        "LC_ADDRESS",       "LC_TELEPHONE",
                                "LC_MEASUREMENT", "LC_IDENTIFICATION"};
    QByteArray source;
    const auto add = [&source](const QByteArray& category, const char* from) {
        source += category + "\ncopy \"" + from + "\"\nEND " + category + "\n\n";
    };
    for (const char* category : plain)
        add(category, "POSIX");
    for (const char* category : copied)
        add(category, name);
    return source;
}

} // namespace

namespace dxftest
{

TestLocales::TestLocales()
    : m_cLocale(std::setlocale(LC_ALL, nullptr))
{
    constexpr std::array names{"de_DE", "ps_AF", "en_IN"};
    for (const char* name : names) {
        const QString locale = m_folder.filePath(QLatin1String(name));
        QFile source(locale + QLatin1String(".source"));
        EXPECT_TRUE(source.open(QIODevice::WriteOnly)) << source.fileName().toStdString();
        source.write(numbersOf(name));
        source.close();
        QProcess localedef;
        localedef.start(QStringLiteral("localedef"),
                        {QStringLiteral("-i"), source.fileName(), QStringLiteral("-f"),
                         QStringLiteral("UTF-8"), locale + QLatin1String(".UTF-8")});
        m_available = localedef.waitForStarted(-1);
        if (!m_available)
            break;
        EXPECT_TRUE(localedef.waitForFinished(-1));
        EXPECT_EQ(localedef.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(localedef.exitCode(), 0)
            << localedef.readAllStandardError().toStdString() << locale.toStdString();
    }
    qputenv("LOCPATH", m_folder.path().toLocal8Bit());
}

TestLocales::~TestLocales()
{
    std::locale::global(m_locale);
    std::setlocale(LC_ALL, m_cLocale.c_str());
    qunsetenv("LOCPATH");
}

} // namespace dxftest
