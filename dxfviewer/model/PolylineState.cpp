// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/PolylineState.h"

namespace dxfviewer
{

PolylineState::PolylineState(DXFPolyline& polyline)
    : m_flagsGivenAgain(~polyline.flags())
    , m_color(polyline.color())
    , m_lineWidth(polyline.lineWidth())
    , m_isSelected(polyline.isSelected())
    , m_isHovered(polyline.isHovered())
    , m_attributes(polyline.attributes())
    , m_geometry(PolylineAccess::geometry(polyline))
{
    attachTo(polyline);
}

PolylineState::~PolylineState()
{
    if (m_polyline)
        PolylineAccess::setState(*m_polyline, nullptr);
}

void PolylineState::attachTo(DXFPolyline& polyline)
{
    if (m_polyline)
        PolylineAccess::setState(*m_polyline, nullptr);
    if (PolylineState* former = PolylineAccess::state(polyline))
        former->forgetPolyline();
    PolylineAccess::setState(polyline, this);
    m_polyline = &polyline;
}

PolylineState::Match PolylineState::match(const DXFPolyline& polyline) const
{
    using Derived = PolylineAccess::Derived;
    const auto& now = PolylineAccess::geometry(polyline);
    // A list that is still shared has not changed: a change would have made a copy.
    if (!now.segments.isSharedWith(m_geometry.segments) || polyline.isSelected() != m_isSelected
        || polyline.isHovered() != m_isHovered || polyline.lineWidth() != m_lineWidth
        || polyline.color() != m_color || PolylineAccess::attributes(polyline) != m_attributes)
        return Match::Different;
    if (now.needsSetup == m_geometry.needsSetup && now.derived == m_geometry.derived
        && now.flags == m_geometry.flags && now.mVertices == m_geometry.mVertices
        && now.nVertices == m_geometry.nVertices && now.vertices.isSharedWith(m_geometry.vertices))
        return Match::Same;
    if (now.needsSetup && now.derived == Derived::AllPoints && now.flags == m_flagsGivenAgain
        && now.mVertices == 0 && now.nVertices == 0
        && now.vertices.isSharedWith(verticesGivenAgain()))
        return Match::SegmentsGivenAgain;
    return Match::Different;
}

/// Stored vertices stay if they followed from the segments already; others are dropped.
QVector<DXFVertex> PolylineState::verticesGivenAgain() const
{
    return m_geometry.derived == PolylineAccess::Derived::AllPoints ? m_geometry.vertices
                                                                    : QVector<DXFVertex>();
}

void PolylineState::noteSegmentsGivenAgain(const DXFPolyline& polyline)
{
    if (PolylineAccess::segments(polyline).isSharedWith(m_geometry.segments))
        m_flagsGivenAgain = polyline.flags();
}

QSharedPointer<DXFPolyline> PolylineState::clone(int id, bool areSegmentsGivenAgain, bool isShared)
{
    auto copy = QSharedPointer<DXFPolyline>::create(0U, 0U, 0U);
    PolylineAccess::setId(*copy, id);
    copy->setSelected(m_isSelected);
    copy->setHovered(m_isHovered);
    copy->setColor(m_color);
    copy->setLineWidth(m_lineWidth);
    copy->setAttributes(m_attributes);

    auto& geometry = PolylineAccess::geometry(*copy);
    geometry = m_geometry;
    if (areSegmentsGivenAgain) {
        geometry.needsSetup = true;
        geometry.derived = PolylineAccess::Derived::AllPoints;
        geometry.flags = m_flagsGivenAgain;
        geometry.mVertices = 0;
        geometry.nVertices = 0;
        geometry.vertices = verticesGivenAgain();
    }
    if (isShared)
        attachTo(*copy);
    return copy;
}

} // namespace dxfviewer
