// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/render/DocumentPainter.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/EntityWalk.h"

namespace dxfviewer
{

namespace
{

enum class Look { None, Plain, Hovered, Selected };

Look lookOf(const Segment& segment)
{
    if (segment.isSelected())
        return Look::Selected;
    return segment.isHovered() ? Look::Hovered : Look::Plain;
}

QColor colorOf(Look look, const QColor& entityColor)
{
    switch (look) {
    case Look::Selected:
        return Qt::red;
    case Look::Hovered:
        return Qt::darkYellow;
    case Look::Plain:
    case Look::None:
        break;
    }
    return entityColor;
}

} // namespace

DocumentPainter::DocumentPainter(QPainter& painter, const QPen* overridePen)
    : m_painter(painter)
    , m_overridePen(overridePen)
    , m_area(painter)
    , m_group(painter)
{
    if (!overridePen)
        return;
    painter.setPen(*overridePen);
    m_area.setPen(*overridePen);
}

void DocumentPainter::setPenWidth(int lineWidth)
{
    if (!m_overridePen)
        m_area.setCosmeticPen(lineWidth);
}

void DocumentPainter::draw(const DXFDocument& document)
{
    const auto mayBeVisible = [this](const PolylineSummary& polyline) {
        setPenWidth(polyline.lineWidth);
        return !m_area.hides(polyline.bounds);
    };
    EntityWalk(document).look(mayBeVisible, [this](const QSharedPointer<DXFEntity>& entity) {
        if (const DXFPolyline* polyline = asPolyline(entity))
            draw(*polyline);
    });
    m_group.draw();
}

void DocumentPainter::draw(const DXFPolyline& polyline)
{
    setPenWidth(polyline.lineWidth());
    const auto part = m_area.visiblePart(PolylineAccess::bounds(polyline));
    if (part == VisibleArea::Part::None)
        return;

    // A copy: the painter may be a host's own, and its calls may change the polyline.
    const auto segments = polyline.segments();
    Look lastLook = Look::None;
    for (const Segment& segment : segments) {
        if (part == VisibleArea::Part::Some && m_area.hides(segment.line()))
            continue;
        const Look look = lookOf(segment);
        if (look != lastLook)
            usePen(polyline.lineWidth(), colorOf(look, polyline.color()));
        lastLook = look;
        m_group.add(segment.line());
        if (m_overridePen || !m_area.drawsLinesOneByOne())
            m_group.draw();
    }
}

void DocumentPainter::usePen(int lineWidth, const QColor& color)
{
    const QPen* pen = m_overridePen ? nullptr : m_pens.otherPen(lineWidth, color);
    if (!pen)
        return;
    m_group.draw();
    m_painter.setPen(*pen);
}

} // namespace dxfviewer
