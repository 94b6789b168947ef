// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/ClassicNumbers.h"

#include "tests/io/TestLocales.h"

#include <gtest/gtest.h>

#include <clocale>
#include <sstream>

using namespace dxftest;
using dxfviewer::ClassicNumbers;

namespace
{

struct Comma : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

double readFrom(const char* text)
{
    std::istringstream stream(text);
    double value = 0;
    stream >> value;
    return value;
}

class ClassicNumbersTest : public ::testing::Test
{
protected:
    ~ClassicNumbersTest() override
    {
        std::locale::global(m_locale);
        std::setlocale(LC_ALL, m_cLocale.c_str());
    }

    /// Checks the numbers during the life time of the class, and the locales afterwards.
    static void expectClassicForAWhile()
    {
        const std::locale locale;
        const std::string cLocale = std::setlocale(LC_ALL, nullptr);
        {
            const ClassicNumbers numbers;
            EXPECT_EQ(readFrom("1234.5"), 1234.5);
            EXPECT_EQ(readFrom("1.234,5"), 1.234);
        }
        EXPECT_TRUE(std::locale() == locale);
        EXPECT_EQ(std::setlocale(LC_ALL, nullptr), cLocale);
    }

private:
    std::string m_cLocale = std::setlocale(LC_ALL, nullptr);
    std::locale m_locale;
};

TEST_F(ClassicNumbersTest, ClassicLocaleStays)
{
    std::locale::global(std::locale::classic());

    const ClassicNumbers numbers;

    EXPECT_TRUE(std::locale() == std::locale::classic());
}

TEST_F(ClassicNumbersTest, LocaleWithoutANameIsBackAfterwards)
{
    std::locale::global(std::locale(std::locale::classic(), new Comma));
    ASSERT_EQ(readFrom("1.234,5"), 1234.5);

    expectClassicForAWhile();

    EXPECT_EQ(readFrom("1.234,5"), 1234.5);
}

TEST_F(ClassicNumbersTest, MayBeNested)
{
    std::locale::global(std::locale(std::locale::classic(), new Comma));
    const ClassicNumbers outer;

    expectClassicForAWhile();

    EXPECT_EQ(readFrom("1234.5"), 1234.5);
}

TEST_F(ClassicNumbersTest, LocaleIsBackAfterAnException)
{
    const std::locale locale(std::locale::classic(), new Comma);
    std::locale::global(locale);

    try {
        const ClassicNumbers numbers;
        throw 1;
    } catch (int) {
    }

    EXPECT_TRUE(std::locale() == locale);
}

class ClassicNumbersLocaleTest : public ClassicNumbersTest
{
protected:
    void SetUp() override
    {
        if (!locales.areAvailable())
            GTEST_SKIP() << "there is no localedef here";
    }

    TestLocales locales;
};

TEST_F(ClassicNumbersLocaleTest, NamedLocaleIsBackAfterwards)
{
    std::locale::global(std::locale("de_DE.UTF-8"));

    expectClassicForAWhile();
}

/// dxflib's strtod and printf depend on the locale of C. But that locale is the host's, and threads
/// of the host may use it.
TEST_F(ClassicNumbersLocaleTest, LocaleOfCIsNeverTouched)
{
    std::locale::global(std::locale("de_DE.UTF-8"));
    ASSERT_NE(std::setlocale(LC_ALL, "ps_AF.UTF-8"), nullptr);
    {
        const ClassicNumbers numbers;

        EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "ps_AF.UTF-8");
    }
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "ps_AF.UTF-8");
}

} // namespace
