// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/DXFLineType.h"

#include "tests/support/LoggedTest.h"

#include <QSharedPointer>

#include <limits>
#include <utility>

using namespace dxftest;

namespace
{

DXFLineType lineTypeWithFlags(int flags)
{
    return DXFLineType(QStringLiteral("A"), QStringLiteral("B"), flags, 0, 0.0, nullptr);
}

class DXFLineTypeTest : public LoggedTest
{
protected:
    double pattern[2] = {0.5, -0.25};
};

TEST_F(DXFLineTypeTest, EachValueIsReturnedAsGiven)
{
    const DXFLineType lineType(QStringLiteral("DASHED"), QStringLiteral("__ __"), 64, 2, 0.75,
                               pattern);

    EXPECT_EQ(lineType.name(), QStringLiteral("DASHED"));
    EXPECT_EQ(lineType.description(), QStringLiteral("__ __"));
    EXPECT_EQ(lineType.flags(), 64);
    EXPECT_EQ(lineType.numberOfDashes(), 2);
    EXPECT_EQ(lineType.patternLength(), 0.75);
    EXPECT_EQ(lineType.pattern(), pattern);
}

TEST_F(DXFLineTypeTest, NothingIsValidated)
{
    const DXFLineType lineType(QString(), QString(), -1, -5, -1.5, nullptr);

    EXPECT_EQ(lineType.flags(), -1);
    EXPECT_EQ(lineType.numberOfDashes(), -5);
    EXPECT_EQ(lineType.patternLength(), -1.5);
    EXPECT_EQ(lineType.pattern(), nullptr);
}

TEST_F(DXFLineTypeTest, CopyPointsAtTheSamePattern)
{
    const DXFLineType original(QStringLiteral("A"), QString(), 0, 2, 0.75, pattern);

    const DXFLineType copy(original);

    EXPECT_EQ(copy.pattern(), pattern);
}

TEST_F(DXFLineTypeTest, DestructionLeavesThePatternUntouched)
{
    auto* owned = new double[2]{0.5, -0.25};
    auto lineType =
        QSharedPointer<DXFLineType>::create(QStringLiteral("A"), QString(), 0, 2, 0.75, owned);

    lineType.reset();

    EXPECT_EQ(owned[0], 0.5);
    EXPECT_EQ(owned[1], -0.25);
    delete[] owned;
}

TEST_F(DXFLineTypeTest, StringNamesEveryValueAndAMissingPattern)
{
    const DXFLineType lineType(QStringLiteral("DASHED"), QStringLiteral("__ __"), 74, 2, 0.75,
                               nullptr);

    EXPECT_EQ(lineType.toString(),
              QStringLiteral("[LTYPE name: DASHED, description: __ __, flags: 4a, "
                             "numberOfDashes: 2, patternLength: 0.75, pattern: NULL]"));
}

TEST_F(DXFLineTypeTest, StringSaysPresentForAnyPattern)
{
    const DXFLineType lineType(QStringLiteral("A"), QStringLiteral("B"), 0, -3, 12, pattern);

    EXPECT_EQ(lineType.toString(),
              QStringLiteral("[LTYPE name: A, description: B, flags: 0, numberOfDashes: -3, "
                             "patternLength: 12, pattern: present]"));
}

TEST_F(DXFLineTypeTest, StringKeepsPlaceholdersInNames)
{
    const DXFLineType lineType(QStringLiteral("%2"), QStringLiteral("%3 %1"), 0, 0, 1.0, nullptr);

    EXPECT_EQ(lineType.toString(),
              QStringLiteral("[LTYPE name: %2, description: %3 %1, flags: 0, numberOfDashes: 0, "
                             "patternLength: 1, pattern: NULL]"));
}

TEST_F(DXFLineTypeTest, StringHasThePatternLengthInItsShortForm)
{
    const std::pair<double, const char*> forms[] = {
        {1234567.0, "1.23457e+06"}, {0.1 + 0.2, "0.3"}, {-1e-7, "-1e-07"}};
    for (const auto& [length, form] : forms) {
        const DXFLineType lineType(QString(), QString(), 0, 0, length, nullptr);

        EXPECT_TRUE(lineType.toString().contains(
            QStringLiteral("patternLength: %1, pattern:").arg(QLatin1String(form))))
            << form;
    }
}

TEST_F(DXFLineTypeTest, StringHasNegativeFlagsWithAMinusSign)
{
    EXPECT_TRUE(lineTypeWithFlags(-1).toString().contains(QStringLiteral("flags: -1,")));
    EXPECT_TRUE(lineTypeWithFlags(-12).toString().contains(QStringLiteral("flags: -c,")));
    EXPECT_TRUE(lineTypeWithFlags(std::numeric_limits<int>::min())
                    .toString()
                    .contains(QStringLiteral("flags: -80000000,")));
}

} // namespace
