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

} // namespace

IdSet::IdSet(const QVector<int>& ids)
{
    if (ids.isEmpty())
        return;

    const auto [least, greatest] = std::minmax_element(ids.cbegin(), ids.cend());
    m_first = static_cast<unsigned>(*least);
    m_last = static_cast<unsigned>(*greatest) - m_first;

    // That of all ints would not fit into 32 bits.
    const quint64 span = quint64(m_last) + 1;
    if (span <= std::max(freeSpan, spanPerId * static_cast<quint64>(ids.size()))) {
        m_bits.resize(static_cast<size_t>(span));
        for (int id : ids)
            m_bits[static_cast<unsigned>(id) - m_first] = true;
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

} // namespace dxfviewer
