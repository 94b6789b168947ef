// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/Chains.h"

#include <algorithm>

namespace dxfviewer
{

void Chains::close()
{
    constexpr std::size_t fewestPoints = 2;
    const std::size_t begin = m_ends.empty() ? 0 : m_ends.back();
    if (m_points.size() - begin < fewestPoints)
        m_points.resize(begin);
    else
        m_ends.push_back(m_points.size());
}

void Chains::goBackTo(const Mark& mark)
{
    m_points.resize(mark.points);
    m_ends.resize(mark.chains);
}

bool Chains::isFiniteSince(const Mark& mark) const
{
    return std::all_of(m_points.begin() + static_cast<std::ptrdiff_t>(mark.points), m_points.end(),
                       [](const Point3& point) { return isFinite(point); });
}

} // namespace dxfviewer
