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
    void setCosmeticPen(int width);

    /// How much of what lies in the bounds may be visible. If it is all, single lines in the
    /// bounds must not be asked about: they may be where nothing is known.
    Part visiblePart(const PolylineAccess::Bounds& bounds) const;

    /// Whether a line in bounds of which some part is visible is not.
    bool hides(const QLineF& line) const;

private:
    void setTransform(const QTransform& toDevice);
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

    // Of the pen: how far from the device lines may lie, and the area with the pen around it.
    double m_trusted = 0.0;
    double m_left = 0.0;
    double m_top = 0.0;
    double m_right = 0.0;
    double m_bottom = 0.0;
};

} // namespace dxfviewer
