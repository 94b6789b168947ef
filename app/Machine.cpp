// SPDX-License-Identifier: GPL-2.0-or-later

#include "Machine.h"

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace
{

constexpr qint64 modestMemoryBytes = 2LL * 1024 * 1024 * 1024;

} // namespace

qint64 memoryOfMachine()
{
#if defined(Q_OS_UNIX) && defined(_SC_PHYS_PAGES)
    const qint64 pages = sysconf(_SC_PHYS_PAGES);
    const qint64 pageBytes = sysconf(_SC_PAGESIZE);
    if (pages > 0 && pageBytes > 0)
        return pages * pageBytes;
#endif
    return modestMemoryBytes;
}
