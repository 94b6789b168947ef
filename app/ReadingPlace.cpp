// SPDX-License-Identifier: GPL-2.0-or-later

#include "ReadingPlace.h"

#include "Cancelled.h"
#include "ReadingWatch.h"

#include <QByteArray>

#include <algorithm>
#include <cstring>

namespace
{

// Some hundred thousand groups are read per second.
constexpr int groupsBetweenLooks = 256;

/// In the binary form a value has its code before it.
constexpr std::size_t codeLength = 2;

} // namespace

ReadingPlace::ReadingPlace(const QByteArray& content, ReadingWatch& watch)
    : m_content(content)
    , m_watch(watch)
    , m_isText(!content.contains('\0'))
    , m_at(content.constData())
    , m_end(content.constData() + content.size())
{
}

void ReadingPlace::noteGroup(std::size_t valueLength)
{
    if (m_isText)
        m_at = afterLine(afterLine(m_at));
    else
        m_at += std::min(valueLength + codeLength, static_cast<std::size_t>(m_end - m_at));
    if (++m_groups % groupsBetweenLooks != 0)
        return;
    m_watch.setShare(share());
}

void ReadingPlace::goOn() const
{
    if (m_watch.isCancelled())
        throw Cancelled();
}

double ReadingPlace::share() const
{
    if (m_content.isEmpty())
        return 1.0;
    return static_cast<double>(m_at - m_content.constData())
           / static_cast<double>(m_content.size());
}

const char* ReadingPlace::afterLine(const char* at) const
{
    const auto rest = static_cast<std::size_t>(m_end - at);
    const void* lineEnd = rest == 0 ? nullptr : std::memchr(at, '\n', rest);
    return lineEnd ? static_cast<const char*>(lineEnd) + 1 : m_end;
}
