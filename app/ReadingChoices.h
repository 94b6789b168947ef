// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <dxfviewer/flatten/FlatteningOptions.h>

/// What is read of a drawing, as the user wants to see it.
struct ReadingChoices {
    /// Leaves out whatever is not a polyline in the file, as the drawing window does by itself.
    bool onlyPolylines = false;
    bool showsTexts = true;

    FlatteningOptions flattening() const
    {
        FlatteningOptions options;
        options.showsTexts = showsTexts;
        return options;
    }

    bool operator==(const ReadingChoices& other) const
    {
        return onlyPolylines == other.onlyPolylines && showsTexts == other.showsTexts;
    }
    bool operator!=(const ReadingChoices& other) const { return !(*this == other); }
};
