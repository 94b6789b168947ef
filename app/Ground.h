// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <optional>

class QColor;
class QString;

/// The colour behind a drawing.
enum class Ground { Dark, Light, White };

QColor colorOf(Ground ground);

/// The name on the command line and in the settings.
QString nameOf(Ground ground);
/// Nothing if no ground has this name.
std::optional<Ground> groundNamed(const QString& name);
