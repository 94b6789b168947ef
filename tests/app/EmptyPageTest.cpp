// SPDX-License-Identifier: GPL-2.0-or-later

#include "EmptyPage.h"

#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"

#include <QFont>
#include <QGraphicsView>
#include <QImage>
#include <QTest>

namespace
{

class EmptyPageTest : public dxftest::LoggedTest
{
protected:
    EmptyPageTest()
    {
        m_view.resize(400, 300);
        m_view.setBackgroundBrush(Qt::white);
        m_view.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_view, dxftest::patienceMs));
        // Large letters have pixels that are not antialiased.
        QFont large = m_page.font();
        large.setPixelSize(60);
        m_page.setFont(large);
    }

    /// Whether the user sees a pixel of exactly this colour.
    bool shows(const QColor& color)
    {
        const QImage seen = m_view.grab().toImage();
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x) {
                if (seen.pixelColor(x, y) == color)
                    return true;
            }
        }
        return false;
    }

    const QString m_words = QStringLiteral("MMMM HHHH");
    QGraphicsView m_view;
    EmptyPage m_page{m_view};
};

TEST_F(EmptyPageTest, IsVisibleOnlyWithWords)
{
    EXPECT_FALSE(m_page.isVisible());

    m_page.showWords(m_words);
    EXPECT_TRUE(m_page.isVisible());
    EXPECT_EQ(m_page.text(), m_words);

    m_page.showWords(QString());
    EXPECT_FALSE(m_page.isVisible());
}

TEST_F(EmptyPageTest, TheWordsAreInTheInkColor)
{
    for (const QColor& ink : {QColor(200, 0, 0), QColor(0, 0, 200)}) {
        m_page.setInk(ink);
        EXPECT_FALSE(shows(ink));

        m_page.showWords(m_words);
        EXPECT_TRUE(shows(ink));
        m_page.showWords(QString());
    }
}

TEST_F(EmptyPageTest, StaysInTheMiddleOfTheView)
{
    m_page.showWords(m_words);
    EXPECT_EQ(m_page.geometry(), m_view.rect());

    m_view.resize(700, 500);

    EXPECT_TRUE(dxftest::eventually([this] { return m_page.size() == QSize(700, 500); }));
    EXPECT_EQ(m_page.geometry(), m_view.rect());
    EXPECT_EQ(m_page.alignment(), Qt::Alignment(Qt::AlignCenter));
}

TEST_F(EmptyPageTest, LeavesTheMouseToTheView)
{
    m_page.showWords(m_words);

    EXPECT_EQ(m_view.childAt(m_view.rect().center()), m_view.viewport());
}

TEST_F(EmptyPageTest, ShowsMarkupAsPlainText)
{
    const QColor red(255, 0, 0);
    m_page.setInk(Qt::black);

    m_page.showWords(QStringLiteral("<span style='background:#ff0000'>MMMM</span>"));
    EXPECT_FALSE(shows(red));

    m_page.showWords(QString(100000, QLatin1Char('M')));
    EXPECT_EQ(m_page.geometry(), m_view.rect());
}

} // namespace
