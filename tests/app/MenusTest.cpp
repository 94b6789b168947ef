// SPDX-License-Identifier: GPL-2.0-or-later

#include "MainWindow.h"

#include "tests/app/WindowActions.h"
#include "tests/support/LoggedTest.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeySequence>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QTranslator>

#include <string>

using dxftest::actionOf;

namespace
{

/// The texts of the actions whose letter another action of the menu has, too.
QStringList clashesIn(const QList<QAction*>& actions)
{
    QMap<QKeySequence, QString> known;
    QStringList clashes;
    for (const QAction* action : actions) {
        const QKeySequence letter = QKeySequence::mnemonic(action->text());
        if (letter.isEmpty())
            continue;
        if (known.contains(letter))
            clashes.append(known.value(letter) + QStringLiteral(" / ") + action->text());
        known.insert(letter, action->text());
    }
    return clashes;
}

/// The menu bar or menu, and all menus in it.
QVector<QList<QAction*>> menusIn(const QList<QAction*>& actions)
{
    QVector<QList<QAction*>> menus{actions};
    for (const QAction* action : actions) {
        if (action->menu())
            menus += menusIn(action->menu()->actions());
    }
    return menus;
}

class MenusTest : public dxftest::LoggedTest
{
};

/// The menus in a language.
class MenuLanguageTest : public MenusTest, public ::testing::WithParamInterface<const char*>
{
protected:
    MenuLanguageTest()
    {
        const QString language = QLatin1String(GetParam());
        m_isLoaded = language == QLatin1String("en")
                     || m_translator.load(QStringLiteral("dxfviewer-app_") + language,
                                          QStringLiteral(DXFVIEWER_QM_DIR));
        QCoreApplication::installTranslator(&m_translator);
    }

    ~MenuLanguageTest() override { QCoreApplication::removeTranslator(&m_translator); }

    QTranslator m_translator;
    bool m_isLoaded = false;
};

TEST_P(MenuLanguageTest, NoTwoActionsOfAMenuHaveTheSameLetter)
{
    ASSERT_TRUE(m_isLoaded);
    const MainWindow window;

    const auto menus = menusIn(window.menuBar()->actions());

    // The bar, its four menus, recent drawings and the grounds.
    EXPECT_EQ(menus.size(), 7);
    for (const auto& actions : menus)
        EXPECT_EQ(clashesIn(actions).join(QStringLiteral(", ")).toStdString(), std::string());
}

INSTANTIATE_TEST_SUITE_P(, MenuLanguageTest, ::testing::Values("en", "de", "es", "fr", "ja", "ru"),
                         [](const auto& parameter) { return std::string(parameter.param); });

TEST_F(MenusTest, ActionsHaveTheStandardKeysOfThePlatform)
{
    const MainWindow window;
    const QVector<QPair<const char*, QKeySequence::StandardKey>> expected{
        {"&Open…", QKeySequence::Open},       {"Re&load", QKeySequence::Refresh},
        {"&Save", QKeySequence::Save},        {"Save &As…", QKeySequence::SaveAs},
        {"&Print…", QKeySequence::Print},     {"&Quit", QKeySequence::Quit},
        {"&Quit", QKeySequence::Close},       {"Undo", QKeySequence::Undo},
        {"Redo", QKeySequence::Redo},         {"Zoom &In", QKeySequence::ZoomIn},
        {"Zoom &Out", QKeySequence::ZoomOut}, {"How to &Erase", QKeySequence::HelpContents},
    };
    for (const auto& [text, standard] : expected) {
        const auto keys = actionOf(window, text).shortcuts();
        const auto wanted = QKeySequence::keyBindings(standard);
        for (const QKeySequence& key : wanted)
            EXPECT_TRUE(keys.contains(key)) << text << ": " << key.toString().toStdString();
    }
}

TEST_F(MenusTest, NoTwoActionsHaveTheSameKey)
{
    const MainWindow window;
    QMap<QKeySequence, QString> known;
    const auto menus = menusIn(window.menuBar()->actions());
    for (const auto& actions : menus) {
        for (const QAction* action : actions) {
            const auto keys = action->shortcuts();
            for (const QKeySequence& key : keys) {
                EXPECT_FALSE(known.contains(key)) << key.toString().toStdString();
                known.insert(key, action->text());
            }
        }
    }
    EXPECT_GT(known.size(), 12);
}

} // namespace
