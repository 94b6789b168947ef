// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/BinaryDrawing.h"

#include "dxfviewer/flatten/FlatteningReader.h"
#include "tests/flatten/Records.h"
#include "tests/support/LoggedTest.h"

#include <QTemporaryFile>

#include <cstring>

using namespace dxftest;
using dxfviewer::isBinaryDrawing;
using dxfviewer::textOfBinary;

namespace
{

/// Writes a binary drawing, group by group.
class BinaryText
{
public:
    explicit BinaryText(bool hasLongCodes = true)
        : m_hasLongCodes(hasLongCodes)
    {
    }

    BinaryText& text(int code, const char* value)
    {
        addCode(code);
        m_bytes += value;
        m_bytes += '\0';
        return *this;
    }
    template <typename Number>
    BinaryText& number(int code, Number value)
    {
        addCode(code);
        add(value);
        return *this;
    }
    BinaryText& data(int code, const std::string& value)
    {
        addCode(code);
        m_bytes += static_cast<char>(value.size());
        m_bytes += value;
        return *this;
    }

    const std::string& bytes() const { return m_bytes; }
    QByteArray array() const { return QByteArray::fromStdString(m_bytes); }

private:
    void addCode(int code)
    {
        if (m_hasLongCodes) {
            add(static_cast<short>(code));
        } else if (code >= 255) {
            m_bytes += '\xFF';
            add(static_cast<short>(code));
        } else {
            m_bytes += static_cast<char>(code);
        }
    }

    template <typename Number>
    void add(Number value)
    {
        std::string bytes(sizeof value, '\0');
        std::memcpy(bytes.data(), &value, sizeof value);
        m_bytes += bytes;
    }

    bool m_hasLongCodes;
    std::string m_bytes = std::string("Written Binary DXF\r\n\x1a\0", 22);
};

BinaryText twoEntities(bool hasLongCodes)
{
    BinaryText drawing(hasLongCodes);
    drawing.text(0, "SECTION").text(2, "ENTITIES");
    drawing.text(0, "LINE").text(8, "Walls").number(62, short(3));
    drawing.number(10, 1.5).number(20, -2.25).number(11, 1e-7).number(21, 1e20);
    drawing.text(1001, "APP").number(1070, short(-7)).number(1040, 0.1);
    drawing.text(0, "CIRCLE").number(10, 1.0).number(20, 2.0).number(40, 3.0);
    drawing.text(0, "ENDSEC").text(0, "EOF");
    return drawing;
}

TEST(BinaryDrawingTest, IsRecognisedByItsSentinel)
{
    EXPECT_TRUE(isBinaryDrawing(BinaryText().bytes()));
    EXPECT_FALSE(isBinaryDrawing(BinaryText().bytes().substr(0, 21)));
    EXPECT_FALSE(isBinaryDrawing("0\nSECTION\n"));
    EXPECT_FALSE(isBinaryDrawing(""));
}

TEST(BinaryDrawingTest, ValuesAreWrittenByTheTypeOfTheirCode)
{
    BinaryText drawing;
    drawing.text(0, "SECTION").text(9, "$X").number(40, -0.5).number(70, short(-3));
    drawing.number(90, 100000).text(100, "AcDb").number(110, 1e300).number(160, 1LL << 40);
    drawing.number(175, short(5)).number(230, -1.0).number(280, short(1));
    drawing.number(290, char(1)).text(300, "x").data(310, "\x01\xAB").text(330, "1F");
    drawing.number(370, short(-1)).text(390, "F").number(420, 0xFFFFFF).number(440, 7);
    drawing.number(460, 2.0).text(470, "y").text(999, "note").text(1000, "z");
    drawing.data(1004, "\xFF").number(1010, 3.0).number(1070, short(4)).number(1071, 5);

    EXPECT_EQ(textOfBinary(drawing.bytes()),
              "0\nSECTION\n9\n$X\n40\n-0.5\n70\n-3\n90\n100000\n100\nAcDb\n110\n1e+300\n"
              "160\n1099511627776\n175\n5\n230\n-1\n280\n1\n290\n1\n300\nx\n310\n01AB\n330\n1F\n"
              "370\n-1\n390\nF\n420\n16777215\n440\n7\n460\n2\n470\ny\n999\nnote\n1000\nz\n"
              "1004\nFF\n1010\n3\n1070\n4\n1071\n5\n");
}

TEST(BinaryDrawingTest, CodesOfOneByteGiveTheSameText)
{
    EXPECT_EQ(textOfBinary(twoEntities(false).bytes()), textOfBinary(twoEntities(true).bytes()));
}

TEST(BinaryDrawingTest, CommentMayComeFirst)
{
    for (const bool hasLongCodes : {false, true}) {
        BinaryText drawing(hasLongCodes);
        drawing.text(999, "note").text(0, "EOF");
        EXPECT_EQ(textOfBinary(drawing.bytes()), "999\nnote\n0\nEOF\n");
    }
}

TEST(BinaryDrawingTest, EndsAtBytesThatAreNoGroup)
{
    const std::string whole = twoEntities(true).bytes();
    const std::string text = textOfBinary(whole);
    for (std::size_t size = 22; size < whole.size(); ++size) {
        const std::string part = textOfBinary(whole.substr(0, size));
        EXPECT_EQ(text.compare(0, part.size(), part), 0) << size;
        EXPECT_TRUE(part.empty() || part.back() == '\n') << size;
    }
    BinaryText unknown;
    unknown.text(0, "A").text(-5, "B").text(0, "C");
    EXPECT_EQ(textOfBinary(unknown.bytes()), "0\nA\n");
}

TEST(BinaryDrawingTest, LineEndsInAValueDoNotMakeLines)
{
    BinaryText drawing;
    drawing.text(0, "A\n0\nB\r");

    EXPECT_EQ(textOfBinary(drawing.bytes()), "0\nA 0 B \n");
}

class ReadBinaryDrawingTest : public LoggedTest
{
};

TEST_F(ReadBinaryDrawingTest, IsFlattenedLikeText)
{
    for (const bool hasLongCodes : {false, true}) {
        const auto drawing = flattened(twoEntities(hasLongCodes).array());

        ASSERT_EQ(drawing.count(), 2);
        EXPECT_EQ(drawing.points(0), QVector<QPointF>({{1.5, -2.25}, {1e-7, 1e20}}));
        EXPECT_EQ(drawing.points(1).size(), 65);
    }
}

TEST_F(ReadBinaryDrawingTest, FileIsReadLikeItsBytes)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write(twoEntities(true).array());
    file.close();
    DXFDocument document;

    EXPECT_TRUE(FlatteningReader(document).load(file.fileName()));

    EXPECT_EQ(document.entities().size(), 2);
}

TEST_F(ReadBinaryDrawingTest, TextsAreInTheCodePage)
{
    BinaryText drawing;
    drawing.text(0, "SECTION").text(2, "HEADER").text(9, "$DWGCODEPAGE").text(3, "ANSI_1252");
    drawing.text(0, "ENDSEC").text(0, "SECTION").text(2, "ENTITIES");
    drawing.text(0, "HATCH\xFC").text(0, "ENDSEC").text(0, "EOF");

    EXPECT_TRUE(flattened(drawing.array()).skipped.contains(QStringLiteral("HATCH\u00FC")));
}

} // namespace
