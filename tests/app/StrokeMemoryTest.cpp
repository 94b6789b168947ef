// SPDX-License-Identifier: GPL-2.0-or-later

#include "StrokeMemory.h"

#include "dxfviewer/model/DXFDocument.h"
#include "tests/support/Builders.h"

#include <gtest/gtest.h>

namespace
{

TEST(StrokeMemoryTest, KeepsMoreStepsOfSmallDrawings)
{
    QList<QSharedPointer<DXFEntity>> many;
    for (int index = 0; index < 10000; ++index)
        many.append(dxftest::makePolyline({{0, 0}, {1, 1}}));
    const auto few = dxftest::makeDocument(many.mid(0, 100));
    const auto large = dxftest::makeDocument(many);
    constexpr qint64 memory = 1LL << 28;

    EXPECT_GT(stepsThatFit(memory, *large), 100);
    EXPECT_GT(stepsThatFit(memory, *few), 20 * stepsThatFit(memory, *large));
}

TEST(StrokeMemoryTest, CountsTheSegmentsThatAStepCopies)
{
    const auto document =
        dxftest::makeDocument({dxftest::makePolyline(QVector<QPointF>(100000, QPointF(1, 1)))});
    document->setup();

    EXPECT_LT(stepsThatFit(1LL << 28, *document), 100);
}

TEST(StrokeMemoryTest, KeepsAtLeastTenSteps)
{
    EXPECT_EQ(stepsThatFit(0, DXFDocument()), 10);
    EXPECT_EQ(stepsThatFit(-1, DXFDocument()), 10);
    EXPECT_LE(stepsThatFit(1LL << 62, DXFDocument()), 100000);
}

} // namespace
