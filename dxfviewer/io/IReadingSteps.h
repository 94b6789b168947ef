// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

#include <exception>
#include <optional>
#include <string>
#include <string_view>

/**
 * What a reader can do besides taking dxflib's callbacks.
 *
 * load() asks a class that derives from both DXFReader and this one, in this order: once for the
 * text, then for every group whether the class takes it, and once at the end. Between these it asks
 * again and again whether to go on. An exception out of any of these ends the read, and load()
 * returns false. All are called in the thread that reads.
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

    /// Called throughout load(), after some thousand lines, points or polylines, even in the middle
    /// of one long record: an exception stops the read within milliseconds. Does nothing by itself.
    virtual void goOn();

    /// Called if an exception has ended the read, just before load() returns false: one out of a
    /// callback or a step, or std::bad_alloc where memory has run out. Nothing can be thrown from
    /// here. Does nothing by itself.
    virtual void readingFailed(const std::exception_ptr& reason);
};
