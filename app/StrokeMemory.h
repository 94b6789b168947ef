// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QtGlobal>

class DXFDocument;

/// The number of steps of the undo stack that fit into an amount of memory, at least the ten of the
/// library. An estimate: it depends on what the strokes will hit.
int stepsThatFit(qint64 memoryBytes, const DXFDocument& document);
