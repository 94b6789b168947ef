// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

namespace dxfviewer
{

class Chains;
class Record;
class TextOutlines;
struct Fineness;

/// Whether an entity of this kind is a text.
bool isText(const Record& record);

/// Appends the outlines of a text. False, and nothing is appended, if it has no size.
bool appendText(Chains& chains, const Record& record, const Fineness& fineness,
                const TextOutlines& outlines);

} // namespace dxfviewer
