// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

#include <optional>
#include <string>
#include <string_view>

/**
 * What a reader can do besides taking dxflib's callbacks.
 *
 * load() asks a class that derives from both DXFReader and this one, in this order: once for the
 * text, then for every group whether the class takes it, and once at the end. An exception out of
 * any of these ends the read, and load() returns false.
 */
class DXFVIEWER_EXPORT IReadingSteps
{
public:
    IReadingSteps();
    IReadingSteps(const IReadingSteps&) = delete;
    IReadingSteps& operator=(const IReadingSteps&) = delete;
    virtual ~IReadingSteps();

    /// The text to read in place of these bytes, or nothing if the bytes are the text already. The
    /// bytes are the whole content of the file or the array.
    virtual std::optional<std::string> textOf(std::string_view bytes) = 0;

    /// True keeps the group away from dxflib. Called for every group of the text, in order, just
    /// after processCodeValuePair() was called for it.
    virtual bool takesGroup(int code, std::string_view value) = 0;

    /// Called after the last group, when the text is no longer in memory. False makes load()
    /// return false.
    virtual bool finishReading() = 0;
};
