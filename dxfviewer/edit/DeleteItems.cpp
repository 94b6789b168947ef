// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/DeleteItems.h"

#include "dxfviewer/edit/Snapshot.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/IdSet.h"
#include "dxfviewer/model/PolylineAccess.h"
#include "dxfviewer/model/PolylineState.h"
#include "dxfviewer/model/Polylines.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

using dxfviewer::asPolyline;
using dxfviewer::IdSet;
using dxfviewer::PolylineAccess;

namespace
{

using EntityList = QList<QSharedPointer<DXFEntity>>;

/// Removes the entries of the entities that are erased, which are in the order of the list.
void remove(const std::vector<const DXFEntity*>& erased, EntityList& entities)
{
    if (erased.empty())
        return;
    auto next = erased.cbegin();
    auto kept = entities.begin();
    for (auto& entity : entities) {
        if (next != erased.cend() && entity.data() == *next)
            ++next;
        else
            (kept++)->swap(entity);
    }
    entities.erase(kept, entities.end());
}

bool losesNothing(const DXFPolyline& polyline, const IdSet& deleted)
{
    const auto& segments = PolylineAccess::segments(polyline);
    return !PolylineAccess::mayHaveAny(polyline, deleted)
           || std::none_of(segments.cbegin(), segments.cend(), [&deleted](const Segment& segment) {
                  return deleted.contains(segment.id());
              });
}

/// What becomes of a polyline that loses nothing. Its list stays shared with the snapshots.
void giveSegmentsAgain(DXFPolyline& polyline)
{
    polyline.setSegments(PolylineAccess::segments(polyline));
    if (auto* state = PolylineAccess::state(polyline))
        state->noteSegmentsGivenAgain(polyline);
}

} // namespace

/// Consecutive segments that a deletion leaves.
struct DeleteItems::Run {
    const Segment* begin = nullptr;
    const Segment* end = nullptr;
};

DeleteItems::DeleteItems(QSharedPointer<DXFDocument> document, QVector<int> const& ids)
    : m_document(std::move(document))
    , m_ids(ids)
    , m_snapshot(std::make_unique<dxfviewer::Snapshot>())
{
}

DeleteItems::~DeleteItems() = default;

void DeleteItems::redo()
{
    if (!m_document)
        return;
    m_snapshot->take(m_document->entities());

    std::vector<const DXFEntity*> erased;
    const EntityList added = cutAll(erased);
    remove(erased, m_document->m_entities);
    m_document->m_entities += added;
}

void DeleteItems::undo()
{
    if (!m_document)
        return;

    m_snapshot->restore(m_document->m_entities);
}

void DeleteItems::splitPoly(QSharedPointer<DXFPolyline> const& polyline)
{
    if (!m_document || !polyline)
        return;

    // Not the command's own doing: the pieces are new ones, and no redo makes them again.
    const QScopedValueRollback<PiecesByOrigin> ownPieces(m_pieces, PiecesByOrigin());
    PiecesByOrigin formerPieces;
    EntityList added;
    if (!cut(*polyline, IdSet(m_ids), formerPieces, added))
        m_document->deleteEntity(polyline);
    for (const auto& piece : qAsConst(added))
        m_document->addEntity(piece);
}

QVector<Segment> DeleteItems::segmentsOf(const Run& run)
{
    QVector<Segment> segments;
    segments.reserve(static_cast<int>(run.end - run.begin));
    std::copy(run.begin, run.end, std::back_inserter(segments));
    return segments;
}

QVector<DeleteItems::Run> DeleteItems::survivingRuns(const QVector<Segment>& segments,
                                                     const IdSet& deleted)
{
    const auto isDeleted = [&deleted](const Segment& segment) {
        return deleted.contains(segment.id());
    };
    const Segment* const end = segments.constData() + segments.size();
    QVector<Run> runs;
    Run run{nullptr, segments.constData()};
    while (run.end != end) {
        run.begin = std::find_if_not(run.end, end, isDeleted);
        run.end = std::find_if(run.begin, end, isDeleted);
        if (run.begin != run.end)
            runs.append(run);
    }
    return runs;
}

/// Cuts the deleted segments out of all polylines. Returns the pieces that are to be added to the
/// document; the polylines of which nothing is left go to erased, in the document's order.
DeleteItems::EntityList DeleteItems::cutAll(std::vector<const DXFEntity*>& erased)
{
    const IdSet deleted(m_ids);
    PiecesByOrigin formerPieces = m_pieces;
    EntityList added;
    const EntityList entities = m_document->entities();
    for (const auto& entity : entities) {
        DXFPolyline* polyline = asPolyline(entity);
        if (polyline && !cut(*polyline, deleted, formerPieces, added))
            erased.push_back(entity.data());
    }
    return added;
}

/// Cuts the deleted segments out of a polyline, which keeps the first piece, and appends the
/// others to added. False if nothing is left of it: the polyline itself is then unchanged.
bool DeleteItems::cut(DXFPolyline& polyline, const IdSet& deleted, PiecesByOrigin& formerPieces,
                      EntityList& added)
{
    if (!PolylineAccess::hasSegments(polyline))
        return false;
    if (losesNothing(polyline, deleted)) {
        giveSegmentsAgain(polyline);
        return true;
    }

    const auto segments = polyline.segments();
    const auto runs = survivingRuns(segments, deleted);
    if (runs.isEmpty())
        return false;
    const Run& first = runs.first();
    polyline.setSegments(segmentsOf(first));
    for (auto run = runs.cbegin() + 1; run != runs.cend(); ++run)
        added.append(makePiece(polyline, *run, formerPieces));
    return true;
}

QSharedPointer<DXFPolyline> DeleteItems::makePiece(DXFPolyline& cutPolyline, const Run& run,
                                                   PiecesByOrigin& formerPieces)
{
    QSharedPointer<DXFPolyline> piece(cutPolyline.clone());
    piece->setSegments(segmentsOf(run));
    piece->setup();

    const int origin = run.begin->id();
    const auto former = formerPieces.find(origin);
    if (former != formerPieces.end() && !former->isEmpty())
        PolylineAccess::takeSegmentIdsFrom(*piece, former->takeFirst());
    else
        m_pieces[origin].append(piece->segments());
    return piece;
}
