// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/TextRepair.h"

#include "dxfviewer/io/GroupScan.h"
#include "dxfviewer/io/RecordCounts.h"
#include "dxfviewer/io/Utf8.h"
#include "dxfviewer/io/WorkMeter.h"

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

class Repair
{
public:
    Repair(std::string_view text, IReadingSteps* steps);

    std::string takeText() { return std::move(m_text); }

private:
    /// Where a count stands in the repaired text.
    struct Place {
        std::size_t at = 0;
        std::size_t length = 0;
    };

    void addGroup(std::string_view codeLine, std::string_view valueLine);
    void addCount(int code, std::string_view value);
    void addLine(std::string_view line);
    void endRecord(bool delivered);
    void repairCount(AnnouncedCount& count, Place& place, bool delivered);
    void replace(const Place& place, const std::string& text);

    std::string m_text;
    RecordCounts m_counts;
    /// Where the counts of the current record stand, in their order.
    std::array<Place, mostCounts> m_places;
    /// Where the groups of the current record begin, after its name.
    std::size_t m_recordStart = 0;
};

Repair::Repair(std::string_view text, IReadingSteps* steps)
{
    dxfviewer::WorkMeter meter(steps);
    m_text.reserve(text.size() + text.size() / spareShare);
    dxfviewer::scanGroups(text,
                          [this, &meter](std::string_view codeLine, std::string_view valueLine) {
                              meter.add();
                              addGroup(codeLine, valueLine);
                              return true;
                          });
    endRecord(false);
}

void Repair::addGroup(std::string_view codeLine, std::string_view valueLine)
{
    const std::string_view codeText = readablePart(codeLine);
    const std::string_view value = readablePart(valueLine);
    const int code = dxfviewer::toInt(codeText);
    if (dxfviewer::isBareVersionComment(code, dxfviewer::strippedValue(value)))
        return;

    const bool begins = dxfviewer::beginsRecord(code);
    if (begins)
        endRecord(true);
    addLine(codeText);
    if (!begins)
        addCount(code, value);
    addLine(dxfviewer::isReal(code) && dxfviewer::isBlank(value) ? "0" : value);
    if (begins) {
        m_counts.beginRecord(dxfviewer::strippedValue(value));
        m_recordStart = m_text.size();
    }
}

/// Takes note of the group whose value is about to be added.
void Repair::addCount(int code, std::string_view value)
{
    const AnnouncedCount* announced = m_counts.addGroup(code, value);
    if (!announced)
        return;
    Place& place = m_places[static_cast<std::size_t>(announced - m_counts.begin())];
    // Only the last one counts: dxflib must not allocate for the others.
    if (announced->replacesOne())
        replace(place, "0");
    place = {m_text.size(), value.size()};
}

void Repair::addLine(std::string_view line)
{
    m_text.append(line);
    m_text.push_back('\n');
}

void Repair::endRecord(bool delivered)
{
    auto place = m_places.begin();
    for (AnnouncedCount& count : m_counts)
        repairCount(count, *place++, delivered);

    auto* loops = m_counts.hatchLoops();
    if (delivered && loops && !loops->isSound()) {
        m_text.insert(m_recordStart, noLoops);
        loops->addGroup(HatchLoops::loopCode, "0");
    }
}

void Repair::repairCount(AnnouncedCount& count, Place& place, bool delivered)
{
    const int sound = count.soundCount();
    const std::string digits = std::to_string(sound);
    if (count.isSound()) {
        // It stays as it is.
    } else if (count.isAnnounced()) {
        replace(place, digits);
    } else if (delivered) {
        replace({m_recordStart, 0}, std::to_string(count.countCode()) + '\n' + digits + '\n');
    }
    count.endRecord(sound);
}

/// The places of other counts move along with the text that they stand in.
void Repair::replace(const Place& place, const std::string& text)
{
    const Place replaced = place;
    m_text.replace(replaced.at, replaced.length, text);
    for (Place& other : m_places) {
        if (other.at > replaced.at)
            other.at += text.size() - replaced.length;
    }
}

} // namespace

namespace dxfviewer
{

std::string repaired(std::string_view text, IReadingSteps* steps)
{
    return Repair(text, steps).takeText();
}

} // namespace dxfviewer
