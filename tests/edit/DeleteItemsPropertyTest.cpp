// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/DeleteItems.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFPolyline.h"

#include "tests/edit/DeleteItemsFixture.h"
#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>

using namespace dxftest;

namespace
{

// Properties

/// A second implementation of the splitting rule, on plain lists.
struct ModelPolyline {
    QVector<QLineF> lines;
    // The ids of new pieces are not known in advance: they are taken from the document after each
    // step.
    QVector<int> ids;
    bool isClosed = false;
};

bool fuzzilyEqual(double a, double b)
{
    const double difference = std::abs(a - b);
    return a == 0.0 || b == 0.0 ? difference <= 1e-12
                                : difference * 1e12 <= std::min(std::abs(a), std::abs(b));
}

bool endsMeet(const QVector<QLineF>& lines)
{
    return fuzzilyEqual(lines.first().x1(), lines.last().x2())
           && fuzzilyEqual(lines.first().y1(), lines.last().y2());
}

QVector<QLineF> rebuilt(const QVector<QLineF>& chain)
{
    QVector<QLineF> lines;
    QPointF from = chain.first().p1();
    for (const QLineF& line : chain) {
        lines.append(QLineF(from, line.p2()));
        from = line.p2();
    }
    if (endsMeet(chain) && lines.size() > 1)
        lines.append(QLineF(chain.first().p1(), chain.last().p2()));
    return lines;
}

std::vector<ModelPolyline> afterDeletion(const std::vector<ModelPolyline>& polylines,
                                         const std::vector<int>& deleted)
{
    std::vector<ModelPolyline> kept;
    std::vector<ModelPolyline> added;
    for (const ModelPolyline& polyline : polylines) {
        std::vector<ModelPolyline> runs(1);
        for (int i = 0; i < polyline.lines.size(); ++i) {
            if (std::find(deleted.begin(), deleted.end(), polyline.ids[i]) != deleted.end()) {
                if (!runs.back().lines.isEmpty())
                    runs.emplace_back();
                continue;
            }
            runs.back().lines.append(polyline.lines[i]);
            runs.back().ids.append(polyline.ids[i]);
        }
        if (runs.back().lines.isEmpty())
            runs.pop_back();
        for (std::size_t i = 0; i < runs.size(); ++i) {
            ModelPolyline piece = runs[i];
            piece.isClosed = endsMeet(piece.lines);
            if (i == 0) {
                kept.push_back(piece);
            } else {
                piece.lines = rebuilt(piece.lines);
                piece.ids.clear();
                added.push_back(piece);
            }
        }
    }
    kept.insert(kept.end(), added.begin(), added.end());
    return kept;
}

class DeleteItemsPropertyTest : public DeleteItemsTest,
                                public ::testing::WithParamInterface<unsigned>
{
protected:
    DeleteItemsPropertyTest()
        : random(GetParam())
    {
    }

    int upTo(int highest) { return std::uniform_int_distribution<int>(0, highest)(random); }

    Polyline randomPolyline()
    {
        // The coordinates have few different values, so that pieces often end where they start.
        QVector<QPointF> points;
        const int count = upTo(12);
        for (int i = 0; i < count; ++i)
            points.append(QPointF(upTo(2), upTo(2)));
        return makePolyline(points, upTo(2) == 0);
    }

    void useRandomDrawing()
    {
        QList<Entity> entities;
        const int count = 1 + upTo(7);
        for (int i = 0; i < count; ++i)
            entities.append(randomPolyline());
        use(entities);
    }

    /// A few ids of segments, most of them neighbours, and some ids that belong to no segment.
    QVector<int> randomBatch()
    {
        const QVector<int> present = segmentIdsOf(document);
        QVector<int> batch;
        const int groups = upTo(3);
        for (int i = 0; i < groups && !present.isEmpty(); ++i)
            batch += present.mid(upTo(int(present.size()) - 1), 1 + upTo(3));
        if (upTo(3) == 0)
            batch += entityIdsOf(document);
        if (upTo(3) == 0)
            batch += {-1, 0, freshId(), ids.value(upTo(20))};
        std::shuffle(batch.begin(), batch.end(), random);
        return batch;
    }

    std::mt19937 random;
};

TEST_P(DeleteItemsPropertyTest, LeavesTheSegmentsThatTheRuleLeaves)
{
    useRandomDrawing();
    std::vector<ModelPolyline> model;
    for (const PolylineState& polyline : stateOf(document))
        model.push_back({polyline.lines, polyline.segmentIds, polyline.isClosed});

    for (int step = 0; step < 12; ++step) {
        const QVector<int> batch = randomBatch();

        push(batch);

        model = afterDeletion(model, std::vector<int>(batch.begin(), batch.end()));
        ASSERT_EQ(std::size_t(entityCount()), model.size());
        for (std::size_t i = 0; i < model.size(); ++i) {
            const PolylineState state = stateOf(*at(int(i)));
            EXPECT_EQ(state.lines, model[i].lines);
            EXPECT_EQ(state.isClosed, model[i].isClosed);
            if (!model[i].ids.isEmpty()) {
                EXPECT_EQ(state.segmentIds, model[i].ids);
            }
            model[i].ids = state.segmentIds;
        }
    }
}

TEST_P(DeleteItemsPropertyTest, HandsOutTheIdsOfTheRule)
{
    useRandomDrawing();
    for (int step = 0; step < 12; ++step) {
        const QVector<int> batch = randomBatch();
        const auto entitiesBefore = entityCount();
        const int highest = freshId();

        push(batch);

        qsizetype handedOut = entitiesBefore;
        for (int i = 0; i < entityCount(); ++i) {
            if (at(i)->id() > highest)
                handedOut += 1 + at(i)->segments().size();
        }
        EXPECT_EQ(freshId(), highest + handedOut + 1);
    }
}

TEST_P(DeleteItemsPropertyTest, UndoAndRedoRestoreTheStateOfEachStep)
{
    useRandomDrawing();
    std::vector<State> positions{stateOf(document)};

    for (int step = 0; step < 120; ++step) {
        switch (upTo(3)) {
        case 0:
            push(randomBatch());
            positions.resize(std::size_t(stack.index()));
            positions.push_back(stateOf(document));
            break;
        case 1:
            stack.undo();
            break;
        case 2:
            stack.redo();
            break;
        default:
            stack.setIndex(upTo(stack.count()));
            break;
        }
        ASSERT_EQ(stateOf(document), positions[std::size_t(stack.index())]) << "step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, DeleteItemsPropertyTest, ::testing::Range(1U, 41U));

} // namespace
