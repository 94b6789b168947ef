// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <cstdio>
#include <string>
#include <string_view>

class DL_CreationInterface;

/// @file
/// dxflib's parser, made safe: whatever a text holds and whatever the receiver throws, these
/// functions return. They restore the host's locales and close what they have opened.
///
/// The receiver's processCodeValuePair() is called with every group before dxflib sees it. A
/// receiver that is an IReadingSteps as well is asked at each of those steps.

namespace dxfviewer
{

/**
 * Parses a file.
 *
 * The file is read into memory once, so it may change during the parse. False if the name does not
 * belong to a regular file, or if reading or parsing fails half-way. The receiver keeps what it has
 * got by then.
 *
 * @param name  as the system calls take it
 */
bool parseFile(const std::string& name, DL_CreationInterface& receiver);

/// Parses what is left of an open file, and leaves it open.
bool parseFile(std::FILE* file, DL_CreationInterface& receiver);

/// Parses a text up to its first zero byte. False if that fails half-way.
bool parseText(std::string_view bytes, DL_CreationInterface& receiver);

} // namespace dxfviewer
