// SPDX-License-Identifier: GPL-2.0-or-later

#include "Printing.h"
#include "Picture.h"

#include "dxfviewer/model/DXFDocument.h"
#include "tests/app/DialogRobot.h"
#include "tests/support/Builders.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"

#include <QAction>
#include <QFile>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QTemporaryDir>

using testing::HasSubstr;

namespace
{

/// A wide drawing, whose only upright line is on the left.
QSharedPointer<DXFDocument> wideDrawing()
{
    return dxftest::makeDocument(
        {dxftest::makePolyline({{0, 0}, {400, 0}}), dxftest::makePolyline({{0, 0}, {0, 100}})});
}

QRect inkOf(const QImage& page)
{
    QRect ink;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            if (page.pixelColor(x, y).lightness() < 250)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

/// The page that a preview shows, without the frame around the paper.
QImage pageOf(QPrintPreviewWidget& preview)
{
    QGraphicsScene& scene = *preview.findChild<QGraphicsView*>()->scene();
    const QRectF all = scene.itemsBoundingRect();
    constexpr double width = 1600.0;
    constexpr int frame = 3;
    QImage picture((all.size() * (width / all.width())).toSize(), QImage::Format_RGB32);
    picture.fill(Qt::gray);
    QPainter painter(&picture);
    scene.render(&painter, picture.rect(), all);
    painter.end();

    QRect paper;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == QColor(Qt::white))
                paper |= QRect(x, y, 1, 1);
        }
    }
    return picture.copy(paper.adjusted(frame, frame, -frame, -frame));
}

/// Whether a pixel near the place is dark.
bool isInked(const QImage& page, const QPoint& place)
{
    constexpr int reach = 3;
    for (int y = place.y() - reach; y <= place.y() + reach; ++y) {
        for (int x = place.x() - reach; x <= place.x() + reach; ++x) {
            if (page.valid(x, y) && page.pixelColor(x, y).lightness() < 200)
                return true;
        }
    }
    return false;
}

class PrintingTest : public dxftest::LoggedTest
{
protected:
    PrintingTest() { m_window.show(); }

    Printing printing(const QSharedPointer<DXFDocument>& document)
    {
        return {document, QStringLiteral("/drawings/plan.dxf"), m_window};
    }

    QString file() const { return m_folder.filePath(QStringLiteral("plan.pdf")); }
    QByteArray content() const { return dxftest::contentOf(file()); }

    /// Answers the print dialog with a file to print to.
    void expectDialog() { expectDialog(file()); }
    void expectDialog(const QString& fileName)
    {
        m_robot.expect<QPrintDialog>([fileName](QPrintDialog& dialog) {
            dialog.findChild<QLineEdit*>(QStringLiteral("filename"))->setText(fileName);
            static_cast<QDialog&>(dialog).accept();
        });
    }

    /// Presses Print in the preview.
    void expectPreview()
    {
        m_robot.expect<QPrintPreviewDialog>([](QPrintPreviewDialog& dialog) {
            auto* preview = dialog.findChild<QPrintPreviewWidget*>();
            EXPECT_TRUE(dxftest::eventually([preview] { return preview->pageCount() > 0; }));
            const auto actions = dialog.findChildren<QAction*>();
            for (QAction* action : actions) {
                if (action->text() == QLatin1String("Print"))
                    return action->trigger();
            }
            ADD_FAILURE() << "the preview cannot print";
        });
    }

    const QTemporaryDir m_folder;
    dxftest::DialogRobot m_robot;
    QWidget m_window;
};

TEST_F(PrintingTest, ADrawingFillsThePage)
{
    const Picture picture(wideDrawing(), Qt::white);
    QImage page(600, 400, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);

    picture.paintInto(painter, QRectF(0, 0, 600, 400));
    painter.end();

    const QRect ink = inkOf(page);
    EXPECT_GT(ink.width(), 550);
    EXPECT_LT(ink.width(), 600);
    EXPECT_NEAR(ink.center().x(), 300, 2);
    EXPECT_NEAR(ink.center().y(), 200, 2);
    EXPECT_NEAR(ink.height() * 4, ink.width(), 8);
}

TEST_F(PrintingTest, OrientationFollowsTheDrawing)
{
    EXPECT_TRUE(Picture(wideDrawing(), Qt::white).isWide());
    EXPECT_FALSE(
        Picture(dxftest::makeDocument({dxftest::makePolyline({{0, 0}, {1, 9}})}), Qt::white)
            .isWide());
}

TEST_F(PrintingTest, PrintsOnePage)
{
    expectDialog();

    printing(wideDrawing()).print();

    EXPECT_THAT(content().toStdString(), HasSubstr("%PDF"));
    EXPECT_EQ(content().count("/Type /Page\n"), 1);
}

TEST_F(PrintingTest, PrintsNothingWhenCancelled)
{
    m_robot.expect<QPrintDialog>([](QPrintDialog& dialog) { dialog.reject(); });

    printing(wideDrawing()).print();

    EXPECT_FALSE(QFile::exists(file()));
}

TEST_F(PrintingTest, ATooLargeDrawingGivesABoxAndNoEmptyPage)
{
    const auto large = dxftest::makeDocument({dxftest::makePolyline({{0, 0}, {1e300, 1e300}})});
    std::string errors[2];
    for (std::string& error : errors)
        m_robot.expectError(error);

    printing(large).print();
    printing(large).preview();

    for (const std::string& error : errors) {
        EXPECT_THAT(error, HasSubstr("The drawing cannot be printed."));
        EXPECT_THAT(error, HasSubstr("too large"));
    }
}

TEST_F(PrintingTest, AnEmptyDrawingPrintsOnePage)
{
    expectDialog();

    printing(dxftest::makeDocument({})).print();

    EXPECT_EQ(content().count("/Type /Page\n"), 1);
}

TEST_F(PrintingTest, AFullDiskGivesABox)
{
    std::string error;
    expectDialog();
    m_robot.expectError(error);
    {
        const dxftest::FileSizeLimit limit(1);
        printing(wideDrawing()).print();
    }

    EXPECT_THAT(error, HasSubstr("The drawing cannot be printed."));
    EXPECT_THAT(error, HasSubstr("The disk may be full."));
}

TEST_F(PrintingTest, AFullDeviceGivesABox)
{
    std::string error;
    expectDialog(QStringLiteral("/dev/full"));
    m_robot.expectError(error);

    printing(wideDrawing()).print();

    EXPECT_THAT(error, HasSubstr("/dev/full"));
}

TEST_F(PrintingTest, PreviewShowsOnePage)
{
    int pages = 0;
    m_robot.expect<QPrintPreviewDialog>([&pages](QPrintPreviewDialog& dialog) {
        auto* preview = dialog.findChild<QPrintPreviewWidget*>();
        EXPECT_TRUE(dxftest::eventually([preview] { return preview->pageCount() > 0; }));
        pages = preview->pageCount();
        dialog.reject();
    });

    printing(wideDrawing()).preview();

    EXPECT_EQ(pages, 1);
}

TEST_F(PrintingTest, PreviewPrintsOnePage)
{
    expectPreview();
    expectDialog();

    printing(wideDrawing()).preview();

    EXPECT_EQ(content().count("/Type /Page\n"), 1);
}

TEST_F(PrintingTest, AFullDiskAfterThePreviewGivesABox)
{
    std::string error;
    expectPreview();
    expectDialog();
    m_robot.expectError(error);
    {
        const dxftest::FileSizeLimit limit(1);
        printing(wideDrawing()).preview();
    }

    EXPECT_THAT(error, HasSubstr("The drawing cannot be printed."));
    EXPECT_THAT(error, HasSubstr("The disk may be full."));
}

TEST_F(PrintingTest, AFullDeviceAfterThePreviewGivesABox)
{
    std::string error;
    expectPreview();
    expectDialog(QStringLiteral("/dev/full"));
    m_robot.expectError(error);

    printing(wideDrawing()).preview();

    EXPECT_THAT(error, HasSubstr("/dev/full"));
}

TEST_F(PrintingTest, ThePageIsUprightAndWhite)
{
    QImage page;
    m_robot.expect<QPrintPreviewDialog>([&page](QPrintPreviewDialog& dialog) {
        auto* preview = dialog.findChild<QPrintPreviewWidget*>();
        EXPECT_TRUE(dxftest::eventually([preview] { return preview->pageCount() > 0; }));
        page = pageOf(*preview);
        dialog.reject();
    });

    printing(wideDrawing()).preview();

    const QRect ink = inkOf(page);
    ASSERT_GT(ink.width(), 1000);
    EXPECT_TRUE(isInked(page, {ink.center().x(), ink.bottom()}));
    EXPECT_FALSE(isInked(page, {ink.center().x(), ink.top()}));
    EXPECT_TRUE(isInked(page, {ink.left(), ink.center().y()}));
    EXPECT_FALSE(isInked(page, {ink.right(), ink.center().y()}));
    for (const QPoint& place : {page.rect().topLeft(), page.rect().bottomRight(), ink.center()})
        EXPECT_EQ(page.pixelColor(place), QColor(Qt::white));
}

} // namespace
