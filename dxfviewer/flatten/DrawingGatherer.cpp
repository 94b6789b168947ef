// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/DrawingGatherer.h"

#include "dxfviewer/flatten/Curves.h"
#include "dxfviewer/flatten/EntityShapes.h"
#include "dxfviewer/flatten/Fineness.h"
#include "dxfviewer/flatten/InsertRecord.h"
#include "dxfviewer/flatten/TextShapes.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{

using namespace std::string_view_literals;

constexpr double usualStepDegrees = 5.625;
constexpr double shortestStepDegrees = 0.01;
constexpr double longestStepDegrees = 45.0;

constexpr int recordCode = 0;
constexpr int nameCode = 2;
constexpr int variableCode = 9;

// Groups of layers and line types that the reader would only log.
constexpr int dashCode = 49;
constexpr int extendedDataCode = 1000;

constexpr std::array sectionRecords{"SECTION"sv, "ENDSEC"sv, "EOF"sv};

constexpr std::array passedRecords{"TABLE"sv, "ENDTAB"sv, "LAYER"sv, "LTYPE"sv};

/// Other records of tables, which a text without sections may hold as well.
constexpr std::array tableRecords{
    "STYLE"sv, "VPORT"sv, "VIEW"sv, "UCS"sv, "APPID"sv, "DIMSTYLE"sv, "BLOCK_RECORD"sv,
};

/// Neither shown nor counted as skipped: other records show what they hold, or they are not drawn
/// at all.
constexpr std::array silentRecords{"SEQEND"sv, "VERTEX"sv, "ATTDEF"sv, "VIEWPORT"sv};

template <std::size_t Size>
bool isOneOf(const std::array<std::string_view, Size>& names, std::string_view name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// An attribute has a flag of its own that hides it.
bool isHiddenAttribute(const dxfviewer::Record& record)
{
    constexpr int flagsCode = 70;
    constexpr int hiddenFlag = 1;
    return record.name() == "ATTRIB"sv && (record.integer(flagsCode) & hiddenFlag) != 0;
}

double longestStepOf(const FlatteningOptions& options)
{
    const double degrees = options.maximalStepDegrees;
    return dxfviewer::radians(std::isnan(degrees)
                                  ? usualStepDegrees
                                  : std::clamp(degrees, shortestStepDegrees, longestStepDegrees));
}

} // namespace

namespace dxfviewer
{

DrawingGatherer::DrawingGatherer(const FlatteningOptions& options, IReadingSteps* steps)
    : m_options(options)
    , m_meter(steps)
    , m_longestStep(longestStepOf(options))
{
    if (m_options.showsTexts && TextOutlines::areAvailable())
        m_outlines.emplace(m_options.fontFamily);
}

bool DrawingGatherer::takeGroup(int code, std::string_view value)
{
    if (code == recordCode) {
        endRecord();
        beginRecord(trimmed(value));
        return m_use != Use::Passed;
    }
    if (m_awaitsSectionName && code == nameCode) {
        beginSection(trimmed(value));
        return false;
    }
    if (m_section == Section::None && code == variableCode) {
        endRecord();
        m_use = Use::Dropped;
    }
    if (m_use == Use::Gathered)
        m_record.addGroup(code, value);
    return m_use != Use::Passed || code == dashCode || code >= extendedDataCode;
}

void DrawingGatherer::beginRecord(std::string_view name)
{
    m_awaitsSectionName = name == "SECTION"sv;
    m_use = useOf(name);
    if (isOneOf(sectionRecords, name)) {
        endPolyline();
        m_section = Section::None;
        m_block = Drawing::model;
    }
    if (m_use == Use::Gathered)
        m_record.begin(name);
}

DrawingGatherer::Use DrawingGatherer::useOf(std::string_view name)
{
    if (isOneOf(sectionRecords, name))
        return Use::Passed;
    if (m_section == Section::Tables || m_section == Section::None) {
        if (isOneOf(passedRecords, name))
            return Use::Passed;
        if (m_section == Section::Tables || isOneOf(tableRecords, name))
            return Use::Dropped;
    }
    return m_section == Section::Other || m_isTooLarge ? Use::Dropped : Use::Gathered;
}

void DrawingGatherer::beginSection(std::string_view name)
{
    m_awaitsSectionName = false;
    if (name == "TABLES"sv)
        m_section = Section::Tables;
    else if (name == "ENTITIES"sv || name == "BLOCKS"sv)
        m_section = Section::Entities;
    else
        m_section = Section::Other;
    m_use = Use::Dropped;
}

void DrawingGatherer::finish()
{
    endRecord();
    endPolyline();
}

void DrawingGatherer::endRecord()
{
    if (m_use == Use::Gathered)
        addRecord();
    m_use = Use::Dropped;
}

void DrawingGatherer::addRecord()
{
    const std::string& name = m_record.name();
    if (name == "VERTEX"sv && m_polyline) {
        m_polyline->polyline.addVertex(m_record);
        return;
    }
    endPolyline();
    if (name == "BLOCK"sv)
        m_block = m_drawing.define(m_record.text(nameCode), m_record.point(10));
    else if (name == "ENDBLK"sv)
        m_block = Drawing::model;
    else if (name == "POLYLINE"sv)
        m_polyline =
            OpenPolyline{OldPolyline(m_record), appearanceOf(m_record), m_drawing.kindId(name)};
    else if (!isOneOf(silentRecords, name))
        addEntity();
}

void DrawingGatherer::endPolyline()
{
    if (m_polyline && admits(m_polyline->appearance, false)) {
        addShapes(m_polyline->kind, m_drawing.looks().idOf(m_polyline->appearance.look),
                  [this](Chains& chains, const Fineness& fineness) {
                      m_polyline->polyline.appendTo(chains, fineness);
                      return true;
                  });
    }
    m_polyline.reset();
}

void DrawingGatherer::addEntity()
{
    const Appearance appearance = appearanceOf(m_record);
    if (!admits(appearance, isHiddenAttribute(m_record)))
        return;

    const std::size_t kind = m_drawing.kindId(m_record.name());
    const std::size_t look = m_drawing.looks().idOf(appearance.look);
    if (insertsBlock(m_record)) {
        addInsert(kind, look);
        return;
    }
    addShapes(kind, look, [this](Chains& chains, const Fineness& fineness) {
        return append(chains, fineness);
    });
}

void DrawingGatherer::addInsert(std::size_t kind, std::size_t look)
{
    const std::string_view name = trimmed(m_record.text(nameCode));
    BlockInsert insert = insertOf(m_record);
    if (name.empty() || !isFinite(insert.placement.origin + insert.placement.xAxis)) {
        skip(kind);
        return;
    }
    insert.block = m_drawing.blockId(name);
    block().items.push_back({static_cast<std::uint32_t>(look), static_cast<std::uint32_t>(kind),
                             static_cast<std::int32_t>(block().inserts.size())});
    block().inserts.push_back(insert);
}

template <typename Append>
void DrawingGatherer::addShapes(std::size_t kind, std::size_t look, Append append)
{
    Chains& chains = block().chains;
    const Chains::Mark before = chains.mark();
    const auto most = static_cast<std::size_t>(std::max<qint64>(m_options.maximalVertices, 0));
    const std::size_t room = most - std::min(most, m_pointCount);
    const bool isDrawn = append(chains, Fineness{m_longestStep, before.points + room + 1, m_meter});
    if (!isDrawn || !chains.isFiniteSince(before)) {
        chains.goBackTo(before);
        skip(kind);
        return;
    }

    const Chains::Mark after = chains.mark();
    for (std::size_t chain = before.chains; chain < after.chains; ++chain)
        block().items.push_back(
            {static_cast<std::uint32_t>(look), static_cast<std::uint32_t>(kind), -1});
    if (after.chains > before.chains)
        ++block().shown[kind];
    m_pointCount += after.points - before.points;
    m_isTooLarge = m_isTooLarge || m_pointCount > most;
}

/// Appends the chains of the record. False if it is not shown.
bool DrawingGatherer::append(Chains& chains, const Fineness& fineness) const
{
    return m_outlines && isText(m_record) ? appendText(chains, m_record, fineness, *m_outlines)
                                          : appendEntity(chains, m_record, fineness);
}

/// In a block the flag of paper space means nothing: the block is shown where it is inserted.
bool DrawingGatherer::isElsewhere(const Appearance& appearance) const
{
    return appearance.look.isInPaperSpace && m_block == Drawing::model
           && !m_options.showsPaperSpace;
}

/// Whether an entity is to be shown. If not, it is counted.
bool DrawingGatherer::admits(const Appearance& appearance, bool isHidden)
{
    if (isElsewhere(appearance)) {
        ++block().elsewhere;
        return false;
    }
    if (appearance.isInvisible || isHidden) {
        ++block().invisible;
        return false;
    }
    return true;
}

void DrawingGatherer::skip(std::size_t kind)
{
    ++block().skipped[kind];
}

} // namespace dxfviewer
