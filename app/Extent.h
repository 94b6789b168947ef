// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

class QRectF;

// Rectangles in drawing units that a view can be fitted to.

/// Whether a view can show bounds of this size at this place.
bool fitsIntoView(const QRectF& bounds);
/// The least scale of a view: Qt takes a smaller one for a scale that has no inverse, and the view
/// would neither paint nor know the pointer's place.
inline constexpr double leastScale = 2e-12;

/// The rectangle with a margin on each side, in shares of its longer side.
QRectF grown(const QRectF& rect, double share);

/// The bounds as a rectangle whose size can be divided by. Bounds without extent, or with a very
/// small one for their distance from the origin, become one drawing unit wide and high.
QRectF withExtent(const QRectF& bounds);
