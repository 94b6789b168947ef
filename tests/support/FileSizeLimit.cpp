// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/support/FileSizeLimit.h"

#include <gtest/gtest.h>

#include <csignal>

namespace dxftest
{

FileSizeLimit::FileSizeLimit(rlim_t bytes)
    // By default a process that writes beyond its limit is killed.
    : m_handler(std::signal(SIGXFSZ, SIG_IGN))
{
    EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &m_limit), 0);
    const rlimit limit{bytes, m_limit.rlim_max};
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
}

FileSizeLimit::~FileSizeLimit()
{
    setrlimit(RLIMIT_FSIZE, &m_limit);
    std::signal(SIGXFSZ, m_handler);
}

} // namespace dxftest
