// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QtGlobal>

#include <sys/resource.h>

namespace dxftest
{

/// Limits the size of the files that the process writes while it lives, as a full disk would. Child
/// processes that start meanwhile have the limit until they end.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes);
    ~FileSizeLimit();

private:
    Q_DISABLE_COPY(FileSizeLimit)

    rlimit m_limit{};
    void (*m_handler)(int);
};

} // namespace dxftest
