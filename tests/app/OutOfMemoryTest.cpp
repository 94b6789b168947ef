// SPDX-License-Identifier: GPL-2.0-or-later

#include "MainWindow.h"
#include "ViewerParts.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/viewer/DXFViewer.h"
#include "tests/app/DialogRobot.h"
#include "tests/app/WindowActions.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QTemporaryDir>

#include <atomic>
#include <new>

using dxftest::actionOf;
using dxftest::DialogRobot;
using dxftest::eventually;
using dxftest::fileWith;
using dxftest::LoggedTest;
using ::testing::HasSubstr;

namespace
{

constexpr int vertices = 4000;
constexpr std::size_t largeArray = 1 << 16;

std::atomic<bool> isMemoryShort{false};

/// A drawing for which dxflib needs a large array.
QByteArray longPolyline()
{
    QByteArray text =
        "0\nSECTION\n2\nENTITIES\n0\nLWPOLYLINE\n8\n0\n90\n" + QByteArray::number(vertices) + "\n";
    for (int i = 0; i < vertices; ++i)
        text += "10\n" + QByteArray::number(i) + "\n20\n1\n";
    return text + "0\nENDSEC\n0\nEOF\n";
}

using ProgramOutOfMemoryTest = LoggedTest;

TEST_F(ProgramOutOfMemoryTest, AFailedReadGivesABoxAndLeavesTheShownDrawing)
{
    const QTemporaryDir folder;
    const QString fileName = fileWith(longPolyline(), folder.filePath(QStringLiteral("long.dxf")));
    DialogRobot robot;
    MainWindow window;
    window.show();
    // With this choice dxflib reads the drawing, and asks for one large array.
    actionOf(window, "Only &Polylines").setChecked(true);
    window.openDrawing(fileName);
    const auto& viewer = *window.findChild<DXFViewer*>();
    ASSERT_TRUE(eventually([&] { return shownDocument(viewer) != nullptr; }));
    const auto document = shownDocument(viewer);
    std::string error;
    robot.expectError(error);

    isMemoryShort = true;
    window.openDrawing(fileName);
    EXPECT_TRUE(eventually([&error] { return !error.empty(); }));
    isMemoryShort = false;

    EXPECT_THAT(error, HasSubstr("The drawing cannot be opened."));
    EXPECT_THAT(error, HasSubstr("long.dxf"));
    EXPECT_THAT(error, HasSubstr("There is not enough memory for the drawing."));
    EXPECT_EQ(shownDocument(viewer), document);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("long.dxf[*]"));
}

} // namespace

void* operator new[](std::size_t size)
{
    if (isMemoryShort && size >= largeArray)
        throw std::bad_alloc();
    return ::operator new(size);
}
