// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/model/Segment.h"

#include <QByteArray>
#include <QPointF>
#include <QSharedPointer>
#include <QVector>

#include <utility>
#include <vector>

class DXFDocument;

namespace dxfbench
{

/// How the segments of a drawing are spread over polylines.
enum class Shape { OnePolyline, TenEach, OneEach };

/// What a drawing is made of. The same plan gives the same drawing.
struct Plan {
    Shape shape = Shape::TenEach;
    int segments = 0;
    int layers = 20;
};

/// The width and height of every drawing, in drawing units.
inline constexpr double drawingSize = 10000.0;

/// The drawing as the text of a DXF file.
QByteArray makeText(const Plan& plan);

/// The drawing as a reader makes it, not set up yet.
QSharedPointer<DXFDocument> makeDocument(const Plan& plan);

/// The drawing after setup(), with its segments.
QSharedPointer<DXFDocument> makeReadyDocument(const Plan& plan);

/// The ids of all segments, in order.
QVector<int> segmentIdsOf(const DXFDocument& document);

/// Where the segments of each polyline lie in memory. They stay there as long as nothing changes.
using Spans = std::vector<std::pair<const Segment*, const Segment*>>;
Spans spansOf(const DXFDocument& document);

/// The sum of all coordinates. Its time is the time to look at every segment once.
double plainSum(const Spans& spans);

} // namespace dxfbench
