// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/model/PolylineAccess.h"

#include <QColor>
#include <QExplicitlySharedDataPointer>
#include <QSharedData>
#include <QSharedPointer>

namespace dxfviewer
{

/**
 * The state of a polyline at one moment, without its id: enough to make a clone later.
 *
 * The snapshots that hold it own it. The polyline only points at it, so that the next snapshot can
 * find and share it if the polyline has not changed. Only for objects of exactly the class
 * DXFPolyline: what a subclass adds is unknown here.
 */
class PolylineState : public QSharedData
{
public:
    using Pointer = QExplicitlySharedDataPointer<PolylineState>;

    /// How a polyline differs from a state of it.
    enum class Match {
        Same,
        /// It was given its own segments again, as every polyline is when anything is erased.
        SegmentsGivenAgain,
        Different
    };

    explicit PolylineState(DXFPolyline& polyline);
    ~PolylineState();

    Match match(const DXFPolyline& polyline) const;

    /// Remembers the flags that the polyline has got from setSegments(), so that match() knows
    /// them.
    void noteSegmentsGivenAgain(const DXFPolyline& polyline);

    /// A new polyline in this state and, if asked for, with its segments given again.
    /// If another snapshot holds the state as well, the new polyline points at it.
    QSharedPointer<DXFPolyline> clone(int id, bool areSegmentsGivenAgain, bool isShared);

    /// Called when the polyline is destroyed or another state takes its place.
    void forgetPolyline() { m_polyline = nullptr; }

private:
    Q_DISABLE_COPY(PolylineState)

    void attachTo(DXFPolyline& polyline);
    QVector<DXFVertex> verticesGivenAgain() const;

    // Until noteSegmentsGivenAgain() sets them, flags that no polyline in this state can have.
    unsigned int m_flagsGivenAgain;
    QColor m_color;
    int m_lineWidth;
    bool m_isSelected;
    bool m_isHovered;
    QSharedPointer<DXFAttributes> m_attributes;
    PolylineAccess::Geometry m_geometry;
    DXFPolyline* m_polyline = nullptr;
};

} // namespace dxfviewer
