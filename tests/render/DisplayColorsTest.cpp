// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/render/DisplayColors.h"

#include "dxfviewer/edit/DeleteItems.h"
#include "dxfviewer/io/DXFWriter.h"
#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/OtherEntity.h"

#include <limits>

using namespace dxftest;

namespace
{

constexpr int noTrueColor = -1;
constexpr int byLayer = 256;

const QColor white(Qt::white);
const QColor black(Qt::black);
const QColor red(255, 0, 0);
const QColor dark(30, 34, 40);

/// Greys, colours between them, and the grounds that programs use.
const QVector<QColor>& grounds()
{
    static const QVector<QColor> all{black,
                                     white,
                                     dark,
                                     QColor(240, 240, 235),
                                     QColor(35, 65, 90),
                                     QColor(118, 118, 118),
                                     QColor(119, 119, 119),
                                     QColor(255, 255, 0),
                                     QColor(0, 0, 255),
                                     QColor(200, 60, 60)};
    return all;
}

class DisplayColorsTest : public LoggedTest
{
protected:
    DisplayColorsTest()
        : m_document(makeDocument({}))
    {
    }

    QColor colorOn(const QColor& ground, const QString& layer, int color, int color24 = noTrueColor)
    {
        OtherEntity entity;
        entity.setAttributes(makeAttributes(layer, color, color24));
        return DisplayColors(ground).colorOf(entity, *m_document);
    }

    void addLayer(const char* name, int color, int color24 = noTrueColor)
    {
        m_document->addLayer(makeLayer(QString::fromLatin1(name), color, color24));
    }

    QSharedPointer<DXFDocument> m_document;
};

TEST_F(DisplayColorsTest, KnowsTheColourTableOfTheFormat)
{
    const QMap<int, QRgb> samples{
        {1, 0xFFFF0000},   {2, 0xFFFFFF00},   {3, 0xFF00FF00},   {4, 0xFF00FFFF},
        {5, 0xFF0000FF},   {6, 0xFFFF00FF},   {7, 0xFFFFFFFF},   {8, 0xFF808080},
        {9, 0xFFC0C0C0},   {10, 0xFFFF0000},  {11, 0xFFFF7F7F},  {12, 0xFFA50000},
        {13, 0xFFA55252},  {14, 0xFF7F0000},  {15, 0xFF7F3F3F},  {16, 0xFF4C0000},
        {17, 0xFF4C2626},  {18, 0xFF260000},  {19, 0xFF261313},  {20, 0xFFFF3F00},
        {21, 0xFFFF9F7F},  {30, 0xFFFF7F00},  {40, 0xFFFFBF00},  {50, 0xFFFFFF00},
        {90, 0xFF00FF00},  {130, 0xFF00FFFF}, {140, 0xFF00BFFF}, {170, 0xFF0000FF},
        {190, 0xFF7F00FF}, {210, 0xFFFF00FF}, {240, 0xFFFF003F}, {249, 0xFF261317},
        {250, 0xFF333333}, {252, 0xFF848484}, {254, 0xFFD6D6D6}, {255, 0xFFFFFFFF}};

    for (auto sample = samples.cbegin(); sample != samples.cend(); ++sample)
        EXPECT_EQ(DisplayColors::tableColor(sample.key()), QColor(sample.value())) << sample.key();
}

TEST_F(DisplayColorsTest, MeasuresContrastByLuminance)
{
    EXPECT_NEAR(DisplayColors::contrast(white, black), 21.0, 1e-9);
    EXPECT_NEAR(DisplayColors::contrast(black, white), 21.0, 1e-9);
    EXPECT_NEAR(DisplayColors::contrast(red, red), 1.0, 1e-9);
    EXPECT_NEAR(DisplayColors::contrast(red, white), 3.998, 1e-3);
    EXPECT_NEAR(DisplayColors::contrast(QColor(118, 118, 118), white), 4.542, 1e-3);
}

TEST_F(DisplayColorsTest, EveryNumberIsLegibleOnEveryGround)
{
    for (const QColor& ground : grounds()) {
        const DisplayColors colors(ground);
        for (int number = -1; number <= 257; ++number)
            EXPECT_GE(DisplayColors::contrast(colors.indexColor(number), ground), 3.0)
                << number << " on " << ground.name().toStdString();
    }
}

TEST_F(DisplayColorsTest, KeepsTheHueOfMovedColors)
{
    int movedCount = 0;
    for (const QColor& ground : grounds()) {
        const DisplayColors colors(ground);
        for (int number = 10; number < 250; ++number) {
            const QColor own = DisplayColors::tableColor(number);
            const QColor moved = colors.indexColor(number);
            if (moved == own || moved.hslHue() < 0)
                continue;
            ++movedCount;
            const int apart = std::abs(moved.hslHue() - own.hslHue());
            EXPECT_LE(std::min(apart, 360 - apart), 6)
                << number << " on " << ground.name().toStdString();
        }
    }
    EXPECT_GT(movedCount, 500);
}

TEST_F(DisplayColorsTest, LeavesLegibleColorsAsTheyAre)
{
    EXPECT_EQ(DisplayColors(black).indexColor(1), red);
    EXPECT_EQ(DisplayColors(white).indexColor(1), red);
    EXPECT_EQ(DisplayColors(black).indexColor(8), QColor(128, 128, 128));
    EXPECT_EQ(DisplayColors(white).indexColor(5), QColor(0, 0, 255));
    EXPECT_NE(DisplayColors(black).indexColor(5), QColor(0, 0, 255));
    EXPECT_NE(DisplayColors(white).indexColor(2), QColor(255, 255, 0));
}

TEST_F(DisplayColorsTest, BlackOrWhiteDependsOnTheGround)
{
    for (const int number : {7, 255, 0, 256, -3, 1000, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(DisplayColors(white).indexColor(number), black) << number;
        EXPECT_EQ(DisplayColors(dark).indexColor(number), white) << number;
    }
}

TEST_F(DisplayColorsTest, ATrueColorWinsOverTheNumber)
{
    addLayer("walls", 3);
    const QColor orange(255, 128, 0);

    EXPECT_EQ(colorOn(black, QStringLiteral("walls"), 1, 0xFF8000), orange);
    EXPECT_EQ(colorOn(black, QStringLiteral("walls"), byLayer, 0xFF8000), orange);
    EXPECT_EQ(colorOn(black, QStringLiteral("walls"), 0, 0xFF8000), orange);
}

TEST_F(DisplayColorsTest, ATrueColorThatIsNotLegibleIsMoved)
{
    const QColor shown = colorOn(black, QString(), 1, 0x000040);

    EXPECT_GE(DisplayColors::contrast(shown, black), 3.0);
    EXPECT_NEAR(shown.hslHue(), 240, 2);
}

TEST_F(DisplayColorsTest, ByLayerIsTheColorOfTheLayer)
{
    addLayer("green", 3);
    addLayer("off", -1);
    addLayer("orange", 1, 0xFF8000);
    addLayer("nothing", byLayer);
    m_document->addLayer(
        QSharedPointer<DXFLayer>::create(QStringLiteral("bare"), DXFLayer::Flags()));

    EXPECT_EQ(colorOn(black, QStringLiteral("green"), byLayer), QColor(0, 255, 0));
    EXPECT_EQ(colorOn(black, QStringLiteral("off"), byLayer), red);
    EXPECT_EQ(colorOn(black, QStringLiteral("orange"), byLayer), QColor(255, 128, 0));
    for (const char* layer : {"nothing", "bare", "missing"})
        EXPECT_EQ(colorOn(white, QString::fromLatin1(layer), byLayer), black) << layer;
}

TEST_F(DisplayColorsTest, ByBlockIsBlackOrWhite)
{
    EXPECT_EQ(colorOn(white, QStringLiteral("any"), 0), black);
    EXPECT_EQ(colorOn(dark, QStringLiteral("any"), 0), white);
}

TEST_F(DisplayColorsTest, ColorsEntitiesWithoutAttributes)
{
    const auto bare = makePolyline({{0, 0}, {1, 1}});
    const auto document = makeDocument({nullptr, bare});
    document->setup();

    DisplayColors(dark).apply(*document);

    EXPECT_EQ(bare->color(), white);
}

TEST_F(DisplayColorsTest, CanShowEverythingInOneColor)
{
    const auto one = makePolyline({{0, 0}, {1, 1}});
    one->setAttributes(makeAttributes(QString(), 3));
    const auto other = makePolyline({{0, 0}, {1, 1}});
    other->setAttributes(makeAttributes(QString(), byLayer, 0x0000FF));
    const auto bare = makePolyline({{0, 0}, {1, 1}});
    const auto document = makeDocument({one, other, bare});
    document->setup();

    DisplayColors::allIn(black).apply(*document);

    for (const auto& entity : document->entities())
        EXPECT_EQ(entity->color(), black);
}

TEST_F(DisplayColorsTest, ChangesNothingThatIsSaved)
{
    const auto polyline = makePolyline({{0, 0}, {1, 1}});
    const auto attributes = makeAttributes(QStringLiteral("0"), 5);
    polyline->setAttributes(attributes);
    const auto document = makeDocument({polyline});
    document->setup();
    const QByteArray before = DXFWriter(*document).save();

    DisplayColors(dark).apply(*document);

    EXPECT_EQ(polyline->attributes(), attributes);
    EXPECT_EQ(DXFWriter(*document).save(), before);
}

TEST_F(DisplayColorsTest, PiecesAndRestoredPolylinesKeepTheColor)
{
    const auto polyline = makePolyline({{0, 0}, {1, 0}, {2, 0}, {3, 0}});
    polyline->setAttributes(makeAttributes(QStringLiteral("0"), 1));
    const auto document = makeDocument({polyline});
    document->setup();
    DisplayColors(dark).apply(*document);
    const QColor shown = polyline->color();
    DeleteItems command(document, {segmentIdsOf(*polyline).at(1)});

    command.redo();
    ASSERT_EQ(document->entities().size(), 2);
    for (const auto& piece : document->entities())
        EXPECT_EQ(piece->color(), shown);

    command.undo();
    ASSERT_EQ(document->entities().size(), 1);
    EXPECT_EQ(document->entities().constFirst()->color(), shown);
}

} // namespace
