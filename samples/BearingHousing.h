// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "Drawing.h"

namespace samples
{

/// A bearing in its housing, in millimetres, as a workshop draws it: lines, arcs, circles, texts
/// and inserted blocks, with y upwards.
Drawing bearingHousing();

} // namespace samples
