// SPDX-License-Identifier: GPL-2.0-or-later

// The repair of a drawing's text alone, checked against what it promises.

#include "fuzz/Drawing.h"

#include "dxfviewer/io/TextRepair.h"

#include <string_view>

namespace
{

// The slack is for an empty last line, which gets a line feed.
constexpr std::size_t growthLimit = 3;
constexpr std::size_t growthSlack = 2;

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);

    if (const auto repaired = dxfviewer::repaired(text)) {
        dxffuzz::require(repaired->size() <= growthLimit * size + growthSlack,
                         "the repair makes too much of the text");
        dxffuzz::require(!dxfviewer::repaired(*repaired), "a repaired text is repaired again");
    }
    return 0;
}
