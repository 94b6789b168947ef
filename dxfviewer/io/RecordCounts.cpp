// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/RecordCounts.h"

#include <algorithm>
#include <limits>

namespace
{

constexpr int edgeLoopCode = 93;
constexpr int polylineLoopBit = 2;

// Places in the list of counts.
constexpr std::size_t lwpolyline = 0;
constexpr std::size_t spline = 1;
constexpr std::size_t leader = 4;
constexpr std::size_t afterAll = 5;

} // namespace

namespace dxfviewer
{

void AnnouncedCount::beginRecord()
{
    m_announced = false;
    m_replacesOne = false;
    m_count = 0;
    m_items = 0;
}

void AnnouncedCount::announce(int count)
{
    m_replacesOne = m_announced && m_count != 0;
    m_announced = true;
    m_count = count;
    m_items = 0;
}

int AnnouncedCount::soundCount() const
{
    const int items = static_cast<int>(
        std::min<std::size_t>(m_items, static_cast<std::size_t>(std::numeric_limits<int>::max())));
    return m_announced ? std::clamp(m_count, 0, items) : items;
}

bool AnnouncedCount::isSound() const
{
    return m_announced ? m_count == soundCount() : m_items == 0 && m_carried == 0;
}

void HatchLoops::addGroup(int code, std::string_view value)
{
    if (code != loopCode && code != edgeLoopCode)
        return;
    if (!m_begun)
        m_carried = false;
    m_begun = true;
    if (code == edgeLoopCode || (toInt(value) & polylineLoopBit) != 0)
        m_carried = true;
}

RecordCounts::RecordCounts()
    : m_counts{AnnouncedCount(90, 10), AnnouncedCount(72, 40), AnnouncedCount(73, 10),
               AnnouncedCount(74, 11), AnnouncedCount(76, 10)}
    , m_begin(m_counts.data())
    , m_end(m_counts.data())
{
}

void RecordCounts::beginRecord(std::string_view kind)
{
    m_currentLoops = nullptr;
    if (kind == "LWPOLYLINE") {
        select(lwpolyline, spline);
    } else if (kind == "SPLINE") {
        select(spline, leader);
    } else if (kind == "LEADER") {
        select(leader, afterAll);
    } else {
        select(0, 0);
        if (kind == "HATCH") {
            m_currentLoops = &m_loops;
            m_loops.beginRecord();
        }
    }
}

void RecordCounts::select(std::size_t first, std::size_t last)
{
    m_begin = m_counts.data() + first;
    m_end = m_counts.data() + last;
    std::for_each(m_begin, m_end, [](AnnouncedCount& count) { count.beginRecord(); });
}

} // namespace dxfviewer
