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
class IdSet;
class Snapshot;
} // namespace dxfviewer

/**
 * Deletes segments from a document, as one undoable step.
 *
 * Polylines are cut where segments are taken out of their middle; one whose segments are all gone
 * is removed. Undo puts clones back that were made before the deletion: they have new entity ids,
 * the old segment ids, and stand in the order of the old entity ids.
 *
 * Deleting anything anywhere gives every polyline of the document its segments anew. So every
 * bulge becomes straight, z becomes 0, polylines without segments disappear, and a closed polyline
 * stays closed only if its first and last point coincide: in a saved drawing the closing edge of
 * any other is lost, and its last vertex stands there twice.
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

    std::vector<int> takeSnapshot(const EntityList& entities);
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
    // The segments of the cut-off pieces as they were first made, by the id of the segment that
    // each piece began with before: one piece for an id, unless polylines share their segments'
    // ids, as clones do. A redo gives its pieces the same segment ids again, so that commands
    // above this one on the stack find what they deleted.
    PiecesByOrigin m_pieces;
};
