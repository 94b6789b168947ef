// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/edit/DeleteItems.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFPolyline.h"

#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"

#include <QUndoStack>

namespace dxftest
{

using Entity = QSharedPointer<DXFEntity>;
using Polyline = QSharedPointer<DXFPolyline>;
using Document = QSharedPointer<DXFDocument>;

/// A new id, which belongs to no entity and no segment.
inline int freshId()
{
    return Segment().id();
}

/// A horizontal polyline at the given y, with segments of one drawing unit.
inline Polyline makeLine(int segments, double y = 0.0)
{
    QVector<QPointF> points;
    for (int x = 0; x <= segments; ++x)
        points.append(QPointF(x, y));
    return makePolyline(points);
}

/// What can be seen of a polyline, except its own id.
struct PolylineState {
    QVector<QLineF> lines;
    QVector<int> segmentIds;
    QVector<QPointF> points;
    bool isClosed = false;

    bool operator==(const PolylineState& other) const
    {
        return lines == other.lines && segmentIds == other.segmentIds && points == other.points
               && isClosed == other.isClosed;
    }
};

inline void PrintTo(const PolylineState& state, std::ostream* out)
{
    *out << (state.isClosed ? "closed " : "open ") << ::testing::PrintToString(state.points)
         << " ids " << ::testing::PrintToString(state.segmentIds);
}

using State = std::vector<PolylineState>;

inline PolylineState stateOf(const DXFPolyline& polyline)
{
    return {linesOf(polyline), segmentIdsOf(polyline), pointsOf(polyline), polyline.isClosed()};
}

inline State stateOf(const Document& document)
{
    State state;
    for (int i = 0; i < document->entities().size(); ++i)
        state.push_back(stateOf(*polylineAt(document, i)));
    return state;
}

inline QVector<int> entityIdsOf(const Document& document)
{
    QVector<int> ids;
    const auto entities = document->entities();
    for (const Entity& entity : entities)
        ids.append(entity ? entity->id() : 0);
    return ids;
}

/// A document with one polyline of five segments, and the means to delete from it.
class DeleteItemsTest : public LoggedTest
{
protected:
    DeleteItemsTest() { use({makeLine(5)}); }

    void use(const QList<Entity>& entities)
    {
        document = makeDocument(entities);
        document->setup();
        entityIdsOf(document);
        ids = segmentIdsOf(document);
    }

    void push(const QVector<int>& deleted) { stack.push(new DeleteItems(document, deleted)); }

    Polyline at(int index) const { return polylineAt(document, index); }
    qsizetype entityCount() const { return document->entities().size(); }

    Document document;
    // The ids of the segments before anything is deleted.
    QVector<int> ids;
    QUndoStack stack;
};

} // namespace dxftest
