// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/TextCheck.h"

#include "dxfviewer/io/GroupScan.h"
#include "dxfviewer/io/RecordCounts.h"
#include "dxfviewer/io/WorkMeter.h"

namespace
{

using dxfviewer::AnnouncedCount;
using dxfviewer::RecordCounts;

/// False if dxflib must not see the group, or the record that it ends.
inline bool addGroup(RecordCounts& counts, std::string_view codeLine, std::string_view valueLine)
{
    if (codeLine.size() > dxfviewer::longestLine || valueLine.size() > dxfviewer::longestLine)
        return false;

    const int code = dxfviewer::toInt(codeLine);
    if (dxfviewer::beginsRecord(code)) {
        if (!counts.isSound())
            return false;
        counts.endRecord();
        counts.beginRecord(dxfviewer::strippedValue(valueLine));
        return true;
    }
    if (dxfviewer::isReal(code) && dxfviewer::isBlank(valueLine))
        return false;
    if (dxfviewer::isBareVersionComment(code, dxfviewer::strippedValue(valueLine)))
        return false;
    const AnnouncedCount* announced = counts.addGroup(code, valueLine);
    return !announced || !announced->replacesOne();
}

} // namespace

namespace dxfviewer
{

bool isSound(std::string_view text, IReadingSteps* steps)
{
    if (text.find('\0') != std::string_view::npos)
        return false;

    RecordCounts counts;
    WorkMeter meter(steps);
    bool sound = true;
    const std::string_view rest =
        scanGroups(text, [&](std::string_view codeLine, std::string_view valueLine) {
            meter.add();
            sound = addGroup(counts, codeLine, valueLine);
            return sound;
        });
    return sound && rest.size() <= longestLine && counts.isSoundWithoutEnd();
}

} // namespace dxfviewer
