// SPDX-License-Identifier: GPL-2.0-or-later

#include "Extent.h"

#include <QRectF>

#include <algorithm>
#include <cmath>

namespace
{

// The least extent, in shares of the distance from the origin.
constexpr double leastShare = 1e-9;
constexpr double unitExtent = 1.0;
// At the least scale this is twenty pixels.
constexpr double mostExtent = 1e13;
// Farther from the origin even the largest extent is smaller than the least share.
constexpr double mostDistance = mostExtent / leastShare;

} // namespace

bool fitsIntoView(const QRectF& bounds)
{
    const QRectF rect = bounds.normalized();
    // No comparison with what is not a number is true.
    return rect.width() <= mostExtent && rect.height() <= mostExtent
           && std::abs(rect.x()) <= mostDistance && std::abs(rect.y()) <= mostDistance;
}

QRectF grown(const QRectF& rect, double share)
{
    const double margin = std::max(rect.width(), rect.height()) * share;
    return rect.adjusted(-margin, -margin, margin, margin);
}

QRectF withExtent(const QRectF& bounds)
{
    const QRectF rect = bounds.normalized();
    const double size = std::max(rect.width(), rect.height());
    if (!std::isfinite(size) || !std::isfinite(rect.x()) || !std::isfinite(rect.y()))
        return QRectF(0, 0, unitExtent, unitExtent);
    const double distance = std::max(std::abs(rect.center().x()), std::abs(rect.center().y()));
    if (size > leastShare * std::max(distance, leastShare))
        return rect;
    return QRectF(rect.center() - QPointF(unitExtent, unitExtent) / 2,
                  QSizeF(unitExtent, unitExtent));
}
