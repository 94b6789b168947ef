// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/support/OtherUser.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace
{

constexpr uid_t nobody = 65534;

} // namespace

namespace dxftest
{

OtherUser::OtherUser()
    : m_isRoot(geteuid() == 0)
{
    if (m_isRoot) {
        // Root stays the saved user, who comes back.
        EXPECT_EQ(setresuid(nobody, nobody, 0), 0);
    }
}

OtherUser::~OtherUser()
{
    if (m_isRoot) {
        EXPECT_EQ(setresuid(0, 0, 0), 0);
    }
}

} // namespace dxftest
