// SPDX-License-Identifier: GPL-2.0-or-later

#include <QApplication>

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

} // namespace

int main(int argc, char** argv)
{
    ::testing::InitGoogleMock(&argc, argv);
    if (::testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();

    choosePlatform();
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
