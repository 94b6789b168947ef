// SPDX-License-Identifier: GPL-2.0-or-later

#include "DrawingFile.h"

#include "tests/support/ChildProcess.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"

#include <QDir>
#include <QTemporaryDir>

#include <csignal>

#include <sys/wait.h>

using dxftest::FileSizeLimit;

namespace
{

const QByteArray oldContent = "the old drawing, whole";

// Small content is still in a buffer when all of it is written.
constexpr int limitBytes = 4096;
constexpr int bufferedBytes = 2 * limitBytes;
constexpr int largeBytes = 10 * limitBytes;

class SaveFailureTest : public dxftest::LoggedTest, public ::testing::WithParamInterface<int>
{
protected:
    static QByteArray newContent() { return QByteArray(GetParam(), 'x'); }

    /// Why the new content cannot be written to a full disk; empty if it can.
    static std::string refusal(const QString& fileName)
    {
        QString reason;
        const FileSizeLimit limit(limitBytes);
        EXPECT_FALSE(writeFile(fileName, newContent(), reason));
        return reason.toStdString();
    }

    /// Writes the new content in a child process that the system kills at the limit. The status
    /// with which it ends is returned.
    static int statusOfKilledWriter(const QString& fileName)
    {
        return dxftest::statusOfChild([&fileName] {
            const FileSizeLimit limit(limitBytes);
            std::signal(SIGXFSZ, SIG_DFL);
            QString reason;
            return writeFile(fileName, newContent(), reason) ? EXIT_SUCCESS : EXIT_FAILURE;
        });
    }

    QStringList filesInFolder() const { return QDir(m_folder.path()).entryList(QDir::Files); }

    const QTemporaryDir m_folder;
    const QString m_fileName = m_folder.filePath(QStringLiteral("drawing.dxf"));
};

TEST_P(SaveFailureTest, AFullDiskLeavesTheOldFile)
{
    dxftest::fileWith(oldContent, m_fileName);

    EXPECT_NE(refusal(m_fileName), "");

    EXPECT_EQ(dxftest::contentOf(m_fileName), oldContent);
    EXPECT_EQ(filesInFolder().size(), 1);
}

TEST_P(SaveFailureTest, AFullDiskLeavesNoNewFile)
{
    EXPECT_NE(refusal(m_fileName), "");

    EXPECT_TRUE(filesInFolder().isEmpty());
}

TEST_P(SaveFailureTest, AProcessKilledInTheMiddleLeavesTheOldFile)
{
    dxftest::fileWith(oldContent, m_fileName);

    const int status = statusOfKilledWriter(m_fileName);

    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGXFSZ);
    EXPECT_EQ(dxftest::contentOf(m_fileName), oldContent);
}

INSTANTIATE_TEST_SUITE_P(, SaveFailureTest, ::testing::Values(bufferedBytes, largeBytes));

} // namespace
