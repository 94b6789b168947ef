// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/TextRepair.h"

#include "dxfviewer/io/GroupScan.h"
#include "dxfviewer/io/RecordCounts.h"
#include "dxfviewer/io/Utf8.h"
#include "dxfviewer/io/WorkMeter.h"

#include <algorithm>
#include <array>
#include <utility>

namespace
{

using dxfviewer::AnnouncedCount;
using dxfviewer::HatchLoops;
using dxfviewer::RecordCounts;

/// A group that makes dxflib drop the loops of the previous hatch and begins none itself.
constexpr std::string_view noLoops = "92\n0\n";
// A spline has the most.
constexpr std::size_t mostCounts = 3;
// Room for what the repair usually adds.
constexpr std::size_t spareShare = 8;

/// The part of a line that dxflib can read.
std::string_view readablePart(std::string_view line)
{
    const std::string_view text = line.substr(0, line.find('\0'));
    return text.substr(0, dxfviewer::utf8Prefix(text, dxfviewer::longestLine));
}

/// One pass over a text. The result is made from the first change on: a sound text is not copied.
class Repair
{
public:
    Repair(std::string_view text, IReadingSteps* steps);

    std::optional<std::string> takeResult();

private:
    /// Where a count stands in the result.
    struct Place {
        std::size_t at = 0;
        std::size_t length = 0;
    };

    void addGroup(std::string_view codeLine, std::string_view valueLine);
    void addLines(std::string_view codeLine, std::string_view valueLine);
    void noteCount(const AnnouncedCount& count, const Place& place);
    void endRecord(bool delivered);
    void repairCount(AnnouncedCount& count, const Place& place, bool delivered);
    void replace(const Place& place, std::string_view text);
    void beginResult();

    std::string_view m_text;
    bool m_hasZeros;
    /// Whether the text has not been changed yet. The result then is only a size.
    bool m_isSound = true;
    std::size_t m_size = 0;
    std::string m_result;
    RecordCounts m_counts;
    /// Where the counts of the current record stand, in their order.
    std::array<Place, mostCounts> m_places;
    /// Where the groups of the current record begin, after its name.
    std::size_t m_recordStart = 0;
};

Repair::Repair(std::string_view text, IReadingSteps* steps)
    : m_text(text)
    , m_hasZeros(text.find('\0') != std::string_view::npos)
{
    dxfviewer::WorkMeter meter(steps);
    const std::string_view rest = dxfviewer::scanGroups(
        text, [this, &meter](std::string_view codeLine, std::string_view valueLine) {
            meter.add();
            addGroup(codeLine, valueLine);
            return true;
        });
    endRecord(false);
    if (m_hasZeros || rest.size() > dxfviewer::longestLine)
        beginResult();
}

std::optional<std::string> Repair::takeResult()
{
    return m_isSound ? std::nullopt : std::optional(std::move(m_result));
}

inline void Repair::addGroup(std::string_view codeLine, std::string_view valueLine)
{
    if (m_hasZeros || std::max(codeLine.size(), valueLine.size()) > dxfviewer::longestLine) {
        beginResult();
        codeLine = readablePart(codeLine);
        valueLine = readablePart(valueLine);
    }
    const int code = dxfviewer::toInt(codeLine);
    if (dxfviewer::beginsRecord(code)) {
        endRecord(true);
        addLines(codeLine, valueLine);
        m_counts.beginRecord(dxfviewer::strippedValue(valueLine));
        m_recordStart = m_size;
        return;
    }
    if (dxfviewer::isBareVersionComment(code, dxfviewer::strippedValue(valueLine)))
        return beginResult();
    if (const AnnouncedCount* announced = m_counts.addGroup(code, valueLine))
        noteCount(*announced, {codeLine.size() + 1, valueLine.size()});
    if (dxfviewer::isReal(code) && dxfviewer::isBlank(valueLine)) {
        beginResult();
        valueLine = "0";
    }
    addLines(codeLine, valueLine);
}

inline void Repair::addLines(std::string_view codeLine, std::string_view valueLine)
{
    m_size += codeLine.size() + valueLine.size() + 2;
    if (m_isSound)
        return;
    m_result.append(codeLine).push_back('\n');
    m_result.append(valueLine).push_back('\n');
}

/// Takes note of a count in the group that is about to be added.
void Repair::noteCount(const AnnouncedCount& count, const Place& place)
{
    Place& noted = m_places[static_cast<std::size_t>(&count - m_counts.begin())];
    // Only the last one counts: dxflib must not allocate for the others.
    if (count.replacesOne())
        replace(noted, "0");
    noted = {m_size + place.at, place.length};
}

void Repair::endRecord(bool delivered)
{
    auto place = m_places.cbegin();
    for (AnnouncedCount& count : m_counts)
        repairCount(count, *place++, delivered);

    auto* loops = m_counts.hatchLoops();
    if (delivered && loops && !loops->isSound()) {
        replace({m_recordStart, 0}, noLoops);
        loops->addGroup(HatchLoops::loopCode, "0");
    }
}

void Repair::repairCount(AnnouncedCount& count, const Place& place, bool delivered)
{
    const int sound = count.soundCount();
    if (!count.isSound()) {
        const std::string digits = std::to_string(sound);
        if (count.isAnnounced())
            replace(place, digits);
        else if (delivered)
            replace({m_recordStart, 0}, std::to_string(count.countCode()) + '\n' + digits + '\n');
    }
    count.endRecord(sound);
}

/// The places of other counts move along with the text that they stand in.
void Repair::replace(const Place& place, std::string_view text)
{
    beginResult();
    const Place replaced = place;
    m_result.replace(replaced.at, replaced.length, text);
    m_size = m_result.size();
    for (Place& other : m_places) {
        if (other.at > replaced.at)
            other.at += text.size() - replaced.length;
    }
}

/// The lines so far are those of the text. The last one may lack its line feed.
void Repair::beginResult()
{
    if (!m_isSound)
        return;
    m_isSound = false;
    m_result.reserve(m_text.size() + m_text.size() / spareShare);
    m_result.assign(m_text.substr(0, m_size));
    m_result.resize(m_size, '\n');
}

} // namespace

namespace dxfviewer
{

std::optional<std::string> repaired(std::string_view text, IReadingSteps* steps)
{
    return Repair(text, steps).takeResult();
}

} // namespace dxfviewer
