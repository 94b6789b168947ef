// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/DeleteItems.h"
#include "dxfviewer/edit/RubberTool.h"
#include "dxfviewer/edit/SegmentGeometry.h"
#include "dxfviewer/render/DXFGraphicsItem.h"

#include "tests/edit/EditSession.h"
#include "tests/support/Images.h"
#include "tests/support/LoggedTest.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QImage>
#include <QPainter>

using namespace dxftest;

namespace
{

constexpr double scale = 20.0;
constexpr double eraserRadius = 5.0 / scale;
const QPointF eraser(1, 1);

bool isPolyline(const QSharedPointer<DXFEntity>& entity)
{
    return entity && entity->type() == 0;
}

/// Not detached: segments without ids get them in the polyline's own list.
const QVector<Segment> segmentsOf(const DXFPolyline& polyline)
{
    return polyline.segments();
}

/// What the walks of the library must give, computed without knowing what they remember.
class PlainWalks
{
public:
    explicit PlainWalks(const QSharedPointer<DXFDocument>& document)
        : m_document(document)
    {
    }

    QVector<int> selectedIds() const
    {
        QVector<int> ids;
        forEachPolyline([&ids](const DXFPolyline& polyline) {
            if (polyline.isSelected())
                ids.append(polyline.id());
            for (const Segment& segment : segmentsOf(polyline)) {
                if (segment.isSelected())
                    ids.append(segment.id());
            }
        });
        return ids;
    }

    QVector<int> idsUnderEraser() const
    {
        QVector<int> ids;
        forEachPolyline([&ids](const DXFPolyline& polyline) {
            for (const Segment& segment : segmentsOf(polyline)) {
                if (distPointToSegment(eraser, segment.line()) < eraserRadius)
                    ids.append(segment.id());
            }
        });
        return ids;
    }

    void paint(QPainter& painter) const
    {
        forEachPolyline([&painter](const DXFPolyline& polyline) {
            for (const Segment& segment : segmentsOf(polyline)) {
                QPen pen(segment.isSelected()  ? QColor(Qt::red)
                         : segment.isHovered() ? QColor(Qt::darkYellow)
                                               : polyline.color(),
                         polyline.lineWidth());
                pen.setCosmetic(true);
                painter.setPen(pen);
                painter.drawLine(segment.line());
            }
        });
    }

private:
    template <typename Look>
    void forEachPolyline(Look look) const
    {
        const auto entities = m_document->entities();
        for (const auto& entity : entities) {
            if (isPolyline(entity))
                look(static_cast<const DXFPolyline&>(*entity));
        }
    }

    QSharedPointer<DXFDocument> m_document;
};

/// A document with an item that paints it and an eraser over it.
class Looks
{
public:
    explicit Looks(const QSharedPointer<DXFDocument>& document)
        : m_document(document)
        , m_view(&m_scene)
        , m_eraser(document)
    {
        m_view.scale(scale, scale);
        m_scene.addItem(m_eraser.getMarker());
        m_item.setDocument(document);
    }

    void check()
    {
        const PlainWalks expected(m_document);
        EXPECT_EQ(m_document->selectedIDs(), expected.selectedIds());
        EXPECT_EQ(m_eraser.itemsUnderMouse(eraser), expected.idsUnderEraser());
        EXPECT_TRUE(picturesMatch(
            picture([this](QPainter& painter) { m_item.paint(&painter, nullptr, nullptr); }),
            picture([&expected](QPainter& painter) { expected.paint(painter); })));
    }

private:
    /// A small part of the drawing, so that most of it is outside.
    template <typename Paint>
    static QImage picture(Paint paint)
    {
        QImage image(50, 40, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(scale, scale);
        painter.translate(-1.0, -2.0);
        paint(painter);
        return image;
    }

    QSharedPointer<DXFDocument> m_document;
    QGraphicsScene m_scene;
    QGraphicsView m_view;
    RubberTool m_eraser;
    DXFGraphicsItem m_item;
};

class WalksPropertyTest : public LoggedTest, public ::testing::WithParamInterface<unsigned>
{
};

TEST_P(WalksPropertyTest, SeeEveryChangeByHostsAndCommands)
{
    for (unsigned round = 0; round < 10; ++round) {
        EditSession<DeleteItems> session(1000 * GetParam() + round);
        // Another document with the same entities, one of them twice.
        auto entities = session.document()->entities();
        entities.append(entities.value(1));
        const auto shared = makeDocument(entities);
        shared->setup();

        Looks looks(session.document());
        Looks otherLooks(shared);
        for (int i = 0; i < 40; ++i) {
            SCOPED_TRACE(testing::Message() << "round " << round << ", step " << i);
            session.step();
            looks.check();
            otherLooks.check();
            ASSERT_FALSE(HasFailure());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, WalksPropertyTest, ::testing::Range(0U, 20U));

} // namespace
