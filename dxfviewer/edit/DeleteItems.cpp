// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/DeleteItems.h"

#include "dxfviewer/edit/Snapshot.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DocumentAccess.h"
#include "dxfviewer/model/IdSet.h"
#include "dxfviewer/model/PolylineAccess.h"
#include "dxfviewer/model/PolylineState.h"
#include "dxfviewer/model/Polylines.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>
#include <vector>

using dxfviewer::asPolyline;
using dxfviewer::DocumentAccess;
using dxfviewer::EntitySummaries;
using dxfviewer::IdSet;
using dxfviewer::PolylineAccess;
using dxfviewer::PolylineSummary;
using dxfviewer::Snapshot;

namespace
{

using EntityList = QList<QSharedPointer<DXFEntity>>;

/// Removes entries from a list. The places are in order.
void remove(const std::vector<int>& places, EntityList& entities)
{
    // Removing one by one moves all later entries each time, but these are only pointers.
    constexpr std::size_t few = 8;
    if (places.size() <= few) {
        std::for_each(places.crbegin(), places.crend(),
                      [&entities](int place) { entities.removeAt(place); });
        return;
    }
    auto next = places.cbegin();
    int place = 0;
    const auto isNext = [&](const QSharedPointer<DXFEntity>&) {
        const bool isErased = next != places.cend() && place == *next;
        next += isErased ? 1 : 0;
        ++place;
        return isErased;
    };
    entities.erase(std::remove_if(entities.begin(), entities.end(), isNext), entities.end());
}

bool losesNothing(const DXFPolyline& polyline, const IdSet& deleted)
{
    const auto& segments = PolylineAccess::segments(polyline);
    return !PolylineAccess::mayHaveAny(polyline, deleted)
           || std::none_of(segments.cbegin(), segments.cend(), [&deleted](const Segment& segment) {
                  return deleted.contains(segment.id());
              });
}

/// For a polyline that loses nothing. Its list stays shared with the snapshots.
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
    , m_snapshot(std::make_unique<Snapshot>())
{
}

DeleteItems::~DeleteItems() = default;

void DeleteItems::redo()
{
    if (!m_document)
        return;
    auto summaries = DocumentAccess::summaries(*m_document);
    m_snapshot->take(m_document->entities(), *summaries);

    EntityList entities = m_document->entities();
    const std::vector<int> touched = placesToCut(*summaries);
    std::vector<int> erased;
    const EntityList added = cutAll(entities, touched, erased);
    // Erased entities are destroyed when the list is complete: the destructor of a host's own
    // entity may look at it.
    EntityList gone;
    for (const int place : erased)
        gone.append(entities.at(place));
    EntityList& remaining = DocumentAccess::entities(*m_document);
    // Somebody who walks over the document now needs the summaries as they are.
    const bool canTakeIn = !m_snapshot->hasHostsClones() && summaries.use_count() == 1;
    if (canTakeIn)
        summaries->takeInDeletion(entities, touched, erased, added);
    if (entities.isSharedWith(remaining)) {
        // Released before the list is changed: otherwise the change would copy it.
        entities = EntityList();
        remove(erased, remaining);
    } else {
        // A host's own polyline has changed the list when it was cloned.
        for (const auto& entity : qAsConst(gone))
            m_document->deleteEntity(entity);
    }
    remaining += added;
    if (canTakeIn)
        DocumentAccess::setSummaries(*m_document, std::move(summaries));
}

void DeleteItems::undo()
{
    if (!m_document)
        return;

    m_snapshot->restore(DocumentAccess::entities(*m_document));
}

void DeleteItems::splitPoly(QSharedPointer<DXFPolyline> const& polyline)
{
    if (!m_document || !polyline)
        return;

    // These pieces are not the command's own: no redo makes them again.
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

/// The places of the entities that the deletion may change.
std::vector<int> DeleteItems::placesToCut(EntitySummaries& summaries) const
{
    std::vector<int> places;
    if (m_snapshot->hasHostsClones()) {
        places.resize(static_cast<std::size_t>(m_document->entities().size()));
        std::iota(places.begin(), places.end(), 0);
        return places;
    }
    const IdSet deleted(m_ids);
    int place = 0;
    for (const auto& block : summaries.blocks()) {
        for (const PolylineSummary& polyline : block.polylines) {
            if (!polyline.isMadeOfItsSegments || polyline.mayHaveAny(deleted))
                places.push_back(place);
            ++place;
        }
        // Without summaries these are null.
        place += block.count - static_cast<int>(block.polylines.size());
    }
    return places;
}

/// Cuts the deleted segments out of the polylines at some places. Returns the pieces that are to be
/// added to the document. Appends to erased the places of the polylines of which nothing is left.
DeleteItems::EntityList DeleteItems::cutAll(const EntityList& entities,
                                            const std::vector<int>& places,
                                            std::vector<int>& erased)
{
    const IdSet deleted(m_ids);
    PiecesByOrigin formerPieces = m_pieces;
    EntityList added;
    for (const int place : places) {
        DXFPolyline* polyline = asPolyline(entities.at(place));
        if (polyline && !cut(*polyline, deleted, formerPieces, added))
            erased.push_back(place);
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
