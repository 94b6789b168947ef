// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/Segment.h"

#include "tests/support/LoggedTest.h"

#include <QVector>

using namespace dxftest;

namespace
{

class SegmentTest : public LoggedTest
{
};

TEST_F(SegmentTest, DefaultHasAZeroLineAndClearedFlags)
{
    const Segment segment;

    EXPECT_EQ(segment.line().x1(), 0.0);
    EXPECT_EQ(segment.line().y1(), 0.0);
    EXPECT_EQ(segment.line().x2(), 0.0);
    EXPECT_EQ(segment.line().y2(), 0.0);
    EXPECT_FALSE(segment.isSelected());
    EXPECT_FALSE(segment.isHovered());
}

TEST_F(SegmentTest, NewSegmentHasNoIdYet)
{
    const int highest = IDeletable().id();
    const Segment byDefault;
    const Segment onALine(QLineF(0, 0, 1, 1));

    EXPECT_EQ(IDeletable().id(), highest + 1);
    EXPECT_EQ(onALine.id(), highest + 2);
    EXPECT_EQ(byDefault.id(), highest + 3);
}

TEST_F(SegmentTest, LineRunsFromStartToEnd)
{
    const Segment segment(QLineF(QPointF(1, 2), QPointF(-3, -4)));

    EXPECT_EQ(segment.line().p1(), QPointF(1, 2));
    EXPECT_EQ(segment.line().p2(), QPointF(-3, -4));
}

TEST_F(SegmentTest, NewLineKeepsIdAndFlags)
{
    Segment segment(QLineF(1, 2, 3, 4));
    segment.setSelected(true);
    segment.setHovered(true);
    const int id = segment.id();

    segment.setLine(QLineF(5, 6, 7, 8));

    EXPECT_EQ(segment.line(), QLineF(5, 6, 7, 8));
    EXPECT_EQ(segment.id(), id);
    EXPECT_TRUE(segment.isSelected());
    EXPECT_TRUE(segment.isHovered());
}

TEST_F(SegmentTest, CopyHasIdFlagsAndLine)
{
    QVector<Segment> segments{Segment(QLineF(1, 2, 3, 4))};
    segments[0].setSelected(true);
    segments[0].setHovered(true);
    const int id = segments[0].id();

    const Segment copy = segments.at(0);
    segments[0].setSelected(false);

    EXPECT_EQ(copy.id(), id);
    EXPECT_TRUE(copy.isSelected());
    EXPECT_TRUE(copy.isHovered());
    EXPECT_EQ(copy.line(), QLineF(1, 2, 3, 4));
}

} // namespace
