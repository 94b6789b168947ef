// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "tests/support/LogCapture.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace dxftest
{

/**
 * A test that fails on every warning which it did not announce, and on announced ones that do not
 * come.
 *
 * This is found out when the fixture is destroyed, after what its subclass holds.
 */
class LoggedTest : public ::testing::Test
{
protected:
    LoggedTest();
    ~LoggedTest() override;

    /// Announces a warning, after those announced before. Warnings must come in this order.
    void expectWarning(const char* text, int count = 1);

    /// The debug messages since the last call, in order.
    QStringList takeDebugMessages() { return m_log.takeDebugMessages(); }

    /// The warnings since the last call, in order. They count neither as announced nor as
    /// unannounced any more.
    QStringList takeWarnings() { return m_log.takeWarnings(); }

private:
    LogCapture m_log;
    QStringList m_expectedWarnings;
};

} // namespace dxftest
