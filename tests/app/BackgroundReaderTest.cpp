// SPDX-License-Identifier: GPL-2.0-or-later

#include "BackgroundReader.h"

#include "DrawingRead.h"

#include "dxfviewer/model/DXFDocument.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"
#include "tests/support/WindowParts.h"

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <random>

namespace
{

// Reading takes so long that a test can act in the middle of it.
constexpr int enoughPolylines = 150000;

QByteArray drawingOf(int polylines)
{
    static const QByteArray polyline =
        "0\nLWPOLYLINE\n8\n0\n90\n2\n70\n0\n10\n0\n20\n0\n10\n9\n20\n9\n";
    return "0\nSECTION\n2\nENTITIES\n" + polyline.repeated(polylines) + "0\nENDSEC\n0\nEOF\n";
}

/// How many threads the process has.
auto threadCount()
{
    return QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs).size();
}

class BackgroundReaderTest : public dxftest::LoggedTest
{
protected:
    BackgroundReaderTest()
    {
        QObject::connect(&m_reader, &BackgroundReader::progressed,
                         [this](double share) { m_shares.append(share); });
        QObject::connect(&m_reader, &BackgroundReader::finished,
                         [this](const QString& fileName, const DrawingRead& result) {
                             m_finished.append(fileName);
                             m_result = result;
                         });
    }

    QString fileWith(const QByteArray& content, const QString& name) const
    {
        return dxftest::fileWith(content, m_folder.filePath(name));
    }
    QString smallFile() const { return fileWith(drawingOf(2), QStringLiteral("small.dxf")); }
    QString largeFile() const
    {
        return fileWith(drawingOf(enoughPolylines), QStringLiteral("large.dxf"));
    }

    bool waitForEnd()
    {
        return dxftest::eventually([this] { return !m_finished.isEmpty(); });
    }

    /// Starts to read a large drawing, and returns in the middle of it. On a busy machine the read
    /// may end first. Then it starts again.
    bool readToTheMiddle()
    {
        const QString fileName = largeFile();
        return dxftest::eventually([&] {
            if (!m_reader.isReading()) {
                m_shares.clear();
                m_finished.clear();
                m_reader.read(fileName);
            }
            return !m_shares.isEmpty() && m_shares.constLast() > 0.0 && m_shares.constLast() < 1.0;
        });
    }

    const QTemporaryDir m_folder;
    BackgroundReader m_reader;
    QVector<double> m_shares;
    QStringList m_finished;
    DrawingRead m_result;
};

TEST_F(BackgroundReaderTest, ReadsADrawing)
{
    const QString fileName = smallFile();

    m_reader.read(fileName);
    EXPECT_TRUE(m_reader.isReading());
    EXPECT_EQ(m_reader.fileName(), fileName);
    ASSERT_TRUE(waitForEnd());

    EXPECT_FALSE(m_reader.isReading());
    EXPECT_EQ(m_finished, QStringList{fileName});
    ASSERT_NE(m_result.document, nullptr);
    EXPECT_EQ(m_result.document->entities().size(), 2);
}

TEST_F(BackgroundReaderTest, ReportsItsProgress)
{
    ASSERT_TRUE(readToTheMiddle());
    ASSERT_TRUE(waitForEnd());

    EXPECT_TRUE(std::is_sorted(m_shares.cbegin(), m_shares.cend()));
    EXPECT_LE(m_shares.constLast(), 1.0);
    EXPECT_EQ(m_result.document->entities().size(), enoughPolylines);
}

TEST_F(BackgroundReaderTest, SaysWhyAFileCannotBeRead)
{
    m_reader.read(m_folder.filePath(QStringLiteral("nothing.dxf")));
    ASSERT_TRUE(waitForEnd());

    EXPECT_EQ(m_result.document, nullptr);
    EXPECT_EQ(m_result.reason, QStringLiteral("There is no such file."));
}

TEST_F(BackgroundReaderTest, ACancelledReadSignalsNothingMore)
{
    ASSERT_TRUE(readToTheMiddle());

    m_reader.cancel();
    EXPECT_FALSE(m_reader.isReading());
    const auto heard = m_shares.size();
    const QString next = smallFile();
    m_reader.read(next);
    ASSERT_TRUE(waitForEnd());

    EXPECT_EQ(m_finished, QStringList{next});
    const bool isNew = std::all_of(m_shares.cbegin() + heard, m_shares.cend(),
                                   [](double share) { return share == 0.0 || share == 1.0; });
    EXPECT_TRUE(isNew);
}

TEST_F(BackgroundReaderTest, ASecondReadReplacesTheFirst)
{
    ASSERT_TRUE(readToTheMiddle());

    const QString second = smallFile();
    m_reader.read(second);
    EXPECT_EQ(m_reader.fileName(), second);
    ASSERT_TRUE(waitForEnd());

    EXPECT_EQ(m_finished, QStringList{second});
    EXPECT_EQ(m_result.document->entities().size(), 2);
}

TEST_F(BackgroundReaderTest, AReadThatWaitsForACancelledOneTellsSoAtOnce)
{
    ASSERT_TRUE(readToTheMiddle());
    m_reader.cancel();
    m_shares.clear();

    // Without events the former thread is never seen to end.
    m_reader.read(smallFile());

    EXPECT_TRUE(m_reader.isReading());
    EXPECT_EQ(m_shares, QVector<double>{0.0});
    ASSERT_TRUE(waitForEnd());
}

TEST_F(BackgroundReaderTest, CancelWithoutAReadDoesNothing)
{
    m_reader.cancel();
    m_reader.read(smallFile());
    ASSERT_TRUE(waitForEnd());
    m_reader.cancel();

    EXPECT_EQ(m_finished.size(), 1);
}

TEST_F(BackgroundReaderTest, ADestroyedReaderSignalsNothing)
{
    const QString fileName = largeFile();
    const auto before = threadCount();
    auto reader = std::make_unique<BackgroundReader>();
    // On a busy machine the read may end first. Then it starts again.
    ASSERT_TRUE(dxftest::eventually([&] {
        if (!reader->isReading())
            reader->read(fileName);
        return threadCount() > before;
    }));
    QObject::connect(reader.get(), &BackgroundReader::finished,
                     [] { ADD_FAILURE() << "nobody waits for this"; });

    reader.reset();

    EXPECT_TRUE(dxftest::eventually([before] { return threadCount() <= before; }));
    QCoreApplication::processEvents();
}

/// Mainly for the sanitizers.
TEST_F(BackgroundReaderTest, AnySequenceOfReadsAndCancelsEndsWithTheLastRead)
{
    const QStringList files{smallFile(), fileWith(drawingOf(2000), QStringLiteral("middle.dxf")),
                            largeFile(), fileWith("no drawing", QStringLiteral("bad.dxf"))};
    std::mt19937 random(3);
    for (int step = 0; step < 100; ++step) {
        if (random() % 4 == 0)
            m_reader.cancel();
        else
            m_reader.read(files.at(static_cast<int>(random() % 4U)));
        for (auto turns = random() % 3; turns > 0; --turns)
            QCoreApplication::processEvents();
    }
    m_finished.clear();

    m_reader.read(files.constFirst());
    EXPECT_TRUE(dxftest::eventually([&] { return !m_reader.isReading(); }));

    EXPECT_EQ(m_finished.last(), files.constFirst());
    EXPECT_EQ(m_result.document->entities().size(), 2);
}

TEST_F(BackgroundReaderTest, ADrawingIsFreedInTheBackground)
{
    auto document = DXFDocument::load(drawingOf(2));
    const QWeakPointer<DXFDocument> weak(document);

    freeInBackground(std::move(document));

    EXPECT_TRUE(dxftest::eventually([&weak] { return weak.isNull(); }));
    freeInBackground(nullptr);
}

} // namespace
