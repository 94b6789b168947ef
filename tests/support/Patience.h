// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QTest>

#include <utility>

namespace dxftest
{

/// How long a test waits for something before it fails. Far longer than needed: a machine under
/// load, or under a sanitizer, is slow, and no test measures how long something takes.
inline constexpr int patienceMs = 60000;

/// Handles events until the condition holds. False if it never does.
template <typename Condition>
bool eventually(Condition&& condition)
{
    return QTest::qWaitFor(std::forward<Condition>(condition), patienceMs);
}

} // namespace dxftest
