// SPDX-License-Identifier: GPL-2.0-or-later

#include "ReadingBar.h"
#include "BackgroundReader.h"

#include "dxfviewer/model/DXFDocument.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMainWindow>
#include <QProgressBar>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

namespace
{

// Reading takes so long that a test can act in the middle of it.
constexpr int manyPolylines = 150000;

class ReadingBarTest : public dxftest::LoggedTest
{
protected:
    ReadingBarTest()
    {
        m_window.statusBar()->addPermanentWidget(m_bar);
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_window, dxftest::patienceMs));
        const QByteArray polyline = "0\nLWPOLYLINE\n8\n0\n90\n1\n10\n0\n20\n0\n";
        dxftest::fileWith("0\nSECTION\n2\nENTITIES\n" + polyline.repeated(manyPolylines),
                          m_fileName);
    }

    int value() const { return m_bar->findChild<QProgressBar*>()->value(); }
    /// Starts to read, and returns when the bar shows progress. On a busy machine the read may end
    /// first. Then it starts again.
    bool readToTheMiddle()
    {
        return dxftest::eventually([this] {
            if (!m_reader.isReading()) {
                m_reader.read(m_fileName);
                EXPECT_FALSE(m_bar->isVisible());
            }
            return m_bar->isVisible() && value() > 0;
        });
    }

    void expectBegin(const char* text)
    {
        EXPECT_TRUE(m_bar->isVisible());
        EXPECT_EQ(value(), 0);
        EXPECT_EQ(m_bar->findChild<QLabel*>()->text(), QString::fromLatin1(text));
        QTest::mouseClick(m_bar->findChild<QAbstractButton*>(), Qt::LeftButton);
        EXPECT_FALSE(m_reader.isReading());
        EXPECT_FALSE(m_bar->isVisible());
    }

    const QTemporaryDir m_folder;
    const QString m_fileName = m_folder.filePath(QStringLiteral("large.dxf"));
    BackgroundReader m_reader;
    QMainWindow m_window;
    ReadingBar* m_bar = new ReadingBar(m_reader);
};

TEST_F(ReadingBarTest, ShowsWhatIsReadAndHowFarItIs)
{
    EXPECT_FALSE(m_bar->isVisible());
    ASSERT_TRUE(readToTheMiddle());

    EXPECT_LE(value(), 100);
    EXPECT_EQ(m_bar->findChild<QLabel*>()->text(), QStringLiteral("Reading large.dxf"));
    EXPECT_TRUE(dxftest::eventually([this] { return !m_bar->isVisible(); }));
    EXPECT_FALSE(m_reader.isReading());
}

TEST_F(ReadingBarTest, ShowsAtOnceAReadThatWaitsForACancelledOne)
{
    ASSERT_TRUE(readToTheMiddle());
    m_reader.cancel();
    EXPECT_FALSE(m_bar->isVisible());

    m_reader.read(m_folder.filePath(QStringLiteral("next.dxf")));

    expectBegin("Reading next.dxf");
}

TEST_F(ReadingBarTest, ShowsAtOnceAReadThatReplacesAnother)
{
    ASSERT_TRUE(readToTheMiddle());

    m_reader.read(m_folder.filePath(QStringLiteral("next.dxf")));

    expectBegin("Reading next.dxf");
}

TEST_F(ReadingBarTest, TheButtonCancelsTheRead)
{
    ASSERT_TRUE(readToTheMiddle());

    QTest::mouseClick(m_bar->findChild<QAbstractButton*>(), Qt::LeftButton);

    EXPECT_FALSE(m_reader.isReading());
    EXPECT_FALSE(m_bar->isVisible());
}

} // namespace
