// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/DXFEditor.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/viewer/DXFViewer.h"
#include "dxfviewer/viewer/View.h"

#include "tests/e2e/ErasedDrawing.h"
#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"
#include "tests/support/SceneMouse.h"
#include "tests/support/WindowParts.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QGraphicsScene>
#include <QSignalSpy>
#include <QTest>
#include <QToolBar>
#include <QUndoStack>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <iterator>
#include <memory>
#include <random>

using namespace dxftest;
using ::testing::Each;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::Truly;

namespace
{

constexpr double eraserRadiusPx = 5.0;
constexpr int undoLimit = 10;
constexpr int movesBetweenPoints = 12;

/// A plan with straight, crooked and closed polylines. Its numbers have no short binary form, so
/// that nothing lies exactly at the eraser's radius.
QVector<Chain> makePlan()
{
    QVector<Chain> plan;
    for (int i = 0; i < 12; ++i) {
        Chain row;
        for (int j = 0; j <= 20; ++j)
            row.points.append(QPointF(40.37 * j, 50.13 * i + 9.71 * (j % 2)));
        plan.append(row);
    }
    plan.append({{{101.3, 77.1}, {351.7, 81.9}, {348.2, 303.3}, {99.4, 298.8}}, true});
    plan.append({{{500.1, 100.2}, {600.3, 300.4}, {400.5, 299.6}, {500.1, 100.2}}, false});
    plan.append({{{-20.2, -20.2}, {820.4, 580.6}}, false});
    return plan;
}

/// A host with a shown window and an eraser, which computes itself what should be left.
class Host
{
public:
    Host() { window.show(); }

    bool open(const QVector<Chain>& chains)
    {
        for (const Chain& chain : chains)
            expected.add(chain.points, chain.isClosed);
        return loadAndShow(window, drawingText(chains));
    }

    bool open(const QString& fileName)
    {
        if (!loadAndShow(window, fileName))
            return false;
        const auto document = shownDocument(window);
        const auto entities = document->entities();
        for (int i = 0; i < entities.size(); ++i) {
            const auto first = int(entities.indexOf(entities[i]));
            const auto polyline = polylineAt(document, i);
            if (first < i)
                expected.repeat(first);
            else
                expected.add(pointsOf(*polyline), polyline->isClosed());
        }
        return true;
    }

    void edit() { editActionOf(window).setChecked(true); }

    QUndoStack& stack() { return *editorsOf(window).first()->stack(); }

    void press(const QPointF& where) { mouse.press(where); }

    /// Moves the eraser, and records where it is then: on a whole pixel.
    void move(const QPointF& where)
    {
        mouse.move(where);
        m_centers.append(view.mapToScene(view.mapFromScene(where)));
    }

    /// Waits until the next tick has erased the segments that the eraser passed.
    bool awaitTick()
    {
        if (!noteBatch())
            return true;
        QSignalSpy changes(&stack(), SIGNAL(indexChanged(int)));
        return changes.wait(patienceMs);
    }

    void release(const QPointF& where)
    {
        mouse.release(where);
        noteBatch();
    }

    /// One stroke from point to point, without running the event loop.
    void stroke(const QVector<QPointF>& points)
    {
        press(points.first());
        move(points.first());
        for (int i = 1; i < points.size(); ++i) {
            for (int step = 1; step <= movesBetweenPoints; ++step)
                move(QLineF(points[i - 1], points[i]).pointAt(double(step) / movesBetweenPoints));
        }
        release(points.last());
    }

    QVector<QLineF> lines() const { return linesOf(shownDocument(window)); }

    /// The lines of the data that the window returns. It is not read by a second window, because
    /// that would end edit mode when it is destroyed.
    QVector<QLineF> linesReadAgain()
    {
        const auto document = DXFDocument::load(window.getData());
        if (!document)
            return {};
        document->setup();
        return linesOf(document);
    }

    /// A length in device-independent pixels as a length in the drawing.
    double units(double pixels) const { return pixels / view.transform().m11(); }

    DXFViewer window;
    View& view = viewOf(window);
    ErasedDrawing expected;

private:
    bool noteBatch()
    {
        const double radius = eraserRadiusPx / view.transform().m11();
        const bool erasedAny = expected.erase(m_centers, radius);
        m_centers.clear();
        return erasedAny;
    }

    SceneMouse mouse{view};
    QVector<QPointF> m_centers;
};

/// Whether two lists of lines are the same but for rounding: numbers are saved with sixteen
/// decimals.
::testing::AssertionResult liesAlong(const QVector<QLineF>& actual, const QVector<QLineF>& expected)
{
    if (actual.size() != expected.size()) {
        return ::testing::AssertionFailure()
               << actual.size() << " lines instead of " << expected.size();
    }
    const auto differ = [](double a, double b) {
        return std::abs(a - b) > 1e-12 * std::max({1.0, std::abs(a), std::abs(b)});
    };
    for (int i = 0; i < actual.size(); ++i) {
        const QLineF& a = actual[i];
        const QLineF& b = expected[i];
        if (differ(a.x1(), b.x1()) || differ(a.y1(), b.y1()) || differ(a.x2(), b.x2())
            || differ(a.y2(), b.y2())) {
            return ::testing::AssertionFailure()
                   << "line " << i << " is " << ::testing::PrintToString(a) << " instead of "
                   << ::testing::PrintToString(b);
        }
    }
    return ::testing::AssertionSuccess();
}

class EraseCycleTest : public LoggedTest
{
protected:
    EraseCycleTest()
        : host(std::make_unique<Host>())
    {
    }

    void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowExposed(&host->window, patienceMs)); }

    /// Compares the screen and the data with what should be left after so many batches.
    void expectDrawing(std::size_t batches)
    {
        const auto state = stateAfter(batches);
        EXPECT_EQ(shownDocument(host->window)->entities().size(), int(state.size()));
        EXPECT_EQ(host->lines(), linesOf(state)) << "after " << batches << " batches";
        EXPECT_TRUE(liesAlong(host->linesReadAgain(), linesWhenReadAgain(state)))
            << "after " << batches << " batches";
    }

    /// What should be left after so many batches. After an undo no polyline is listed several
    /// times.
    ErasedDrawing::State stateAfter(std::size_t batches) const
    {
        const auto& state = host->expected.stateAfter(batches);
        return hasUndone ? withoutRepetitions(state) : state;
    }

    /// Undo to the beginning and redo to the end, by the actions in the tool bar.
    void walkThroughHistory()
    {
        const auto actions = toolBarOf(host->window).actions();
        ASSERT_THAT(actions, SizeIs(6));
        const std::size_t batches = host->expected.batches();
        ASSERT_EQ(std::size_t(host->stack().count()), batches);
        hasUndone = true;
        for (std::size_t i = batches; i-- > 0;) {
            actions[4]->trigger();
            EXPECT_EQ(host->lines(), linesOf(stateAfter(i))) << "undo to " << i;
        }
        EXPECT_FALSE(actions[4]->isEnabled());
        expectDrawing(0);
        for (std::size_t i = 1; i <= batches; ++i) {
            actions[5]->trigger();
            EXPECT_EQ(host->lines(), linesOf(stateAfter(i))) << "redo to " << i;
        }
        EXPECT_FALSE(actions[5]->isEnabled());
        expectDrawing(batches);
    }

    std::unique_ptr<Host> host;
    bool hasUndone = false;
};

TEST_F(EraseCycleTest, NothingErasedReturnsTheDrawing)
{
    ASSERT_TRUE(host->open(makePlan()));

    expectDrawing(0);
}

TEST_F(EraseCycleTest, OneStrokeIsOneStepOfTheHistory)
{
    ASSERT_TRUE(host->open(makePlan()));
    host->edit();

    host->stroke({{300, 30}, {306, 75}});

    ASSERT_EQ(host->expected.batches(), 1U);
    expectDrawing(1);
    walkThroughHistory();
}

TEST_F(EraseCycleTest, StrokeBesideTheDrawingErasesNothing)
{
    ASSERT_TRUE(host->open({{{{0, 0}, {800, 0}}, false}, {{{0, 600}, {800, 600}}, false}}));
    host->edit();

    host->stroke({{100, 300}, {200, 300}, {300, 310}});

    ASSERT_EQ(host->expected.batches(), 0U);
    EXPECT_EQ(host->stack().count(), 0);
    expectDrawing(0);
}

TEST_F(EraseCycleTest, ManyStrokesCanBeUndoneAndRedone)
{
    ASSERT_TRUE(host->open(makePlan()));
    host->edit();

    host->stroke({{20.3, 2}, {60.1, 3}, {99.2, 5}});
    host->stroke({{200, 80}, {210, 85}});
    host->stroke({{347, 200}, {352, 200}});
    host->stroke({{100, 190}, {101, 200}});
    host->stroke({{500, 100}, {501, 101}, {640, 400}, {645, 420}});
    host->stroke({{400, 290}, {420, 300}, {440, 305}});
    host->stroke({{200, 82}, {220, 86}, {240, 88}});

    ASSERT_GE(host->expected.batches(), 6U);
    expectDrawing(host->expected.batches());
    walkThroughHistory();
    walkThroughHistory();
}

TEST_F(EraseCycleTest, TicksDivideAStrokeIntoSteps)
{
    ASSERT_TRUE(host->open(makePlan()));
    host->edit();

    host->press({60, -20});
    for (int i = 0; i < 6; ++i) {
        host->move({60.0 + i, 50.13 * i});
        ASSERT_TRUE(host->awaitTick());
        EXPECT_EQ(host->lines(), linesOf(host->expected.current()));
    }
    host->move({400, 500});
    host->move({405, 507});
    host->release({60, 560});

    ASSERT_GE(host->expected.batches(), 6U);
    expectDrawing(host->expected.batches());
    walkThroughHistory();
}

TEST_F(EraseCycleTest, EraserKeepsItsSizeOnTheScreen)
{
    ASSERT_TRUE(host->open(makePlan()));
    host->edit();
    SceneMouse wheel(host->view);
    wheel.modifiers = Qt::ControlModifier;

    double y = 5.0;
    for (const int angle : {120, 120, 120, -120, -120, -120, -120, -120}) {
        const QPointF at(300, y);
        y += 50.13;
        host->view.centerOn(at);
        wheel.wheel(at, angle);
        host->view.centerOn(at);
        const QPointF reach(host->units(5), host->units(15));
        host->stroke({at - reach, at + reach});
        EXPECT_EQ(host->lines(), linesOf(host->expected.current()));
    }

    ASSERT_EQ(host->expected.batches(), 8U);
    expectDrawing(8);
    walkThroughHistory();
}

TEST_F(EraseCycleTest, DrawingStaysEditedWhenEditModeEnds)
{
    ASSERT_TRUE(host->open(makePlan()));
    host->edit();
    host->stroke({{300, 30}, {306, 75}});
    ASSERT_EQ(host->expected.batches(), 1U);

    editActionOf(host->window).setChecked(false);

    expectDrawing(1);
}

TEST_F(EraseCycleTest, EditedDrawingCanBeEditedFurther)
{
    ASSERT_TRUE(host->open(makePlan()));
    host->edit();
    host->stroke({{300, 30}, {306, 75}});
    editActionOf(host->window).setChecked(false);
    host->edit();

    host->stroke({{100, 100}, {102, 108}});

    ASSERT_EQ(host->expected.batches(), 2U);
    expectDrawing(2);
    host->stack().undo();
    expectDrawing(1);
    EXPECT_FALSE(host->stack().canUndo());
}

TEST_F(EraseCycleTest, EverythingCanBeErased)
{
    ASSERT_TRUE(host->open(makePlan()));
    host->edit();

    QVector<QPointF> sweep;
    for (const ErasedDrawing::Polyline& polyline : host->expected.current()) {
        for (const QLineF& line : polyline.lines)
            sweep.append(line.center());
    }
    host->stroke(sweep);

    ASSERT_THAT(linesOf(host->expected.current()), IsEmpty());
    EXPECT_THAT(host->lines(), IsEmpty());
    EXPECT_EQ(host->window.getData().count("POLYLINE"), 0);
    host->stack().undo();
    expectDrawing(0);
}

TEST_F(EraseCycleTest, WindowsAreEditedInTurn)
{
    Host second;
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&second.window, patienceMs));
    ASSERT_TRUE(host->open(makePlan()));
    ASSERT_TRUE(second.open(makePlan()));

    host->edit();
    host->stroke({{300, 30}, {306, 75}});
    second.edit();
    second.stroke({{100, 100}, {102, 108}});
    second.stroke({{500, 300}, {505, 305}});

    ASSERT_EQ(host->expected.batches(), 1U);
    ASSERT_EQ(second.expected.batches(), 2U);
    expectDrawing(1);
    EXPECT_EQ(second.lines(), linesOf(second.expected.current()));
    second.stack().undo();
    EXPECT_EQ(second.lines(), linesOf(second.expected.stateAfter(1)));
    EXPECT_TRUE(
        liesAlong(second.linesReadAgain(), linesWhenReadAgain(second.expected.stateAfter(1))));
    expectDrawing(1);
}

TEST_F(EraseCycleTest, NextDrawingStartsWithoutHistory)
{
    ASSERT_TRUE(host->open(makePlan()));
    host->edit();
    host->stroke({{300, 30}, {306, 75}});
    host->expected = ErasedDrawing();
    ASSERT_TRUE(host->open({{{{0, 0}, {50.3, 80.1}, {100, 0}}, false}}));

    host->edit();
    host->stroke({{25, 40}, {26, 41}});

    EXPECT_EQ(host->stack().count(), 1);
    ASSERT_EQ(host->expected.batches(), 1U);
    expectDrawing(1);
    walkThroughHistory();
}

bool isAboutByBlock(const QString& warning)
{
    return warning.endsWith(QStringLiteral(" BYBLOCK not supported"));
}

/// Strokes at random over a drawing in a file.
class EraseSampleTest : public EraseCycleTest, public ::testing::WithParamInterface<QString>
{
};

TEST_P(EraseSampleTest, LeavesTheExpectedDrawing)
{
    ASSERT_TRUE(host->open(GetParam()));
    // Painting warns of colours that are not supported. This test is not about them.
    EXPECT_THAT(takeWarnings(), Each(Truly(isAboutByBlock)));
    host->edit();
    std::mt19937 random(7);
    std::uniform_real_distribution<double> pixels(-12, 12);

    for (int i = 0; i < 25 && host->expected.batches() < undoLimit; ++i) {
        const auto lines = linesOf(host->expected.current());
        if (lines.isEmpty())
            break;
        std::uniform_int_distribution<int> any(0, int(lines.size()) - 1);
        QPointF at = lines[any(random)].center();
        host->view.centerOn(at);
        host->press(at);
        for (int step = 0; step < 6; ++step) {
            host->move(at);
            at += QPointF(host->units(pixels(random)), host->units(pixels(random)));
            if (step == 2 && host->expected.batches() < undoLimit - 2) {
                ASSERT_TRUE(host->awaitTick());
            }
        }
        host->release(at);
    }

    ASSERT_TRUE(host->expected.batches() > 0 || host->lines().isEmpty());
    expectDrawing(host->expected.batches());
    walkThroughHistory();
}

/// The project's own drawings, and those of a folder that the environment may name.
std::vector<QString> drawingFiles()
{
    std::vector<QString> files;
    const QString folders[] = {QStringLiteral(SAMPLES_DIR),
                               qEnvironmentVariable("DXFVIEWER_EXTRA_DRAWINGS")};
    for (const QString& folder : folders) {
        if (folder.isEmpty())
            continue;
        const auto entries =
            QDir(folder).entryInfoList({QStringLiteral("*.dxf")}, QDir::Files, QDir::Name);
        for (const QFileInfo& entry : entries)
            files.push_back(entry.filePath());
    }
    return files;
}

std::string drawingName(const ::testing::TestParamInfo<QString>& info)
{
    const std::string base = QFileInfo(info.param).completeBaseName().toStdString();
    std::string name = std::to_string(info.index) + "_";
    std::copy_if(base.begin(), base.end(), std::back_inserter(name),
                 [](unsigned char c) { return std::isalnum(c) != 0; });
    return name;
}

INSTANTIATE_TEST_SUITE_P(Drawings, EraseSampleTest, ::testing::ValuesIn(drawingFiles()),
                         drawingName);

} // namespace
