// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QVector>

#include <vector>

namespace dxfviewer
{

/**
 * A list of ids, prepared for one look-up per segment of a drawing.
 *
 * An id outside the span of the list costs one comparison. Inside the span there is one bit per id.
 * If the span is too wide for the number of ids, a binary search replaces the bits.
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
        return m_words.empty() ? isListed(offset)
                               : (m_words[offset / wordBits] & bitOf(offset)) != 0;
    }

    /// Whether an id from least to greatest may be in the list. False is certain. True is not
    /// certain if the range is wide: then the caller has to look at the ids in it.
    bool mayContainAny(int least, int greatest) const
    {
        const qint64 first = qMax<qint64>(qint64(least) - m_leastId, 0);
        const qint64 last = qMin<qint64>(qint64(greatest) - m_leastId, m_last);
        return first <= last && !m_isEmpty
               && isAnyListed(static_cast<unsigned>(first), static_cast<unsigned>(last));
    }

private:
    static constexpr unsigned wordBits = 64;

    static quint64 bitOf(unsigned offset) { return quint64(1) << (offset % wordBits); }

    bool isListed(unsigned offset) const;
    bool isAnyListed(unsigned first, unsigned last) const;

    // The ids are stored as offsets from the smallest one. An empty list has no smallest id.
    bool m_isEmpty = true;
    int m_leastId = 0;
    unsigned m_first = 0;
    unsigned m_last = 0;
    std::vector<quint64> m_words;
    std::vector<unsigned> m_sorted;
};

} // namespace dxfviewer
