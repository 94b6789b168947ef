// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/render/PaintRecorder.h"

#include <QPainter>

namespace dxftest
{

namespace
{

constexpr int edge = 100;
constexpr int dotsPerInch = 100;

} // namespace

PaintRecorder::PaintRecorder(QPaintEngine::Type type)
    : m_engine(type)
{
}

int PaintRecorder::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
    case PdmHeight:
        return edge;
    case PdmDepth:
        return 32;
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return dotsPerInch;
    case PdmDevicePixelRatio:
        return 1;
    default:
        return QPaintDevice::metric(metric);
    }
}

PaintRecorder::Engine::Engine(Type type)
    : QPaintEngine(AllFeatures)
    , m_type(type)
{
}

bool PaintRecorder::Engine::begin(QPaintDevice* /*device*/)
{
    return true;
}

bool PaintRecorder::Engine::end()
{
    return true;
}

void PaintRecorder::Engine::updateState(const QPaintEngineState& /*state*/) {}

void PaintRecorder::Engine::drawLines(const QLineF* lines, int count)
{
    if (beforeLines)
        beforeLines();
    DrawnLines call{{}, painter()->pen()};
    for (int i = 0; i < count; ++i)
        call.lines.append(lines[i]);
    calls.append(call);
}

void PaintRecorder::Engine::drawLines(const QLine* /*lines*/, int /*count*/)
{
    ++otherCalls;
}

void PaintRecorder::Engine::drawPath(const QPainterPath& /*path*/)
{
    ++otherCalls;
}

void PaintRecorder::Engine::drawPolygon(const QPointF* /*points*/, int /*count*/,
                                        PolygonDrawMode /*mode*/)
{
    ++otherCalls;
}

void PaintRecorder::Engine::drawPixmap(const QRectF& /*target*/, const QPixmap& /*pixmap*/,
                                       const QRectF& /*source*/)
{
    ++otherCalls;
}

} // namespace dxftest
