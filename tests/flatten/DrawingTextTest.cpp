// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/DrawingText.h"

#include "dxfviewer/flatten/BinaryDrawing.h"
#include "dxfviewer/flatten/CodePage.h"
#include "dxfviewer/flatten/FlatteningReader.h"
#include "dxfviewer/io/IReadingSteps.h"
#include "dxfviewer/model/DXFAttributes.h"
#include "dxfviewer/model/DXFLayer.h"
#include "tests/flatten/Records.h"
#include "tests/support/LoggedTest.h"

#include <clocale>

using namespace dxftest;
using dxfviewer::CodePage;
using dxfviewer::isUtf8;
using dxfviewer::utf8TextOf;

namespace
{

/// A header, and a line of text after it.
std::string drawing(const char* release, const char* codePage, const std::string& line)
{
    std::string text = "0\nSECTION\n2\nHEADER\n";
    if (*release)
        text += std::string("9\n$ACADVER\n1\n") + release + '\n';
    if (*codePage)
        text += std::string("9\n$DWGCODEPAGE\n3\n") + codePage + '\n';
    return text + "0\nENDSEC\n8\n" + line + '\n';
}

/// The decoded line. Empty if the text is not changed.
std::string lineIn(const char* release, const char* codePage, const std::string& line)
{
    const auto text = utf8TextOf(drawing(release, codePage, line));
    if (!text)
        return {};
    const std::size_t begin = text->rfind("\n8\n") + 3;
    return text->substr(begin, text->size() - begin - 1);
}

TEST(DrawingTextTest, SoundUtf8StaysWhateverTheHeaderSays)
{
    EXPECT_EQ(utf8TextOf(drawing("AC1009", "ANSI_1251", "Fl\xC3\xBCgel")), std::nullopt);
    EXPECT_EQ(utf8TextOf(drawing("AC1024", "ANSI_1251", "Wall")), std::nullopt);
    EXPECT_EQ(utf8TextOf(""), std::nullopt);
}

TEST(DrawingTextTest, OldDrawingsAreInTheirCodePage)
{
    EXPECT_EQ(lineIn("AC1009", "ANSI_1252", "Fl\xFCgel"), "Fl\xC3\xBCgel");
    EXPECT_EQ(lineIn("AC1018", "ANSI_1251", "\xD1\xF2\xE5\xED\xE0"),
              "\xD0\xA1\xD1\x82\xD0\xB5\xD0\xBD\xD0\xB0");
    EXPECT_EQ(lineIn("AC1015", "ansi_932", "\x95\xC7"), "\xE5\xA3\x81");
    EXPECT_EQ(lineIn("AC1009", "dos850", "Fl\x81gel"), "Fl\xC3\xBCgel");
    EXPECT_EQ(lineIn("AC1009", "ISO8859-1", "Fl\xFCgel"), "Fl\xC3\xBCgel");
}

TEST(DrawingTextTest, MissingOrUnknownCodePageIsWesternEuropean)
{
    for (const char* codePage : {"", "ANSI_9999", "no such thing", "ANSI_", "UTF-8//IGNORE"})
        EXPECT_EQ(lineIn("AC1009", codePage, "\x80 Fl\xFCgel"), "\xE2\x82\xAC Fl\xC3\xBCgel")
            << codePage;
    EXPECT_EQ(lineIn("", "", "Fl\xFCgel"), "Fl\xC3\xBCgel");
}

TEST(DrawingTextTest, NewDrawingsAreDecodedOnlyInLinesThatAreNotUtf8)
{
    EXPECT_EQ(lineIn("AC1021", "ANSI_1252", "Fl\xC3\xBCgel\n8\nFl\xFCgel"), "Fl\xC3\xBCgel");
    const auto text = utf8TextOf(drawing("AC1021", "ANSI_1252", "Fl\xC3\xBCgel\n8\nFl\xFCgel"));
    EXPECT_NE(text->find("8\nFl\xC3\xBCgel\n8\nFl\xC3\xBCgel\n"), std::string::npos);
    // In older drawings the whole text is in the code page.
    const auto old = utf8TextOf(drawing("AC1018", "ANSI_1252", "Fl\xC3\xBCgel\n8\nFl\xFCgel"));
    EXPECT_NE(old->find("8\nFl\xC3\x83\xC2\xBCgel\n8\n"), std::string::npos);
}

TEST(DrawingTextTest, UndefinedBytesStayDifferent)
{
    EXPECT_EQ(lineIn("AC1009", "ANSI_1252",
                     "a\x81"
                     "b\x8D"),
              "a\xC2\x81"
              "b\xC2\x8D");
    EXPECT_NE(lineIn("AC1009", "ANSI_932", "\xFD"), lineIn("AC1009", "ANSI_932", "\xFE"));
}

TEST(DrawingTextTest, IncompleteCharacterDoesNotRemoveTheLineEnd)
{
    const auto text = utf8TextOf(drawing("AC1009", "ANSI_932", "a\x95\n0\nLINE"));

    EXPECT_NE(text->find("\n0\nLINE\n"), std::string::npos);
}

TEST(DrawingTextTest, LineLongerThanTheBufferIsWhole)
{
    EXPECT_EQ(lineIn("AC1009", "ANSI_1252", std::string(1000, '\xFC')).size(), 2000U);
}

TEST(DrawingTextTest, CodePageMakesNoLines)
{
    const auto text = utf8TextOf(drawing("AC1009", "UTF-7", "\xFC+AAo-x"));

    EXPECT_EQ(text->find("\n\n"), std::string::npos);
    EXPECT_EQ(text->substr(text->size() - 2), "x\n");
}

TEST(DrawingTextTest, EscapedCharactersAreDecoded)
{
    EXPECT_EQ(lineIn("AC1009", "", "\\U+00E4\\U+20ac\\U+0041"), "\xC3\xA4\xE2\x82\xAC"
                                                                "A");
    EXPECT_EQ(lineIn("AC1009", "", "\\U+D83D\\U+DE00"), "\xF0\x9F\x98\x80");
    // Escapes and bytes of the code page may stand together.
    EXPECT_EQ(lineIn("AC1009", "", "\xFC\\U+03A9"), "\xC3\xBC\xCE\xA9");
}

TEST(DrawingTextTest, InvalidEscapesStay)
{
    for (const char* line :
         {"\\U+00G4", "\\U+00", "\\U+000A", "\\U+000D", "\\U+0000", "\\U+0085", "\\U+007F",
          "\\U+D83D", "\\U+DE00", "\\U+DE00\\U+D83D", "\\U+D83D\\U+0041", "\\U+"}) {
        const std::string result = lineIn("AC1009", "", line);
        const bool keepsFirst = result.compare(0, 3, "\\U+") == 0;
        EXPECT_TRUE(keepsFirst) << line;
    }
    EXPECT_EQ(lineIn("AC1009", "", "\\U+000A"), "\\U+000A");
    EXPECT_EQ(lineIn("AC1009", "", "\\\\U+00E4"), "\\\xC3\xA4");
}

TEST(DrawingTextTest, HostLocaleDoesNotMatter)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "C");

    EXPECT_EQ(lineIn("AC1009", "ANSI_1252", "Fl\xFCgel"), "Fl\xC3\xBCgel");

    std::setlocale(LC_ALL, before.c_str());
}

/// Says no as soon as it is asked.
class NoFurther : public IReadingSteps
{
public:
    struct Stop {
    };

    std::optional<std::string> textOf(std::string_view) override { return std::nullopt; }
    bool takesGroup(int, std::string_view) override { return false; }
    bool finishReading() override { return true; }
    void goOn() override { throw Stop(); }
};

TEST(DrawingTextTest, ReaderCanStopEveryPartOfTheWork)
{
    NoFurther steps;
    constexpr int many = 5000;
    std::string lines;
    std::string escapes;
    std::string groups("Written Binary DXF\r\n\x1a\0", 22);
    for (int i = 0; i < many; ++i) {
        lines += "8\nFl\xFCgel\n";
        escapes += "\\U+00E4";
        groups += std::string("\0\0x\0", 4);
    }

    EXPECT_THROW(utf8TextOf(lines, &steps), NoFurther::Stop);
    EXPECT_THROW(utf8TextOf(escapes.substr(0, many), &steps), NoFurther::Stop);
    EXPECT_THROW(utf8TextOf(groups, &steps), NoFurther::Stop);
    EXPECT_THROW(dxfviewer::textOfBinary(groups, &steps), NoFurther::Stop);
    EXPECT_THROW(isUtf8(std::string(many, 'x'), &steps), NoFurther::Stop);
    EXPECT_THROW(CodePage("ANSI_1252").toUtf8(std::string(2000000, '\xFC'), &steps),
                 NoFurther::Stop);
    EXPECT_NO_THROW(utf8TextOf("8\nFl\xFCgel\n", &steps));
}

TEST(Utf8Test, SoundTextsAreRecognised)
{
    for (const char* sound : {"", "abc", "\xC3\xA4", "\xE2\x82\xAC", "\xED\x9F\xBF", "\xEE\x80\x80",
                              "\xF0\x9F\x98\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(isUtf8(sound)) << sound;
    for (const char* broken :
         {"\x80", "\xC3",
          "\xC3"
          "A",
          "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xE2\x82", "\xF0\x8F\xBF\xBF",
          "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF", "\xF0\x9F\x98"})
        EXPECT_FALSE(isUtf8(broken)) << broken;
}

class DecodedDrawingTest : public LoggedTest
{
};

TEST_F(DecodedDrawingTest, LayersThatDifferInOneByteStayDifferent)
{
    const QByteArray text = records("SECTION 2 TABLES\nTABLE 2 LAYER\nLAYER 2 Fl\xFCgel 62 1\n"
                                    "LAYER 2 Fl\xF6gel 62 2\nLAYER 2 Fl\\U+00E4gel 62 3\nENDTAB\n"
                                    "ENDSEC\nSECTION 2 ENTITIES\nLINE 8 Fl\xF6gel 11 1\n"
                                    "LINE 8 Fl\\U+00E4gel 11 1\nENDSEC\nEOF");
    const auto drawing = flattened(text);

    ASSERT_EQ(drawing.document->layers().size(), 3);
    EXPECT_EQ(drawing.document->layers().at(0)->name(), QStringLiteral("Fl\u00FCgel"));
    EXPECT_EQ(drawing.attributes(0)->layerName(), QStringLiteral("Fl\u00F6gel"));
    EXPECT_EQ(drawing.attributes(1)->layerName(), QStringLiteral("Fl\u00E4gel"));
    EXPECT_TRUE(drawing.document->getLayer(drawing.attributes(1)->layerName()));
}

} // namespace
