// SPDX-License-Identifier: GPL-2.0-or-later

#include "StrokeHistory.h"
#include "ViewerParts.h"

#include "dxfviewer/edit/DXFEditor.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/viewer/DXFViewer.h"
#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"
#include "tests/support/SceneMouse.h"
#include "tests/support/WindowParts.h"

#include <QAction>
#include <QGraphicsView>
#include <QSignalSpy>
#include <QTest>
#include <QToolBar>

#include <algorithm>
#include <random>

using dxftest::SceneMouse;

namespace
{

constexpr int posts = 40;
constexpr double spacing = 10.0;
constexpr qint64 plenty = 1LL << 30;

/// The middle of one post of fence().
QPointF post(int index)
{
    return {spacing * index, 0.0};
}

/// Upright lines, one beside the other.
QByteArray fence()
{
    QVector<dxftest::Chain> chains;
    for (int index = 0; index < posts; ++index)
        chains.append({{post(index) - QPointF(0, 20), post(index) + QPointF(0, 20)}, false});
    return dxftest::drawingText(chains);
}

class StrokeHistoryTest : public dxftest::LoggedTest
{
protected:
    explicit StrokeHistoryTest(qint64 memoryBytes = plenty)
        : m_history(drawingView(m_viewer), memoryBytes)
    {
        m_viewer.show();
        EXPECT_TRUE(dxftest::loadAndShow(m_viewer, fence()));
        startEditing();
    }

    void startEditing()
    {
        editAction(m_viewer).setChecked(true);
        m_history.follow(*currentEditor(m_viewer), *shownDocument(m_viewer));
    }

    /// The posts that still stand, from left to right.
    QVector<int> standing() const
    {
        QVector<int> indices;
        const auto lines = dxftest::linesOf(shownDocument(m_viewer));
        for (const QLineF& line : lines)
            indices.append(qRound(line.x1() / spacing));
        std::sort(indices.begin(), indices.end());
        return indices;
    }

    int count() const { return static_cast<int>(standing().size()); }
    QUndoStack& stack() const { return *currentEditor(m_viewer)->stack(); }

    /// Erases posts in one stroke, each in a step of its own.
    void stroke(const QVector<int>& indices)
    {
        SceneMouse mouse(drawingView(m_viewer));
        mouse.press(besidePosts());
        for (int index : indices)
            erase(mouse, index);
        mouse.release(besidePosts());
    }

    void erase(SceneMouse& mouse, int index)
    {
        const int before = count();
        mouse.move(post(index));
        EXPECT_TRUE(dxftest::eventually([&] { return count() < before; }));
    }

    static QPointF besidePosts() { return {spacing / 2, 0.0}; }

    DXFViewer m_viewer;
    StrokeHistory m_history;
};

TEST_F(StrokeHistoryTest, UndoTakesBackAWholeStroke)
{
    stroke({1, 2, 3});
    ASSERT_EQ(stack().index(), 3);

    m_history.undoAction()->trigger();

    EXPECT_EQ(count(), posts);
    EXPECT_FALSE(m_history.undoAction()->isEnabled());
    EXPECT_TRUE(m_history.redoAction()->isEnabled());
}

TEST_F(StrokeHistoryTest, RedoRepeatsAWholeStroke)
{
    stroke({1, 2});
    stroke({3, 4, 5});
    m_history.undo();
    m_history.undo();
    ASSERT_EQ(count(), posts);

    m_history.redoAction()->trigger();
    EXPECT_EQ(count(), posts - 2);
    m_history.redoAction()->trigger();
    EXPECT_EQ(count(), posts - 5);
    EXPECT_FALSE(m_history.redoAction()->isEnabled());
    EXPECT_TRUE(m_history.undoAction()->isEnabled());
}

TEST_F(StrokeHistoryTest, AStrokeThatHitsNothingIsNoStep)
{
    stroke({1, 2});
    stroke({});
    stroke({});

    m_history.undo();

    EXPECT_EQ(count(), posts);
}

TEST_F(StrokeHistoryTest, AStrokeThatHitsNothingLeavesRedo)
{
    stroke({1, 2});
    stroke({3, 4});
    m_history.undo();
    stroke({});

    m_history.redo();

    EXPECT_EQ(count(), posts - 4);
    m_history.undo();
    EXPECT_EQ(count(), posts - 2);
}

TEST_F(StrokeHistoryTest, AStrokeAfterUndoReplacesTheUndoneStroke)
{
    stroke({1, 2});
    stroke({3, 4});
    m_history.undo();
    stroke({5});

    EXPECT_FALSE(m_history.redoAction()->isEnabled());
    m_history.undo();
    EXPECT_EQ(count(), posts - 2);
    m_history.redo();
    EXPECT_EQ(count(), posts - 3);
}

TEST_F(StrokeHistoryTest, UndoInTheMiddleOfAStrokeGoesBackToItsBeginning)
{
    stroke({1, 2});
    SceneMouse mouse(drawingView(m_viewer));
    mouse.press(besidePosts());
    erase(mouse, 3);
    erase(mouse, 4);

    m_history.undo();
    EXPECT_EQ(count(), posts - 2);

    erase(mouse, 5);
    mouse.release(besidePosts());
    EXPECT_EQ(count(), posts - 3);
    m_history.undo();
    EXPECT_EQ(count(), posts - 2);
}

TEST_F(StrokeHistoryTest, StrokesBeginWithTheLeftButton)
{
    SceneMouse mouse(drawingView(m_viewer));
    mouse.press(besidePosts());
    erase(mouse, 1);
    mouse.press(besidePosts(), Qt::MiddleButton);
    mouse.release(besidePosts(), Qt::MiddleButton);
    mouse.move(post(2));
    mouse.release(besidePosts());
    ASSERT_EQ(stack().index(), 2);

    m_history.undo();

    EXPECT_EQ(count(), posts);
}

TEST_F(StrokeHistoryTest, ADoubleClickBeginsAStroke)
{
    stroke({1});
    SceneMouse mouse(drawingView(m_viewer));
    mouse.doubleClick(besidePosts());
    stroke({2});

    m_history.undo();

    EXPECT_EQ(count(), posts - 1);
}

TEST_F(StrokeHistoryTest, MoreThanTenStepsAreKept)
{
    QVector<int> many;
    for (int index = 1; index <= 14; ++index)
        many.append(index);
    stroke(many);
    ASSERT_EQ(stack().index(), 14);

    m_history.undo();

    EXPECT_EQ(count(), posts);
}

TEST_F(StrokeHistoryTest, ActionsForSingleStepsAreHidden)
{
    stroke({1});

    QStringList hidden;
    const auto actions = dxftest::toolBarOf(m_viewer).actions();
    for (const QAction* action : actions) {
        if (!action->isVisible())
            hidden.append(action->text());
    }
    for (const char* text : {"Undo", "Redo"}) {
        EXPECT_TRUE(hidden.contains(QLatin1String(text))) << text;
        for (const QAction* action : actions)
            EXPECT_FALSE(action->isVisible() && action->text() == QLatin1String(text)) << text;
    }
}

TEST_F(StrokeHistoryTest, HasStepsUntilAllAreUndone)
{
    EXPECT_FALSE(m_history.hasSteps());
    stroke({1});
    EXPECT_TRUE(m_history.hasSteps());

    m_history.undo();
    EXPECT_FALSE(m_history.hasSteps());
    m_history.redo();
    EXPECT_TRUE(m_history.hasSteps());
}

TEST_F(StrokeHistoryTest, TheHistoryEndsWithEditMode)
{
    stroke({1, 2});
    editAction(m_viewer).setChecked(false);

    EXPECT_FALSE(m_history.undoAction()->isEnabled());
    m_history.undo();
    m_history.redo();
    EXPECT_EQ(count(), posts - 2);
}

TEST_F(StrokeHistoryTest, EachEditModeHasItsOwnHistory)
{
    stroke({1, 2});
    editAction(m_viewer).setChecked(false);
    startEditing();
    stroke({3});

    m_history.undo();

    EXPECT_EQ(count(), posts - 2);
    EXPECT_FALSE(m_history.undoAction()->isEnabled());
}

TEST_F(StrokeHistoryTest, HasTheUsualKeys)
{
    EXPECT_EQ(m_history.undoAction()->shortcut(), QKeySequence(QStringLiteral("Ctrl+Z")));
    EXPECT_TRUE(
        m_history.redoAction()->shortcuts().contains(QKeySequence(QStringLiteral("Ctrl+Shift+Z"))));
    EXPECT_TRUE(
        m_history.redoAction()->shortcuts().contains(QKeySequence(QStringLiteral("Ctrl+Y"))));
}

/// After each undo and redo the drawing is as it was after one of the strokes.
TEST_F(StrokeHistoryTest, RandomUndosAndRedosRestoreWholeStrokes)
{
    std::mt19937 random(7);
    const auto chance = [&random](int choices) {
        return static_cast<int>(random() % static_cast<unsigned>(choices));
    };
    QVector<QVector<int>> history{standing()};
    int at = 0;
    for (int action = 0; action < 60; ++action) {
        switch (chance(4)) {
        case 0: {
            QVector<int> victims = standing();
            std::shuffle(victims.begin(), victims.end(), random);
            victims.resize(std::min(static_cast<int>(victims.size()), chance(4)));
            stroke(victims);
            if (victims.isEmpty())
                break;
            history.resize(++at);
            history.append(standing());
            break;
        }
        case 1:
        case 2:
            m_history.undo();
            at = std::max(0, at - 1);
            break;
        default:
            m_history.redo();
            at = std::min(at + 1, static_cast<int>(history.size()) - 1);
        }
        ASSERT_EQ(standing(), history.at(at)) << "after action " << action;
        ASSERT_EQ(m_history.undoAction()->isEnabled(), at > 0);
        ASSERT_EQ(m_history.redoAction()->isEnabled(), at < history.size() - 1);
    }
}

class ShortStrokeHistoryTest : public StrokeHistoryTest
{
protected:
    ShortStrokeHistoryTest()
        : StrokeHistoryTest(0)
        , m_lost(&m_history, &StrokeHistory::beginningLost)
    {
    }

    /// Posts from one to the other, both included.
    static QVector<int> range(int from, int to)
    {
        QVector<int> indices;
        for (int index = from; index <= to; ++index)
            indices.append(index);
        return indices;
    }

    QSignalSpy m_lost;
};

TEST_F(ShortStrokeHistoryTest, ATooLongStrokeSignalsOnce)
{
    stroke(range(1, 10));
    EXPECT_EQ(m_lost.count(), 0);

    stroke(range(11, 22));

    EXPECT_EQ(m_lost.count(), 1);
}

TEST_F(ShortStrokeHistoryTest, UndoOfATooLongStrokeRevertsItsEndAndSignals)
{
    stroke(range(1, 12));
    m_lost.clear();

    m_history.undo();

    EXPECT_EQ(count(), posts - 2);
    EXPECT_EQ(m_lost.count(), 1);
    EXPECT_FALSE(m_history.undoAction()->isEnabled());
    EXPECT_TRUE(m_history.hasSteps());
    m_history.redo();
    EXPECT_EQ(count(), posts - 12);
}

TEST_F(ShortStrokeHistoryTest, OldStrokesAreDroppedAndLaterOnesStayWhole)
{
    stroke(range(1, 4));
    stroke(range(5, 10));
    stroke(range(11, 13));
    EXPECT_EQ(m_lost.count(), 0);

    m_history.undo();
    EXPECT_EQ(count(), posts - 10);
    m_history.undo();
    EXPECT_EQ(count(), posts - 4);
    EXPECT_EQ(m_lost.count(), 0);
    m_history.undo();
    EXPECT_EQ(count(), posts - 3);
    EXPECT_EQ(m_lost.count(), 1);
    EXPECT_FALSE(m_history.undoAction()->isEnabled());

    for (int expected : {4, 10, 13}) {
        m_history.redo();
        EXPECT_EQ(count(), posts - expected);
    }
}

} // namespace
