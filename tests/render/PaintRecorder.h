// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QLineF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPen>
#include <QVector>

#include <functional>
#include <utility>

namespace dxftest
{

/// One call that drew lines, and the pen that it drew them with.
struct DrawnLines {
    QVector<QLineF> lines;
    QPen pen;
};

/// A device that draws nothing, but records every call that draws lines. It can report another type
/// of paint engine.
class PaintRecorder : public QPaintDevice
{
public:
    explicit PaintRecorder(QPaintEngine::Type type = QPaintEngine::User);

    QVector<DrawnLines> calls() const { return m_engine.calls; }
    /// The number of calls that drew something else than lines.
    int otherCalls() const { return m_engine.otherCalls; }

    /// Calls this before each line is recorded, as a host's own device might do anything.
    void setBeforeLines(std::function<void()> beforeLines)
    {
        m_engine.beforeLines = std::move(beforeLines);
    }

    QPaintEngine* paintEngine() const override { return &m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine : public QPaintEngine
    {
    public:
        explicit Engine(Type type);

        bool begin(QPaintDevice* device) override;
        bool end() override;
        Type type() const override { return m_type; }
        void updateState(const QPaintEngineState& state) override;
        void drawLines(const QLineF* lines, int count) override;
        void drawLines(const QLine* lines, int count) override;
        void drawPath(const QPainterPath& path) override;
        void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override;
        void drawPixmap(const QRectF& target, const QPixmap& pixmap, const QRectF& source) override;

        std::function<void()> beforeLines;
        QVector<DrawnLines> calls;
        int otherCalls = 0;

    private:
        Type m_type;
    };

    mutable Engine m_engine;
};

} // namespace dxftest
