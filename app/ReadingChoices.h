// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <dxfviewer/flatten/FlatteningOptions.h>

/// What is read of a drawing, as the user wants to see it.
struct ReadingChoices {
    /// Leaves out whatever is not a polyline in the file, as the drawing window does by itself.
    bool onlyPolylines = false;
    bool showsTexts = true;
    /// What makes more than this is not read.
    qint64 mostVertices = FlatteningOptions().maximalVertices;

    FlatteningOptions flattening() const
    {
        FlatteningOptions options;
        options.showsTexts = showsTexts;
        options.maximalVertices = mostVertices;
        return options;
    }

    bool operator==(const ReadingChoices& other) const
    {
        return onlyPolylines == other.onlyPolylines && showsTexts == other.showsTexts
               && mostVertices == other.mostVertices;
    }
    bool operator!=(const ReadingChoices& other) const { return !(*this == other); }
};
