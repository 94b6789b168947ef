// SPDX-License-Identifier: GPL-2.0-or-later

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

/// Tests open windows on the user's screen only if the environment asks for it.
void choosePlatform()
{
    if (qEnvironmentVariableIntValue("DXFVIEWER_TEST_ONSCREEN") == 0)
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

/// Tests, and the programs that they start, do not read or change the user's settings.
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
