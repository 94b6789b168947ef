// SPDX-License-Identifier: GPL-2.0-or-later

// The repair of a drawing's text alone, checked against what it promises.

#include "fuzz/Drawing.h"

#include "dxfviewer/io/TextCheck.h"
#include "dxfviewer/io/TextRepair.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace
{

// The slack is for an empty last line, which gets a line feed.
constexpr std::size_t growthLimit = 3;
constexpr std::size_t growthSlack = 2;

/// The text as dxflib reads its end. The last value needs no line feed, and may be missing. A last
/// code without a line feed is never read.
std::string withWholeLastGroup(std::string_view text)
{
    const auto lineFeeds = std::count(text.begin(), text.end(), '\n');
    if (lineFeeds % 2 != 0)
        return std::string(text) + '\n';
    return std::string(text.substr(0, text.rfind('\n') + 1));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const bool isSound = dxfviewer::isSound(text);

    const std::string repaired = dxfviewer::repaired(text);

    dxffuzz::require(repaired.size() <= growthLimit * size + growthSlack,
                     "the repair makes too much of the text");
    dxffuzz::require(dxfviewer::isSound(repaired), "a repaired text is not sound");
    dxffuzz::require(dxfviewer::repaired(repaired) == repaired,
                     "a repaired text is repaired again");
    if (isSound)
        dxffuzz::require(repaired == withWholeLastGroup(text), "a sound text was changed");
    return 0;
}
