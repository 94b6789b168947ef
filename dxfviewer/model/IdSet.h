// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QVector>

#include <vector>

namespace dxfviewer
{

/**
 * A list of ids made ready for being asked about every segment of a drawing.
 *
 * An id outside the span of the list costs one comparison. Inside, a bit per id answers while the
 * span is bearable, and a binary search when the ids are few and far between.
 */
class IdSet
{
public:
    explicit IdSet(const QVector<int>& ids);

    bool contains(int id) const
    {
        const unsigned offset = static_cast<unsigned>(id) - m_first;
        if (offset > m_last)
            return false;
        return m_bits.empty() ? isListed(offset) : m_bits[offset];
    }

private:
    bool isListed(unsigned offset) const;

    // The ids are kept as offsets from the smallest one. Of no ids at all, none is listed.
    unsigned m_first = 0;
    unsigned m_last = 0;
    std::vector<bool> m_bits;
    std::vector<unsigned> m_sorted;
};

} // namespace dxfviewer
