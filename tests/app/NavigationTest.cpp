// SPDX-License-Identifier: GPL-2.0-or-later

#include "Navigation.h"
#include "ViewerParts.h"

#include "dxfviewer/edit/DXFEditor.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/render/DXFGraphicsItem.h"
#include "dxfviewer/viewer/DXFViewer.h"
#include "dxfviewer/viewer/View.h"
#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"
#include "tests/support/SceneMouse.h"
#include "tests/support/WindowParts.h"

#include <QAction>
#include <QApplication>
#include <QGraphicsEllipseItem>
#include <QGraphicsScene>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <cmath>

using dxftest::drawingText;
using dxftest::editActionOf;
using dxftest::editorsOf;
using dxftest::eventually;
using dxftest::itemsOf;
using dxftest::linesOf;
using dxftest::loadAndShow;
using dxftest::LoggedTest;
using dxftest::polylineAt;
using dxftest::SceneMouse;
using dxftest::viewOf;

namespace
{

class NavigationTest : public LoggedTest
{
protected:
    NavigationTest()
        : m_navigation(viewOf(m_window))
    {
        m_window.resize(700, 500);
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_window));
    }

    View& view() { return viewOf(m_window); }
    QScrollBar& across() { return *view().horizontalScrollBar(); }

    void show(const QVector<QPointF>& points)
    {
        EXPECT_TRUE(loadAndShow(m_window, drawingText({{points}})));
        m_navigation.showDrawing(itemsOf(m_window).constFirst()->boundingRect());
    }

    /// Where a point of the drawing is in the window.
    QPointF placeOf(const QPointF& point) { return view().viewportTransform().map(point); }
    QPointF middle() { return QRectF(view().viewport()->rect()).center(); }
    double scale() { return view().transform().m11(); }

    /// The mirrored drawing's place in the window, in pixels.
    QRectF placeOfDrawing()
    {
        return view().viewportTransform().mapRect(
            itemsOf(m_window).constFirst()->boundingRect().normalized());
    }

    void zoomWithWheel(const QPointF& point, int angle)
    {
        SceneMouse mouse(view());
        mouse.modifiers = Qt::ControlModifier;
        mouse.wheel(point, angle);
    }

    DXFViewer m_window;
    Navigation m_navigation;
};

TEST_F(NavigationTest, FillsTheWindowWhateverTheSizeAndThePlace)
{
    const double sizes[] = {1e-6, 20, 20000, 3e9, 1e13};
    for (const double size : sizes) {
        for (const QPointF& corner : {QPointF(0, 0), QPointF(3.2e6 * size, -1.7e6 * size)}) {
            show({corner, corner + QPointF(size, 0), corner + QPointF(size, size / 2)});

            const QRectF place = placeOfDrawing();
            const QRectF window(view().viewport()->rect());
            EXPECT_TRUE(window.contains(place)) << size;
            EXPECT_GT(place.width(), 0.9 * window.width()) << size;
            EXPECT_LT((place.center() - window.center()).manhattanLength(), 3.0) << size;
            EXPECT_NEAR(m_navigation.zoom(), 1.0, 1e-9);
        }
    }
}

TEST_F(NavigationTest, ShowsDrawingsWithoutExtent)
{
    for (const QVector<QPointF>& points :
         {QVector<QPointF>{{5, 5}, {5, 5}}, QVector<QPointF>{{1e12, 7}, {1e12, 7}},
          QVector<QPointF>{{0, 7}, {1000, 7}}, QVector<QPointF>{{1000, 7}, {0, 7}},
          QVector<QPointF>{{3, 0}, {3, 8}}}) {
        show(points);

        EXPECT_TRUE(QRectF(view().viewport()->rect()).contains(placeOf(points.constFirst())));
        EXPECT_TRUE(QRectF(view().viewport()->rect()).contains(placeOf(points.constLast())));
    }
}

TEST_F(NavigationTest, KnowsPlacesAtEveryZoomOfTheLargestDrawing)
{
    m_window.resize(150, 150);
    show({{0, 0}, {1e13, 0}, {1e13, 1e13}});
    for (int i = 0; i < 30; ++i)
        m_navigation.zoomOut();

    bool hasInverse = false;
    const QTransform inverse = view().viewportTransform().inverted(&hasInverse);
    EXPECT_TRUE(hasInverse);
    EXPECT_NEAR(inverse.map(placeOf({1e13, 0})).x(), 1e13, 1e6);
}

TEST_F(NavigationTest, HugeAndInfiniteCoordinatesDoNoHarm)
{
    show({{-1e308, 0}, {1e308, 1e308}});
    zoomWithWheel({0, 0}, 1200);
    m_navigation.showDrawing(QRectF(qQNaN(), 0, qInf(), 1));
    m_navigation.zoomIn();

    EXPECT_TRUE(std::isfinite(m_navigation.zoom()));
}

TEST_F(NavigationTest, YPointsUpwards)
{
    show({{0, 0}, {100, 0}, {100, 50}});

    EXPECT_LT(placeOf({0, 50}).y(), placeOf({0, 0}).y());
    EXPECT_GT(placeOf({100, 0}).x(), placeOf({0, 0}).x());
    EXPECT_GT(scale(), 0.0);
}

TEST_F(NavigationTest, ShowsTheDrawingAsStoredWhenChosen)
{
    show({{0, 0}, {100, 0}, {100, 50}});
    m_navigation.zoomIn();
    const double before = scale();
    const QSignalSpy spy(&m_navigation, &Navigation::asStoredChanged);
    QMenu menu;
    m_navigation.addActionsTo(menu);

    menu.actions().constLast()->trigger();

    EXPECT_TRUE(m_navigation.isAsStored());
    EXPECT_EQ(spy.count(), 1);
    EXPECT_GT(placeOf({0, 50}).y(), placeOf({0, 0}).y());
    EXPECT_DOUBLE_EQ(scale(), before);
    EXPECT_LT((placeOf({50, 25}) - middle()).manhattanLength(), 3.0);
}

TEST_F(NavigationTest, CtrlAndTheWheelZoomAtThePointer)
{
    show({{0, 0}, {100, 0}, {100, 50}});
    const QPointF point(20, 40);
    const QPointF place = placeOf(point);
    const double before = scale();

    zoomWithWheel(point, 120);

    EXPECT_NEAR(scale() / before, std::exp2(0.2), 1e-9);
    EXPECT_LT((placeOf(point) - place).manhattanLength(), 3.0);
    EXPECT_LT(placeOf({0, 50}).y(), placeOf({0, 0}).y());

    zoomWithWheel(point, -120);
    EXPECT_NEAR(scale(), before, 1e-9 * before);
}

TEST_F(NavigationTest, ZoomStartsFromTheFitOfTheSecondDrawing)
{
    show({{0, 0}, {100, 0}, {100, 50}});
    for (int i = 0; i < 10; ++i)
        zoomWithWheel({50, 25}, 120);

    show({{0, 0}, {10000, 0}, {10000, 5000}});
    const double fitted = scale();
    zoomWithWheel({50, 25}, 120);

    EXPECT_NEAR(scale() / fitted, std::exp2(0.2), 1e-9);
}

TEST_F(NavigationTest, TheWheelAloneScrolls)
{
    show({{0, 0}, {100, 0}, {100, 50}});
    for (int i = 0; i < 5; ++i)
        m_navigation.zoomIn();
    const double before = scale();
    const int value = view().verticalScrollBar()->value();

    SceneMouse(view()).wheel({50, 25}, -120);

    EXPECT_DOUBLE_EQ(scale(), before);
    EXPECT_GT(view().verticalScrollBar()->value(), value);
}

TEST_F(NavigationTest, ZoomHasLimits)
{
    show({{0, 0}, {100, 0}, {100, 50}});
    for (int i = 0; i < 500; ++i)
        zoomWithWheel({50, 25}, 1200);
    EXPECT_TRUE(std::isfinite(scale()));
    EXPECT_LT((placeOf({50, 25}) - middle()).manhattanLength(), 10.0);
    EXPECT_GT(m_navigation.zoom(), 1e4);

    for (int i = 0; i < 500; ++i)
        zoomWithWheel({50, 25}, -1200);
    EXPECT_GT(m_navigation.zoom(), 0.01);
}

TEST_F(NavigationTest, ResizingFitsAgainUntilTheUserZooms)
{
    show({{0, 0}, {100, 0}, {100, 50}});

    m_window.resize(500, 400);
    EXPECT_TRUE(eventually([this] {
        return QRectF(view().viewport()->rect()).contains(placeOfDrawing())
               && std::abs(m_navigation.zoom() - 1.0) < 1e-9;
    }));

    m_navigation.zoomIn();
    const double zoomed = scale();
    m_window.resize(700, 500);
    QTest::qWait(0);
    EXPECT_DOUBLE_EQ(scale(), zoomed);
}

TEST_F(NavigationTest, FitShowsTheWholeDrawingAgain)
{
    show({{0, 0}, {100, 0}, {100, 50}});
    const double fitted = scale();
    zoomWithWheel({0, 0}, 1200);
    across().setValue(across().value() + 50);

    m_navigation.fit();

    EXPECT_NEAR(scale(), fitted, 1e-9);
    EXPECT_LT((placeOf({50, 25}) - middle()).manhattanLength(), 3.0);
}

TEST_F(NavigationTest, TheMiddleButtonMovesTheDrawing)
{
    show({{0, 0}, {100, 0}, {100, 50}});
    const QPoint from = middle().toPoint();
    const QPointF point = view().mapToScene(from);
    QWidget* viewport = view().viewport();

    QTest::mousePress(viewport, Qt::MiddleButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, from + QPoint(40, -30),
                     viewport->mapToGlobal(from + QPoint(40, -30)), Qt::NoButton, Qt::MiddleButton,
                     Qt::NoModifier);
    QApplication::sendEvent(viewport, &move);
    QTest::mouseRelease(viewport, Qt::MiddleButton, {}, from + QPoint(40, -30));

    EXPECT_LT((placeOf(point) - (from + QPoint(40, -30))).manhattanLength(), 3.0);
}

TEST_F(NavigationTest, TheMiddleButtonErasesNothing)
{
    show({{0, 0}, {100, 0}, {100, 50}});
    editActionOf(m_window).setChecked(true);
    const int before = across().value();

    SceneMouse(view()).drag({{50, 10}, {50, 0}, {60, 0}}, Qt::MiddleButton);

    EXPECT_EQ(linesOf(*polylineAt(shownDocument(m_window), 0)).size(), 2);
    EXPECT_NE(across().value(), before);
}

TEST_F(NavigationTest, TheEraserIsWhereThePointerIs)
{
    show({{0, 0}, {100, 0}, {100, 50}});
    for (int i = 0; i < 3; ++i)
        zoomWithWheel({50, 0}, 120);
    editActionOf(m_window).setChecked(true);
    const double unit = 1.0 / scale();
    const DXFEditor& editor = *editorsOf(m_window).constFirst();
    SceneMouse mouse(view());

    mouse.drag({{50, 20 * unit}, {51, 8 * unit}});
    EXPECT_EQ(shownDocument(m_window)->entities().size(), 1);
    EXPECT_EQ(linesOf(*polylineAt(shownDocument(m_window), 0)).size(), 2);

    mouse.drag({{50, 20 * unit}, {51, 3 * unit}});
    EXPECT_EQ(linesOf(*polylineAt(shownDocument(m_window), 0)).size(), 1);
    const QGraphicsItem& marker = *editor.childItems().constFirst();
    EXPECT_LT((marker.scenePos() - QPointF(51, 3 * unit)).manhattanLength(), 2 * unit);
    const QRectF disc =
        marker.deviceTransform(view().viewportTransform()).mapRect(marker.boundingRect());
    EXPECT_NEAR(disc.width(), 11, 1.5);
    EXPECT_LT((disc.center() - placeOf(marker.scenePos())).manhattanLength(), 1.0);
}

TEST_F(NavigationTest, MayOutliveTheView)
{
    auto window = std::make_unique<DXFViewer>();
    Navigation navigation(viewOf(*window));
    window.reset();

    navigation.fit();
    navigation.zoomIn();
    navigation.setAsStored(true);
    navigation.showDrawing({0, 0, 1, 1});

    EXPECT_EQ(navigation.zoom(), 1.0);
}

} // namespace
