// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/render/DXFGraphicsItem.h"

#include "tests/render/PaintRecorder.h"
#include "tests/support/Builders.h"
#include "tests/support/Images.h"
#include "tests/support/LoggedTest.h"

#include <gmock/gmock.h>

#include <QPainter>
#include <QPicture>

#include <cmath>
#include <functional>
#include <limits>
#include <random>

using namespace dxftest;
using ::testing::ElementsAre;
using ::testing::SizeIs;

namespace
{

constexpr QLineF inside(10, 10, 90, 90);
constexpr QLineF outside(200, 10, 300, 90);
constexpr QLineF across(-500, 50, 500, 50);
constexpr QLineF pastTheCorner(-50, 40, 40, -50);

/// Devices of 100 by 100. Some report a raster engine, which makes pixels.
class VisibleAreaTest : public LoggedTest
{
protected:
    void show(const QVector<QLineF>& lines)
    {
        QList<QSharedPointer<DXFEntity>> entities;
        for (const QLineF& line : lines)
            entities.append(makePolyline({line.p1(), line.p2()}));
        document = makeDocument(entities);
        item.setDocument(document);
    }

    QVector<QLineF> drawnOn(PaintRecorder& device, const std::function<void(QPainter&)>& prepare)
    {
        QPainter painter(&device);
        prepare(painter);
        item.paint(&painter, nullptr, nullptr);
        painter.end();
        QVector<QLineF> lines;
        for (const DrawnLines& call : device.calls())
            lines += call.lines;
        return lines;
    }

    QVector<QLineF> drawnOnPixels(const std::function<void(QPainter&)>& prepare = [](QPainter&) {})
    {
        PaintRecorder device(QPaintEngine::Raster);
        return drawnOn(device, prepare);
    }

    QSharedPointer<DXFDocument> document;
    DXFGraphicsItem item;
};

TEST_F(VisibleAreaTest, LinesOutsideADeviceOfPixelsAreNotDrawn)
{
    show({outside, inside, across, pastTheCorner});

    EXPECT_THAT(drawnOnPixels(), ElementsAre(inside, across, pastTheCorner));
}

TEST_F(VisibleAreaTest, LinesOutsideAreDrawnForAPainterThatRecords)
{
    show({outside, inside});
    PaintRecorder device;

    EXPECT_THAT(drawnOn(device, [](QPainter&) {}), ElementsAre(outside, inside));
}

TEST_F(VisibleAreaTest, PictureRecordsEveryLine)
{
    show({outside, inside});
    QPicture picture;
    QPainter painter(&picture);
    item.paint(&painter, nullptr, nullptr);
    painter.end();

    PaintRecorder device;
    QPainter replay(&device);
    replay.drawPicture(0, 0, picture);
    replay.end();

    EXPECT_EQ(device.calls().size() + device.otherCalls(), 2);
}

TEST_F(VisibleAreaTest, OpenGlLeavesOutWhatIsOutsideUnlessTheScaleIsExtreme)
{
    const auto drawn = [this](double scale) {
        show({{inside.p1() / scale, inside.p2() / scale},
              {outside.p1() / scale, outside.p2() / scale}});
        PaintRecorder device(QPaintEngine::OpenGL2);
        return drawnOn(device, [scale](QPainter& painter) { painter.scale(scale, scale); }).size();
    };
    EXPECT_EQ(drawn(1e3), 1);
    EXPECT_EQ(drawn(1e5), 2);
}

TEST_F(VisibleAreaTest, EachSegmentOfAPolylineIsTestedAlone)
{
    document = makeDocument({makePolyline({{200, 10}, {300, 10}, {50, 50}, {60, 50}})});
    item.setDocument(document);

    EXPECT_THAT(drawnOnPixels(), ElementsAre(QLineF(300, 10, 50, 50), QLineF(50, 50, 60, 50)));
}

TEST_F(VisibleAreaTest, TransformationOfThePainterCounts)
{
    show({outside, inside});

    EXPECT_THAT(drawnOnPixels([](QPainter& painter) { painter.translate(-200, 0); }),
                ElementsAre(outside));
    EXPECT_THAT(drawnOnPixels([](QPainter& painter) { painter.scale(0.25, 0.25); }),
                ElementsAre(outside, inside));
    EXPECT_THAT(drawnOnPixels([](QPainter& painter) { painter.setWindow(200, 0, 100, 100); }),
                ElementsAre(outside));
}

TEST_F(VisibleAreaTest, ClipOfThePainterCounts)
{
    show({{10, 10, 20, 20}, {70, 70, 80, 80}});

    EXPECT_THAT(drawnOnPixels([](QPainter& painter) { painter.setClipRect(60, 60, 40, 40); }),
                ElementsAre(QLineF(70, 70, 80, 80)));
}

TEST_F(VisibleAreaTest, LineOutsideWithAThickPenIsDrawn)
{
    show({{130, 10, 130, 90}, {400, 10, 400, 90}});
    EXPECT_THAT(drawnOnPixels(), SizeIs(0));

    item.setOverridePen(QPen(Qt::blue, 70));
    EXPECT_THAT(drawnOnPixels(), SizeIs(1));

    item.resetOverridePen();
    document->entities().first()->setLineWidth(70);
    EXPECT_THAT(drawnOnPixels(), SizeIs(1));
}

TEST_F(VisibleAreaTest, LineWithUndefinedOrInfiniteCoordinatesIsDrawn)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    show({{nan, 0, 200, 0}, {200, 0, 300, nan}, {infinity, 0, 300, 0}, {1e200, 0, 1e300, 0}});

    EXPECT_THAT(drawnOnPixels(), SizeIs(4));
}

TEST_F(VisibleAreaTest, LineTooFarAwayForThePaintersArithmeticIsDrawn)
{
    show({{1e8, 0, 2e8, 0}, {1e10, 0, 2e10, 0}});
    EXPECT_THAT(drawnOnPixels(), ElementsAre(QLineF(1e10, 0, 2e10, 0)));

    item.setOverridePen(QPen(Qt::blue, 3));
    EXPECT_THAT(drawnOnPixels(), SizeIs(2));
}

TEST_F(VisibleAreaTest, PerspectiveHidesNothing)
{
    show({outside});
    const QTransform perspective(1, 0, 0.001, 0, 1, 0.001, 0, 0, 1);

    EXPECT_THAT(drawnOnPixels([&](QPainter& painter) { painter.setTransform(perspective); }),
                SizeIs(1));
}

// The same pixels

/// Makes random painters and pens, and random lines around the painters' devices.
class RandomScene
{
public:
    explicit RandomScene(unsigned seed)
        : m_random(seed)
    {
        static const QSize sizes[] = {{60, 50}, {33, 80}, {128, 16}};
        m_size = sizes[upTo(2)];
        m_pixelRatio = upTo(3) == 0 ? 2.0 : 1.0;
        m_isSmooth = upTo(1) == 0;
        m_transform = makeTransform();
        m_hasWindow = upTo(5) == 0;
        m_clip = upTo(4);
        m_clipRect = QRectF(real(-20, 40), real(-20, 40), real(0, 50), real(0, 50));
        m_entityWidth = upTo(2) == 0 ? upTo(30) : upTo(1);
        m_hasOverridePen = upTo(1) == 0;
        m_pen = makePen();
    }

    QImage blankImage() const
    {
        QImage image(m_size, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(m_pixelRatio);
        image.fill(Qt::white);
        return image;
    }

    void prepare(QPainter& painter) const
    {
        painter.setRenderHint(QPainter::Antialiasing, m_isSmooth);
        if (m_hasWindow)
            painter.setWindow(-20, 10, 90, -70);
        if (m_clip == 1)
            painter.setClipRect(m_clipRect);
        painter.setTransform(m_transform);
        if (m_clip == 2)
            painter.setClipRect(m_transform.inverted().mapRect(m_clipRect));
        if (m_clip == 3) {
            QPainterPath path;
            path.addEllipse(m_transform.inverted().mapRect(m_clipRect));
            painter.setClipPath(path);
        }
    }

    QSharedPointer<DXFDocument> makeDrawing()
    {
        QList<QSharedPointer<DXFEntity>> entities;
        for (int i = 0; i < 12; ++i) {
            QVector<QPointF> points;
            for (int vertices = 2 + upTo(4); vertices > 0; --vertices)
                points.append(point());
            entities.append(makePolyline(points, upTo(3) == 0));
        }
        const auto document = makeDocument(entities);
        document->setup();
        for (const auto& entity : entities) {
            entity->setColor(QColor(upTo(255), upTo(255), upTo(255), 128 + upTo(127)));
            entity->setLineWidth(m_entityWidth);
        }
        return document;
    }

    const QPen* overridePen() const { return m_hasOverridePen ? &m_pen : nullptr; }
    int entityWidth() const { return m_entityWidth; }

private:
    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(m_random); }
    double real(double least, double most)
    {
        return std::uniform_real_distribution<double>(least, most)(m_random);
    }

    QTransform makeTransform()
    {
        QTransform transform;
        transform.translate(real(-100, 100), real(-100, 100));
        switch (upTo(7)) {
        case 0:
            return QTransform();
        case 1:
            return transform;
        case 2:
            transform.rotate(real(0, 360));
            break;
        case 3:
            transform.rotate(90.0 * upTo(3));
            break;
        case 4:
            transform.shear(real(-2, 2), real(-2, 2));
            break;
        case 5:
            transform.rotate(real(0, 360));
            transform.scale(1.0, 1e-14);
            break;
        default:
            break;
        }
        const double scale = std::pow(10.0, upTo(2) == 0 ? real(-12, 12) : real(-2, 2));
        return transform.scale(upTo(1) == 0 ? scale : -scale, upTo(1) == 0 ? scale : -scale);
    }

    QPen makePen()
    {
        static const Qt::PenCapStyle caps[] = {Qt::FlatCap, Qt::SquareCap, Qt::RoundCap};
        static const Qt::PenJoinStyle joins[] = {Qt::MiterJoin, Qt::BevelJoin, Qt::RoundJoin};
        QPen pen(QColor(upTo(255), upTo(255), upTo(255), 100 + upTo(155)), real(0, 3),
                 Qt::SolidLine, caps[upTo(2)], joins[upTo(2)]);
        if (upTo(2) == 0)
            pen.setWidthF(real(0, 60));
        pen.setCosmetic(upTo(1) == 0);
        pen.setMiterLimit(real(0, 9));
        return pen;
    }

    /// Mostly on or near the device, sometimes far away and sometimes anywhere.
    QPointF point()
    {
        static const double spans[] = {60, 60, 60, 300, 300, 2e3, 4e4, 1e6};
        if (upTo(60) == 0)
            return QPointF(extreme(), extreme());
        const double span = spans[upTo(7)];
        const QPointF onDevice(real(-span, span), real(-span, span));
        bool isInvertible = false;
        const QTransform back = m_transform.inverted(&isInvertible);
        return isInvertible ? back.map(onDevice) : onDevice;
    }

    double extreme()
    {
        if (upTo(5) == 0)
            return std::numeric_limits<double>::quiet_NaN();
        const double power = std::pow(10.0, real(-300, 300));
        return upTo(1) == 0 ? power : -power;
    }

    std::mt19937 m_random;
    QSize m_size;
    double m_pixelRatio = 1.0;
    bool m_isSmooth = false;
    QTransform m_transform;
    bool m_hasWindow = false;
    int m_clip = 0;
    QRectF m_clipRect;
    int m_entityWidth = 0;
    bool m_hasOverridePen = false;
    QPen m_pen;
};

QImage plainImage(const RandomScene& scene, const DXFDocument& document)
{
    QImage image = scene.blankImage();
    QPainter painter(&image);
    scene.prepare(painter);
    for (const DXFPolyline* polyline : polylinesOf(document)) {
        QPen pen(polyline->color());
        pen.setWidth(polyline->lineWidth());
        pen.setCosmetic(true);
        painter.setPen(scene.overridePen() ? *scene.overridePen() : pen);
        for (const QLineF& line : linesOf(*polyline))
            painter.drawLines(&line, 1);
    }
    return image;
}

class SamePixelsTest : public LoggedTest, public ::testing::WithParamInterface<unsigned>
{
};

TEST_P(SamePixelsTest, HiddenLinesChangeNoPixel)
{
    for (unsigned round = 0; round < 40; ++round) {
        SCOPED_TRACE(round);
        RandomScene scene(1000 * GetParam() + round);
        const auto document = scene.makeDrawing();
        DXFGraphicsItem item;
        item.setDocument(document);
        if (scene.overridePen())
            item.setOverridePen(*scene.overridePen());
        QImage image = scene.blankImage();
        QPainter painter(&image);
        scene.prepare(painter);

        item.paint(&painter, nullptr, nullptr);
        painter.end();

        ASSERT_TRUE(picturesMatch(image, plainImage(scene, *document)));
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, SamePixelsTest, ::testing::Range(0U, 25U));

} // namespace
