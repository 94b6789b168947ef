// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/Record.h"

#include "dxfviewer/io/GroupScan.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace
{

constexpr int embeddedObject = 101;
constexpr int application = 102;
constexpr int binaryData = 310;
constexpr int extendedData = 1000;

constexpr int toSecondCoordinate = 10;
constexpr int toThirdCoordinate = 20;

} // namespace

namespace dxfviewer
{

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

double toNumber(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    if (!text.empty() && text.front() == '+')
        text.remove_prefix(1);

    double value = 0.0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec != std::errc::result_out_of_range)
        return value;
    // Too large or too small: the standard does not say which, but a long double tells. Qt 5 and
    // Qt 6 treat numbers beyond a double differently, so Qt is not asked.
    long double wide = std::numeric_limits<long double>::infinity();
    std::from_chars(text.data(), result.ptr, wide);
    constexpr long double greatest = std::numeric_limits<double>::max();
    if (wide > greatest)
        return std::numeric_limits<double>::infinity();
    return wide < -greatest ? -std::numeric_limits<double>::infinity() : static_cast<double>(wide);
}

int Record::Group::integer() const
{
    return toInt(value);
}

void Record::begin(std::string_view name)
{
    m_name = trimmed(name);
    m_values.clear();
    m_places.clear();
    m_isInApplication = false;
    m_isOver = false;
}

void Record::addGroup(int code, std::string_view value)
{
    if (code == embeddedObject || code >= extendedData)
        m_isOver = true;
    if (code == application)
        m_isInApplication = trimmed(value).substr(0, 1) == "{";
    if (m_isOver || m_isInApplication || code == application || code == binaryData)
        return;

    const std::string_view kept = strippedValue(value);
    m_places.push_back({code, m_values.size(), kept.size()});
    m_values.append(kept);
}

Record::Group Record::group(std::size_t index) const
{
    const Place& place = m_places[index];
    return {place.code, valueAt(place)};
}

const Record::Place* Record::find(int code) const
{
    const auto found = std::find_if(m_places.begin(), m_places.end(),
                                    [code](const Place& place) { return place.code == code; });
    return found == m_places.end() ? nullptr : &*found;
}

std::string_view Record::valueAt(const Place& place) const
{
    return std::string_view(m_values).substr(place.begin, place.length);
}

bool Record::has(int code) const
{
    return find(code) != nullptr;
}

std::string_view Record::text(int code) const
{
    const Place* place = find(code);
    return place ? valueAt(*place) : std::string_view();
}

double Record::number(int code, double missing) const
{
    const Place* place = find(code);
    return place ? toNumber(valueAt(*place)) : missing;
}

int Record::integer(int code, int missing) const
{
    const Place* place = find(code);
    return place ? toInt(valueAt(*place)) : missing;
}

Point3 Record::point(int code, const Point3& missing) const
{
    return {number(code, missing.x), number(code + toSecondCoordinate, missing.y),
            number(code + toThirdCoordinate, missing.z)};
}

} // namespace dxfviewer
