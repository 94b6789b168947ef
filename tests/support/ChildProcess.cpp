// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/support/ChildProcess.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

namespace dxftest
{

int statusOfChild(const std::function<int()>& action)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(action());
    int status = -1;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return status;
}

} // namespace dxftest
