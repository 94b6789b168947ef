// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

/// @file
/// Values of attributes that stand for something other than a colour or a width.

namespace dxfviewer
{

inline constexpr int byBlockColor = 0;
inline constexpr int byLayerColor = 256;
inline constexpr int noTrueColor = -1;
inline constexpr int byLayerWidth = -1;
inline constexpr int byBlockWidth = -2;

} // namespace dxfviewer
