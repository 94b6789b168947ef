// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"
#include "dxfviewer/model/Segment.h"

#include <QHash>
#include <QList>
#include <QSharedPointer>
#include <QUndoCommand>
#include <QVector>

#include <memory>
#include <vector>

class DXFDocument;
class DXFEntity;
class DXFPolyline;

namespace dxfviewer
{
class EntitySummaries;
class IdSet;
class Snapshot;
} // namespace dxfviewer

/**
 * Deletes segments from a document, as one undoable step.
 *
 * Polylines are cut where segments are taken out of their middle; a polyline that loses all its
 * segments is removed. Undo puts back clones that were made before the deletion. They have new
 * entity ids and the old segment ids, and stand in the order of the old entity ids.
 *
 * Every deletion gives every polyline of the document its own segments again. So every bulge
 * becomes straight, z becomes 0, and polylines without segments disappear. A closed polyline stays
 * closed only if its first and last point coincide. In a saved drawing any other closed polyline
 * has lost its closing edge, and its last vertex stands there twice.
 */
class DXFVIEWER_EXPORT DeleteItems : public QUndoCommand
{
public:
    /// The document is not touched before redo(). Ids that are not those of segments are ignored.
    DeleteItems(QSharedPointer<DXFDocument> document, QVector<int> const& ids);
    ~DeleteItems() override;

    void undo() override;
    void redo() override;

    /// Applies the deletion to one polyline of the document, without a snapshot. Each call takes
    /// time that grows with the ids and with the document; for many polylines redo() is quicker.
    void splitPoly(QSharedPointer<DXFPolyline> const& polyline);

private:
    using EntityList = QList<QSharedPointer<DXFEntity>>;
    using PiecesByOrigin = QHash<int, QList<QVector<Segment>>>;

    struct Run;

    std::vector<int> placesToCut(dxfviewer::EntitySummaries& summaries) const;
    EntityList cutAll(const EntityList& entities, const std::vector<int>& places,
                      std::vector<int>& erased);
    bool cut(DXFPolyline& polyline, const dxfviewer::IdSet& deleted, PiecesByOrigin& formerPieces,
             EntityList& added);
    QSharedPointer<DXFPolyline> makePiece(DXFPolyline& cutPolyline, const Run& run,
                                          PiecesByOrigin& formerPieces);
    static QVector<Segment> segmentsOf(const Run& run);
    static QVector<Run> survivingRuns(const QVector<Segment>& segments,
                                      const dxfviewer::IdSet& deleted);

    QSharedPointer<DXFDocument> m_document;
    QVector<int> m_ids;
    std::unique_ptr<dxfviewer::Snapshot> m_snapshot;
    // The segments of the cut-off pieces as they were first made, by the id that the first segment
    // of each piece had before. An id has one piece, unless polylines share their segments' ids, as
    // clones do. A redo gives its pieces the same segment ids again, so that later commands on the
    // stack find what they deleted.
    PiecesByOrigin m_pieces;
};
