// SPDX-License-Identifier: GPL-2.0-or-later

#include "Comparison.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/render/DXFGraphicsItem.h"

#include <QImage>
#include <QPainter>

namespace
{

using namespace dxfbench;

constexpr int leastRounds = 3;
constexpr int imageSize = 1000;

/// A painter on a picture into which the whole drawing fits.
class Canvas
{
public:
    Canvas()
        : m_image(imageSize, imageSize, QImage::Format_ARGB32_Premultiplied)
    {
        m_image.fill(Qt::white);
        painter.begin(&m_image);
        painter.scale(imageSize / drawingSize, imageSize / drawingSize);
        QPen pen(Qt::black, 0);
        pen.setCosmetic(true);
        painter.setPen(pen);
    }

private:
    QImage m_image;

public:
    QPainter painter;
};

void drawPlainly(QPainter& painter, const Spans& spans)
{
    for (const auto& [begin, end] : spans) {
        for (const Segment* segment = begin; segment != end; ++segment) {
            const QLineF line = segment->line();
            painter.drawLines(&line, 1);
        }
    }
}

void paint(benchmark::State& state, const Plan& plan)
{
    const auto document = makeReadyDocument(plan);
    DXFGraphicsItem item;
    item.setDocument(document);
    const Spans spans = spansOf(*document);
    compare(
        state, plan.segments, roundsFor(plan.segments, leastRounds),
        [&] {
            Canvas canvas;
            return secondsOf([&] { item.paint(&canvas.painter, nullptr, nullptr); });
        },
        [&] {
            Canvas canvas;
            return secondsOf([&] { drawPlainly(canvas.painter, spans); });
        });
}

const int registered = registerForAllDrawings("paint", paint);

} // namespace
