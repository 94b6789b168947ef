// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/Look.h"

#include "dxfviewer/flatten/Record.h"

#include <QLatin1String>
#include <QString>

namespace
{

constexpr int lineTypeCode = 6;
constexpr int layerCode = 8;
constexpr int scaleCode = 48;
constexpr int invisibleCode = 60;
constexpr int colorCode = 62;
constexpr int paperSpaceCode = 67;
constexpr int widthCode = 370;
constexpr int trueColorCode = 420;

bool isNamed(const std::string& lineType, const char* name)
{
    return QLatin1String(lineType.data(), static_cast<int>(lineType.size()))
               .compare(QLatin1String(name), Qt::CaseInsensitive)
           == 0;
}

} // namespace

namespace dxfviewer
{

bool Look::operator==(const Look& other) const
{
    return color == other.color && color24 == other.color24 && width == other.width
           && lineTypeScale == other.lineTypeScale && isInPaperSpace == other.isInPaperSpace
           && layer == other.layer && lineType == other.lineType;
}

std::string Look::key() const
{
    std::string text = layer;
    // No value of a drawing holds a line end.
    constexpr char separator = '\n';
    text += separator;
    text += lineType;
    for (const int number : {color, color24, width, static_cast<int>(isInPaperSpace)}) {
        text += separator;
        text += std::to_string(number);
    }
    text += separator;
    text.append(reinterpret_cast<const char*>(&lineTypeScale), sizeof lineTypeScale);
    return text;
}

bool isByBlock(const std::string& lineType)
{
    return isNamed(lineType, "BYBLOCK");
}

bool isByLayer(const std::string& lineType)
{
    return lineType.empty() || isNamed(lineType, "BYLAYER");
}

Appearance appearanceOf(const Record& record)
{
    Appearance appearance;
    Look& look = appearance.look;
    for (const Record::Group group : record) {
        switch (group.code) {
        case lineTypeCode:
            look.lineType = group.value;
            break;
        case layerCode:
            look.layer = group.value;
            break;
        case scaleCode:
            look.lineTypeScale = group.number();
            break;
        case invisibleCode:
            appearance.isInvisible = group.integer() != 0;
            break;
        case colorCode:
            look.color = group.integer();
            break;
        case paperSpaceCode:
            look.isInPaperSpace = group.integer() != 0;
            break;
        case widthCode:
            look.width = group.integer();
            break;
        case trueColorCode:
            look.color24 = group.integer();
            break;
        default:
            break;
        }
    }
    return appearance;
}

std::size_t Looks::idOf(const Look& look)
{
    if (!m_looks.empty() && m_looks[m_last] == look)
        return m_last;
    const auto [known, isNew] = m_ids.try_emplace(look.key(), m_looks.size());
    if (isNew)
        m_looks.push_back(look);
    m_last = known->second;
    return m_last;
}

} // namespace dxfviewer
