// SPDX-License-Identifier: GPL-2.0-or-later

#include "Comparison.h"

#include "dxfviewer/edit/RubberTool.h"
#include "dxfviewer/model/DXFDocument.h"

#include <QGraphicsScene>
#include <QGraphicsView>

namespace
{

using namespace dxfbench;

constexpr int leastRounds = 5;
constexpr int handful = 5;
constexpr double viewScale = 0.1;

Timed sumOver(const QSharedPointer<DXFDocument>& document)
{
    return [document] {
        const Spans spans = spansOf(*document);
        return secondsOf([&] { benchmark::DoNotOptimize(plainSum(spans)); });
    };
}

/// A few ids from all over the drawing.
QVector<int> someOf(const QVector<int>& ids, int start)
{
    QVector<int> some;
    for (int i = 0; i < handful; ++i)
        some.append(ids.at(start + i * (static_cast<int>(ids.size()) / handful)));
    return some;
}

void itemsUnderMouse(benchmark::State& state, const Plan& plan)
{
    const auto document = makeReadyDocument(plan);
    QGraphicsScene scene;
    QGraphicsView view(&scene);
    view.setTransform(QTransform::fromScale(viewScale, viewScale));
    RubberTool tool(document);
    scene.addItem(tool.getMarker());
    const QPointF center(drawingSize / 2, drawingSize / 2);
    compare(
        state, plan.segments, roundsFor(plan.segments, leastRounds),
        [&] { return secondsOf([&] { benchmark::DoNotOptimize(tool.itemsUnderMouse(center)); }); },
        sumOver(document));
}

void selectSome(benchmark::State& state, const Plan& plan)
{
    const auto document = makeReadyDocument(plan);
    const QVector<int> ids = segmentIdsOf(*document);
    int round = 0;
    compare(
        state, plan.segments, roundsFor(plan.segments, leastRounds),
        [&] {
            const QVector<int> some = someOf(ids, ++round);
            return secondsOf([&] { document->setSelected(some); });
        },
        sumOver(document));
}

void selectAll(benchmark::State& state, const Plan& plan)
{
    const auto document = makeReadyDocument(plan);
    const QVector<int> ids = segmentIdsOf(*document);
    compare(
        state, plan.segments, roundsFor(plan.segments, leastRounds),
        [&] {
            document->setSelected(QVector<int>());
            return secondsOf([&] { document->setSelected(ids); });
        },
        sumOver(document));
}

void selectedIds(benchmark::State& state, const Plan& plan)
{
    const auto document = makeReadyDocument(plan);
    document->setSelected(someOf(segmentIdsOf(*document), 0));
    compare(
        state, plan.segments, roundsFor(plan.segments, leastRounds),
        [&] { return secondsOf([&] { benchmark::DoNotOptimize(document->selectedIDs()); }); },
        sumOver(document));
}

const int registered = registerForAllDrawings("items_under_mouse", itemsUnderMouse)
                       + registerForAllDrawings("select_some", selectSome)
                       + registerForAllDrawings("select_all", selectAll)
                       + registerForAllDrawings("selected_ids", selectedIds);

} // namespace
