// SPDX-License-Identifier: GPL-2.0-or-later

#include "Report.h"

#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/OtherEntity.h"

#include <cmath>

using dxftest::LoggedTest;
using dxftest::makeDocument;
using dxftest::makePolyline;
using dxftest::OtherEntity;

namespace
{

class ReportTest : public LoggedTest
{
};

TEST_F(ReportTest, MeasuresAllSegments)
{
    const auto document =
        makeDocument({makePolyline({{-1, 2}, {2, 6}, {2, 5}}), nullptr,
                      QSharedPointer<OtherEntity>::create(), makePolyline({{10, -3}, {10, -3}})});
    document->setup();

    const Measures measures = measuresOf(*document);

    EXPECT_DOUBLE_EQ(measures.length, 6.0);
    ASSERT_TRUE(measures.box);
    EXPECT_EQ(measures.box->least, QPointF(-1, -3));
    EXPECT_EQ(measures.box->greatest, QPointF(10, 6));
}

TEST_F(ReportTest, SmallLengthsCountInALongSum)
{
    QVector<QPointF> zigzag{{0, 0}, {1e9, 0}};
    for (int i = 0; i < 100000; ++i)
        zigzag.append({1e9, i % 2 == 0 ? 1e-8 : 0.0});
    const auto document = makeDocument({makePolyline(zigzag)});
    document->setup();

    EXPECT_NEAR(measuresOf(*document).length - 1e9, 1e-3, 2e-7);
}

TEST_F(ReportTest, IsALineOfFields)
{
    Measures measures;
    measures.length = 1.0 / 3.0;
    measures.box = Measures::Box{{-3.2e6, 0}, {0.5, 1e-7}};

    EXPECT_EQ(reportLine(QStringLiteral("a b.dxf"), measures,
                         {{QStringLiteral("IMAGE"), 3}, {QStringLiteral("HATCH"), 12}}),
              "a b.dxf\t0.333333333333333\t-3200000\t0\t0.5\t1e-07\tHATCH=12,IMAGE=3");
}

TEST_F(ReportTest, KeepsItsFieldsWhateverTheNameIs)
{
    EXPECT_EQ(reportLine(QStringLiteral("a\tb\n\r\v.dxf"), Measures(), {}),
              "a b   .dxf\t0\tnan\tnan\tnan\tnan\t");
}

TEST_F(ReportTest, KeepsItsFieldsWhateverTheKindsAre)
{
    EXPECT_EQ(reportLine(QStringLiteral("a"), Measures(),
                         {{QStringLiteral("A\tB,C=D\n\rE"), 1}, {QStringLiteral("F"), 2}}),
              "a\t0\tnan\tnan\tnan\tnan\tA B C D  E=1,F=2");
}

} // namespace
