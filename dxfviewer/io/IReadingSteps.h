// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

#include <optional>
#include <string>
#include <string_view>

/**
 * What a reader can do besides taking dxflib's callbacks.
 *
 * A class that derives from DXFReader and from this as well is asked by load(), in this order: once
 * for the text, for every group whether it takes the group itself, and once at the end. An
 * exception out of any of these ends the read, and load() returns false.
 */
class DXFVIEWER_EXPORT IReadingSteps
{
public:
    IReadingSteps();
    IReadingSteps(const IReadingSteps&) = delete;
    IReadingSteps& operator=(const IReadingSteps&) = delete;
    virtual ~IReadingSteps();

    /// The text to read in place of these bytes, which are all that the file or the array holds;
    /// nothing if the bytes are the text.
    virtual std::optional<std::string> textOf(std::string_view bytes) = 0;

    /// Whether dxflib is not to see this group. It is asked for every group of the text, in order,
    /// just after processCodeValuePair() was called for it.
    virtual bool takesGroup(int code, std::string_view value) = 0;

    /// Called after the last group, when the text is no longer in memory. False makes load()
    /// return false.
    virtual bool finishReading() = 0;
};
