// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <cstdio>
#include <string>
#include <string_view>

class DL_CreationInterface;

/// @file
/// dxflib's parser, made safe: whatever a text holds and whatever the receiver throws, these
/// return, with the host's locales as they were and nothing left open.

namespace dxfviewer
{

/**
 * Parses a file.
 *
 * False if the name is not that of a regular file or reading or parsing it fails half-way. The
 * receiver keeps what it has got by then.
 *
 * @param name  as the system calls take it
 */
bool parseFile(const std::string& name, DL_CreationInterface& receiver);

/// Parses a file that is open at its start, and leaves it open. It is read twice.
bool parseFile(std::FILE* file, DL_CreationInterface& receiver);

/// Parses a text without zero bytes. False if that fails half-way.
bool parseText(std::string_view text, DL_CreationInterface& receiver);

} // namespace dxfviewer
