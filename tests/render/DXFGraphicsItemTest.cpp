// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/render/DXFGraphicsItem.h"
#include "dxfviewer/edit/DeleteItems.h"

#include "tests/render/PaintRecorder.h"
#include "tests/support/Builders.h"
#include "tests/support/Images.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/OtherEntity.h"
#include "tests/support/Patience.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QGraphicsScene>
#include <QPainter>
#include <QPainterPath>
#include <QSignalSpy>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <random>
#include <utility>

using namespace dxftest;
using ::testing::Contains;
using ::testing::IsEmpty;
using ::testing::Not;

namespace
{

constexpr auto blankWarning = "DXFGraphicsItem:: cannot render blank document";

QPen cosmeticPen(const QColor& color, int width)
{
    QPen pen;
    pen.setWidth(width);
    pen.setColor(color);
    pen.setCosmetic(true);
    return pen;
}

QSharedPointer<DXFPolyline> makeColored(const QVector<QPointF>& points, int color, int width = 0)
{
    auto polyline = makePolyline(points);
    polyline->setAttributes(makeAttributes(QStringLiteral("0"), color, -1, width));
    return polyline;
}

QVector<DrawnLines> recordPainting(DXFGraphicsItem& item)
{
    PaintRecorder recorder;
    QPainter painter(&recorder);
    item.paint(&painter, nullptr, nullptr);
    painter.end();
    EXPECT_EQ(recorder.otherCalls(), 0);
    return recorder.calls();
}

QVector<QPen> pensOf(const QVector<DrawnLines>& calls)
{
    QVector<QPen> pens;
    for (const DrawnLines& call : calls)
        pens.append(call.pen);
    return pens;
}

QVector<QColor> colorsOf(const QVector<DrawnLines>& calls)
{
    QVector<QColor> colors;
    for (const DrawnLines& call : calls)
        colors.append(call.pen.color());
    return colors;
}

/// Rectangles are compared exactly here, not fuzzily.
void expectRect(const QRectF& rect, double x, double y, double width, double height)
{
    EXPECT_EQ(rect.x(), x);
    EXPECT_EQ(rect.y(), y);
    EXPECT_EQ(rect.width(), width);
    EXPECT_EQ(rect.height(), height);
}

QRectF boundsOf(const QList<QSharedPointer<DXFEntity>>& entities)
{
    DXFGraphicsItem item;
    item.setDocument(makeDocument(entities));
    return item.boundingRect();
}

class DXFGraphicsItemTest : public LoggedTest
{
protected:
    DXFGraphicsItem item;
};

TEST_F(DXFGraphicsItemTest, StartsWithoutDocumentAndWithAZeroRectangle)
{
    EXPECT_TRUE(item.document().isNull());
    EXPECT_EQ(item.parentItem(), nullptr);
    expectRect(item.boundingRect(), 0, 0, 0, 0);
}

TEST_F(DXFGraphicsItemTest, ParentOwnsIt)
{
    DXFGraphicsItem parent;

    auto* child = new DXFGraphicsItem(&parent);

    EXPECT_EQ(child->parentItem(), &parent);
}

TEST_F(DXFGraphicsItemTest, HasNoFlags)
{
    EXPECT_EQ(item.flags(), QGraphicsItem::GraphicsItemFlags());
}

TEST_F(DXFGraphicsItemTest, RefreshWithoutADocumentWarns)
{
    expectWarning(blankWarning);

    item.refresh();

    expectRect(item.boundingRect(), 0, 0, 0, 0);
}

TEST_F(DXFGraphicsItemTest, NullDocumentWarnsAndClearsTheRectangle)
{
    item.setDocument(makeDocument({makePolyline({{1, 1}, {2, 2}})}));
    expectWarning(blankWarning);

    item.setDocument({});

    EXPECT_TRUE(item.document().isNull());
    expectRect(item.boundingRect(), 0, 0, 0, 0);
}

TEST_F(DXFGraphicsItemTest, DocumentIsSharedAndReleased)
{
    auto document = makeDocument({});
    const QWeakPointer<DXFDocument> held = document;

    item.setDocument(document);

    EXPECT_EQ(item.document(), document);
    document.reset();
    EXPECT_FALSE(held.isNull());

    item.setDocument(makeDocument({}));

    EXPECT_TRUE(held.isNull());
}

TEST_F(DXFGraphicsItemTest, DestructionReleasesTheDocument)
{
    auto document = makeDocument({});
    const QWeakPointer<DXFDocument> held = document;
    auto dying = std::make_unique<DXFGraphicsItem>();
    dying->setDocument(document);
    document.reset();

    dying.reset();

    EXPECT_TRUE(held.isNull());
}

TEST_F(DXFGraphicsItemTest, LifeTokenExpiresWithTheItem)
{
    auto dying = std::make_unique<DXFGraphicsItem>();
    const auto token = dying->lifeToken();
    EXPECT_FALSE(token.expired());

    dying.reset();

    EXPECT_TRUE(token.expired());
}

TEST_F(DXFGraphicsItemTest, SettingTheDocumentSetsItUp)
{
    const auto polyline = makeColored({{0, 0}, {1, 1}}, 1, 25);

    item.setDocument(makeDocument({polyline}));

    EXPECT_EQ(polyline->segments().size(), 1);
    EXPECT_EQ(polyline->color(), QColor(Qt::darkRed));
    EXPECT_EQ(polyline->lineWidth(), 1);
}

TEST_F(DXFGraphicsItemTest, RefreshDoesNotSetUpAgain)
{
    const auto polyline = makePolyline({{0, 0}, {1, 1}});
    item.setDocument(makeDocument({polyline}));
    const auto ids = segmentIdsOf(*polyline);

    item.refresh();

    EXPECT_EQ(segmentIdsOf(*polyline), ids);
}

TEST_F(DXFGraphicsItemTest, OneSegmentIsTheRectangle)
{
    expectRect(boundsOf({makePolyline({{0, 0}, {10, 5}})}), 0, 0, 10, 5);
    expectRect(boundsOf({makePolyline({{-3, -4}, {-1, 7}})}), -3, -4, 2, 11);
}

TEST_F(DXFGraphicsItemTest, SingleLeftwardSegmentLeavesNegativeExtents)
{
    expectRect(boundsOf({makePolyline({{10, 5}, {0, 0}})}), 10, 5, -10, -5);
    expectRect(boundsOf({makePolyline({{10, 0}, {0, 5}})}), 10, 0, -10, 5);
    expectRect(boundsOf({makePolyline({{0, 5}, {10, 0}})}), 0, 5, 10, -5);
}

TEST_F(DXFGraphicsItemTest, SecondSegmentMakesTheExtentsPositive)
{
    expectRect(boundsOf({makePolyline({{10, 5}, {0, 0}}), makePolyline({{20, 0}, {20, 1}})}), 0, 0,
               20, 5);
}

TEST_F(DXFGraphicsItemTest, HorizontalAndVerticalSegmentsCount)
{
    expectRect(boundsOf({makePolyline({{1, 3}, {4, 3}}), makePolyline({{6, 3}, {9, 3}})}), 1, 3, 8,
               0);
    expectRect(boundsOf({makePolyline({{3, 1}, {3, 4}}), makePolyline({{5, 6}, {5, 9}})}), 3, 1, 2,
               8);
}

TEST_F(DXFGraphicsItemTest, OriginIsNotPartOfTheRectangle)
{
    expectRect(
        boundsOf({makePolyline({{100, 100}, {110, 105}}), makePolyline({{90, 120}, {95, 121}})}),
        90, 100, 20, 21);
}

TEST_F(DXFGraphicsItemTest, SegmentsWithoutLengthContributeNothing)
{
    expectRect(boundsOf({makePolyline({{0, 0}, {0, 0}})}), 0, 0, 0, 0);
    expectRect(boundsOf({makePolyline({{50, 50}, {50, 50}}), makePolyline({{10, 5}, {0, 0}}),
                         makePolyline({{-50, 50}, {-50, 50}})}),
               10, 5, -10, -5);
}

TEST_F(DXFGraphicsItemTest, ShapeIsTheRectangle)
{
    item.setDocument(makeDocument({makePolyline({{0, 0}, {10, 0}, {10, 5}})}));
    item.setPen(QPen(Qt::green, 9));
    QPainterPath expected;
    expected.addRect(QRectF(0, 0, 10, 5));

    EXPECT_EQ(item.shape(), expected);
    EXPECT_TRUE(item.contains(QPointF(1, 4))) << "far from every segment";
}

TEST_F(DXFGraphicsItemTest, EmptyDocumentKeepsTheZeroRectangle)
{
    expectRect(boundsOf({}), 0, 0, 0, 0);
    expectRect(boundsOf({makePolyline({}), makePolyline({{5, 5}})}), 0, 0, 0, 0);
}

TEST_F(DXFGraphicsItemTest, NullAndOtherEntitiesAreSkipped)
{
    const auto other = QSharedPointer<OtherEntity>::create(5);
    const auto unknown = QSharedPointer<OtherEntity>::create(-1);

    item.setDocument(makeDocument(
        {QSharedPointer<DXFEntity>(), other, makePolyline({{0, 0}, {10, 5}}), unknown}));

    expectRect(item.boundingRect(), 0, 0, 10, 5);
    EXPECT_EQ(recordPainting(item).size(), 1);
    EXPECT_EQ(other->setupCount(), 1);
}

TEST_F(DXFGraphicsItemTest, ClosingSegmentCounts)
{
    item.setDocument(makeDocument({makePolyline({{0, 0}, {4, 0}, {4, 3}}, true)}));

    EXPECT_EQ(recordPainting(item).size(), 3);
    expectRect(item.boundingRect(), 0, 0, 4, 3);
}

TEST_F(DXFGraphicsItemTest, RandomSegmentsUniteInOrder)
{
    std::mt19937 random(99);
    const auto coordinate = [&random] {
        return double(std::uniform_int_distribution<int>(-3, 3)(random));
    };
    for (int round = 0; round < 1000; ++round) {
        SCOPED_TRACE(round);
        QList<QSharedPointer<DXFEntity>> entities;
        QRectF expected(0, 0, 0, 0);
        for (int count = std::uniform_int_distribution<int>(0, 4)(random); count > 0; --count) {
            const double x1 = coordinate();
            const double y1 = coordinate();
            const double x2 = coordinate();
            const double y2 = coordinate();
            entities.append(makePolyline({{x1, y1}, {x2, y2}}));
            expected = expected | QRectF(x1, y1, x2 - x1, y2 - y1);
        }

        expectRect(boundsOf(entities), expected.x(), expected.y(), expected.width(),
                   expected.height());

        if (HasFailure())
            return;
    }
}

/// Whether two numbers are the same to the last bit. All NaNs count as the same: which bits of a
/// NaN a sum keeps depends on the compiler.
bool isSame(double a, double b)
{
    return (std::isnan(a) && std::isnan(b)) || (a == b && std::signbit(a) == std::signbit(b));
}

::testing::AssertionResult isSameRect(const QRectF& actual, const QRectF& expected)
{
    if (isSame(actual.x(), expected.x()) && isSame(actual.y(), expected.y())
        && isSame(actual.width(), expected.width()) && isSame(actual.height(), expected.height()))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << ::testing::PrintToString(actual) << " instead of "
                                         << ::testing::PrintToString(expected);
}

/// Coordinates of a drawing in which additions round: some of a few magnitudes.
class UnevenNumbers
{
public:
    explicit UnevenNumbers(std::mt19937& random)
        : m_random(random)
        , m_offset(pick({0.0, 0.0, 1e3, -1e7, 1e15, -1e15, 1e-9}))
        , m_isFinite(upTo(9) > 0)
        , m_isOnOneSide(upTo(4) == 0)
    {
    }

    double next()
    {
        if (!m_isFinite && upTo(9) == 0)
            return pick({nan, infinity, -infinity, std::numeric_limits<double>::max(),
                         std::numeric_limits<double>::lowest(),
                         std::numeric_limits<double>::denorm_min()});
        if (upTo(9) == 0)
            return pick({0.0, -0.0});
        const double number = nextFinite();
        return m_isOnOneSide ? std::abs(number) : number;
    }

private:
    static constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    static constexpr double infinity = std::numeric_limits<double>::infinity();

    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(m_random); }

    double pick(std::initializer_list<double> numbers)
    {
        return numbers.begin()[upTo(int(numbers.size()) - 1)];
    }

    double nextFinite()
    {
        switch (upTo(9)) {
        case 0:
            return 1e15 + upTo(40);
        case 1:
            return 1e-9 * (upTo(40) - 20);
        default:
            return m_offset + 0.1 * (upTo(2000) - 1000);
        }
    }

    std::mt19937& m_random;
    double m_offset;
    bool m_isFinite;
    bool m_isOnOneSide;
};

TEST_F(DXFGraphicsItemTest, RandomSegmentsOfAllMagnitudesUniteInOrder)
{
    std::mt19937 random(7);
    for (int round = 0; round < 2000; ++round) {
        SCOPED_TRACE(round);
        UnevenNumbers numbers(random);
        QList<QSharedPointer<DXFEntity>> entities;
        for (int polylines = 0; polylines < 3; ++polylines) {
            QVector<QPointF> points;
            for (int i = 0; i < 60; ++i) {
                const double x = numbers.next();
                points.append(QPointF(x, numbers.next()));
            }
            entities.append(makePolyline(points, polylines == 1));
        }
        const auto document = makeDocument(entities);

        item.setDocument(document);

        QRectF expected(0, 0, 0, 0);
        const auto lines = linesOf(document);
        for (const QLineF& line : lines)
            expected = expected
                       | QRectF(line.x1(), line.y1(), line.x2() - line.x1(), line.y2() - line.y1());
        ASSERT_EQ(lines.size(), 178);
        ASSERT_TRUE(isSameRect(item.boundingRect(), expected));
    }
}

TEST_F(DXFGraphicsItemTest, RoundingMovesTheFarEdgeAtASegmentInside)
{
    // Above this number doubles are 2 apart. The far edge is computed from the width, and is
    // rounded down to this number. The next segment computes the width from that edge, so the width
    // becomes smaller.
    const double limit = std::ldexp(1.0, 53);
    const auto wide = makePolyline({{1, 0}, {limit + 2, 100}});
    const auto high = makePolyline({{0, 1}, {100, limit + 2}});
    const auto inside = makePolyline({{10, 10}, {20, 20}, {30, 30}});

    expectRect(boundsOf({wide}), 1, 0, limit, 100);
    expectRect(boundsOf({wide, inside}), 1, 0, limit - 1, 100);
    expectRect(boundsOf({high}), 0, 1, 100, limit);
    expectRect(boundsOf({high, inside}), 0, 1, 100, limit - 1);
}

TEST_F(DXFGraphicsItemTest, EditsLeaveTheRectangleUntilTheNextRefresh)
{
    const auto kept = makePolyline({{0, 0}, {1, 1}});
    const auto erased = makePolyline({{5, 5}, {9, 9}});
    const auto document = makeDocument({kept, erased});
    item.setDocument(document);

    document->deleteEntity(erased);

    expectRect(item.boundingRect(), 0, 0, 9, 9);
    EXPECT_EQ(recordPainting(item).size(), 1);

    item.refresh();

    expectRect(item.boundingRect(), 0, 0, 1, 1);
}

TEST_F(DXFGraphicsItemTest, PaintWithoutADocumentLeavesThePainterAlone)
{
    PaintRecorder recorder;
    QPainter painter(&recorder);
    const QPen pen(Qt::green, 5);
    painter.setPen(pen);

    item.paint(&painter, nullptr, nullptr);

    EXPECT_EQ(painter.pen(), pen);
    EXPECT_THAT(recorder.calls(), IsEmpty());
}

TEST_F(DXFGraphicsItemTest, PaintWithoutAPainterDoesNothing)
{
    item.setDocument(makeDocument({makePolyline({{0, 0}, {1, 1}})}));

    item.paint(nullptr, nullptr, nullptr);

    expectRect(item.boundingRect(), 0, 0, 1, 1);
}

TEST_F(DXFGraphicsItemTest, EachSegmentIsDrawnByItsOwnCallInOrder)
{
    const auto document = makeDocument(
        {makePolyline({{0, 0}, {1, 2}, {1, 2}, {3, 0}}), makePolyline({{9, 9}, {8, 8}})});
    item.setDocument(document);
    const auto lines = linesOf(document);

    const auto calls = recordPainting(item);

    ASSERT_EQ(calls.size(), 4);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(calls.at(i).lines, QVector<QLineF>{lines.at(i)});
}

TEST_F(DXFGraphicsItemTest, PensAreCosmeticInTheEntitysColourAndWidth)
{
    item.setDocument(
        makeDocument({makeColored({{0, 0}, {1, 1}, {2, 2}}, 1, 0),
                      makeColored({{3, 3}, {4, 4}}, 1, 25), makeColored({{5, 5}, {6, 6}}, 5, 25)}));

    const auto pens = pensOf(recordPainting(item));

    EXPECT_EQ(pens, QVector<QPen>({cosmeticPen(Qt::darkRed, 0), cosmeticPen(Qt::darkRed, 0),
                                   cosmeticPen(Qt::darkRed, 1), cosmeticPen(Qt::darkBlue, 1)}));
}

TEST_F(DXFGraphicsItemTest, ColourAndWidthAreReadWhenPainting)
{
    const auto polyline = makePolyline({{0, 0}, {1, 1}});
    item.setDocument(makeDocument({polyline}));
    polyline->setColor(QColor(1, 2, 3, 4));
    polyline->setLineWidth(7);

    const auto pens = pensOf(recordPainting(item));

    EXPECT_EQ(pens, QVector<QPen>{cosmeticPen(QColor(1, 2, 3, 4), 7)});
}

TEST_F(DXFGraphicsItemTest, EntityAddedLaterIsPaintedInItsDefaults)
{
    const auto document = makeDocument({});
    item.setDocument(document);
    const auto late = makePolyline({{0, 0}, {1, 1}});
    late->setup();
    document->addEntity(late);

    const auto pens = pensOf(recordPainting(item));

    EXPECT_EQ(pens, QVector<QPen>{cosmeticPen(QColor(), 0)});
}

TEST_F(DXFGraphicsItemTest, SelectedIsRedHoveredDarkYellowAndSelectedWins)
{
    const auto polyline = makeColored({{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}}, 1);
    const auto document = makeDocument({polyline});
    item.setDocument(document);
    const auto ids = segmentIdsOf(*polyline);
    document->setSelected({ids.at(1), ids.at(2)});
    document->setHovered({ids.at(0), ids.at(1)});

    const auto pens = pensOf(recordPainting(item));

    EXPECT_EQ(pens, QVector<QPen>({cosmeticPen(Qt::darkYellow, 0), cosmeticPen(Qt::red, 0),
                                   cosmeticPen(Qt::red, 0), cosmeticPen(Qt::darkRed, 0)}));
}

TEST_F(DXFGraphicsItemTest, EachOfManyColoursIsPaintedInItsPlace)
{
    std::mt19937 random(11);
    const auto upTo = [&random](int most) {
        return std::uniform_int_distribution<int>(0, most)(random);
    };
    QVector<int> trueColors;
    for (int i = 0; i < 200; ++i)
        trueColors.append(upTo(0xFFFFFF));
    QList<QSharedPointer<DXFEntity>> entities;
    for (int i = 0; i < 500; ++i) {
        const auto polyline = makePolyline({{0, 0}, {1, 1}, {2, 2}, {3, 3}});
        polyline->setAttributes(
            makeAttributes(QStringLiteral("0"), 1, trueColors.at(upTo(199)), upTo(1)));
        entities.append(polyline);
    }
    const auto document = makeDocument(entities);
    item.setDocument(document);
    QVector<int> selected;
    QVector<int> hovered;
    const auto ids = segmentIdsOf(document);
    for (int id : ids) {
        if (upTo(5) == 0)
            selected.append(id);
        if (upTo(5) == 0)
            hovered.append(id);
    }
    document->setSelected(selected);
    document->setHovered(hovered);
    QVector<QPen> expected;
    for (int i = 0; i < 500; ++i) {
        const auto attributes = entities.at(i)->attributes();
        const auto segments = polylineAt(document, i)->segments();
        for (const Segment& segment : segments) {
            QColor color(static_cast<QRgb>(attributes->color24()));
            if (segment.isHovered())
                color = Qt::darkYellow;
            if (segment.isSelected())
                color = Qt::red;
            expected.append(cosmeticPen(color, attributes->width()));
        }
    }

    const auto pens = pensOf(recordPainting(item));

    ASSERT_EQ(pens.size(), expected.size());
    for (int i = 0; i < pens.size(); ++i)
        ASSERT_EQ(pens.at(i), expected.at(i)) << "segment " << i;
}

TEST_F(DXFGraphicsItemTest, FlagsOfTheEntityDoNotColourItsSegments)
{
    const auto polyline = makeColored({{0, 0}, {1, 1}}, 1);
    const auto document = makeDocument({polyline});
    item.setDocument(document);
    document->setSelected({polyline->id()});
    document->setHovered({polyline->id()});

    EXPECT_EQ(colorsOf(recordPainting(item)), QVector<QColor>{Qt::darkRed});
}

TEST_F(DXFGraphicsItemTest, OverridePenDrawsEverySegmentWhateverItsState)
{
    const auto polyline = makeColored({{0, 0}, {1, 1}, {2, 2}, {3, 3}}, 1);
    const auto document = makeDocument({polyline, makeColored({{5, 5}, {6, 6}}, 5, 25)});
    item.setDocument(document);
    const auto ids = segmentIdsOf(*polyline);
    document->setSelected({ids.at(0)});
    document->setHovered({ids.at(1)});
    const QPen pen(Qt::blue, 3, Qt::DashLine);

    item.setOverridePen(pen);

    EXPECT_EQ(pensOf(recordPainting(item)), QVector<QPen>({pen, pen, pen, pen}));
}

TEST_F(DXFGraphicsItemTest, LaterOverridePenReplacesTheFormer)
{
    item.setDocument(makeDocument({makeColored({{0, 0}, {1, 1}}, 1)}));
    item.setOverridePen(QPen(Qt::blue, 3));

    item.setOverridePen(QPen(Qt::green, 2));

    EXPECT_EQ(pensOf(recordPainting(item)), QVector<QPen>{QPen(Qt::green, 2)});
}

TEST_F(DXFGraphicsItemTest, ResettingRestoresThePensOfTheEntities)
{
    item.setDocument(makeDocument({makeColored({{0, 0}, {1, 1}}, 1)}));
    item.setOverridePen(QPen(Qt::blue, 3));

    item.resetOverridePen();
    item.resetOverridePen();

    EXPECT_EQ(pensOf(recordPainting(item)), QVector<QPen>{cosmeticPen(Qt::darkRed, 0)});
}

TEST_F(DXFGraphicsItemTest, OverridePenMayBeSetWithoutADocument)
{
    item.setOverridePen(QPen(Qt::blue, 3));
    item.setDocument(makeDocument({makeColored({{0, 0}, {1, 1}}, 1)}));

    EXPECT_EQ(pensOf(recordPainting(item)), QVector<QPen>{QPen(Qt::blue, 3)});
}

TEST_F(DXFGraphicsItemTest, PainterIsRestored)
{
    item.setDocument(makeDocument({makeColored({{0, 0}, {1, 1}}, 1)}));
    const QPen pen(Qt::green, 5);
    for (bool overridden : {false, true}) {
        if (overridden)
            item.setOverridePen(QPen(Qt::blue, 3));
        PaintRecorder recorder;
        QPainter painter(&recorder);
        painter.setPen(pen);

        item.paint(&painter, nullptr, nullptr);

        EXPECT_EQ(painter.pen(), pen);
        EXPECT_EQ(recorder.calls().size(), 1);
    }
}

TEST_F(DXFGraphicsItemTest, PaintIgnoresPenAndBrushOfThePainter)
{
    item.setDocument(makeDocument({makeColored({{0, 0}, {1, 1}}, 1)}));
    item.setPen(QPen(Qt::green, 9));
    PaintRecorder recorder;
    QPainter painter(&recorder);
    painter.setPen(QPen(Qt::green, 5, Qt::DotLine));

    item.paint(&painter, nullptr, nullptr);

    EXPECT_EQ(pensOf(recorder.calls()), QVector<QPen>{cosmeticPen(Qt::darkRed, 0)});
}

class InASceneTest : public DXFGraphicsItemTest
{
protected:
    InASceneTest()
    {
        scene.addItem(&item);
        settle();
    }
    ~InASceneTest() override { scene.removeItem(&item); }

    static void settle()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    QGraphicsScene scene;
};

TEST_F(InASceneTest, OverridePenRepaints)
{
    item.setDocument(makeDocument({makePolyline({{0, 0}, {10, 10}})}));
    settle();
    QSignalSpy changes(&scene, &QGraphicsScene::changed);

    item.setOverridePen(QPen(Qt::blue));

    EXPECT_TRUE(changes.wait(patienceMs));
    settle();
    changes.clear();

    item.resetOverridePen();

    EXPECT_TRUE(changes.wait(patienceMs));
}

TEST_F(InASceneTest, RefreshDoesNotRepaint)
{
    item.setDocument(makeDocument({makePolyline({{0, 0}, {10, 10}})}));
    settle();
    QSignalSpy changes(&scene, &QGraphicsScene::changed);

    item.refresh();
    settle();

    EXPECT_EQ(changes.count(), 0);
}

TEST_F(InASceneTest, SceneFindsTheItemWhereTheNewDocumentLies)
{
    // With a single leaf the scene's index would find the item anywhere.
    scene.setSceneRect(-8000, -8000, 16000, 16000);
    scene.setBspTreeDepth(6);
    item.setDocument(makeDocument({makePolyline({{0, 0}, {10, 10}})}));
    ASSERT_THAT(scene.items(QPointF(5, 5)), Contains(&item));

    item.setDocument(makeDocument({makePolyline({{5000, 5000}, {5010, 5010}})}));

    EXPECT_THAT(scene.items(QPointF(5005, 5005)), Contains(&item));
    EXPECT_THAT(scene.items(QPointF(5, 5)), Not(Contains(&item)));
}

/// A picture of the item, and a plain one of the same document, with a pen and a call for each
/// segment.
class PictureTest : public DXFGraphicsItemTest
{
protected:
    static QImage blankPicture()
    {
        QImage picture(160, 120, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::white);
        return picture;
    }

    static void prepare(QPainter& painter)
    {
        painter.translate(80, 60);
        painter.scale(3, -3);
    }

    QImage paintedPicture()
    {
        QImage picture = blankPicture();
        QPainter painter(&picture);
        prepare(painter);
        item.paint(&painter, nullptr, nullptr);
        return picture;
    }

    static QImage plainPicture(const DXFDocument& document, const QPen* override)
    {
        QImage picture = blankPicture();
        QPainter painter(&picture);
        prepare(painter);
        for (const DXFPolyline* polyline : polylinesOf(document)) {
            for (const Segment& segment : polyline->segments()) {
                QPen pen = cosmeticPen(polyline->color(), polyline->lineWidth());
                if (segment.isHovered())
                    pen.setColor(Qt::darkYellow);
                if (segment.isSelected())
                    pen.setColor(Qt::red);
                painter.setPen(override ? *override : pen);
                painter.drawLine(segment.line());
            }
        }
        return picture;
    }
};

TEST_F(PictureTest, RandomDocumentsLookAsInThePlainPicture)
{
    std::mt19937 random(5);
    const auto upTo = [&random](int most) {
        return std::uniform_int_distribution<int>(0, most)(random);
    };
    const QPen override(QColor(0, 0, 255, 100), 1.5, Qt::DashLine);
    for (int round = 0; round < 60; ++round) {
        SCOPED_TRACE(round);
        QList<QSharedPointer<DXFEntity>> entities;
        for (int count = 1 + upTo(5); count > 0; --count) {
            auto polyline = makePolyline({}, upTo(1) == 1);
            for (int vertices = upTo(6); vertices > 0; --vertices)
                polyline->appendPoint(DXFVertex(upTo(60) - 30, upTo(40) - 20, 0, true, 0));
            polyline->setAttributes(makeAttributes(QStringLiteral("0"), 1 + upTo(7), -1, upTo(1)));
            entities << polyline << QSharedPointer<OtherEntity>::create();
        }
        const auto document = makeDocument(entities);
        item.setDocument(document);
        const auto ids = segmentIdsOf(document);
        QVector<int> selected;
        QVector<int> hovered;
        for (int id : ids) {
            if (upTo(3) == 0)
                selected.append(id);
            if (upTo(3) == 0)
                hovered.append(id);
        }
        document->setSelected(selected);
        document->setHovered(hovered);

        item.resetOverridePen();
        EXPECT_TRUE(picturesMatch(paintedPicture(), plainPicture(*document, nullptr)));

        item.setOverridePen(override);
        EXPECT_TRUE(picturesMatch(paintedPicture(), plainPicture(*document, &override)));
        if (HasFailure())
            return;
    }
}

TEST_F(PictureTest, LinesAreOnePixelWideAtAnyZoom)
{
    const auto polyline = makeColored({{-10, 0}, {10, 0}}, 23, 25);
    item.setDocument(makeDocument({polyline}));

    for (const double scale : {0.01, 1.0, 8.0, 500.0}) {
        QImage picture = blankPicture();
        QPainter painter(&picture);
        painter.translate(80, 50);
        // Long enough in x to cross the column at every scale.
        painter.scale(scale + 1.0, scale);
        item.paint(&painter, nullptr, nullptr);
        painter.end();

        int painted = 0;
        for (int y = 0; y < picture.height(); ++y)
            painted += picture.pixelColor(80, y) == QColor(Qt::red) ? 1 : 0;
        EXPECT_EQ(painted, 1) << "at scale " << scale;
    }
}

// Hosts that change the document while it is painted

class HostsDeviceTest : public LoggedTest
{
protected:
    HostsDeviceTest()
        : document(QSharedPointer<DXFDocument>::create())
    {
        for (int i = 0; i < polylineCount; ++i)
            document->addEntity(makePolyline({{0.0, 1.0 * i}, {1.0, 1.0 * i}}));
        item.setDocument(document);
    }

    /// Paints on a host's device that does something with the first line.
    QVector<DrawnLines> paint(const std::function<void()>& act)
    {
        bool isFirst = true;
        recorder.setBeforeLines([&] {
            if (std::exchange(isFirst, false))
                act();
        });
        QPainter painter(&recorder);
        item.paint(&painter, nullptr, nullptr);
        return recorder.calls();
    }

    // So many that the first ones and the last ones are no neighbours.
    static constexpr int polylineCount = 2000;

    QSharedPointer<DXFDocument> document;
    DXFGraphicsItem item;
    PaintRecorder recorder;
};

TEST_F(HostsDeviceTest, PaintingGoesOnWithTheOldListWhenTheHostErases)
{
    const auto erase = [this] {
        DeleteItems(document, segmentIdsOf(document)).redo();
    };
    EXPECT_EQ(paint(erase).size(), polylineCount);
    EXPECT_EQ(document->entities().size(), 0);
}

TEST_F(HostsDeviceTest, PaintingSeesWhatTheHostHasChanged)
{
    const auto select = [this] {
        for (DXFPolyline* polyline : polylinesOf(*document))
            polyline->setSelectedSegments(segmentIdsOf(*polyline));
    };
    const auto calls = paint(select);
    ASSERT_EQ(calls.size(), polylineCount);
    EXPECT_EQ(calls.constLast().pen.color(), QColor(Qt::red));
}

} // namespace
