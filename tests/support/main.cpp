// SPDX-License-Identifier: GPL-2.0-or-later

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

/// Tests open no windows on anybody's screen unless they are told to.
void choosePlatform()
{
    if (qEnvironmentVariableIntValue("DXFVIEWER_TEST_ONSCREEN") == 0)
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

/// Nor do they read or change what anybody's programs remember; nor those that they start.
void useSettingsOfOurOwn(const QTemporaryDir& folder)
{
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
}

} // namespace

int main(int argc, char** argv)
{
    ::testing::InitGoogleMock(&argc, argv);
    if (::testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();

    choosePlatform();
    const QTemporaryDir settings;
    useSettingsOfOurOwn(settings);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
