// SPDX-License-Identifier: GPL-2.0-or-later

#include "DrawingRead.h"
#include "ReadingWatch.h"

#include "dxfviewer/model/DXFDocument.h"
#include "tests/support/AtMessage.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"

#include <QTemporaryDir>

namespace
{

class DrawingReadTest : public dxftest::LoggedTest
{
protected:
    QString fileWith(const QByteArray& entities) const
    {
        return dxftest::fileWith("0\nSECTION\n2\nENTITIES\n" + entities + "0\nENDSEC\n0\nEOF\n",
                                 m_folder.filePath(QStringLiteral("drawing.dxf")));
    }

    const QTemporaryDir m_folder;
    ReadingWatch m_watch;
};

TEST_F(DrawingReadTest, TooManyVerticesHaveASentenceOfTheirOwn)
{
    const QString fileName = fileWith("0\nCIRCLE\n40\n1\n");
    ReadingChoices choices;
    choices.mostVertices = 65;
    EXPECT_NE(readDocument(fileName, choices, m_watch).document, nullptr);

    choices.mostVertices = 64;
    const DrawingRead result = readDocument(fileName, choices, m_watch);

    EXPECT_EQ(result.document, nullptr);
    EXPECT_EQ(result.reason, QStringLiteral("It has more lines and curves than can be shown."));
    EXPECT_EQ(takeDebugMessages().size(), 2);
}

TEST_F(DrawingReadTest, ACancelledReadStopsInTheMiddle)
{
    constexpr int lines = 20000;
    const QString fileName = fileWith(QByteArray("0\nLINE\n").repeated(lines));
    ReadingChoices choices;
    choices.onlyPolylines = true;
    ASSERT_NE(readDocument(fileName, choices, m_watch).document, nullptr);
    ASSERT_EQ(takeDebugMessages().size(), lines);

    DrawingRead result;
    {
        const dxftest::AtMessage at("addLine", [this] { m_watch.cancel(); });
        result = readDocument(fileName, choices, m_watch);
        EXPECT_TRUE(at.hasActed());
    }

    EXPECT_EQ(result.document, nullptr);
    EXPECT_EQ(result.reason, QString());
    EXPECT_LT(takeDebugMessages().size(), lines / 2);
}

} // namespace
