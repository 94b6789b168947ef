// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/GroupWriter.h"

#include "tests/io/TestLocales.h"
#include "tests/support/Files.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

using namespace dxftest;
using dxfviewer::GroupWriter;

namespace
{

class GroupWriterTest : public ::testing::Test
{
protected:
    std::string name(const char* file) const
    {
        return folder.filePath(QString::fromLatin1(file)).toStdString();
    }

    static std::string content(const std::string& name)
    {
        return contentOf(QString::fromStdString(name)).toStdString();
    }

    /// What our writer writes.
    template <typename Write>
    std::string written(Write write, DL_Codes::version version = DL_Codes::AC1009) const
    {
        GroupWriter writer(name("ours").c_str(), version);
        write(writer);
        EXPECT_TRUE(writer.finish());
        return content(name("ours"));
    }

    /// What dxflib's own writer writes.
    template <typename Write>
    std::string writtenByDxflib(Write write, DL_Codes::version version = DL_Codes::AC1009) const
    {
        DL_WriterA writer(name("dxflib's").c_str(), version);
        write(writer);
        writer.close();
        return content(name("dxflib's"));
    }

    template <typename Write>
    void expectSame(Write write, DL_Codes::version version = DL_Codes::AC1009) const
    {
        // The failure shows the first difference only: the whole texts are too long.
        const std::string ours = written(write, version);
        const std::string theirs = writtenByDxflib(write, version);
        const auto [a, b] = std::mismatch(ours.begin(), ours.end(), theirs.begin(), theirs.end());
        EXPECT_TRUE(ours == theirs)
            << "at " << (a - ours.begin()) << ": " << std::string(a, std::min(ours.end(), a + 40))
            << " / " << std::string(b, std::min(theirs.end(), b + 40));
    }

    QTemporaryDir folder;
};

double bitsAsDouble(quint64 bits)
{
    double value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

constexpr std::size_t numbersPerSeed = 300000;

/// The parameter is the seed of the numbers. One test for all of them would take too long.
class GroupWriterNumbersTest : public GroupWriterTest,
                               public ::testing::WithParamInterface<unsigned>
{
};

TEST_P(GroupWriterNumbersTest, AreWrittenAsByDxflib)
{
    std::mt19937_64 random(GetParam());
    std::uniform_real_distribution<double> coordinates(-1e6, 1e6);
    std::vector<double> values;
    while (values.size() < numbersPerSeed) {
        const double any = bitsAsDouble(random());
        if (std::isfinite(any) && std::fabs(any) < 1e230)
            values.push_back(any);
        const double coordinate = coordinates(random);
        values.push_back(coordinate);
        values.push_back(std::round(coordinate * 1000) / 1000);
        values.push_back(std::round(coordinate * 64) / 64 * 1e-13);
        values.push_back(std::round(coordinate));
    }

    expectSame([&values](DL_Writer& writer) {
        for (const double value : values)
            writer.dxfReal(10, value);
    });
}

INSTANTIATE_TEST_SUITE_P(Numbers, GroupWriterNumbersTest, ::testing::Range(1U, 11U),
                         [](const auto& seed) { return "Seed" + std::to_string(seed.param); });

TEST_F(GroupWriterTest, SpecialNumbersAreWrittenAsByDxflib)
{
    constexpr double values[] = {0.0,   -0.0,   1.0,   -1.0,  0.5,    1e-16,  5e-17,
                                 1e-17, -1e-17, 0.1,   1e237, 1e22,   5e-324, -5e-324,
                                 1e15,  1e16,   100.0, 10.0,  1.5e-16};
    const auto write = [&values](DL_Writer& writer) {
        for (const double value : values)
            writer.dxfReal(40, value);
    };

    expectSame(write);
    expectSame(write, DL_Codes::AC1009_MIN);
}

TEST_F(GroupWriterTest, OtherGroupsAreWrittenAsByDxflib)
{
    expectSame([](DL_Writer& writer) {
        for (const int value : {0, 1, -1, 4096, 1234567, std::numeric_limits<int>::max(),
                                std::numeric_limits<int>::min()}) {
            for (const int code : {0, 9, 10, 62, 100, 370, 1071}) {
                writer.dxfInt(code, value);
                writer.dxfHex(code, value);
            }
        }
        writer.dxfString(8, "");
        writer.dxfString(1, std::string("W\xc3\xa4nde \xff"));
        writer.dxfBool(290, true);
        writer.section("TABLES");
        writer.tableLayers(4);
        writer.coord(10, 1.0, 2.0, 3.0);
    });
}

TEST_F(GroupWriterTest, NumbersThatDxflibCannotWriteAreExact)
{
    const std::string text = written([](DL_Writer& writer) {
        writer.dxfReal(40, -std::numeric_limits<double>::max());
        writer.dxfReal(40, 1e300);
    });

    const auto second = text.find('\n', 4) + 1;
    EXPECT_EQ(std::stod(text.substr(4)), -std::numeric_limits<double>::max());
    EXPECT_EQ(text.substr(4, 6), "-17976");
    EXPECT_EQ(std::stod(text.substr(second + 4)), 1e300);
}

TEST_F(GroupWriterTest, NumbersThatAreNotFiniteBecomeZero)
{
    const std::string text = written([](DL_Writer& writer) {
        writer.dxfReal(40, std::numeric_limits<double>::quiet_NaN());
        writer.dxfReal(40, std::numeric_limits<double>::infinity());
        writer.dxfReal(40, -std::numeric_limits<double>::infinity());
    });

    EXPECT_EQ(text, " 40\n0.0\n 40\n0.0\n 40\n0.0\n");
}

TEST_F(GroupWriterTest, ControlCharactersBecomeBlanks)
{
    const std::string text = written([](DL_Writer& writer) {
        writer.dxfString(8, std::string("a\n  0\nEOF\r\0\x1f\x7f~\xc3\xa4", 16));
        writer.dxfString(8, "b\nc");
    });

    EXPECT_EQ(text, "  8\na   0 EOF    ~\xc3\xa4\n  8\nb c\n");
}

TEST_F(GroupWriterTest, LongNamesAreCutBetweenCharacters)
{
    const std::string text = written([](DL_Writer& writer) {
        writer.dxfString(8, std::string(1021, 'a') + "\xc3\xa4");
        writer.dxfString(8, std::string(1020, 'b') + "\xc3\xa4");
    });

    EXPECT_EQ(text,
              "  8\n" + std::string(1021, 'a') + "\n  8\n" + std::string(1020, 'b') + "\xc3\xa4\n");
}

TEST_F(GroupWriterTest, LocaleDoesNotMatter)
{
    const TestLocales locales;
    if (!locales.areAvailable())
        GTEST_SKIP() << "there is no localedef here";
    std::locale::global(std::locale("de_DE.UTF-8"));
    ASSERT_NE(std::setlocale(LC_ALL, "ps_AF.UTF-8"), nullptr);

    const std::string text = written([](DL_Writer& writer) {
        writer.dxfInt(70, 1234567);
        writer.dxfReal(1040, 1234567.5);
        writer.dxfHex(5, 0x12345);
    });

    EXPECT_EQ(text, " 70\n1234567\n1040\n1234567.5\n  5\n12345\n");
}

TEST_F(GroupWriterTest, FileThatCannotBeCreatedIsAFailure)
{
    GroupWriter writer("/no such folder/file", DL_Codes::AC1009);
    writer.dxfInt(70, 1);

    EXPECT_FALSE(writer.finish());
}

TEST_F(GroupWriterTest, FullDeviceIsAFailure)
{
    GroupWriter writer("/dev/full", DL_Codes::AC1009);
    writer.dxfInt(70, 1);

    EXPECT_FALSE(writer.finish());
}

} // namespace
