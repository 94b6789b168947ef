// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/DXFPolyline.h"

#include "dxfviewer/model/IdSet.h"
#include "dxfviewer/model/Identical.h"

#include <algorithm>

using dxfviewer::identical;
using dxfviewer::IdSet;

namespace
{

constexpr unsigned int closedBit = 1;

// Room for most polylines, so that reading them does not move vertices about. setup() gives back
// what is too much.
constexpr int firstVertices = 12;

QPointF pointOf(const DXFVertex& vertex)
{
    return QPointF(vertex.x(), vertex.y());
}

DXFVertex vertexAt(const QPointF& point)
{
    return DXFVertex(point.x(), point.y(), 0.0, true, 0.0);
}

/// Fuzzy in the way of QPointF's comparison, which differs by what is compared with zero.
bool coincide(double a, double b)
{
    return a == 0.0 || b == 0.0 ? qFuzzyIsNull(a - b) : qFuzzyCompare(a, b);
}

bool coincide(const QPointF& a, const QPointF& b)
{
    return coincide(a.x(), b.x()) && coincide(a.y(), b.y());
}

bool liesAt(const DXFVertex& vertex, const QPointF& point)
{
    return identical(vertex.x(), point.x()) && identical(vertex.y(), point.y())
           && identical(vertex.z(), 0.0) && identical(vertex.bulge(), 0.0);
}

/// Whether the vertices are already what verticesAlong() would return.
bool lieAlong(const QVector<DXFVertex>& vertices, const Segment* begin, const Segment* end)
{
    return vertices.size() == end - begin + 1 && liesAt(vertices.first(), begin->line().p1())
           && std::equal(begin, end, vertices.cbegin() + 1,
                         [](const Segment& segment, const DXFVertex& vertex) {
                             return liesAt(vertex, segment.line().p2());
                         });
}

QVector<DXFVertex> verticesAlong(const Segment* begin, const Segment* end)
{
    QVector<DXFVertex> vertices;
    vertices.reserve(static_cast<int>(end - begin) + 1);
    vertices.append(vertexAt(begin->line().p1()));
    for (const Segment* segment = begin; segment != end; ++segment)
        vertices.append(vertexAt(segment->line().p2()));
    return vertices;
}

void appendSegment(QVector<Segment>& segments, const QPointF& from, const QPointF& to)
{
    segments.append(Segment(QLineF(from, to)));
    segments.constLast().id();
}

using FlagGetter = bool (IDeletable::*)() const;
using FlagSetter = void (IDeletable::*)(bool);

/// Sets a flag of every segment to whether its id is in the set. A list in which nothing changes
/// stays shared with whoever else holds it: most polylines are far from the eraser.
template <FlagGetter isSet, FlagSetter set>
void flagSegments(QVector<Segment>& segments, const IdSet& ids)
{
    const auto firstChange =
        std::find_if(segments.cbegin(), segments.cend(), [&ids](const Segment& segment) {
            return ids.contains(segment.id()) != (segment.*isSet)();
        });
    const auto unchanged = firstChange - segments.cbegin();
    if (unchanged == segments.size())
        return;

    std::for_each(segments.begin() + unchanged, segments.end(),
                  [&ids](Segment& segment) { (segment.*set)(ids.contains(segment.id())); });
}

} // namespace

DXFPolyline::DXFPolyline(unsigned int mVertices, unsigned int nVertices, unsigned int flags)
    : m_mVertices(mVertices)
    , m_nVertices(nVertices)
    , m_flags(flags)
{
}

DXFPolyline::DXFPolyline(const DXFPolyline&) = default;
DXFPolyline& DXFPolyline::operator=(const DXFPolyline&) = default;
DXFPolyline::~DXFPolyline() = default;

int DXFPolyline::type()
{
    return 0;
}

QString DXFPolyline::toString() const
{
    // The label of the third value has no colon. That is its fixed form.
    return QStringLiteral("[POLYLINE vertexNumber: %1, mVertices: %2, nVertices %3, flags: %4]")
        .arg(vertexNumber())
        .arg(m_mVertices)
        .arg(m_nVertices)
        .arg(m_flags, 0, 16);
}

void DXFPolyline::setup()
{
    if (!m_needsSetup)
        return;
    m_needsSetup = false;

    // The reader adds vertices one by one, which leaves room for more than there are.
    m_vertices.squeeze();
    m_segments = QVector<Segment>();
    if (m_vertices.size() < 2)
        return;

    const bool getsClosed = isClosed() && m_vertices.size() > 2;
    m_segments.reserve(m_vertices.size() - (getsClosed ? 0 : 1));
    for (auto vertex = m_vertices.cbegin() + 1; vertex != m_vertices.cend(); ++vertex)
        appendSegment(m_segments, pointOf(*(vertex - 1)), pointOf(*vertex));
    if (getsClosed)
        appendSegment(m_segments, m_segments.constFirst().line().p1(),
                      m_segments.constLast().line().p2());
}

DXFPolyline* DXFPolyline::clone()
{
    auto* copy = new DXFPolyline(*this);
    copy->regenerateID();
    return copy;
}

bool DXFPolyline::isClosed() const
{
    return (m_flags & closedBit) != 0;
}

void DXFPolyline::setClosed(bool closed)
{
    m_flags = closed ? m_flags | closedBit : m_flags & ~closedBit;
}

void DXFPolyline::appendPoint(const DXFVertex& vertex)
{
    if (m_vertices.isEmpty())
        m_vertices.reserve(firstVertices);
    m_vertices.append(vertex);
    m_verticesFollowSegments = false;
}

/// Whether setSegments() was called with this very list before and nothing has changed since.
/// Every polyline of a drawing is given its own segments again whenever anything is erased, so
/// this must not cost a walk, nor a look at where the vertices lie in memory.
bool DXFPolyline::isMadeOf(const QVector<Segment>& segments) const
{
    return m_verticesFollowSegments && m_needsSetup
           && segments.constData() == m_segments.constData()
           && segments.size() == m_segments.size();
}

void DXFPolyline::setSegments(const QVector<Segment>& segments)
{
    if (isMadeOf(segments))
        return;

    m_segments = segments;
    setVerticesAlong(segments.constData(), segments.constData() + segments.size());
    m_verticesFollowSegments = !segments.isEmpty();
}

/// Does what setSegments() does but for taking the segments: the next setup() makes new ones.
void DXFPolyline::setVerticesAlong(const Segment* begin, const Segment* end)
{
    m_mVertices = 0;
    m_nVertices = 0;
    m_needsSetup = true;
    m_verticesFollowSegments = false;
    if (begin == end)
        return;

    // Vertices that are right already stay shared with the clones that undo keeps.
    if (!lieAlong(m_vertices, begin, end))
        m_vertices = verticesAlong(begin, end);
    setClosed(coincide(begin->line().p1(), (end - 1)->line().p2()));
}

/// Gives each segment the id and the flags of its counterpart in a list of the same length.
void DXFPolyline::takeSegmentIdsFrom(const QVector<Segment>& segments)
{
    if (segments.size() != m_segments.size())
        return;
    auto former = segments.cbegin();
    for (Segment& segment : m_segments) {
        const QLineF line = segment.line();
        segment = *former++;
        segment.setLine(line);
    }
}

void DXFPolyline::setSelectedSegments(QVector<int> ids)
{
    selectSegments(IdSet(ids));
}

void DXFPolyline::setHoveredSegments(QVector<int> ids)
{
    hoverSegments(IdSet(ids));
}

void DXFPolyline::selectSegments(const IdSet& ids)
{
    flagSegments<&IDeletable::isSelected, &IDeletable::setSelected>(m_segments, ids);
}

void DXFPolyline::hoverSegments(const IdSet& ids)
{
    flagSegments<&IDeletable::isHovered, &IDeletable::setHovered>(m_segments, ids);
}
