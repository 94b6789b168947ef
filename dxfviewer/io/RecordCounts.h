// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/io/GroupScan.h"

#include <QtGlobal>

#include <array>
#include <cstddef>
#include <string_view>

namespace dxfviewer
{

/**
 * A group that announces how many items a record holds, and the items themselves.
 *
 * dxflib allocates memory for the announced count. It delivers some items even if they are missing.
 * It keeps count and items for the next record of the same kind that announces nothing.
 */
class AnnouncedCount
{
public:
    constexpr AnnouncedCount(int countCode, int itemCode)
        : m_countCode(countCode)
        , m_itemCode(itemCode)
    {
    }

    /// Code of the group that announces.
    int countCode() const { return m_countCode; }
    /// Code of the group that each item begins with.
    int itemCode() const { return m_itemCode; }

    void beginRecord();
    /// Only the last announcement of a record counts, for the items after it.
    void announce(int count);
    void addItem() { ++m_items; }

    bool isAnnounced() const { return m_announced; }
    /// Whether the last announcement replaces one that dxflib has allocated for.
    bool replacesOne() const { return m_replacesOne; }
    int count() const { return m_count; }
    /// The announced count, lowered to the number of items; that number if nothing is announced.
    int soundCount() const;
    bool isSound() const;

    /// Takes note that dxflib has read the record with this count.
    void endRecord(int count) { m_carried = count; }

private:
    int m_countCode;
    int m_itemCode;
    bool m_announced = false;
    bool m_replacesOne = false;
    int m_count = 0;
    std::size_t m_items = 0;
    int m_carried = 0;
};

/**
 * The boundary loops of a hatch.
 *
 * dxflib keeps the loops of the previous hatch until the first loop of the next hatch begins.
 */
class HatchLoops
{
public:
    /// Code of the group that begins a loop.
    static constexpr int loopCode = 92;

    void beginRecord() { m_begun = false; }
    void addGroup(int code, std::string_view value);
    bool isSound() const { return m_begun || !m_carried; }

private:
    bool m_begun = false;
    bool m_carried = false;
};

/// The counts of the current record, and what dxflib carries over from those before.
class RecordCounts
{
public:
    RecordCounts();

    void beginRecord(std::string_view kind);
    /// Takes note of a group of the record. Returns the count that it announces; null if none.
    AnnouncedCount* addGroup(int code, std::string_view value);
    /// The counts of the record.
    AnnouncedCount* begin() const { return m_begin; }
    AnnouncedCount* end() const { return m_end; }
    /// The loops of the record if it is a hatch, else null.
    HatchLoops* hatchLoops() { return m_currentLoops; }

private:
    Q_DISABLE_COPY(RecordCounts)

    void select(std::size_t first, std::size_t last);

    std::array<AnnouncedCount, 5> m_counts;
    AnnouncedCount* m_begin;
    AnnouncedCount* m_end;
    HatchLoops m_loops;
    HatchLoops* m_currentLoops = nullptr;
};

// This runs for every group of every drawing, so it is defined here to be inlined.
inline AnnouncedCount* RecordCounts::addGroup(int code, std::string_view value)
{
    AnnouncedCount* announced = nullptr;
    for (AnnouncedCount& count : *this) {
        if (code == count.itemCode()) {
            count.addItem();
        } else if (code == count.countCode()) {
            count.announce(toInt(value));
            announced = &count;
        }
    }
    if (m_currentLoops)
        m_currentLoops->addGroup(code, value);
    return announced;
}

} // namespace dxfviewer
