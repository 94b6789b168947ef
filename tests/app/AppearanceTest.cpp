// SPDX-License-Identifier: GPL-2.0-or-later

#include "Appearance.h"
#include "ViewerParts.h"

#include "dxfviewer/edit/DXFEditor.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/render/DisplayColors.h"
#include "dxfviewer/viewer/DXFViewer.h"
#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/SceneMouse.h"
#include "tests/support/WindowParts.h"

#include <QAction>
#include <QGraphicsView>
#include <QMenu>
#include <QSignalSpy>
#include <QUndoStack>

namespace
{

class AppearanceTest : public dxftest::LoggedTest
{
protected:
    AppearanceTest() { m_viewer.show(); }

    void showLine()
    {
        EXPECT_TRUE(
            dxftest::loadAndShow(m_viewer, dxftest::drawingText({{{{0, 0}, {50, 50}}, false}})));
    }
    DXFEntity& shownLine() const { return *dxftest::polylineAt(shownDocument(m_viewer), 0); }

    QColor viewColor() const { return drawingView(m_viewer).backgroundBrush().color(); }

    /// The actions that choose a ground.
    QList<QAction*> offered()
    {
        m_appearance.addActionsTo(m_menu);
        return m_menu.actions().constLast()->menu()->actions();
    }

    static QStringList checkedOf(const QList<QAction*>& actions)
    {
        QStringList texts;
        for (const QAction* action : actions) {
            if (action->isChecked())
                texts.append(action->text());
        }
        return texts;
    }

    DXFViewer m_viewer;
    Appearance m_appearance{m_viewer};
    QMenu m_menu;
};

TEST_F(AppearanceTest, IsDarkAtFirst)
{
    EXPECT_EQ(m_appearance.ground(), Ground::Dark);
    EXPECT_EQ(viewColor(), colorOf(Ground::Dark));
    EXPECT_EQ(checkedOf(offered()), QStringList{QStringLiteral("&Dark")});
}

TEST_F(AppearanceTest, TheViewGetsTheGroundBeforeThereIsADrawing)
{
    for (const Ground ground : {Ground::Light, Ground::White, Ground::Dark}) {
        m_appearance.setGround(ground);

        EXPECT_EQ(m_appearance.ground(), ground);
        EXPECT_EQ(viewColor(), colorOf(ground));
    }
}

TEST_F(AppearanceTest, SignalsOnlyAChangeOfTheGround)
{
    const QSignalSpy spy(&m_appearance, &Appearance::groundChanged);

    m_appearance.setGround(Ground::Dark);
    EXPECT_EQ(spy.count(), 0);

    m_appearance.setGround(Ground::White);
    m_appearance.setGround(Ground::White);
    EXPECT_EQ(spy.count(), 1);
}

TEST_F(AppearanceTest, TheMenuChoosesOneGround)
{
    const auto actions = offered();
    ASSERT_EQ(actions.size(), 3);

    actions.at(1)->trigger();
    EXPECT_EQ(m_appearance.ground(), Ground::Light);
    EXPECT_EQ(checkedOf(actions), QStringList{QStringLiteral("&Light")});

    m_appearance.setGround(Ground::White);
    EXPECT_EQ(checkedOf(actions), QStringList{QStringLiteral("&White")});
}

TEST_F(AppearanceTest, ColorsADrawingThatIsNotShownYet)
{
    const auto line = dxftest::makePolyline({{0, 0}, {1, 1}});
    const auto document = dxftest::makeDocument({line});

    m_appearance.color(*document);
    EXPECT_EQ(line->color(), QColor(Qt::white));

    m_appearance.setGround(Ground::White);
    m_appearance.color(*document);
    EXPECT_EQ(line->color(), QColor(Qt::black));
}

TEST_F(AppearanceTest, DocumentWithANullEntityCanBeColored)
{
    const auto document = dxftest::makeDocument({nullptr});

    m_appearance.color(*document);

    EXPECT_EQ(document->entities().size(), 1);
}

TEST_F(AppearanceTest, TheDrawingOnScreenGetsTheColorsOfTheGround)
{
    showLine();

    m_appearance.setGround(Ground::Light);
    EXPECT_EQ(shownLine().color(), QColor(Qt::black));

    m_appearance.setGround(Ground::Dark);
    EXPECT_EQ(shownLine().color(), QColor(Qt::white));
}

TEST_F(AppearanceTest, WhatUndoBringsBackHasTheColorsOfTheNewGround)
{
    showLine();
    m_appearance.color(*shownDocument(m_viewer));
    ASSERT_EQ(shownLine().color(), QColor(Qt::white));
    editAction(m_viewer).setChecked(true);
    dxftest::SceneMouse(drawingView(m_viewer)).drag({{25, 25}, {26, 26}});
    ASSERT_TRUE(shownDocument(m_viewer)->entities().isEmpty());
    m_appearance.setGround(Ground::White);

    currentEditor(m_viewer)->stack()->undo();

    ASSERT_EQ(shownDocument(m_viewer)->entities().size(), 1);
    EXPECT_EQ(shownLine().color(), QColor(Qt::black));
}

} // namespace
