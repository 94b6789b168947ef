// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QtGlobal>

namespace dxfviewer
{

/**
 * Tells whether any entity or segment of the process has changed since a moment.
 *
 * Hosts may change an entity at any time, and an entity does not know which documents hold it. So
 * all of them report to one counter. It moves only if somebody has looked at it since its last
 * move: a change that nobody waits for costs one look. Any thread may call this, since drawings are
 * read in other threads.
 */
class Changes
{
public:
    using Moment = quint64;

    Changes() = delete;

    static Moment now();
    static bool isNow(Moment moment);
    static void note();
};

} // namespace dxfviewer
