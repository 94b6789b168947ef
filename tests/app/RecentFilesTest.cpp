// SPDX-License-Identifier: GPL-2.0-or-later

#include "RecentFiles.h"
#include "Settings.h"

#include "tests/support/ChildProcess.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QSignalSpy>
#include <QTemporaryDir>

using testing::HasSubstr;

namespace
{

class RecentFilesTest : public dxftest::LoggedTest
{
protected:
    RecentFilesTest()
    {
        m_settings.clear();
        m_recent.serve(m_menu);
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString numbered(int number) const { return path(QStringLiteral("%1.dxf").arg(number)); }

    /// What the menu offers when it is opened.
    QStringList offered()
    {
        Q_EMIT m_menu.aboutToShow();
        QStringList texts;
        const auto actions = m_menu.actions();
        for (const QAction* action : actions)
            texts.append(action->text());
        return texts;
    }

    void store(const QVariant& value)
    {
        m_settings.setValue(QStringLiteral("recentDrawings"), value);
    }

    const QTemporaryDir m_folder;
    Settings m_settings;
    RecentFiles m_recent{m_settings};
    QMenu m_menu;
};

TEST_F(RecentFilesTest, TheNewestComesFirst)
{
    m_recent.add(numbered(1));
    m_recent.add(numbered(2));

    EXPECT_EQ(m_recent.names(), (QStringList{numbered(2), numbered(1)}));
}

TEST_F(RecentFilesTest, EachDrawingIsListedOnce)
{
    m_recent.add(numbered(1));
    m_recent.add(numbered(2));
    m_recent.add(numbered(1));

    EXPECT_EQ(m_recent.names(), (QStringList{numbered(1), numbered(2)}));
}

TEST_F(RecentFilesTest, TwoNamesOfAFileAreOneDrawing)
{
    ASSERT_TRUE(QFile::link(dxftest::fileWith(QByteArray(), numbered(1)), numbered(2)));
    m_recent.add(numbered(1));
    m_recent.add(numbered(2));

    EXPECT_EQ(m_recent.names(), QStringList{numbered(2)});
}

TEST_F(RecentFilesTest, NamesAreMadeAbsolute)
{
    m_recent.add(QStringLiteral("plan.dxf"));

    EXPECT_EQ(m_recent.names(), QStringList{QDir::current().filePath(QStringLiteral("plan.dxf"))});
}

TEST_F(RecentFilesTest, AtMostTenAreKept)
{
    for (int number = 1; number <= 12; ++number)
        m_recent.add(numbered(number));

    EXPECT_EQ(m_recent.names().size(), 10);
    EXPECT_EQ(m_recent.names().constFirst(), numbered(12));
    EXPECT_EQ(m_recent.names().constLast(), numbered(3));
}

TEST_F(RecentFilesTest, TheListIsKeptInTheSettings)
{
    m_recent.add(numbered(1));

    Settings settings;
    EXPECT_EQ(RecentFiles(settings).names(), QStringList{numbered(1)});
    EXPECT_THAT(dxftest::contentOf(m_settings.fileName()).toStdString(), HasSubstr("1.dxf"));
}

TEST_F(RecentFilesTest, TwoProgramsShareOneList)
{
    m_recent.add(numbered(1));
    const int status = dxftest::statusOfChild([this] {
        m_recent.add(numbered(2));
        return EXIT_SUCCESS;
    });
    ASSERT_EQ(status, EXIT_SUCCESS);
    m_recent.add(numbered(3));

    EXPECT_EQ(m_recent.names(), (QStringList{numbered(3), numbered(2), numbered(1)}));
}

TEST_F(RecentFilesTest, OneCanBeRemoved)
{
    m_recent.add(numbered(1));
    m_recent.add(numbered(2));
    m_recent.remove(numbered(2));

    EXPECT_EQ(m_recent.names(), QStringList{numbered(1)});
}

TEST_F(RecentFilesTest, NonsenseInTheSettingsIsSkipped)
{
    store(QStringList{QString(), QStringLiteral("relative.dxf"),
                      QStringLiteral("/a*b.dxf").replace(QLatin1Char('*'), QChar(0)),
                      QString(100000, QLatin1Char('/')), numbered(1)});
    EXPECT_EQ(m_recent.names(), QStringList{numbered(1)});

    store(QByteArray("\xff\x00\x01", 3));
    EXPECT_EQ(m_recent.names(), QStringList());

    store(QVariantMap{{QStringLiteral("a"), 1}});
    EXPECT_EQ(m_recent.names(), QStringList());

    m_recent.add(numbered(2));
    EXPECT_EQ(m_recent.names(), QStringList{numbered(2)});
}

TEST_F(RecentFilesTest, SettingsThatCannotBeWrittenDoNoHarm)
{
    {
        const dxftest::FileSizeLimit limit(1);
        m_recent.add(numbered(1));
    }

    EXPECT_EQ(m_recent.names(), QStringList{numbered(1)});
}

TEST_F(RecentFilesTest, TheMenuListsThem)
{
    m_recent.add(path(QStringLiteral("walls & doors.dxf")));
    m_recent.add(numbered(1));
    QSignalSpy chosen(&m_recent, &RecentFiles::chosen);

    const QStringList texts = offered();
    m_menu.actions().constFirst()->trigger();

    EXPECT_EQ(texts.value(0), numbered(1));
    EXPECT_EQ(texts.value(1), path(QStringLiteral("walls && doors.dxf")));
    EXPECT_EQ(chosen.value(0).value(0).toString(), numbered(1));
}

TEST_F(RecentFilesTest, TheMenuClearsTheList)
{
    m_recent.add(numbered(1));
    ASSERT_EQ(offered().constLast(), QStringLiteral("Clear List"));

    m_menu.actions().constLast()->trigger();

    EXPECT_EQ(m_recent.names(), QStringList());
    EXPECT_EQ(offered().size(), 1);
    EXPECT_FALSE(m_menu.actions().constFirst()->isEnabled());
}

} // namespace
