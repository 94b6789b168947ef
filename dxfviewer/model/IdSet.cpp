// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/IdSet.h"

#include <algorithm>

namespace dxfviewer
{

namespace
{

// A set of bits up to this span, a megabyte, is small enough to be made for every mouse move.
constexpr quint64 freeSpan = quint64(1) << 23;

// Beyond that the bits may take this many times the number of ids, which keeps memory linear.
constexpr quint64 spanPerId = 64;

// A wider range of ids is not searched: that could take longer than a look at the segments.
constexpr unsigned searchedSpan = 4096;

} // namespace

IdSet::IdSet(const QVector<int>& ids)
{
    if (ids.isEmpty())
        return;

    m_isEmpty = false;
    const auto [least, greatest] = std::minmax_element(ids.cbegin(), ids.cend());
    m_leastId = *least;
    m_first = static_cast<unsigned>(*least);
    m_last = static_cast<unsigned>(*greatest) - m_first;

    // The span of all ints does not fit into 32 bits.
    const quint64 span = quint64(m_last) + 1;
    if (span <= std::max(freeSpan, spanPerId * static_cast<quint64>(ids.size()))) {
        m_words.resize(static_cast<size_t>((span - 1) / wordBits + 1));
        for (int id : ids) {
            const unsigned offset = static_cast<unsigned>(id) - m_first;
            m_words[offset / wordBits] |= bitOf(offset);
        }
        return;
    }
    m_sorted.reserve(static_cast<size_t>(ids.size()));
    for (int id : ids)
        m_sorted.push_back(static_cast<unsigned>(id) - m_first);
    std::sort(m_sorted.begin(), m_sorted.end());
}

bool IdSet::isListed(unsigned offset) const
{
    return std::binary_search(m_sorted.begin(), m_sorted.end(), offset);
}

bool IdSet::isAnyListed(unsigned first, unsigned last) const
{
    if (m_words.empty()) {
        const auto next = std::lower_bound(m_sorted.begin(), m_sorted.end(), first);
        return next != m_sorted.end() && *next <= last;
    }
    if (last - first > searchedSpan)
        return true;

    const auto fromFirst = ~quint64(0) << (first % wordBits);
    const auto upToLast = ~quint64(0) >> (wordBits - 1 - last % wordBits);
    const unsigned lastWord = last / wordBits;
    unsigned word = first / wordBits;
    if (word == lastWord)
        return (m_words[word] & fromFirst & upToLast) != 0;
    if ((m_words[word] & fromFirst) != 0 || (m_words[lastWord] & upToLast) != 0)
        return true;
    while (++word < lastWord) {
        if (m_words[word] != 0)
            return true;
    }
    return false;
}

} // namespace dxfviewer
