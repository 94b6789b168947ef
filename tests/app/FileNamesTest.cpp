// SPDX-License-Identifier: GPL-2.0-or-later

#include "FileNames.h"

#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace
{

class FileNamesTest : public dxftest::LoggedTest
{
protected:
    QString touched(const QString& name)
    {
        return dxftest::fileWith(QByteArray(), m_folder.filePath(name));
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(FileNamesTest, OrdinaryNamesAreShownAsTheyAre)
{
    const QString name = QString::fromUtf8("/home/ren\xC3\xA9/\xE5\x9B\xB3 1.dxf");

    EXPECT_EQ(readableName(name), name);
}

TEST_F(FileNamesTest, ControlCharactersAreReplaced)
{
    const QString name = QStringLiteral("a\nb\tc\u202Ed%1.dxf").arg(QChar(0xFFFF));

    EXPECT_EQ(readableName(name), QStringLiteral("a\uFFFDb\uFFFDc\uFFFDd\uFFFD.dxf"));
}

TEST_F(FileNamesTest, LongNamesKeepTheirEnds)
{
    const QString name =
        QStringLiteral("/begin") + QString(1000, QLatin1Char('x')) + QStringLiteral("end.dxf");

    const QString readable = readableName(name);

    EXPECT_LT(readable.size(), 200);
    EXPECT_TRUE(readable.startsWith(QLatin1String("/begin")));
    EXPECT_TRUE(readable.endsWith(QLatin1String("end.dxf")));
}

TEST_F(FileNamesTest, AnEditedCopyLiesBesideTheDrawing)
{
    const QString drawing = touched(QStringLiteral("plan.v1.DXF"));

    const QString copy = nameForEditedCopy(drawing);

    EXPECT_EQ(QFileInfo(copy).path(), QFileInfo(drawing).path());
    EXPECT_EQ(QFileInfo(copy).fileName(), QStringLiteral("plan.v1-edited.dxf"));
}

TEST_F(FileNamesTest, AnEditedCopyNeverTakesTheNameOfAnotherFile)
{
    const QString drawing = touched(QStringLiteral("plan.dxf"));
    touched(QStringLiteral("plan-edited.dxf"));
    touched(QStringLiteral("plan-edited-2.dxf"));

    const QString copy = nameForEditedCopy(drawing);

    EXPECT_EQ(QFileInfo(copy).fileName(), QStringLiteral("plan-edited-3.dxf"));
}

TEST_F(FileNamesTest, ALinkLeadsToTheSameFile)
{
    const QString drawing = touched(QStringLiteral("plan.dxf"));
    const QString link = drawing + QStringLiteral(".link");
    ASSERT_TRUE(QFile::link(drawing, link));

    EXPECT_TRUE(isSameFile(drawing, link));
    EXPECT_FALSE(isSameFile(drawing, touched(QStringLiteral("other.dxf"))));
}

TEST_F(FileNamesTest, MissingFilesAreNeverTheSame)
{
    EXPECT_FALSE(isSameFile(QStringLiteral("/no/a.dxf"), QStringLiteral("/no/a.dxf")));
    EXPECT_FALSE(isSameFile(QString(), QString()));
}

TEST_F(FileNamesTest, ACopyOfACopyGetsTheNextNumber)
{
    const QString copy = touched(QStringLiteral("plan-edited.dxf"));
    EXPECT_EQ(QFileInfo(nameForEditedCopy(copy)).fileName(), QStringLiteral("plan-edited-2.dxf"));

    const QString second = touched(QStringLiteral("plan-edited-2.dxf"));
    EXPECT_EQ(QFileInfo(nameForEditedCopy(second)).fileName(), QStringLiteral("plan-edited-3.dxf"));

    const QString old = touched(QStringLiteral("wall-edited-edited.dxf"));
    EXPECT_EQ(QFileInfo(nameForEditedCopy(old)).fileName(), QStringLiteral("wall-edited.dxf"));
}

} // namespace
