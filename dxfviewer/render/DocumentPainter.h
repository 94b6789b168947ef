// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/render/EntityPens.h"
#include "dxfviewer/render/LineGroup.h"
#include "dxfviewer/render/VisibleArea.h"

#include <QPainter>
#include <QPen>

class DXFDocument;

namespace dxfviewer
{

/// Draws the polylines of a document one by one. The painter's pen stays changed.
class DocumentPainter
{
public:
    /// @param overridePen  the pen for all segments, or null for the pens of the entities
    DocumentPainter(QPainter& painter, const QPen* overridePen);

    void draw(const DXFDocument& document);

private:
    void draw(const DXFPolyline& polyline);
    void setPenWidth(int lineWidth);
    void usePen(int lineWidth, const QColor& color);

    QPainter& m_painter;
    const QPen* m_overridePen;
    VisibleArea m_area;
    EntityPens m_pens;
    LineGroup m_group;
};

} // namespace dxfviewer
