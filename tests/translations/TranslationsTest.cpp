// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/support/LoggedTest.h"
#include "tests/translations/TranslationFiles.h"

#include <QRegularExpression>
#include <QStringList>
#include <QTranslator>

#include <gmock/gmock.h>

#include <ostream>
#include <string>
#include <tuple>

namespace
{

using ::testing::Combine;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::UnorderedElementsAreArray;
using ::testing::Values;

/// The name that the files of a set begin with, and the folder with the sources of its texts.
struct FileSet {
    const char* testName;
    const char* name;
    const char* folder;
};

void PrintTo(const FileSet& set, std::ostream* stream)
{
    *stream << set.name;
}

/// The placeholders for values, %1 and so on, sorted.
QStringList placesIn(const QString& text)
{
    static const QRegularExpression place(QStringLiteral("%[0-9]+"));
    QStringList places;
    for (auto match = place.globalMatch(text); match.hasNext();)
        places.append(match.next().captured());
    places.sort();
    return places;
}

class TranslationsTest : public dxftest::LoggedTest,
                         public ::testing::WithParamInterface<std::tuple<FileSet, std::string>>
{
protected:
    static FileSet set() { return std::get<FileSet>(GetParam()); }

    static QString baseName()
    {
        return QLatin1String(set().name) + QLatin1Char('_')
               + QString::fromStdString(std::get<std::string>(GetParam()));
    }

    static QVector<dxftest::SourceText> textsInSources()
    {
        return dxftest::textsInSources(QLatin1String(set().folder));
    }
};

TEST_P(TranslationsTest, TranslateEveryTextOfTheSources)
{
    QTranslator translator;

    ASSERT_TRUE(translator.load(baseName(), QStringLiteral(DXFVIEWER_QM_DIR)));

    const auto texts = textsInSources();
    ASSERT_THAT(texts, Not(IsEmpty()));
    for (const dxftest::SourceText& text : texts) {
        const QString translation =
            translator.translate(text.context.toUtf8(), text.text.toUtf8(), text.comment.toUtf8());
        EXPECT_FALSE(translation.isEmpty()) << ::testing::PrintToString(text);
        EXPECT_EQ(placesIn(translation), placesIn(text.text)) << ::testing::PrintToString(text);
    }
}

TEST_P(TranslationsTest, HaveNoTextThatIsNotInTheSources)
{
    const QString tsFile =
        QStringLiteral(DXFVIEWER_SOURCE_DIR "/translations/") + baseName() + QStringLiteral(".ts");

    const auto texts = dxftest::textsOf(tsFile);

    EXPECT_THAT(texts, UnorderedElementsAreArray(textsInSources()));
}

std::string testName(const ::testing::TestParamInfo<TranslationsTest::ParamType>& info)
{
    return std::string(std::get<FileSet>(info.param).testName) + '_'
           + std::get<std::string>(info.param);
}

const auto languages = Values<std::string>("de", "es", "fr", "ja", "ru");

INSTANTIATE_TEST_SUITE_P(, TranslationsTest,
                         Combine(Values(FileSet{"Library", "dxfviewer", "dxfviewer"}), languages),
                         testName);

#ifdef DXFVIEWER_HAS_APP
INSTANTIATE_TEST_SUITE_P(App, TranslationsTest,
                         Combine(Values(FileSet{"App", "dxfviewer-app", "app"}), languages),
                         testName);
#endif

} // namespace
