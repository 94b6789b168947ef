// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/model/PolylineAccess.h"

#include <QRectF>

class QLineF;
class QPainter;
class QPen;
class QTransform;

namespace dxfviewer
{

/**
 * Tells which lines a painter cannot show, because they lie outside its device or its clip.
 *
 * It judges only painters that make pixels: painters that record must get every line. And it judges
 * only lines that the painter certainly draws in their right place. Far from the device the
 * painter's arithmetic may go wrong, and whatever it shows then must be shown.
 */
class VisibleArea
{
public:
    enum class Part { None, Some, All };

    explicit VisibleArea(const QPainter& painter);

    /// The pen of the lines that are asked about next.
    void setPen(const QPen& pen);
    /// The same for a cosmetic pen with nothing else set.
    void setCosmeticPen(int width)
    {
        if (width != m_cosmeticWidth)
            setNewCosmeticPen(width);
    }

    /// How much of what lies in the bounds may be visible. If the answer is All, do not ask about
    /// single lines in the bounds: nothing may be known about their place.
    Part visiblePart(const PolylineAccess::Bounds& bounds) const;

    /// Whether nothing in the bounds is visible, as visiblePart() says. Most polylines of a large
    /// drawing are asked only this.
    bool hides(const PolylineAccess::Bounds& bounds) const
    {
        if (!m_isKnown || !m_isUpright)
            return visiblePart(bounds) == Part::None;
        // Without branches: where the next polyline lies cannot be foreseen.
        return areWithin(bounds, m_trustedInDrawing) && areBeside(bounds, m_visibleInDrawing);
    }

    /// Whether the painter draws lines with the current pen one by one, even if it is given several
    /// at once. Others may unite them into one outline, which shows where lines cross.
    bool drawsLinesOneByOne() const { return m_drawsThinLinesExactly && m_isThin; }

    /// Whether a line is not visible. Only for lines in bounds for which visiblePart() is Some.
    bool hides(const QLineF& line) const;

private:
    /// A rectangle by its sides.
    struct Sides {
        double left = 0.0;
        double top = 0.0;
        double right = 0.0;
        double bottom = 0.0;
    };

    static bool areWithin(const PolylineAccess::Bounds& bounds, const Sides& sides)
    {
        return ((bounds.left > sides.left) & (bounds.right < sides.right) & (bounds.top > sides.top)
                & (bounds.bottom < sides.bottom))
               != 0;
    }
    static bool areBeside(const PolylineAccess::Bounds& bounds, const Sides& sides)
    {
        return ((bounds.right < sides.left) | (bounds.left > sides.right)
                | (bounds.bottom < sides.top) | (bounds.top > sides.bottom))
               != 0;
    }

    void setTransform(const QTransform& toDevice);
    Sides toDrawing(const Sides& device) const;
    static Part partOf(const Sides& sides, const Sides& trusted, const Sides& visible);
    static bool isBeside(const QLineF& line, const Sides& sides);
    void setNewCosmeticPen(int width);
    void setReach(double reach, bool isThin);
    void clipTo(const QPainter& painter);

    // The transform as the painter applies it: it takes very small entries for 0.
    double m_xx = 1.0;
    double m_xy = 0.0;
    double m_yx = 0.0;
    double m_yy = 1.0;
    double m_dx = 0.0;
    double m_dy = 0.0;
    double m_stretch = 1.0;
    double m_pixelRatio = 1.0;
    bool m_isKnown = false;
    bool m_drawsThinLinesExactly = false;
    QRectF m_area;

    // The width that setCosmeticPen() has set; -1 after setPen().
    int m_cosmeticWidth = -1;
    bool m_isThin = false;
    // For the current pen: the area in which lines are judged, and the visible area with the pen's
    // reach around it.
    Sides m_trusted;
    Sides m_visible;
    // The same in drawing units, if the painter does not turn the drawing.
    bool m_isUpright = false;
    Sides m_trustedInDrawing;
    Sides m_visibleInDrawing;
};

} // namespace dxfviewer
