// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "Drawing.h"

namespace samples
{

/// A machine part with a gear, in millimetres; its round edges have bulges.
Drawing bracketPart();

} // namespace samples
