// SPDX-License-Identifier: GPL-2.0-or-later

#include "Picture.h"

#include "tests/support/Builders.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"

#include <QFile>
#include <QImage>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <limits>

using dxftest::makeAttributes;
using dxftest::makeDocument;
using dxftest::makePolyline;
using testing::HasSubstr;
using testing::StartsWith;

namespace
{

constexpr QRgb background = qRgb(10, 20, 30);
constexpr int orange = 0xFF8000;

class PictureTest : public dxftest::LoggedTest
{
protected:
    static QSharedPointer<DXFDocument> drawingOf(const QVector<QPointF>& points,
                                                 bool closed = false)
    {
        const auto polyline = makePolyline(points, closed);
        polyline->setAttributes(makeAttributes(QStringLiteral("0"), 1, orange));
        return makeDocument({polyline});
    }

    /// The picture of a drawing in a file of this kind.
    QString picture(const QSharedPointer<DXFDocument>& document, const QString& suffix)
    {
        const QString fileName = m_folder.filePath(QStringLiteral("picture.") + suffix);
        QString reason;
        EXPECT_TRUE(Picture(document, QColor(background)).write(fileName, reason))
            << reason.toStdString();
        return fileName;
    }

    QImage png(const QSharedPointer<DXFDocument>& document)
    {
        return QImage(picture(document, QStringLiteral("png")));
    }

    static std::string contentOf(const QString& fileName)
    {
        return dxftest::contentOf(fileName).toStdString();
    }

    QString fileName(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

/// Whether the pixel at this share of the width and height has the colour of a line, not of the
/// ground.
bool isStroke(const QImage& image, double x, double y)
{
    // A line may lie between two rows of pixels.
    const QPoint at(qRound(x * image.width()), qRound(y * image.height()));
    int reddest = 0;
    for (int dx = -1; dx <= 1; ++dx) {
        for (int dy = -1; dy <= 1; ++dy)
            reddest = std::max(reddest, qRed(image.pixel(at + QPoint(dx, dy))));
    }
    return reddest > 100;
}

TEST_F(PictureTest, LinesAreAtTheirPlaces)
{
    const QImage image = png(drawingOf({{0, 0}, {100, 0}, {100, 50}}));

    EXPECT_GT(image.width(), image.height());
    EXPECT_TRUE(isStroke(image, 0.5, 0.52 / 0.54));
    EXPECT_TRUE(isStroke(image, 1.02 / 1.04, 0.5));
    EXPECT_FALSE(isStroke(image, 0.5, 0.5));
    EXPECT_EQ(image.pixel(2, 3), background);
}

TEST_F(PictureTest, ShowsTheClosingEdge)
{
    const QImage image = png(drawingOf({{0, 0}, {100, 0}, {0, 100}}, true));

    EXPECT_TRUE(isStroke(image, 0.02 / 1.04, 0.5));
}

TEST_F(PictureTest, CoordinatesFarFromTheOriginStayDistinct)
{
    constexpr double far = 3.2e6;
    const QString svg =
        picture(drawingOf({{far, far}, {far + 1, far}, {far + 1, far + 1}}), QStringLiteral("svg"));

    QImage image(2000, 2000, QImage::Format_RGB32);
    image.fill(background);
    QPainter painter(&image);
    QSvgRenderer(svg).render(&painter);
    painter.end();

    EXPECT_TRUE(isStroke(image, 0.5, 1.02 / 1.04));
    EXPECT_TRUE(isStroke(image, 1.02 / 1.04, 0.5));
    EXPECT_FALSE(isStroke(image, 0.3, 0.3));
}

TEST_F(PictureTest, WritesEachKind)
{
    const auto document = drawingOf({{0, 0}, {100, 100}});

    EXPECT_THAT(contentOf(picture(document, QStringLiteral("png"))), StartsWith("\x89PNG"));
    EXPECT_THAT(contentOf(picture(document, QStringLiteral("pdf"))), StartsWith("%PDF"));
    EXPECT_THAT(contentOf(picture(document, QStringLiteral("SVG"))), HasSubstr("<polyline"));
}

TEST_F(PictureTest, KeepsTheDrawingAsItWasAtConstruction)
{
    const auto document = drawingOf({{0, 0}, {100, 100}});
    const Picture before(document, QColor(background));
    const auto entities = document->entities();
    for (const auto& entity : entities)
        document->deleteEntity(entity);
    QString reason;

    ASSERT_TRUE(before.write(fileName(QStringLiteral("before.png")), reason));

    EXPECT_TRUE(isStroke(QImage(fileName(QStringLiteral("before.png"))), 0.5, 0.5));
}

TEST_F(PictureTest, RefusesADrawingWithNothingToShow)
{
    QString reason;

    const bool isWritten = Picture(makeDocument({nullptr, makePolyline({})}), QColor(background))
                               .write(fileName(QStringLiteral("x.png")), reason);

    EXPECT_FALSE(isWritten);
    EXPECT_THAT(reason.toStdString(), HasSubstr("nothing in this drawing"));
    EXPECT_FALSE(QFile::exists(fileName(QStringLiteral("x.png"))));
}

TEST_F(PictureTest, ColorsAreLegibleOnTheGround)
{
    const auto polyline = makePolyline({{0, 0}, {100, 0}});
    polyline->setAttributes(makeAttributes(QStringLiteral("0"), 7));
    const auto document = makeDocument({polyline});
    document->setup();
    polyline->setColor(Qt::magenta);
    const QString name = fileName(QStringLiteral("seven.png"));
    QString reason;

    ASSERT_TRUE(Picture(document, QColor(Qt::white)).write(name, reason));

    const QImage image(name);
    int darkest = 255;
    for (int y = 0; y < image.height(); ++y)
        darkest = std::min(darkest, qGreen(image.pixel(image.width() / 2, y)));
    EXPECT_LT(darkest, 150);
    EXPECT_EQ(image.pixel(1, 1), qRgb(255, 255, 255));
    EXPECT_EQ(polyline->color(), QColor(Qt::magenta));
}

TEST_F(PictureTest, AnSvgHasATitleAndTheSizeOfThePdf)
{
    const auto document = drawingOf({{0, 0}, {100, 0}, {100, 50}});
    QString reason;
    for (const char* name : {"a.svg", "a.pdf"}) {
        ASSERT_TRUE(Picture(document, QColor(background), QStringLiteral("House & garden"))
                        .write(fileName(QLatin1String(name)), reason));
    }

    const std::string svg = contentOf(fileName(QStringLiteral("a.svg")));
    const std::string pdf = contentOf(fileName(QStringLiteral("a.pdf")));

    EXPECT_THAT(svg, HasSubstr("<title>House &amp; garden</title>"));
    // 2000 pixels at 144 pixels to the inch are 352.8 millimetres or 1000 points.
    EXPECT_THAT(svg, HasSubstr("<svg width=\"352.778mm\""));
    EXPECT_THAT(pdf, HasSubstr("/MediaBox [0 0 1000"));
}

TEST_F(PictureTest, TheTitleIsReadableWhateverTheFileIsCalled)
{
    const QString svg = fileName(QStringLiteral("a.svg"));
    const QString title = QStringLiteral("<a>\x01\n%1.dxf").arg(QChar(0xFFFF));
    QString reason;

    ASSERT_TRUE(Picture(drawingOf({{0, 0}, {9, 9}}), QColor(background), title).write(svg, reason));

    EXPECT_THAT(contentOf(svg), HasSubstr("<title>&lt;a&gt;\uFFFD\uFFFD\uFFFD.dxf</title>"));
    QXmlStreamReader xml(contentOf(svg).c_str());
    while (!xml.atEnd())
        xml.readNext();
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
}

TEST_F(PictureTest, AHorizontalLineAndAPointGivePictures)
{
    for (const QImage& image :
         {png(drawingOf({{0, 7}, {1000, 7}})), png(drawingOf({{5, 5}, {5, 5}}))}) {
        EXPECT_TRUE(isStroke(image, 0.5, 0.5));
        EXPECT_FALSE(isStroke(image, 0.5, 0.1));
    }
}

TEST_F(PictureTest, ALongFlatDrawingKeepsAHeight)
{
    const QImage image = png(drawingOf({{0, 0}, {1e9, 1}}));

    EXPECT_GE(image.height(), 10);
}

TEST_F(PictureTest, RefusesHugeAndInfiniteCoordinates)
{
    constexpr double most = std::numeric_limits<double>::max();
    for (const double x : {1e151, 1e300, most, std::numeric_limits<double>::infinity()}) {
        QString reason;

        const bool isWritten = Picture(drawingOf({{-x, 0}, {x, 0}}), QColor(background))
                                   .write(fileName(QStringLiteral("x.png")), reason);

        EXPECT_FALSE(isWritten);
        EXPECT_THAT(reason.toStdString(), HasSubstr("too large"));
        EXPECT_FALSE(QFile::exists(fileName(QStringLiteral("x.png"))));
    }
}

TEST_F(PictureTest, RefusesAnUnknownKind)
{
    QString reason;

    const bool isWritten = Picture(drawingOf({{0, 0}, {1, 1}}), QColor(background))
                               .write(fileName(QStringLiteral("x.jpeg")), reason);

    EXPECT_FALSE(isWritten);
    EXPECT_THAT(reason.toStdString(), HasSubstr(".png, .svg or .pdf"));
}

} // namespace
