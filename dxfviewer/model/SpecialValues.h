// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

/// @file
/// Values of attributes that stand for something other than a colour or a width.

namespace dxfviewer
{

constexpr int byBlockColor = 0;
constexpr int byLayerColor = 256;
constexpr int noTrueColor = -1;
constexpr int byLayerWidth = -1;
constexpr int byBlockWidth = -2;

} // namespace dxfviewer
