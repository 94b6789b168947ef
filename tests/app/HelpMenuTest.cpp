// SPDX-License-Identifier: GPL-2.0-or-later

#include "HelpMenu.h"

#include "tests/app/DialogRobot.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"

#include <QAction>
#include <QDialog>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTextBrowser>
#include <QTextDocument>

using testing::HasSubstr;

namespace
{

class HelpMenuTest : public dxftest::LoggedTest
{
protected:
    HelpMenuTest()
    {
        (new HelpMenu(m_window))->addActionsTo(m_menu);
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window, dxftest::patienceMs));
    }

    QTextBrowser* page() const { return m_window.findChild<QTextBrowser*>(); }

    QMainWindow m_window;
    QMenu& m_menu = *m_window.menuBar()->addMenu(QStringLiteral("Help"));
};

TEST_F(HelpMenuTest, KeyShowsHowToErase)
{
    QTest::keyClick(&m_window, Qt::Key_F1);

    ASSERT_NE(page(), nullptr);
    EXPECT_TRUE(page()->isVisible());
    EXPECT_FALSE(page()->window()->isModal());
    EXPECT_THAT(page()->toPlainText().toStdString(), HasSubstr("hold the left button"));
}

TEST_F(HelpMenuTest, ThePageHasAPicture)
{
    QTest::keyClick(&m_window, Qt::Key_F1);

    ASSERT_NE(page(), nullptr);
    const QVariant picture = page()->document()->resource(
        QTextDocument::ImageResource, QUrl(QStringLiteral(":/how-to-erase.png")));
    EXPECT_FALSE(picture.isNull());
    EXPECT_FALSE(QImage(QStringLiteral(":/how-to-erase.png")).isNull());
}

TEST_F(HelpMenuTest, ThePageOpensOnceAndCanBeClosed)
{
    m_menu.actions().constFirst()->trigger();
    m_menu.actions().constFirst()->trigger();
    EXPECT_EQ(m_window.findChildren<QTextBrowser*>().size(), 1);

    page()->window()->close();
    EXPECT_TRUE(dxftest::eventually([this] { return page() == nullptr; }));
    m_menu.actions().constFirst()->trigger();
    EXPECT_NE(page(), nullptr);
}

TEST_F(HelpMenuTest, AboutNamesVersionsAndLicence)
{
    dxftest::DialogRobot robot;
    std::string text;
    robot.expectError(text);

    m_menu.actions().constLast()->trigger();

    EXPECT_THAT(text, HasSubstr(qVersion()));
    EXPECT_THAT(text, HasSubstr("dxflib 3."));
    EXPECT_THAT(text, HasSubstr("General Public License"));
}

} // namespace
