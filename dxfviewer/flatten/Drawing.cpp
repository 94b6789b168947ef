// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/Drawing.h"

#include "dxfviewer/flatten/Record.h"

#include <QString>

namespace
{

std::string folded(std::string_view given)
{
    const std::string_view name = dxfviewer::trimmed(given);
    return QString::fromUtf8(name.data(), static_cast<int>(name.size()))
        .toCaseFolded()
        .toStdString();
}

/// The content of the layout that was used last stands among the entities, that of the others in
/// blocks. Old drawings use the second name.
bool isNameOfLayout(std::string_view given)
{
    const std::string name = folded(given);
    return name.rfind("*paper_space", 0) == 0 || name.rfind("$paper_space", 0) == 0;
}

} // namespace

namespace dxfviewer
{

Drawing::Drawing()
    : m_blocks(1)
{
    m_blocks.front().isDefined = true;
}

std::size_t Drawing::blockId(std::string_view name)
{
    const auto [known, isNew] = m_blockIds.try_emplace(folded(name), m_blocks.size());
    if (isNew)
        m_blocks.emplace_back();
    return known->second;
}

std::size_t Drawing::define(std::string_view name, const Point3& base)
{
    std::size_t id = blockId(name);
    if (m_blocks[id].isDefined) {
        id = m_blocks.size();
        m_blocks.emplace_back();
    }
    m_blocks[id].isDefined = true;
    m_blocks[id].isLayout = isNameOfLayout(name);
    m_blocks[id].base = base;
    return id;
}

std::size_t Drawing::kindId(const std::string& name)
{
    const auto [known, isNew] = m_kindIds.try_emplace(name, m_kindNames.size());
    if (isNew)
        m_kindNames.push_back(name);
    return known->second;
}

} // namespace dxfviewer
