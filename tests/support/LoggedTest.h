// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "tests/support/LogCapture.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace dxftest
{

/**
 * A test that fails on every warning that it did not announce, and on every announced warning that
 * does not come.
 *
 * This is checked in the destructor of this class, after the members of the subclass are destroyed.
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

    /// The warnings since the last call, in order. They are not checked any more.
    QStringList takeWarnings() { return m_log.takeWarnings(); }

private:
    LogCapture m_log;
    QStringList m_expectedWarnings;
};

} // namespace dxftest
