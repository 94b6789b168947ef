// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/model/PolylineAccess.h"

#include <QLineF>
#include <QRectF>
#include <QTransform>

class QPainter;
class QPen;

namespace dxfviewer
{

/**
 * Tells which lines a painter cannot show, because they lie outside its device or its clip.
 *
 * Only of painters that make pixels is anything known; those that record must get every line. And
 * only of lines that the painter certainly draws as geometry has it: beyond some distance from the
 * device its arithmetic may go astray, and what it then shows is to be shown.
 */
class VisibleArea
{
public:
    enum class Part { None, Some, All };

    explicit VisibleArea(const QPainter& painter);

    /// The pen of the lines that are asked about next.
    void setPen(const QPen& pen);
    /// The same for a cosmetic pen that is otherwise as new.
    void setCosmeticPen(int width)
    {
        if (width != m_cosmeticWidth)
            setNewCosmeticPen(width);
    }

    /// How much of what lies in the bounds may be visible. If it is all, single lines in the
    /// bounds must not be asked about: they may be where nothing is known.
    Part visiblePart(const PolylineAccess::Bounds& bounds) const;

    /// Whether a line in bounds of which some part is visible is not.
    bool hides(const QLineF& line) const;

private:
    /// A rectangle by its sides.
    struct Sides {
        double left = 0.0;
        double top = 0.0;
        double right = 0.0;
        double bottom = 0.0;
    };

    void setTransform(const QTransform& toDevice);
    Sides toDrawing(const Sides& device) const;
    static Part partOf(const Sides& sides, const Sides& trusted, const Sides& visible);
    static bool isBeside(const QLineF& line, const Sides& sides);
    void setNewCosmeticPen(int width);
    void setReach(double reach, bool isThin);
    void clipTo(const QPainter& painter);

    // As the painter maps points: entries that are next to nothing count as nothing there.
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

    // Of the pen, if it is a cosmetic one: its width.
    int m_cosmeticWidth = -1;
    // Of the pen: how far from the device lines may lie, and the area with the pen around it.
    Sides m_trusted;
    Sides m_visible;
    // The same in the drawing, if the painter does not turn it.
    bool m_isUpright = false;
    Sides m_trustedInDrawing;
    Sides m_visibleInDrawing;
};

} // namespace dxfviewer
