// SPDX-License-Identifier: GPL-2.0-or-later

#include "docs/snippets/Embedding.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/viewer/DXFViewer.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"
#include "tests/support/SceneMouse.h"

#include <QAction>
#include <QGraphicsView>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>

namespace
{

using ::testing::Contains;
using ::testing::ElementsAre;

const QByteArray drawing = QByteArrayLiteral("0\nSECTION\n2\nENTITIES\n"
                                             "0\nPOLYLINE\n8\n0\n66\n1\n"
                                             "0\nVERTEX\n8\n0\n10\n0\n20\n0\n"
                                             "0\nVERTEX\n8\n0\n10\n90\n20\n0\n"
                                             "0\nSEQEND\n0\nENDSEC\n0\nEOF\n");

class EmbeddingTest : public dxftest::LoggedTest
{
protected:
    void load()
    {
        m_viewer.show();
        m_viewer.loadData(drawing);
        m_view = m_viewer.findChild<QGraphicsView*>();
        ASSERT_TRUE(dxftest::eventually([this] { return !m_view->scene()->items().isEmpty(); }));
    }

    DXFViewer m_viewer;
    QGraphicsView* m_view = nullptr;
};

TEST_F(EmbeddingTest, RecognisesADrawing)
{
    EXPECT_TRUE(isShowable(drawing));
    EXPECT_FALSE(isShowable(QByteArray("no drawing")));
}

TEST_F(EmbeddingTest, ShowsEntitiesThatTheWindowLeavesOut)
{
    const QTemporaryDir folder;
    const QString name = dxftest::fileWith("0\nSECTION\n2\nENTITIES\n"
                                           "0\nLINE\n8\n0\n10\n0\n20\n0\n11\n9\n21\n0\n"
                                           "0\nRAY\n8\n0\n10\n0\n20\n0\n11\n1\n21\n0\n"
                                           "0\nENDSEC\n0\nEOF\n",
                                           folder.filePath(QStringLiteral("line.dxf")));
    QStringList skipped;

    ASSERT_TRUE(showEverything(m_viewer, name, skipped));

    EXPECT_TRUE(m_viewer.getData().contains("POLYLINE"));
    EXPECT_THAT(skipped, ElementsAre(QStringLiteral("RAY")));
}

TEST_F(EmbeddingTest, ReadsUnlessItIsCancelled)
{
    const QTemporaryDir folder;
    const QString name = dxftest::fileWith(drawing, folder.filePath(QStringLiteral("drawing.dxf")));
    DXFDocument document;
    DXFDocument cancelled;

    EXPECT_TRUE(readUnlessCancelled(document, name, false));
    EXPECT_FALSE(readUnlessCancelled(cancelled, name, true));

    EXPECT_EQ(document.entities().size(), 1);
    EXPECT_TRUE(cancelled.entities().isEmpty());
}

TEST_F(EmbeddingTest, SavesWhatTheWindowHolds)
{
    load();
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("saved.dxf"));

    ASSERT_TRUE(save(m_viewer, name));

    EXPECT_EQ(dxftest::contentOf(name), m_viewer.getData());
}

TEST_F(EmbeddingTest, HasNoStackOutsideEditMode)
{
    load();

    EXPECT_EQ(editStack(m_viewer), nullptr);
}

TEST_F(EmbeddingTest, MenuUndoesAndRedoesAStroke)
{
    load();
    QMenu menu;
    addEditActions(m_viewer, menu);
    const auto actions = menu.actions();
    const QByteArray before = m_viewer.getData();
    actions.at(0)->setChecked(true);
    dxftest::SceneMouse(*m_view).drag({{20.0, 0.0}, {30.0, 0.0}});
    const QByteArray erased = m_viewer.getData();

    actions.at(1)->trigger();
    const QByteArray undone = m_viewer.getData();
    actions.at(2)->trigger();

    EXPECT_NE(erased, before);
    EXPECT_EQ(undone, before);
    EXPECT_EQ(m_viewer.getData(), erased);
}

TEST_F(EmbeddingTest, LogReachesTheHost)
{
    const QtMessageHandler handler = qInstallMessageHandler(nullptr);
    qInstallMessageHandler(handler);
    routeLog();

    m_viewer.loadData(QStringLiteral("missing.dxf"));
    qInstallMessageHandler(handler);

    EXPECT_THAT(hostLog(), Contains(QStringLiteral("Load failed")));
}

} // namespace
