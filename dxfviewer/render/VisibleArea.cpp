// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/render/VisibleArea.h"

#include <QLineF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPen>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>

namespace dxfviewer
{

namespace
{

// Pixels around a line that rounding and smoothing may reach.
constexpr double softEdge = 4.0;

// A cosmetic line of one pixel is clipped in floating point before anything else is done with it.
constexpr double trustedForThinLines = 1e9;
// Other lines become outlines in fixed-point numbers, whose limits are not far beyond this.
constexpr double trustedForOutlines = 3e4;

// OpenGL's painter counts in single precision and in drawing units. Far beyond this scale it shows
// lines in wrong places.
constexpr double greatestOpenGlScale = 1e4;

// Within these the inverse of a scaling is exact to much less than a pixel.
constexpr double leastScale = 1e-6;
constexpr double greatestScale = 1e6;

bool makesPixels(const QPaintEngine& engine)
{
    return engine.type() == QPaintEngine::Raster || engine.type() == QPaintEngine::OpenGL
           || engine.type() == QPaintEngine::OpenGL2;
}

bool isModest(double scale)
{
    return std::abs(scale) > leastScale && std::abs(scale) < greatestScale;
}

/// The range of one device coordinate, for everything inside some bounds of the drawing.
struct Range {
    Range(double factorX, double x1, double x2, double factorY, double y1, double y2, double offset)
    {
        const std::array x{factorX * x1, factorX * x2};
        const std::array y{factorY * y1, factorY * y2};
        from = std::min(x[0], x[1]) + std::min(y[0], y[1]) + offset;
        to = std::max(x[0], x[1]) + std::max(y[0], y[1]) + offset;
    }

    double from;
    double to;
};

} // namespace

VisibleArea::VisibleArea(const QPainter& painter)
{
    const QPaintEngine* engine = painter.paintEngine();
    const QPaintDevice* device = engine ? engine->paintDevice() : nullptr;
    if (!device || !makesPixels(*engine) || !painter.deviceTransform().isAffine())
        return;

    setTransform(painter.deviceTransform());
    m_drawsThinLinesExactly = engine->type() == QPaintEngine::Raster;
    m_isKnown = m_drawsThinLinesExactly || m_stretch < greatestOpenGlScale;
    // Some devices give their size in pixels, some do not. Too large an area does no harm.
    m_pixelRatio = std::max(1.0, static_cast<double>(device->devicePixelRatioF()));
    m_area = QRectF(0, 0, device->width() * m_pixelRatio, device->height() * m_pixelRatio);
    if (painter.hasClipping())
        clipTo(painter);
}

void VisibleArea::setTransform(const QTransform& toDevice)
{
    m_dx = toDevice.dx();
    m_dy = toDevice.dy();
    if (toDevice.type() >= QTransform::TxScale) {
        m_xx = toDevice.m11();
        m_yy = toDevice.m22();
    }
    if (toDevice.type() > QTransform::TxScale) {
        m_yx = toDevice.m21();
        m_xy = toDevice.m12();
    }
    m_isUpright = m_xy == 0.0 && m_yx == 0.0 && isModest(m_xx) && isModest(m_yy)
                  && std::abs(m_dx) < trustedForThinLines && std::abs(m_dy) < trustedForThinLines;
    m_stretch = std::sqrt(m_xx * m_xx + m_xy * m_xy + m_yx * m_yx + m_yy * m_yy);
}

void VisibleArea::clipTo(const QPainter& painter)
{
    const QRectF clip = painter.clipBoundingRect();
    if (m_isUpright && !clip.isEmpty())
        m_area &= painter.deviceTransform().mapRect(clip).adjusted(-softEdge, -softEdge, softEdge,
                                                                   softEdge);
}

void VisibleArea::setPen(const QPen& pen)
{
    m_cosmeticWidth = -1;
    // A line has no joins, but to include their miters costs nothing.
    const double reach = pen.widthF() * std::max(1.0, pen.miterLimit());
    if (pen.isCosmetic())
        setReach(reach * m_pixelRatio, pen.widthF() <= 1.0);
    else
        setReach(reach * m_stretch, false);
}

void VisibleArea::setNewCosmeticPen(int width)
{
    m_cosmeticWidth = width;
    setReach(2.0 * std::abs(width) * m_pixelRatio, width <= 1);
}

void VisibleArea::setReach(double reach, bool isThin)
{
    const double margin = reach + softEdge;
    m_isThin = isThin;
    const double far = isThin && m_drawsThinLinesExactly ? trustedForThinLines : trustedForOutlines;
    m_trusted = {-far, -far, far, far};
    m_visible = {m_area.left() - margin, m_area.top() - margin, m_area.right() + margin,
                 m_area.bottom() + margin};
    if (m_isUpright) {
        m_trustedInDrawing = toDrawing(m_trusted);
        m_visibleInDrawing = toDrawing(m_visible);
    }
}

/// Only for upright drawings. The rounding is much less than a pixel.
VisibleArea::Sides VisibleArea::toDrawing(const Sides& device) const
{
    const std::array x{(device.left - m_dx) / m_xx, (device.right - m_dx) / m_xx};
    const std::array y{(device.top - m_dy) / m_yy, (device.bottom - m_dy) / m_yy};
    return {std::min(x[0], x[1]), std::min(y[0], y[1]), std::max(x[0], x[1]), std::max(y[0], y[1])};
}

VisibleArea::Part VisibleArea::partOf(const Sides& sides, const Sides& trusted,
                                      const Sides& visible)
{
    // NaN is not trusted either.
    const bool isTrusted = sides.left > trusted.left && sides.right < trusted.right
                           && sides.top > trusted.top && sides.bottom < trusted.bottom;
    if (!isTrusted)
        return Part::All;
    if (sides.right < visible.left || sides.left > visible.right || sides.bottom < visible.top
        || sides.top > visible.bottom)
        return Part::None;
    const bool isWithin = sides.left >= visible.left && sides.right <= visible.right
                          && sides.top >= visible.top && sides.bottom <= visible.bottom;
    return isWithin ? Part::All : Part::Some;
}

VisibleArea::Part VisibleArea::visiblePart(const PolylineAccess::Bounds& bounds) const
{
    if (!m_isKnown)
        return Part::All;
    if (m_isUpright)
        return partOf({bounds.left, bounds.top, bounds.right, bounds.bottom}, m_trustedInDrawing,
                      m_visibleInDrawing);
    const Range x(m_xx, bounds.left, bounds.right, m_yx, bounds.top, bounds.bottom, m_dx);
    const Range y(m_xy, bounds.left, bounds.right, m_yy, bounds.top, bounds.bottom, m_dy);
    return partOf({x.from, y.from, x.to, y.to}, m_trusted, m_visible);
}

bool VisibleArea::isBeside(const QLineF& line, const Sides& sides)
{
    return (line.x1() < sides.left && line.x2() < sides.left)
           || (line.x1() > sides.right && line.x2() > sides.right)
           || (line.y1() < sides.top && line.y2() < sides.top)
           || (line.y1() > sides.bottom && line.y2() > sides.bottom);
}

bool VisibleArea::hides(const QLineF& line) const
{
    if (m_isUpright)
        return isBeside(line, m_visibleInDrawing);
    const QLineF onDevice(
        m_xx * line.x1() + m_yx * line.y1() + m_dx, m_xy * line.x1() + m_yy * line.y1() + m_dy,
        m_xx * line.x2() + m_yx * line.y2() + m_dx, m_xy * line.x2() + m_yy * line.y2() + m_dy);
    return isBeside(onDevice, m_visible);
}

} // namespace dxfviewer
