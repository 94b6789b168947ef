// SPDX-License-Identifier: GPL-2.0-or-later

#include "MainWindow.h"
#include "ViewerParts.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/render/DisplayColors.h"
#include "dxfviewer/viewer/DXFViewer.h"
#include "tests/app/WindowActions.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"

#include <QAction>
#include <QDir>
#include <QGraphicsView>
#include <QImage>
#include <QStatusBar>
#include <QTest>

#include <algorithm>
#include <vector>

namespace
{

constexpr double leastShare = 0.0002;
constexpr double leastContrast = 3.0;

/// How well a drawing can be seen.
struct Legibility {
    /// The share of all pixels that do not have the colour of the ground.
    double drawnShare = 0.0;
    double medianContrast = 0.0;
};

Legibility legibilityOf(const QImage& image, const QColor& ground)
{
    std::vector<double> contrasts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.rgb() != ground.rgb())
                contrasts.push_back(DisplayColors::contrast(color, ground));
        }
    }
    Legibility legibility;
    legibility.drawnShare =
        static_cast<double>(contrasts.size()) / (double(image.width()) * image.height());
    if (!contrasts.empty()) {
        const auto middle = contrasts.begin() + static_cast<std::ptrdiff_t>(contrasts.size() / 2);
        std::nth_element(contrasts.begin(), middle, contrasts.end());
        legibility.medianContrast = *middle;
    }
    return legibility;
}

class LegibilityTest : public dxftest::LoggedTest
{
protected:
    LegibilityTest()
    {
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_window));
    }

    const DXFViewer& viewer() { return *m_window.findChild<DXFViewer*>(); }

    void open(const QString& fileName)
    {
        const auto before = shownDocument(viewer());
        m_window.openDrawing(fileName);
        ASSERT_TRUE(dxftest::eventually([&] { return shownDocument(viewer()) != before; }));
    }

    /// How well the drawing can be seen on a ground.
    Legibility onGround(const char* action)
    {
        dxftest::actionOf(m_window, action).trigger();
        QGraphicsView& view = drawingView(viewer());
        EXPECT_TRUE(dxftest::eventually([&view] { return view.updatesEnabled(); }));
        return legibilityOf(view.viewport()->grab().toImage(), view.backgroundBrush().color());
    }

    MainWindow m_window;
};

TEST_F(LegibilityTest, DrawingsAreLegibleOnEveryGround)
{
    if (!qEnvironmentVariableIsSet("DXFVIEWER_EXTRA_DRAWINGS"))
        GTEST_SKIP() << "DXFVIEWER_EXTRA_DRAWINGS names no folder of drawings";
    const QDir folder(qEnvironmentVariable("DXFVIEWER_EXTRA_DRAWINGS"));
    const QStringList names = folder.entryList({QStringLiteral("*.dxf")}, QDir::Files);
    ASSERT_FALSE(names.isEmpty());

    for (const QString& name : names) {
        open(folder.filePath(name));
        if (shownDocument(viewer())->entities().isEmpty())
            continue;
        for (const char* ground : {"&Dark", "&Light", "&White"}) {
            const Legibility seen = onGround(ground);
            EXPECT_GE(seen.drawnShare, leastShare) << name.toStdString() << ' ' << ground;
            EXPECT_GE(seen.medianContrast, leastContrast) << name.toStdString() << ' ' << ground;
        }
    }
}

} // namespace
