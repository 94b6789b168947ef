// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

class QLineF;
class QPointF;

/**
 * The foot of the perpendicular from p onto the infinite line through a and b.
 *
 * If inside is not null, it receives whether the foot lies between a and b, both ends included. If
 * a and b are the same point, the result is a, and inside receives nothing.
 */
DXFVIEWER_EXPORT QPointF projection(QPointF const& p, QPointF const& a, QPointF const& b,
                                    bool* inside);

/// The distance from p to the nearest point of the segment, both ends included.
DXFVIEWER_EXPORT double distPointToSegment(QPointF const& p, QLineF const& segment);
