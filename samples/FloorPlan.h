// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "Drawing.h"

namespace samples
{

/// The ground floor of a small house, in millimetres.
Drawing floorPlan();

} // namespace samples
