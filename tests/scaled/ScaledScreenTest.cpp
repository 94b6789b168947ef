// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/DXFEditor.h"
#include "dxfviewer/viewer/DXFViewer.h"
#include "dxfviewer/viewer/View.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"
#include "tests/support/SceneMouse.h"

#include <QAction>
#include <QGraphicsEllipseItem>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QTest>

#include <gmock/gmock.h>

namespace
{

using ::testing::AllOf;
using ::testing::Ge;
using ::testing::Le;

constexpr int factor = 2;
constexpr int eraserDiameter = 10;

/// A slanted and a horizontal line.
const QByteArray drawing = QByteArrayLiteral("0\nSECTION\n2\nENTITIES\n"
                                             "0\nPOLYLINE\n8\n0\n66\n1\n"
                                             "0\nVERTEX\n8\n0\n10\n0\n20\n0\n"
                                             "0\nVERTEX\n8\n0\n10\n400\n20\n150\n"
                                             "0\nSEQEND\n"
                                             "0\nPOLYLINE\n8\n0\n66\n1\n"
                                             "0\nVERTEX\n8\n0\n10\n0\n20\n300\n"
                                             "0\nVERTEX\n8\n0\n10\n400\n20\n300\n"
                                             "0\nSEQEND\n0\nENDSEC\n0\nEOF\n");

bool isRed(QRgb pixel)
{
    return qRed(pixel) > 200 && qGreen(pixel) < 50 && qBlue(pixel) < 50;
}

/// The smallest rectangle around all red pixels.
QRect redPartOf(const QImage& picture)
{
    QRect part;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (isRed(picture.pixel(x, y)))
                part |= QRect(x, y, 1, 1);
        }
    }
    return part;
}

/// Whether the picture is a smaller one whose pixels are repeated.
bool isMagnified(const QImage& picture)
{
    const QSize small = picture.size() / factor;
    return picture == picture.scaled(small).scaled(picture.size());
}

class ScaledScreenTest : public dxftest::LoggedTest
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(qGuiApp->devicePixelRatio(), factor) << "Run this with QT_SCALE_FACTOR=2";
        m_window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window, dxftest::patienceMs));
        m_window.loadData(drawing);
        m_view = m_window.findChild<View*>();
        ASSERT_TRUE(dxftest::eventually([this] { return !m_view->scene()->items().isEmpty(); }));
    }

    void startEditing()
    {
        m_window.findChild<QAction*>(QStringLiteral("actionEdit_dxf"))->setChecked(true);
    }

    QImage picture() { return m_view->viewport()->grab().toImage(); }

    /// Moves the eraser along the horizontal line at a distance in device-independent pixels.
    void eraseBesideLevelLine(double distance)
    {
        const double y = 300.0 + distance / m_view->transform().m11();
        dxftest::SceneMouse(*m_view).drag({{50.0, y}, {100.0, y}, {150.0, y}});
    }

    auto writtenPolylines() { return m_window.getData().count("POLYLINE"); }

    DXFViewer m_window;
    View* m_view = nullptr;
};

TEST_F(ScaledScreenTest, WindowHasTwoPixelsForEachOfItsPoints)
{
    const QPixmap grabbed = m_window.grab();

    EXPECT_EQ(grabbed.devicePixelRatio(), factor);
    EXPECT_EQ(grabbed.size(), m_window.size() * factor);
}

TEST_F(ScaledScreenTest, LinesAreDrawnWithThePixelsOfTheScreen)
{
    const QImage drawn = picture();

    EXPECT_FALSE(isMagnified(drawn));
}

TEST_F(ScaledScreenTest, MarkerIsFivePointsInRadius)
{
    startEditing();

    const QRect marker = redPartOf(picture());

    // Half of the outline, which is one point wide, lies inside the disc.
    EXPECT_THAT(marker.width(),
                AllOf(Ge((eraserDiameter - 1) * factor - 1), Le(eraserDiameter * factor)));
    EXPECT_THAT(marker.height(),
                AllOf(Ge((eraserDiameter - 1) * factor - 1), Le(eraserDiameter * factor)));
}

TEST_F(ScaledScreenTest, EraserReachesWhatItsMarkerCovers)
{
    startEditing();

    eraseBesideLevelLine(4.0);

    EXPECT_EQ(writtenPolylines(), 1);
}

TEST_F(ScaledScreenTest, EraserLeavesWhatItsMarkerDoesNotCover)
{
    startEditing();

    eraseBesideLevelLine(6.0);

    EXPECT_EQ(writtenPolylines(), 2);
}

} // namespace
