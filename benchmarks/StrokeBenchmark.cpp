// SPDX-License-Identifier: GPL-2.0-or-later

#include "Comparison.h"

#include "dxfviewer/viewer/DXFViewer.h"
#include "dxfviewer/viewer/View.h"

#include <QAction>
#include <QApplication>
#include <QGraphicsScene>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace
{

using namespace dxfbench;

constexpr int mostMoves = 60;
constexpr int leastMoves = 15;
constexpr int movedSegments = 20000000;
constexpr int loadTimeoutMs = 600000;
constexpr QSize windowSize(1000, 800);
constexpr double median = 0.5;
constexpr double percentile99 = 0.99;
constexpr double milliseconds = 1e3;
constexpr int limitRounds = 5;

/// The time that a user waits after one event: processor time and clock time.
struct Wait {
    double processor = 0.0;
    double clock = 0.0;
};
using Waits = std::vector<Wait>;

double quantile(const Waits& waits, double Wait::*time, double share)
{
    std::vector<double> seconds;
    for (const Wait& wait : waits)
        seconds.push_back(wait.*time);
    std::sort(seconds.begin(), seconds.end());
    const double last = static_cast<double>(seconds.size() - 1);
    return seconds.at(static_cast<std::size_t>(share * last + 0.5));
}

/// A mouse that waits until the window shows the effect of each event. The time includes deletions
/// that became due meanwhile.
class PatientMouse
{
public:
    explicit PatientMouse(QGraphicsView& view)
        : m_viewport(*view.viewport())
    {
    }

    Wait press(const QPoint& at)
    {
        return send(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
    }
    Wait moveTo(const QPoint& at, Qt::MouseButtons held)
    {
        return send(QEvent::MouseMove, at, Qt::NoButton, held);
    }
    Wait release(const QPoint& at)
    {
        return send(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
    }

private:
    Wait send(QEvent::Type type, const QPoint& at, Qt::MouseButton button, Qt::MouseButtons held)
    {
        using Clock = std::chrono::steady_clock;
        const auto start = Clock::now();
        const double startOfThread = threadSeconds();
        QMouseEvent event(type, at, m_viewport.mapTo(m_viewport.window(), at),
                          m_viewport.mapToGlobal(at), button, held, Qt::NoModifier);
        QApplication::sendEvent(&m_viewport, &event);
        QApplication::processEvents();
        return {threadSeconds() - startOfThread,
                std::chrono::duration<double>(Clock::now() - start).count()};
    }

    QWidget& m_viewport;
};

/// A window in edit mode that shows a drawing, all of it or the middle of it.
class ShownDrawing
{
public:
    ShownDrawing(const Plan& plan, int zoomSteps)
        : m_plan(plan)
    {
        m_window.resize(windowSize);
        m_window.show();
        m_view = m_window.findChild<View*>();
        m_window.loadData(makeText(plan));
        m_isShown =
            QTest::qWaitFor([&] { return !m_view->scene()->items().isEmpty(); }, loadTimeoutMs);
        for (int step = 0; step < zoomSteps; ++step)
            m_view->zoomCalc(1);
        m_window.findChild<QAction*>(QStringLiteral("actionEdit_dxf"))->setChecked(true);
        QApplication::processEvents();
    }

    bool isShown() const { return m_isShown; }

    /// Moves without a button.
    Waits hover()
    {
        PatientMouse mouse(*m_view);
        mouse.moveTo(pointAt(0), Qt::NoButton);
        Waits waits;
        for (int step = 1; step <= moves(); ++step)
            waits.push_back(mouse.moveTo(pointAt(step), Qt::NoButton));
        return waits;
    }

    /// A stroke straight across the middle of the window.
    Waits drag()
    {
        PatientMouse mouse(*m_view);
        Waits waits{mouse.press(pointAt(0))};
        for (int step = 1; step <= moves(); ++step)
            waits.push_back(mouse.moveTo(pointAt(step), Qt::LeftButton));
        waits.push_back(mouse.release(pointAt(moves())));
        return waits;
    }

    /// Seconds that it takes to find the visible lines in a plain array and draw them.
    double plainPaintSeconds() const
    {
        const std::vector<QLineF> lines = plainLines();
        QImage image(m_view->viewport()->size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        const QRectF visible = m_view->mapToScene(m_view->viewport()->rect()).boundingRect();
        double best = 0.0;
        for (int round = 0; round < limitRounds; ++round) {
            QPainter painter(&image);
            painter.setTransform(m_view->viewportTransform());
            QPen pen(Qt::black, 1);
            pen.setCosmetic(true);
            painter.setPen(pen);
            const double seconds = secondsOf([&] { drawVisible(painter, lines, visible); });
            best = round == 0 ? seconds : std::min(best, seconds);
        }
        return best;
    }

private:
    int moves() const { return std::clamp(movedSegments / m_plan.segments, leastMoves, mostMoves); }

    QPoint pointAt(int step) const
    {
        const QSize size = m_view->viewport()->size();
        return QPoint(size.width() * (step + 1) / (moves() + 2), size.height() / 2);
    }

    std::vector<QLineF> plainLines() const
    {
        std::vector<QLineF> lines;
        const auto document = makeReadyDocument(m_plan);
        for (const auto& [begin, end] : spansOf(*document)) {
            for (const Segment* segment = begin; segment != end; ++segment)
                lines.push_back(segment->line());
        }
        return lines;
    }

    static void drawVisible(QPainter& painter, const std::vector<QLineF>& lines,
                            const QRectF& visible)
    {
        for (const QLineF& line : lines) {
            if (std::max(line.x1(), line.x2()) >= visible.left()
                && std::min(line.x1(), line.x2()) <= visible.right()
                && std::max(line.y1(), line.y2()) >= visible.top()
                && std::min(line.y1(), line.y2()) <= visible.bottom())
                painter.drawLines(&line, 1);
        }
    }

    Plan m_plan;
    DXFViewer m_window;
    View* m_view = nullptr;
    bool m_isShown = false;
};

void report(benchmark::State& state, const Waits& waits, double limit)
{
    state.SetIterationTime(quantile(waits, &Wait::processor, median));
    state.counters["median_ms"] = quantile(waits, &Wait::processor, median) * milliseconds;
    state.counters["p99_ms"] = quantile(waits, &Wait::processor, percentile99) * milliseconds;
    state.counters["clock_ms"] = quantile(waits, &Wait::clock, median) * milliseconds;
    state.counters["limit_ms"] = limit * milliseconds;
}

using Act = Waits (ShownDrawing::*)();

void wait(benchmark::State& state, const Plan& plan, int zoomSteps, Act act)
{
    ShownDrawing drawing(plan, zoomSteps);
    if (!drawing.isShown()) {
        state.SkipWithError("the drawing is not shown");
        return;
    }
    for (auto _ : state) {
        const Waits waits = (drawing.*act)();
        report(state, waits, drawing.plainPaintSeconds());
    }
}

struct Case {
    const char* shape;
    Plan plan;
};
constexpr Case cases[] = {
    {"one_polyline", {Shape::OnePolyline, 1000000}}, {"ten_each", {Shape::TenEach, 100000}},
    {"ten_each", {Shape::TenEach, 1000000}},         {"ten_each", {Shape::TenEach, 10000000}},
    {"one_each", {Shape::OneEach, 100000}},          {"one_each", {Shape::OneEach, 1000000}}};

constexpr int zoomedIn = 15;
constexpr int mostSegmentsInView = 1000000;

int registerWaits(const char* name, int zoomSteps, Act act)
{
    for (const Case& one : cases) {
        if (zoomSteps == 0 && one.plan.segments > mostSegmentsInView)
            continue;
        const std::string fullName =
            std::string(name) + '/' + one.shape + '/' + std::to_string(one.plan.segments);
        benchmark::RegisterBenchmark(fullName.c_str(),
                                     [plan = one.plan, zoomSteps, act](benchmark::State& state) {
                                         wait(state, plan, zoomSteps, act);
                                     })
            ->UseManualTime()
            ->Iterations(1)
            ->Unit(benchmark::kMillisecond);
    }
    return 0;
}

const int registered = registerWaits("hover_whole", 0, &ShownDrawing::hover)
                       + registerWaits("hover_zoomed", zoomedIn, &ShownDrawing::hover)
                       + registerWaits("drag_whole", 0, &ShownDrawing::drag)
                       + registerWaits("drag_zoomed", zoomedIn, &ShownDrawing::drag);

} // namespace
