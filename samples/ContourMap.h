// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "Drawing.h"

namespace samples
{

/// A map of hilly country with a river, in metres.
Drawing contourMap();

} // namespace samples
