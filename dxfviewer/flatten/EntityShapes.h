// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

namespace dxfviewer
{

class Chains;
class Record;
struct Fineness;

/**
 * Appends the chains of an entity that is a single record: a line, a curve, a face.
 *
 * @returns false, and nothing is appended, if the entity is of a kind that is not shown or its
 *          numbers cannot be drawn
 */
bool appendEntity(Chains& chains, const Record& record, const Fineness& fineness);

} // namespace dxfviewer
