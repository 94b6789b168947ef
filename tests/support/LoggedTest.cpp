// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/support/LoggedTest.h"

namespace dxftest
{

LoggedTest::LoggedTest() = default;

LoggedTest::~LoggedTest()
{
    EXPECT_EQ(m_log.takeWarnings(), m_expectedWarnings)
        << "the warnings of a test must be those that it announces";
}

void LoggedTest::expectWarning(const char* text, int count)
{
    for (int i = 0; i < count; ++i)
        m_expectedWarnings.append(QString::fromLatin1(text));
}

} // namespace dxftest
