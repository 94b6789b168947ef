// SPDX-License-Identifier: GPL-2.0-or-later

#include "Comparison.h"

#include "dxfviewer/viewer/DXFViewer.h"

#include <QAction>
#include <QApplication>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <vector>

namespace
{

using namespace dxfbench;

constexpr int moves = 60;
constexpr int loadTimeoutMs = 120000;
constexpr int windowSize = 800;
constexpr double median = 0.5;
constexpr double percentile99 = 0.99;
constexpr double milliseconds = 1e3;

using Seconds = std::vector<double>;

double quantile(Seconds seconds, double share)
{
    std::sort(seconds.begin(), seconds.end());
    const double last = static_cast<double>(seconds.size() - 1);
    return seconds.at(static_cast<std::size_t>(share * last + 0.5));
}

/// A mouse that is waited for: what a user feels is the time until the window shows the effect,
/// the deletions that fell due meanwhile included.
class PatientMouse
{
public:
    explicit PatientMouse(QGraphicsView& view)
        : m_viewport(*view.viewport())
    {
    }

    double press(const QPoint& at)
    {
        return send(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
    }
    double moveTo(const QPoint& at)
    {
        return send(QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
    }
    double release(const QPoint& at)
    {
        return send(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
    }

private:
    double send(QEvent::Type type, const QPoint& at, Qt::MouseButton button, Qt::MouseButtons held)
    {
        using Clock = std::chrono::steady_clock;
        const auto start = Clock::now();
        QMouseEvent event(type, at, m_viewport.mapTo(m_viewport.window(), at),
                          m_viewport.mapToGlobal(at), button, held, Qt::NoModifier);
        QApplication::sendEvent(&m_viewport, &event);
        QApplication::processEvents();
        return std::chrono::duration<double>(Clock::now() - start).count();
    }

    QWidget& m_viewport;
};

/// Straight across the middle of the window.
Seconds stroke(QGraphicsView& view)
{
    PatientMouse mouse(view);
    const int y = view.viewport()->height() / 2;
    const int width = view.viewport()->width();
    const auto pointAt = [&](int step) {
        return QPoint(width * (step + 1) / (moves + 2), y);
    };

    Seconds seconds{mouse.press(pointAt(0))};
    for (int step = 1; step <= moves; ++step)
        seconds.push_back(mouse.moveTo(pointAt(step)));
    seconds.push_back(mouse.release(pointAt(moves)));
    return seconds;
}

void strokeInWindow(benchmark::State& state, const Plan& plan)
{
    DXFViewer window;
    window.resize(windowSize, windowSize);
    window.show();
    auto* view = window.findChild<QGraphicsView*>();
    auto* edit = window.findChild<QAction*>(QStringLiteral("actionEdit_dxf"));
    window.loadData(makeText(plan));
    if (!QTest::qWaitFor([&] { return !view->scene()->items().isEmpty(); }, loadTimeoutMs)) {
        state.SkipWithError("the drawing is not shown");
        return;
    }
    edit->setChecked(true);
    QApplication::processEvents();

    for (auto _ : state) {
        const Seconds seconds = stroke(*view);
        state.SetIterationTime(quantile(seconds, median));
        state.SetComplexityN(plan.segments);
        state.counters["median_ms"] = quantile(seconds, median) * milliseconds;
        state.counters["p99_ms"] = quantile(seconds, percentile99) * milliseconds;
    }
}

const int registered = registerForAllDrawings("stroke_event", strokeInWindow);

} // namespace
