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
 * What a polyline was at some moment, apart from its id: enough to make its clone later.
 *
 * It belongs to the snapshots that hold it. The polyline only knows it, so that the next snapshot
 * can find and share it if the polyline is still the same. Only for objects of the very class
 * DXFPolyline: what a subclass has besides is unknown here.
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

    /// Takes note of what has become of the polyline, so that match() can tell.
    void noteSegmentsGivenAgain(const DXFPolyline& polyline);

    /// A polyline of this state and, if so said, with its segments given again.
    QSharedPointer<DXFPolyline> clone(int id, bool areSegmentsGivenAgain);

    /// The polyline is about to go.
    void forgetPolyline() { m_polyline = nullptr; }

private:
    Q_DISABLE_COPY(PolylineState)

    void attachTo(DXFPolyline& polyline);
    QVector<DXFVertex> verticesGivenAgain() const;

    // Until they are noted, flags that no polyline of this state can have.
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
