// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <cstdio>
#include <string>
#include <string_view>

class DL_CreationInterface;

/// @file
/// dxflib's parser, made safe: whatever a text holds and whatever the receiver throws, these
/// return, with the host's locales as they were and nothing left open.
///
/// The receiver's processCodeValuePair() is called with every group before dxflib sees it. A
/// receiver that is an IReadingSteps as well has its say at each step.

namespace dxfviewer
{

/**
 * Parses a file.
 *
 * The file is read into memory once, whatever happens to it meanwhile. False if the name is not
 * that of a regular file or reading or parsing it fails half-way. The receiver keeps what it has
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
