// SPDX-License-Identifier: GPL-2.0-or-later

#include "fuzz/GroupMutator.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace dxffuzz
{

namespace
{

using std::string_view_literals::operator""sv;

constexpr std::array records{
    "0\nSECTION\n2\nENTITIES\n"sv,
    "0\nENDSEC\n"sv,
    "0\nEOF\n"sv,
    "0\nTABLE\n2\nLTYPE\n70\n1\n"sv,
    "0\nLTYPE\n2\nDASHED\n70\n0\n3\n__ __\n72\n65\n73\n2\n40\n0.75\n49\n0.5\n49\n-0.25\n"sv,
    "0\nLAYER\n2\nWalls\n70\n0\n62\n5\n6\nDASHED\n"sv,
    "0\nSTYLE\n2\nText\n70\n0\n40\n2.5\n3\ntxt\n"sv,
    "0\nBLOCK\n8\n0\n2\nDoor\n70\n0\n10\n0\n20\n0\n3\nDoor\n"sv,
    "0\nENDBLK\n"sv,
    "0\nPOLYLINE\n8\n0\n66\n1\n70\n1\n"sv,
    "0\nVERTEX\n8\n0\n10\n1.5\n20\n-2.5\n30\n0\n42\n0.5\n"sv,
    "0\nSEQEND\n"sv,
    "0\nLWPOLYLINE\n8\n0\n90\n3\n70\n1\n10\n0\n20\n0\n10\n4\n20\n0\n42\n1\n10\n4\n20\n3\n"sv,
    "0\nLWPOLYLINE\n"sv,
    "0\nSPLINE\n71\n3\n72\n4\n73\n2\n74\n1\n40\n0\n40\n0\n40\n1\n40\n1\n10\n0\n20\n0\n10\n1\n20\n1\n11\n2\n21\n2\n"sv,
    "0\nSPLINE\n"sv,
    "0\nLEADER\n76\n2\n10\n0\n20\n0\n10\n1\n20\n1\n"sv,
    "0\nHATCH\n2\nSOLID\n91\n1\n92\n1\n93\n2\n72\n1\n10\n0\n20\n0\n11\n1\n21\n0\n72\n2\n10\n0\n20\n0\n40\n1\n50\n0\n51\n90\n73\n1\n"sv,
    "0\nHATCH\n91\n1\n92\n7\n93\n2\n10\n0\n20\n0\n10\n1\n20\n1\n"sv,
    "0\nHATCH\n91\n1\n92\n1\n93\n1\n72\n4\n94\n3\n95\n4\n96\n2\n40\n0\n40\n1\n10\n0\n20\n0\n"sv,
    "0\nMTEXT\n10\n0\n20\n0\n40\n2\n3\nchunk\n1\nend\n"sv,
    "0\nTEXT\n10\n0\n20\n0\n40\n2\n1\nRoom\n"sv,
    "0\nIMAGE\n340\n1A\n10\n0\n20\n0\n"sv,
    "0\nIMAGEDEF\n5\n1A\n1\nplan.png\n"sv,
    "0\nLINE\n10\n0\n20\n0\n11\n1\n21\n1\n"sv,
    "0\nARC\n10\n0\n20\n0\n40\n1\n50\n0\n51\n90\n"sv,
    "0\nDIMENSION\n70\n5\n10\n0\n20\n0\n13\n1\n23\n1\n"sv,
    "0\nINSERT\n2\nDoor\n10\n0\n20\n0\n"sv,
    "0\nINSERT\n2\nDoor\n10\n5\n41\n-2\n50\n30\n70\n3\n71\n2\n44\n10\n45\n7\n230\n-1\n"sv,
    "0\nINSERT\n2\nWall\n10\n1\n70\n1000000000\n"sv,
    "0\nBLOCK\n2\nDoor\n10\n1\n0\nLINE\n8\n0\n62\n0\n11\n1\n0\nINSERT\n2\nWall\n0\nENDBLK\n"sv,
    "0\nBLOCK\n2\nWall\n0\nPOINT\n10\n1\n0\nINSERT\n2\nDoor\n70\n2\n0\nENDBLK\n"sv,
    "0\nDIMENSION\n2\nDoor\n12\n1\n22\n1\n"sv,
    "0\nACAD_TABLE\n2\nWall\n10\n1\n11\n0\n21\n1\n"sv,
    "0\nCIRCLE\n10\n1\n20\n1\n40\n2\n210\n0\n220\n0.5\n230\n-1\n"sv,
    "0\nELLIPSE\n10\n0\n20\n0\n11\n2\n21\n1\n40\n0.5\n41\n0\n42\n3\n"sv,
    "0\nSPLINE\n71\n2\n11\n0\n21\n0\n11\n4\n21\n2\n11\n8\n21\n0\n12\n0\n22\n1\n"sv,
    "0\n3DFACE\n10\n0\n11\n1\n12\n1\n22\n1\n70\n5\n"sv,
    "0\nSOLID\n10\n0\n11\n1\n12\n0\n22\n1\n"sv,
    "0\nPOLYLINE\n70\n16\n71\n2\n72\n2\n"sv,
    "0\nPOLYLINE\n70\n64\n"sv,
    "0\nVERTEX\n10\n1\n20\n2\n70\n64\n"sv,
    "0\nVERTEX\n70\n128\n71\n1\n72\n-2\n73\n3\n"sv,
    "0\nXRECORD\n5\n2B\n280\n1\n290\n1\n40\n1.5\n1\ntext\n"sv,
    "0\nDICTIONARY\n5\n2C\n3\nname\n350\n2D\n"sv,
    "9\n$LTSCALE\n40\n1.0\n"sv,
    "9\n$EXTMIN\n10\n0\n20\n0\n30\n0\n"sv,
    "999\ndxflib\n"sv,
    "999\ndxflib 3.26.4.0\n"sv,
    "999\nnote\n"sv,
    "1001\nAPP\n1000\nstring\n1040\n1.5\n1070\n7\n"sv,
};

constexpr std::array codes{
    "12"sv,   "43"sv,         "44"sv,         "45"sv,   "51"sv,
    "101"sv,  "102"sv,        "220"sv,        "230"sv,  "0"sv,
    "1"sv,    "2"sv,          "3"sv,          "5"sv,    "6"sv,
    "8"sv,    "9"sv,          "10"sv,         "11"sv,   "13"sv,
    "20"sv,   "21"sv,         "30"sv,         "39"sv,   "40"sv,
    "41"sv,   "42"sv,         "48"sv,         "49"sv,   "50"sv,
    "60"sv,   "62"sv,         "66"sv,         "67"sv,   "70"sv,
    "71"sv,   "72"sv,         "73"sv,         "74"sv,   "75"sv,
    "76"sv,   "78"sv,         "90"sv,         "91"sv,   "92"sv,
    "93"sv,   "94"sv,         "95"sv,         "96"sv,   "97"sv,
    "100"sv,  "110"sv,        "149"sv,        "210"sv,  "290"sv,
    "340"sv,  "350"sv,        "370"sv,        "420"sv,  "999"sv,
    "1000"sv, "1001"sv,       "1010"sv,       "1059"sv, "1071"sv,
    "-1"sv,   "4294967296"sv, "4294967306"sv, "x"sv,    ""sv,
    " 10"sv,  "010"sv,        "0x0A"sv,       "10.5"sv, "999999999999999999999"sv,
};

constexpr std::array values{
    ""sv,
    " "sv,
    "\t"sv,
    "0"sv,
    "1"sv,
    "-1"sv,
    "2"sv,
    "7"sv,
    "255"sv,
    "256"sv,
    "257"sv,
    "1024"sv,
    "65536"sv,
    "100000000"sv,
    "357913942"sv,
    "536870911"sv,
    "536870912"sv,
    "715827883"sv,
    "1073741824"sv,
    "1073741825"sv,
    "1431655766"sv,
    "2147483646"sv,
    "2147483647"sv,
    "2147483648"sv,
    "-2147483647"sv,
    "-2147483648"sv,
    "4294967295"sv,
    "4294967296"sv,
    "9223372036854775807"sv,
    "9223372036854775808"sv,
    "99999999999999999999999"sv,
    "0x10"sv,
    "3.7"sv,
    "1e3"sv,
    "1,5"sv,
    "-0.0"sv,
    "1e-320"sv,
    "1e-17"sv,
    "0.1"sv,
    "123456789.123456789"sv,
    "1e15"sv,
    "1e16"sv,
    "1e237"sv,
    "1e239"sv,
    "1e300"sv,
    "1.7976931348623157e308"sv,
    "-1e308"sv,
    "1e309"sv,
    "1e400"sv,
    "-1e400"sv,
    "nan"sv,
    "inf"sv,
    "-inf"sv,
    "infinity"sv,
    "0x1p3"sv,
    "1e"sv,
    "."sv,
    "+"sv,
    "--1"sv,
    "1 2"sv,
    "CONTINUOUS"sv,
    "BYLAYER"sv,
    "ByBlock"sv,
    "dxflib"sv,
    "dxflib 1.2"sv,
    "ENTITIES"sv,
    "$ACADVER"sv,
    "AC1009"sv,
    "AC1015"sv,
    "AC1021"sv,
    "$DWGCODEPAGE"sv,
    "ANSI_932"sv,
    "ANSI_1251"sv,
    "Door"sv,
    "Wall"sv,
    "16"sv,
    "64"sv,
    "128"sv,
    "\\U+D83D\\U+DE00"sv,
    "\\U+000A"sv,
    "\xC3\xA4\xE2\x82\xAC"sv,
    "\xC3"sv,
    "\xEF\xBB\xBF"sv,
    "%s%n"sv,
    "\\U+00E4"sv,
    "{\\A1;x}"sv,
};

constexpr std::array counts{"72"sv, "73"sv, "74"sv, "76"sv, "90"sv, "92"sv, "93"sv};

/// Lengths around those at which readers cut lines, and far beyond.
constexpr std::array<std::size_t, 10> lengths{1021, 1022, 1023, 1024, 1025,
                                              2046, 2047, 2049, 3069, 5000};

constexpr std::size_t longestText = 1u << 20;

std::string nextLine(std::string_view& text)
{
    const auto end = text.find('\n');
    const std::string line(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return line;
}

void insert(Groups& groups, std::size_t place, const Groups& added)
{
    groups.insert(groups.begin() + static_cast<std::ptrdiff_t>(place), added.begin(), added.end());
}

Groups slice(const Groups& groups, std::size_t begin, std::size_t end)
{
    return Groups(groups.begin() + static_cast<std::ptrdiff_t>(begin),
                  groups.begin() + static_cast<std::ptrdiff_t>(end));
}

void erase(Groups& groups, std::size_t begin, std::size_t end)
{
    groups.erase(groups.begin() + static_cast<std::ptrdiff_t>(begin),
                 groups.begin() + static_cast<std::ptrdiff_t>(end));
}

bool startsRecord(const Group& group)
{
    return group.code.find_first_not_of(" \t0\r") == std::string::npos
           && group.code.find('0') != std::string::npos;
}

} // namespace

Groups groupsOf(std::string_view text)
{
    Groups groups;
    while (!text.empty()) {
        Group group;
        group.code = nextLine(text);
        group.value = nextLine(text);
        groups.push_back(std::move(group));
    }
    return groups;
}

std::string textOf(const Groups& groups)
{
    std::string text;
    for (const Group& group : groups) {
        text += group.code;
        text += '\n';
        text += group.value;
        text += '\n';
        if (text.size() > longestText)
            break;
    }
    return text;
}

GroupMutator::GroupMutator(unsigned seed)
    : m_random(seed)
{
}

template <typename List>
auto GroupMutator::pick(const List& list)
{
    return list[below(std::size(list))];
}

void GroupMutator::mutate(Groups& groups)
{
    using Mutation = void (GroupMutator::*)(Groups&);
    // Some are listed several times because they find more.
    static constexpr std::array<Mutation, 18> mutations{
        &GroupMutator::eraseGroups,  &GroupMutator::eraseRecord,    &GroupMutator::repeatGroups,
        &GroupMutator::repeatRecord, &GroupMutator::moveRecord,     &GroupMutator::swapGroups,
        &GroupMutator::insertGroup,  &GroupMutator::insertRecord,   &GroupMutator::changeCode,
        &GroupMutator::changeValue,  &GroupMutator::changeCount,    &GroupMutator::lengthenLine,
        &GroupMutator::insertByte,   &GroupMutator::endLinesInCrLf, &GroupMutator::insertRecord,
        &GroupMutator::changeValue,  &GroupMutator::changeCount,    &GroupMutator::insertRecord,
    };
    if (groups.empty())
        insertRecord(groups);
    (this->*pick(mutations))(groups);
}

Groups GroupMutator::cross(const Groups& head, const Groups& tail)
{
    Groups crossed = slice(head, 0, place(head));
    insert(crossed, crossed.size(), slice(tail, place(tail), tail.size()));
    return crossed;
}

std::size_t GroupMutator::below(std::size_t limit)
{
    return limit == 0 ? 0 : m_random() % limit;
}

std::size_t GroupMutator::place(const Groups& groups)
{
    return below(groups.size() + 1);
}

GroupMutator::Range GroupMutator::someGroups(const Groups& groups)
{
    constexpr std::size_t most = 6;
    const std::size_t begin = below(groups.size());
    return {begin, std::min(groups.size(), begin + 1 + below(most))};
}

GroupMutator::Range GroupMutator::someRecord(const Groups& groups)
{
    std::size_t begin = below(groups.size());
    while (begin > 0 && !startsRecord(groups[begin]))
        --begin;
    std::size_t end = begin + 1;
    while (end < groups.size() && !startsRecord(groups[end]))
        ++end;
    return {begin, std::min(end, groups.size())};
}

std::string GroupMutator::hostileValue()
{
    constexpr unsigned mostlyListed = 4;
    return below(mostlyListed) ? std::string(pick(values)) : std::to_string(int(m_random()));
}

void GroupMutator::eraseGroups(Groups& groups)
{
    const Range range = someGroups(groups);
    erase(groups, range.begin, range.end);
}

void GroupMutator::eraseRecord(Groups& groups)
{
    const Range range = someRecord(groups);
    erase(groups, range.begin, range.end);
}

void GroupMutator::repeatGroups(Groups& groups)
{
    const Range range = someGroups(groups);
    insert(groups, place(groups), slice(groups, range.begin, range.end));
}

void GroupMutator::repeatRecord(Groups& groups)
{
    constexpr std::size_t most = 40;
    const Range range = someRecord(groups);
    const Groups record = slice(groups, range.begin, range.end);
    const std::size_t times = below(8) ? 1 : 1 + below(most);
    for (std::size_t i = 0; i < times; ++i)
        insert(groups, range.end, record);
}

void GroupMutator::moveRecord(Groups& groups)
{
    const Range range = someRecord(groups);
    const Groups record = slice(groups, range.begin, range.end);
    erase(groups, range.begin, range.end);
    const Range before = someRecord(groups);
    insert(groups, std::min(before.begin, groups.size()), record);
}

void GroupMutator::swapGroups(Groups& groups)
{
    std::swap(groups[below(groups.size())], groups[below(groups.size())]);
}

void GroupMutator::insertGroup(Groups& groups)
{
    insert(groups, place(groups), {{std::string(pick(codes)), hostileValue()}});
}

void GroupMutator::insertRecord(Groups& groups)
{
    const std::size_t begin = groups.empty() || !below(8) ? place(groups) : someRecord(groups).end;
    insert(groups, begin, groupsOf(pick(records)));
}

void GroupMutator::changeCode(Groups& groups)
{
    groups[below(groups.size())].code = pick(codes);
}

void GroupMutator::changeValue(Groups& groups)
{
    groups[below(groups.size())].value = hostileValue();
}

/// A count that is wrong, missing, late or given twice finds the most errors.
void GroupMutator::changeCount(Groups& groups)
{
    const Range record = someRecord(groups);
    const std::string code(pick(counts));
    const auto begin = groups.begin() + static_cast<std::ptrdiff_t>(record.begin);
    const auto end = groups.begin() + static_cast<std::ptrdiff_t>(record.end);
    const auto found =
        std::find_if(begin, end, [&code](const Group& group) { return group.code == code; });
    if (found == end)
        insert(groups, record.begin + 1 + below(record.end - record.begin),
               {{code, hostileValue()}});
    else if (below(4))
        found->value = hostileValue();
    else
        groups.erase(found);
}

void GroupMutator::lengthenLine(Groups& groups)
{
    constexpr std::array fillings{"x"sv, " "sv, "1"sv, "0"sv, "\xC3\xA4"sv, "\xE2\x82\xAC"sv};
    Group& group = groups[below(groups.size())];
    std::string& line = below(4) ? group.value : group.code;
    const std::size_t length = pick(lengths);
    const std::string_view filling = pick(fillings);
    while (line.size() < length)
        line += filling;
}

void GroupMutator::insertByte(Groups& groups)
{
    constexpr std::array bytes{'\0', '\r', '\n', '\t', ' ', '\x7f', '\x80', '\xff', '\x1a'};
    Group& group = groups[below(groups.size())];
    std::string& line = below(4) ? group.value : group.code;
    line.insert(below(line.size() + 1), 1, pick(bytes));
}

void GroupMutator::endLinesInCrLf(Groups& groups)
{
    for (Group& group : groups) {
        group.code += '\r';
        group.value += '\r';
    }
}

} // namespace dxffuzz
