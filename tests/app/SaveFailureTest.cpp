// SPDX-License-Identifier: GPL-2.0-or-later

#include "DrawingFile.h"

#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"

#include <QDir>
#include <QTemporaryDir>

#include <csignal>
#include <functional>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

const QByteArray oldContent = "the old drawing, whole";
constexpr int limitBytes = 4096;

enum SaveResult { written, refused, refusedWithoutReason, unlimited };

class SaveFailureTest : public dxftest::LoggedTest
{
protected:
    SaveFailureTest() { dxftest::fileWith(oldContent, m_fileName); }

    /// Runs the action in a child process, which exits with the action's result.
    static pid_t inChild(const std::function<int()>& action)
    {
        const pid_t child = fork();
        if (child == 0)
            _exit(action());
        return child;
    }

    /// Saves more than the process may write to a file. The limit stays, so only a child process
    /// may do this.
    int saveBeyondLimit() const
    {
        const rlimit limit{limitBytes, limitBytes};
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
            return unlimited;
        QString reason;
        if (writeFile(m_fileName, QByteArray(10 * limitBytes, 'x'), reason))
            return written;
        return reason.isEmpty() ? refusedWithoutReason : refused;
    }

    static int statusOf(pid_t child)
    {
        int status = -1;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        return status;
    }

    QStringList filesInFolder() const { return QDir(m_folder.path()).entryList(QDir::Files); }

    QByteArray content() const { return dxftest::contentOf(m_fileName); }

    const QTemporaryDir m_folder;
    const QString m_fileName = m_folder.filePath(QStringLiteral("drawing.dxf"));
};

TEST_F(SaveFailureTest, AProcessKilledInTheMiddleLeavesTheOldFile)
{
    const pid_t child = inChild([this] {
        // The system kills a process at the write that goes beyond its limit.
        std::signal(SIGXFSZ, SIG_DFL);
        return saveBeyondLimit();
    });

    const int status = statusOf(child);

    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGXFSZ);
    EXPECT_EQ(content(), oldContent);
}

TEST_F(SaveFailureTest, AFullDiskLeavesTheOldFile)
{
    const pid_t child = inChild([this] {
        std::signal(SIGXFSZ, SIG_IGN);
        return saveBeyondLimit();
    });

    const int status = statusOf(child);

    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), refused);
    EXPECT_EQ(content(), oldContent);
    EXPECT_EQ(filesInFolder().size(), 1);
}

} // namespace
