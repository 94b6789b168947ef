// SPDX-License-Identifier: GPL-2.0-or-later

#include "FileMark.h"

#include "tests/support/Files.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace
{

class FileMarkTest : public ::testing::Test
{
protected:
    FileMarkTest() { write("old"); }

    void write(const QByteArray& content) { dxftest::fileWith(content, m_name); }

    const QTemporaryDir m_folder;
    const QString m_name = m_folder.filePath(QStringLiteral("a.dxf"));
};

TEST_F(FileMarkTest, KnowsItsFile)
{
    const FileMark mark(m_name);

    EXPECT_TRUE(mark.isOf(m_name));
    EXPECT_FALSE(mark.isOf(m_folder.filePath(QStringLiteral("b.dxf"))));
    EXPECT_FALSE(mark.isChanged());
}

TEST_F(FileMarkTest, SeesThatTheFileWasChanged)
{
    const FileMark mark(m_name);
    write("longer");

    EXPECT_TRUE(mark.isChanged());
}

TEST_F(FileMarkTest, SeesAChangeThatKeepsTheSize)
{
    const FileMark mark(m_name);
    write("new");
    QFile file(m_name);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(60),
                                 QFileDevice::FileModificationTime));
    file.close();

    EXPECT_TRUE(mark.isChanged());
}

TEST_F(FileMarkTest, MarksOfTheSameStateAreEqual)
{
    const FileMark mark(m_name);
    const QString other = dxftest::fileWith("old", m_folder.filePath(QStringLiteral("b.dxf")));

    EXPECT_TRUE(mark == FileMark(m_name));
    EXPECT_FALSE(mark == FileMark(other));
    write("longer");
    EXPECT_FALSE(mark == FileMark(m_name));
}

TEST_F(FileMarkTest, AFileThatHasVanishedIsNotChanged)
{
    const FileMark mark(m_name);
    ASSERT_TRUE(QFile::remove(m_name));

    EXPECT_FALSE(mark.isChanged());
}

TEST_F(FileMarkTest, IsOfNoFileAtFirst)
{
    EXPECT_FALSE(FileMark().isOf(QString()));
    EXPECT_FALSE(FileMark().isOf(m_name));
    EXPECT_FALSE(FileMark().isChanged());
}

} // namespace
