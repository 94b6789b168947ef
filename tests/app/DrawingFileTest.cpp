// SPDX-License-Identifier: GPL-2.0-or-later

#include "DrawingFile.h"

#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/OtherUser.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <sys/stat.h>

using dxftest::contentOf;
using testing::HasSubstr;

namespace
{

const QByteArray smallDrawing = "  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n";

class DrawingFileTest : public dxftest::LoggedTest
{
protected:
    QString path(const QString& name) const { return m_folder.filePath(name); }

    QString fileWith(const QByteArray& content, const QString& name = QStringLiteral("a.dxf"))
    {
        return dxftest::fileWith(content, path(name));
    }

    /// Why the file is refused; empty if it is not.
    static std::string refusal(const QString& fileName)
    {
        QString reason;
        const bool isRead = readDrawing(fileName, reason).has_value();
        EXPECT_EQ(isRead, reason.isEmpty());
        return reason.toStdString();
    }

    /// Everybody may read files in the folder, and nobody may write to it.
    void protectFolder() const
    {
        ASSERT_TRUE(QFile::setPermissions(
            m_folder.path(), QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup
                                 | QFile::ReadOther | QFile::ExeOther));
    }

    void TearDown() override
    {
        QFile::setPermissions(m_folder.path(),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(DrawingFileTest, ReadsTheWholeText)
{
    const QString fileName = fileWith(smallDrawing);

    QString reason;
    const auto text = readDrawing(fileName, reason);

    ASSERT_TRUE(text.has_value());
    EXPECT_EQ(*text, smallDrawing);
    EXPECT_TRUE(reason.isEmpty());
}

TEST_F(DrawingFileTest, ReadsLinesThatEndInCarriageReturns)
{
    QByteArray text = smallDrawing;
    text.replace("\n", "\r\n");

    EXPECT_EQ(refusal(fileWith(text)), "");
}

TEST_F(DrawingFileTest, ReadsNamesWithNewlinesAndOtherAlphabets)
{
    const QString name = QString::fromUtf8("Gr\xC3\xBC\xC3\x9F"
                                           "e\n\xE5\x9B\xB3\xE9\x9D\xA2.dxf");

    EXPECT_EQ(refusal(fileWith(smallDrawing, name)), "");
}

TEST_F(DrawingFileTest, RefusesAMissingFile)
{
    EXPECT_THAT(refusal(path(QStringLiteral("none.dxf"))), HasSubstr("no such file"));
}

TEST_F(DrawingFileTest, RefusesANameThatIsTooLong)
{
    EXPECT_THAT(refusal(path(QString(5000, QLatin1Char('a')))), HasSubstr("no such file"));
}

TEST_F(DrawingFileTest, RefusesAFolder)
{
    EXPECT_THAT(refusal(path(QString())), HasSubstr("not a regular file"));
}

TEST_F(DrawingFileTest, RefusesADeviceThatNeverEnds)
{
    EXPECT_THAT(refusal(QStringLiteral("/dev/zero")), HasSubstr("not a regular file"));
}

TEST_F(DrawingFileTest, RefusesAPipeWithoutWaitingForItsOtherEnd)
{
    const QString pipe = path(QStringLiteral("pipe.dxf"));
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), S_IRUSR | S_IWUSR), 0);

    EXPECT_THAT(refusal(pipe), HasSubstr("not a regular file"));
}

TEST_F(DrawingFileTest, RefusesAnEmptyFile)
{
    EXPECT_THAT(refusal(fileWith(QByteArray())), HasSubstr("empty"));
}

TEST_F(DrawingFileTest, RefusesABinaryFile)
{
    EXPECT_THAT(refusal(fileWith(smallDrawing + '\0' + smallDrawing)), HasSubstr("binary"));
}

TEST_F(DrawingFileTest, TakesTheBinaryFormOfADrawing)
{
    const QByteArray begin = QByteArray(8, '?') + QByteArray("Binary DXF\r\n\x1A\0", 14);

    EXPECT_EQ(refusal(fileWith(begin + QByteArray("\0SECTION\0", 9))), "");
    EXPECT_THAT(refusal(fileWith('?' + begin)), HasSubstr("binary"));
}

TEST_F(DrawingFileTest, RefusesATextThatIsNoDrawing)
{
    EXPECT_THAT(refusal(fileWith("Dear reader,\nthis SECTION is none.\n")),
                HasSubstr("not a DXF drawing"));
}

TEST_F(DrawingFileTest, SearchesALongLineOnlyOnce)
{
    // A search that starts again after each find would take hours.
    QByteArray text;
    for (int i = 0; i < 300000; ++i)
        text += "SECTION ";

    EXPECT_THAT(refusal(fileWith(text + 'x')), HasSubstr("not a DXF drawing"));
}

TEST_F(DrawingFileTest, WritesANewFile)
{
    QString reason;

    const bool isWritten = writeFile(path(QStringLiteral("new.dxf")), smallDrawing, reason);

    ASSERT_TRUE(isWritten) << reason.toStdString();
    EXPECT_EQ(contentOf(path(QStringLiteral("new.dxf"))), smallDrawing);
}

TEST_F(DrawingFileTest, ReplacesAnOldFile)
{
    const QString fileName = fileWith("something much longer than the drawing" + smallDrawing);
    QString reason;

    const bool isWritten = writeFile(fileName, smallDrawing, reason);

    ASSERT_TRUE(isWritten) << reason.toStdString();
    EXPECT_EQ(contentOf(fileName), smallDrawing);
}

TEST_F(DrawingFileTest, WritesNamesWithNewlinesAndOtherAlphabets)
{
    const QString fileName = path(QString::fromUtf8("Gr\xC3\xBC\xC3\x9F"
                                                    "e\n\xE5\x9B\xB3.dxf"));
    QString reason;

    const bool isWritten = writeFile(fileName, smallDrawing, reason);

    ASSERT_TRUE(isWritten) << reason.toStdString();
    EXPECT_EQ(contentOf(fileName), smallDrawing);
}

TEST_F(DrawingFileTest, WritesThroughALinkToTheFileBehindIt)
{
    const QString fileName = fileWith("old");
    const QString link = path(QStringLiteral("link.dxf"));
    ASSERT_TRUE(QFile::link(fileName, link));
    QString reason;

    const bool isWritten = writeFile(link, smallDrawing, reason);

    ASSERT_TRUE(isWritten) << reason.toStdString();
    EXPECT_EQ(contentOf(fileName), smallDrawing);
    EXPECT_TRUE(QFileInfo(link).isSymLink());
}

TEST_F(DrawingFileTest, SaysWhyANameCannotBeWritten)
{
    for (const QString& name :
         {QStringLiteral("no/such/folder.dxf"), QString(300, QLatin1Char('a'))}) {
        QString reason;

        const bool isWritten = writeFile(path(name), smallDrawing, reason);

        EXPECT_FALSE(isWritten) << name.toStdString();
        EXPECT_FALSE(reason.isEmpty()) << name.toStdString();
    }
}

TEST_F(DrawingFileTest, DoesNotReplaceADevice)
{
    QString reason;

    const bool isWritten = writeFile(QStringLiteral("/dev/full"), smallDrawing, reason);

    EXPECT_FALSE(isWritten);
    EXPECT_THAT(reason.toStdString(), HasSubstr("not a regular file"));
    EXPECT_FALSE(QFileInfo(QStringLiteral("/dev/full")).isFile());
}

TEST_F(DrawingFileTest, RefusesAFileWithoutPermission)
{
    const QString fileName = fileWith(smallDrawing);
    protectFolder();
    ASSERT_TRUE(QFile::setPermissions(fileName, QFile::Permissions()));
    const dxftest::OtherUser user;

    EXPECT_EQ(refusal(fileName), "Permission denied");
}

TEST_F(DrawingFileTest, WritesNothingWithoutPermission)
{
    const QString fileName = fileWith(smallDrawing);
    protectFolder();
    const dxftest::OtherUser user;

    QString reason;
    EXPECT_FALSE(writeFile(fileName, "other", reason));

    EXPECT_FALSE(reason.isEmpty());
    EXPECT_EQ(contentOf(fileName), smallDrawing);
}

} // namespace
