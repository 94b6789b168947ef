// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/flatten/Point3.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace dxfviewer
{

/// The text without blanks at its ends.
std::string_view trimmed(std::string_view text);

/// The number that a text begins with, whatever the locale; 0 if there is none. What is too large
/// for a number is infinite.
double toNumber(std::string_view text);

/// The groups of one record of a drawing, from its name to the next.
class Record
{
public:
    struct Group {
        int code;
        std::string_view value;

        double number() const { return toNumber(value); }
        int integer() const;
    };

    /// Goes through the groups in order.
    class Iterator
    {
    public:
        Iterator(const Record& record, std::size_t index)
            : m_record(&record)
            , m_index(index)
        {
        }

        Group operator*() const { return m_record->group(m_index); }
        Iterator& operator++()
        {
            ++m_index;
            return *this;
        }
        bool operator!=(const Iterator& other) const { return m_index != other.m_index; }

    private:
        const Record* m_record;
        std::size_t m_index;
    };

    /// Begins another record. Blanks around its name are left out.
    void begin(std::string_view name);
    /// Adds a group unless it belongs to an application, to extended data or to an embedded object:
    /// their codes mean something else.
    void addGroup(int code, std::string_view value);

    const std::string& name() const { return m_name; }
    Iterator begin() const { return {*this, 0}; }
    Iterator end() const { return {*this, m_places.size()}; }

    /// @name The first group of a code
    /// @{
    bool has(int code) const;
    std::string_view text(int code) const;
    double number(int code, double missing = 0.0) const;
    int integer(int code, int missing = 0) const;
    /// The three coordinates whose first has this code; those that are missing come from the
    /// replacement.
    Point3 point(int code, const Point3& missing = {}) const;
    /// @}

private:
    struct Place {
        int code;
        std::size_t begin;
        std::size_t length;
    };

    Group group(std::size_t index) const;
    const Place* find(int code) const;
    std::string_view valueAt(const Place& place) const;

    std::string m_name;
    // The values of all groups behind each other.
    std::string m_values;
    std::vector<Place> m_places;
    bool m_isInApplication = false;
    bool m_isOver = false;
};

} // namespace dxfviewer
