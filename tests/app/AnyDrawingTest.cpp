// SPDX-License-Identifier: GPL-2.0-or-later

#include "DrawingFiles.h"
#include "MainWindow.h"
#include "ViewerParts.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/viewer/DXFViewer.h"
#include "tests/app/WindowActions.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>

namespace
{

/// Answers every message box with OK, and keeps its text.
class BoxReader
{
public:
    BoxReader()
    {
        m_timer.setInterval(5);
        QObject::connect(&m_timer, &QTimer::timeout, [this] { look(); });
        m_timer.start();
    }

    QStringList texts;

private:
    void look()
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        texts.append(box->text() + QLatin1Char('\n') + box->informativeText());
        box->button(QMessageBox::Ok)->click();
    }

    QTimer m_timer;
};

/// Files of all kinds. Some are no drawings.
QStringList anyDrawings()
{
    QStringList names;
    for (const QString& folder :
         {QStringLiteral(DXFVIEWER_SAMPLES), qEnvironmentVariable("DXFVIEWER_EXTRA_DRAWINGS")}) {
        if (folder.isEmpty())
            continue;
        const auto files = QDir(folder).entryInfoList({QStringLiteral("*.dxf")}, QDir::Files);
        for (const QFileInfo& file : files)
            names.append(file.absoluteFilePath());
    }
    return names;
}

class AnyDrawingTest : public dxftest::LoggedTest
{
protected:
    AnyDrawingTest()
    {
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window, dxftest::patienceMs));
        QObject::connect(&files(), &DrawingFiles::drawingShown, [this] { ++m_shown; });
    }
    ~AnyDrawingTest() override
    {
        // Painting warns of unknown colours. These tests are not about them.
        takeWarnings();
    }

    DXFViewer& viewer() const { return *m_window.findChild<DXFViewer*>(); }
    DrawingFiles& files() const { return *m_window.findChild<DrawingFiles*>(); }

    /// Runs an action that opens a drawing, and waits until the drawing is shown or a box says why
    /// it is not. True if it is shown.
    template <typename Action>
    bool isShownAfter(Action action)
    {
        const int shown = m_shown;
        const auto told = m_boxes.texts.size();
        action();
        EXPECT_TRUE(
            dxftest::eventually([&] { return m_shown > shown || m_boxes.texts.size() > told; }));
        return m_shown > shown;
    }

    bool open(const QString& fileName)
    {
        return isShownAfter([&] { m_window.openDrawing(fileName); });
    }

    void reload()
    {
        // Without a window manager the window does not get the keyboard back after a dialog.
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window, dxftest::patienceMs));
        QTest::keyClick(&m_window, Qt::Key_F5, Qt::NoModifier);
    }

    void cancelOnTheWay(const QString& fileName)
    {
        bool isOnTheWay = false;
        const auto connection = QObject::connect(&files().reader(), &BackgroundReader::progressed,
                                                 [&isOnTheWay] { isOnTheWay = true; });
        const int shown = m_shown;
        m_window.openDrawing(fileName);
        // A small drawing may be read before any progress is reported.
        EXPECT_TRUE(
            dxftest::eventually([&] { return isOnTheWay || !files().reader().isReading(); }));
        files().reader().cancel();
        QObject::disconnect(connection);
        EXPECT_TRUE(dxftest::eventually([&] { return isOnTheWay || m_shown > shown; }));
        EXPECT_TRUE(!isOnTheWay || m_shown == shown);
    }

    qint64 polylines() const { return shownDocument(viewer())->entities().size(); }

    QString written(const QByteArray& content, const QString& name) const
    {
        return dxftest::fileWith(content, m_folder.filePath(name));
    }

    const QTemporaryDir m_folder;
    BoxReader m_boxes;
    MainWindow m_window;
    int m_shown = 0;
};

TEST_F(AnyDrawingTest, IsOpenedCancelledDroppedAndReloaded)
{
    const QStringList names = anyDrawings();
    ASSERT_FALSE(names.isEmpty());
    for (const QString& name : names) {
        SCOPED_TRACE(name.toStdString());
        if (!open(name)) {
            EXPECT_TRUE(m_boxes.texts.constLast().contains(QFileInfo(name).fileName()));
            continue;
        }
        EXPECT_EQ(files().fileName(), name);
        const auto count = polylines();

        cancelOnTheWay(name);
        EXPECT_EQ(files().fileName(), name);
        EXPECT_TRUE(isShownAfter([&] { dxftest::dropOn(m_window, name); }));
        EXPECT_EQ(polylines(), count);
        EXPECT_TRUE(isShownAfter([this] { reload(); }));
        EXPECT_EQ(polylines(), count);
    }
}

TEST_F(AnyDrawingTest, IsShownOrRefusedWhereverItIsCutOff)
{
    const QByteArray whole =
        dxftest::contentOf(QStringLiteral(DXFVIEWER_SAMPLES "/floor-plan.dxf"));
    for (int part = 0; part <= 10; ++part) {
        const QString name =
            written(whole.left(whole.size() * part / 10), QStringLiteral("part%1.dxf").arg(part));
        const bool isShown = open(name);
        const QString said = isShown ? files().fileName() : m_boxes.texts.constLast();
        EXPECT_TRUE(said.contains(QFileInfo(name).fileName()));
    }
}

TEST_F(AnyDrawingTest, MayGrowOrVanishWhileItIsRead)
{
    const QByteArray content =
        "0\nSECTION\n2\nENTITIES\n"
        + QByteArray("0\nLWPOLYLINE\n8\n0\n90\n2\n10\n0\n20\n0\n10\n1\n20\n0\n").repeated(9999);
    const QString name = written(content, QStringLiteral("changing.dxf"));
    const bool isGrownShown = isShownAfter([&] {
        m_window.openDrawing(name);
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write(QByteArray("0\nLWPOLYLINE\n8\n0\n").repeated(9999));
    });
    ASSERT_TRUE(isGrownShown);
    EXPECT_GE(polylines(), 9999);

    // Once it is open it can be read to its end.
    const bool isVanishedShown = isShownAfter([&] {
        m_window.openDrawing(name);
        EXPECT_TRUE(QFile::remove(name));
    });
    EXPECT_TRUE(isVanishedShown
                || m_boxes.texts.constLast().contains(QLatin1String("There is no such file.")));
    EXPECT_EQ(files().fileName(), name);
    EXPECT_GE(polylines(), 9999);
    EXPECT_FALSE(files().reader().isReading());

    EXPECT_FALSE(open(name));
    EXPECT_TRUE(m_boxes.texts.constLast().contains(QLatin1String("There is no such file.")));
}

TEST_F(AnyDrawingTest, FoldersAndDevicesAreRefused)
{
    for (const char* name : {"/", "/dev/zero", "/dev/full", "/proc/self/mem"}) {
        EXPECT_FALSE(open(QLatin1String(name)));
        EXPECT_TRUE(
            m_boxes.texts.constLast().contains(QLatin1String("The drawing cannot be opened.")));
    }
}

} // namespace
