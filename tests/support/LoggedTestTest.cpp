// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/support/LoggedTest.h"

#include <gtest/gtest-spi.h>

#include <QDebug>
#include <QLoggingCategory>

using namespace dxftest;

namespace
{

Q_LOGGING_CATEGORY(foreign, "foreign.category")
Q_LOGGING_CATEGORY(ofQt, "qt.category")

/// A test whose failures the tests below look at.
class InnerTest : public LoggedTest
{
public:
    using LoggedTest::expectWarning;
    using LoggedTest::takeDebugMessages;
    using LoggedTest::takeWarnings;

    void TestBody() override {}
};

TEST(LoggedTestTest, UnannouncedWarningFails)
{
    EXPECT_NONFATAL_FAILURE(
        {
            InnerTest test;
            qWarning("unheard of");
        },
        "unheard of");
}

TEST(LoggedTestTest, CriticalMessageCountsAsWarning)
{
    EXPECT_NONFATAL_FAILURE(
        {
            InnerTest test;
            qCritical("worse");
        },
        "worse");
}

TEST(LoggedTestTest, AnnouncedWarningThatDoesNotComeFails)
{
    EXPECT_NONFATAL_FAILURE(
        {
            InnerTest test;
            test.expectWarning("twice", 2);
            qWarning("twice");
        },
        "twice");
}

TEST(LoggedTestTest, WarningsInAnotherOrderFail)
{
    EXPECT_NONFATAL_FAILURE(
        {
            InnerTest test;
            test.expectWarning("first");
            test.expectWarning("second");
            qWarning("second");
            qWarning("first");
        },
        "second");
}

TEST(LoggedTestTest, WarningFromTheDestructorOfASubclassFails)
{
    class LateTest : public InnerTest
    {
    public:
        ~LateTest() override { qWarning("late"); }
    };

    EXPECT_NONFATAL_FAILURE(LateTest(), "late");
}

TEST(LoggedTestTest, AnnouncedWarningsPass)
{
    InnerTest test;
    test.expectWarning("one");
    test.expectWarning("two", 2);

    qWarning("one");
    qWarning("two");
    qWarning("two");
}

TEST(LoggedTestTest, DebugMessagesAreKeptApartFromWarnings)
{
    InnerTest test;

    qDebug("progress");
    qWarning("trouble");
    qDebug("more");

    EXPECT_EQ(test.takeDebugMessages(),
              QStringList({QStringLiteral("progress"), QStringLiteral("more")}));
    EXPECT_EQ(test.takeDebugMessages(), QStringList());
    EXPECT_EQ(test.takeWarnings(), QStringList(QStringLiteral("trouble")));
}

TEST(LoggedTestTest, DebugMessageOfACategoryFails)
{
    EXPECT_NONFATAL_FAILURE(
        {
            InnerTest test;
            qCDebug(foreign, "progress");
            EXPECT_EQ(test.takeDebugMessages(), QStringList(QStringLiteral("progress")));
        },
        "foreign.category: progress");
}

TEST(LoggedTestTest, AnnouncedWarningOfACategoryFails)
{
    EXPECT_NONFATAL_FAILURE(
        {
            InnerTest test;
            test.expectWarning("trouble");
            qCWarning(foreign, "trouble");
        },
        "foreign.category: trouble");
}

TEST(LoggedTestTest, WarningOfAQtCategoryIsRecordedWithoutTheCategory)
{
    InnerTest test;

    test.expectWarning("trouble");

    qCWarning(ofQt, "trouble");
}

TEST(LoggedTestTest, InnermostCaptureRecords)
{
    LogCapture outer;
    {
        LogCapture inner;

        qDebug("inside");

        EXPECT_EQ(inner.takeDebugMessages(), QStringList(QStringLiteral("inside")));
    }
    qDebug("outside");

    EXPECT_EQ(outer.takeDebugMessages(), QStringList(QStringLiteral("outside")));
}

} // namespace
