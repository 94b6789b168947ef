// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/viewer/DXFViewer.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"

#include <QAction>
#include <QCoreApplication>
#include <QGraphicsItem>
#include <QLocale>
#include <QTest>
#include <QToolBar>
#include <QTranslator>

#include <gmock/gmock.h>

namespace
{

using ::testing::ElementsAre;

const QByteArray oneLine = QByteArrayLiteral("0\nSECTION\n2\nENTITIES\n"
                                             "0\nPOLYLINE\n8\n0\n66\n1\n"
                                             "0\nVERTEX\n8\n0\n10\n0\n20\n0\n"
                                             "0\nVERTEX\n8\n0\n10\n9\n20\n9\n"
                                             "0\nSEQEND\n0\nENDSEC\n0\nEOF\n");

QStringList visibleTexts(const DXFViewer& window)
{
    QStringList texts;
    const auto actions = window.findChild<QToolBar*>()->actions();
    for (const QAction* action : actions) {
        if (action->isVisible())
            texts.append(action->text());
    }
    return texts;
}

class WindowLanguageTest : public dxftest::LoggedTest
{
protected:
    WindowLanguageTest()
    {
        m_isLoaded = m_translator.load(QLocale(QLocale::German), QStringLiteral("dxfviewer"),
                                       QStringLiteral("_"), QStringLiteral(DXFVIEWER_QM_DIR));
        QCoreApplication::installTranslator(&m_translator);
    }

    ~WindowLanguageTest() override { QCoreApplication::removeTranslator(&m_translator); }

    QTranslator m_translator;
    bool m_isLoaded = false;
};

TEST_F(WindowLanguageTest, ShowsGermanTextsWithTheTranslatorInstalled)
{
    ASSERT_TRUE(m_isLoaded);

    const DXFViewer window;

    EXPECT_EQ(window.windowTitle(), QStringLiteral("Hauptfenster"));
    EXPECT_THAT(visibleTexts(window), ElementsAre(QStringLiteral(".dxf bearbeiten")));
}

TEST_F(WindowLanguageTest, TranslatesUndoAndRedoOfEditMode)
{
    ASSERT_TRUE(m_isLoaded);
    DXFViewer window;
    window.loadData(oneLine);
    const auto* view = window.findChild<QGraphicsView*>();
    ASSERT_TRUE(dxftest::eventually([view] { return !view->scene()->items().isEmpty(); }));

    window.findChild<QAction*>(QStringLiteral("actionEdit_dxf"))->setChecked(true);

    EXPECT_THAT(visibleTexts(window),
                ElementsAre(QStringLiteral(".dxf bearbeiten"), QString::fromUtf8("Rückgängig"),
                            QStringLiteral("Wiederherstellen")));
}

} // namespace
