// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/DXFPolyline.h"

#include "dxfviewer/model/Changes.h"
#include "dxfviewer/model/IdSet.h"
#include "dxfviewer/model/PolylineAccess.h"
#include "dxfviewer/model/PolylineState.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

using dxfviewer::Changes;
using dxfviewer::IdSet;
using dxfviewer::PolylineAccess;

namespace
{

constexpr unsigned int closedBit = 1;

// Room for most polylines, so that reading seldom has to move vertices. What is not used is freed
// at the end.
constexpr int firstVertices = 12;

// So far below the greatest float that rounding cannot lead beyond it.
constexpr double largestBound = 1e38;

QPointF pointOf(const DXFVertex& vertex)
{
    return QPointF(vertex.x(), vertex.y());
}

DXFVertex vertexAt(const QPointF& point)
{
    return DXFVertex(point.x(), point.y(), 0.0, true, 0.0);
}

/// Compares as QPointF does: by another rule if one of the values is zero.
bool coincide(double a, double b)
{
    return a == 0.0 || b == 0.0 ? qFuzzyIsNull(a - b) : qFuzzyCompare(a, b);
}

bool coincide(const QPointF& a, const QPointF& b)
{
    return coincide(a.x(), b.x()) && coincide(a.y(), b.y());
}

/// Tells 0 from -0: a file keeps the sign of a zero.
bool isPositiveZero(double value)
{
    return value == 0.0 && !std::signbit(value);
}

/// Whether a vertex has neither height nor bulge.
bool isPlain(const DXFVertex& vertex)
{
    return isPositiveZero(vertex.z()) && isPositiveZero(vertex.bulge());
}

/// More than rounding to a float can add or take away.
double floatSlack(double value)
{
    constexpr double relative = std::numeric_limits<float>::epsilon();
    constexpr double absolute = std::numeric_limits<float>::min();
    return std::abs(value) * relative + absolute;
}

float boundBelow(double value)
{
    return static_cast<float>(value - floatSlack(value));
}

float boundAbove(double value)
{
    return static_cast<float>(value + floatSlack(value));
}

/// The extent of points, as long as all of them are finite.
class Extent
{
public:
    void add(const QPointF& point)
    {
        left = std::min(left, point.x());
        right = std::max(right, point.x());
        top = std::min(top, point.y());
        bottom = std::max(bottom, point.y());
        // Comparisons do not notice NaN. This sum stays 0 as long as all coordinates are finite.
        m_poison += (point.x() + point.y()) * 0.0;
    }

    bool isBounded() const
    {
        return m_poison == 0.0 && left <= right && left >= -largestBound && right <= largestBound
               && top >= -largestBound && bottom <= largestBound;
    }

    double left = std::numeric_limits<double>::infinity();
    double top = left;
    double right = -left;
    double bottom = -left;

private:
    double m_poison = 0.0;
};

void appendSegment(QVector<Segment>& segments, const QPointF& from, const QPointF& to)
{
    segments.append(Segment(QLineF(from, to)));
    segments.constLast().id();
}

using FlagGetter = bool (IDeletable::*)() const;
using FlagSetter = void (IDeletable::*)(bool);

/// Sets a flag of the segments whose ids are in the set and clears it in all others. Returns
/// whether any segment has the flag now. A list in which nothing changes stays shared: most
/// polylines are far from the eraser.
template <FlagGetter isSet, FlagSetter set>
bool flagSegments(QVector<Segment>& segments, const IdSet& ids)
{
    bool isAnySet = false;
    const auto isListed = [&](const Segment& segment) {
        const bool listed = ids.contains(segment.id());
        isAnySet = isAnySet || listed;
        return listed;
    };
    const auto firstChange =
        std::find_if(segments.cbegin(), segments.cend(), [&](const Segment& segment) {
            return isListed(segment) != (segment.*isSet)();
        });
    const auto unchanged = firstChange - segments.cbegin();
    if (unchanged != segments.size()) {
        std::for_each(segments.begin() + unchanged, segments.end(),
                      [&](Segment& segment) { (segment.*set)(isListed(segment)); });
    }
    return isAnySet;
}

} // namespace

DXFPolyline::Geometry::Geometry(unsigned int m, unsigned int n, unsigned int givenFlags)
    : mVertices(m)
    , nVertices(n)
    , flags(givenFlags)
{
    summarize();
}

int DXFPolyline::Geometry::vertexNumber() const
{
    switch (derived) {
    case Derived::AllPoints:
        return static_cast<int>(segments.size()) + 1;
    case Derived::AllButTheLastPoint:
        return static_cast<int>(segments.size());
    case Derived::None:
        break;
    }
    return static_cast<int>(vertices.size());
}

QPointF DXFPolyline::Geometry::pointAt(int vertex) const
{
    if (derived == Derived::None)
        return pointOf(vertices.at(vertex));
    return vertex == 0 ? segments.constFirst().line().p1() : segments.at(vertex - 1).line().p2();
}

QVector<DXFVertex> DXFPolyline::Geometry::derivedVertices() const
{
    const int count = vertexNumber();
    QVector<DXFVertex> points;
    points.reserve(count);
    for (int i = 0; i < count; ++i)
        points.append(vertexAt(pointAt(i)));
    return points;
}

void DXFPolyline::Geometry::keepVertices() const
{
    if (derived != Derived::None && vertices.isEmpty())
        vertices = derivedVertices();
}

/// Leaves as much room as the segments will take. The set-up frees vertices polyline by polyline,
/// so the segments of the next one find room where the vertices were.
void DXFPolyline::Geometry::trimVertices()
{
    constexpr int vertexSize = sizeof(DXFVertex);
    constexpr int segmentSize = sizeof(Segment);
    const int count = static_cast<int>(vertices.size());
    const int segmentCount = (flags & closedBit) != 0 ? count : count - 1;
    const qint64 needed = (qint64(segmentCount) * segmentSize + vertexSize - 1) / vertexSize;
    const qint64 room = qMax<qint64>(count, needed);
    if (vertices.capacity() <= room)
        return;
    QVector<DXFVertex> trimmed;
    trimmed.reserve(static_cast<int>(room));
    std::copy(vertices.cbegin(), vertices.cend(), std::back_inserter(trimmed));
    vertices = trimmed;
}

void DXFPolyline::Geometry::setClosed(bool closed)
{
    flags = closed ? flags | closedBit : flags & ~closedBit;
}

/// Computes the summary of all segments.
void DXFPolyline::Geometry::summarize()
{
    Extent extent;
    isAnySelected = false;
    isAnyHovered = false;
    leastId = std::numeric_limits<int>::max();
    greatestId = std::numeric_limits<int>::min();
    for (const Segment& segment : qAsConst(segments)) {
        extent.add(segment.line().p1());
        extent.add(segment.line().p2());
        isAnySelected = isAnySelected || segment.isSelected();
        isAnyHovered = isAnyHovered || segment.isHovered();
        leastId = std::min(leastId, PolylineAccess::assignedId(segment));
        greatestId = std::max(greatestId, PolylineAccess::assignedId(segment));
    }

    constexpr float unknown = std::numeric_limits<float>::quiet_NaN();
    bounds = {unknown, unknown, unknown, unknown};
    if (extent.isBounded())
        bounds = {boundBelow(extent.left), boundBelow(extent.top), boundAbove(extent.right),
                  boundAbove(extent.bottom)};
}

DXFPolyline::DXFPolyline(unsigned int mVertices, unsigned int nVertices, unsigned int flags)
    : m_geometry(mVertices, nVertices, flags)
{
}

DXFPolyline::DXFPolyline(const DXFPolyline& other)
    : DXFEntity(other)
    , m_geometry(other.m_geometry)
    , m_ownColor(other.m_ownColor)
    , m_ownLineWidth(other.m_ownLineWidth)
{
}

DXFPolyline& DXFPolyline::operator=(const DXFPolyline& other)
{
    if (this == &other)
        return *this;
    DXFEntity::operator=(other);
    m_geometry = other.m_geometry;
    m_ownColor = other.m_ownColor;
    m_ownLineWidth = other.m_ownLineWidth;
    if (m_areVerticesKnown)
        m_geometry.keepVertices();
    Changes::note();
    return *this;
}

DXFPolyline::~DXFPolyline()
{
    if (m_state)
        m_state->forgetPolyline();
}

int DXFPolyline::type()
{
    return 0;
}

QString DXFPolyline::toString() const
{
    // The label of the third value has no colon. That is its fixed form.
    return QStringLiteral("[POLYLINE vertexNumber: %1, mVertices: %2, nVertices %3, flags: %4]")
        .arg(vertexNumber())
        .arg(mVertices())
        .arg(nVertices())
        .arg(flags(), 0, 16);
}

void DXFPolyline::setup()
{
    if (!m_geometry.needsSetup)
        return;
    m_geometry.needsSetup = false;

    const bool getsClosed = isClosed() && vertexNumber() > 2;
    QVector<DXFVertex>& vertices = m_geometry.vertices;
    const bool arePlain =
        vertexNumber() > 1 && std::all_of(vertices.cbegin(), vertices.cend(), isPlain);
    const Derived derived = getsClosed ? Derived::AllButTheLastPoint : Derived::AllPoints;
    m_geometry.segments = newSegments(getsClosed);
    m_geometry.derived = arePlain ? derived : Derived::None;
    m_geometry.summarize();
    if (arePlain && !m_areVerticesKnown)
        vertices = QVector<DXFVertex>();
    else
        vertices.squeeze();
    Changes::note();
}

QVector<Segment> DXFPolyline::newSegments(bool getsClosed) const
{
    const int vertexCount = vertexNumber();
    QVector<Segment> segments;
    if (vertexCount < 2)
        return segments;

    segments.reserve(vertexCount - (getsClosed ? 0 : 1));
    for (int i = 1; i < vertexCount; ++i)
        appendSegment(segments, m_geometry.pointAt(i - 1), m_geometry.pointAt(i));
    if (getsClosed)
        appendSegment(segments, segments.constFirst().line().p1(),
                      segments.constLast().line().p2());
    return segments;
}

DXFPolyline* DXFPolyline::clone()
{
    auto* copy = new DXFPolyline(*this);
    copy->regenerateID();
    return copy;
}

bool DXFPolyline::isClosed() const
{
    return (flags() & closedBit) != 0;
}

const QVector<DXFVertex>& DXFPolyline::vertices() const
{
    m_areVerticesKnown = true;
    m_geometry.keepVertices();
    return m_geometry.vertices;
}

int DXFPolyline::vertexNumber() const
{
    return m_geometry.vertexNumber();
}

void DXFPolyline::appendPoint(const DXFVertex& vertex)
{
    m_geometry.keepVertices();
    m_geometry.derived = Derived::None;
    if (m_geometry.vertices.isEmpty())
        m_geometry.vertices.reserve(firstVertices);
    m_geometry.vertices.append(vertex);
    // Until there is a state to compare with, nobody has looked at the vertices.
    if (m_state)
        Changes::note();
}

/// Whether setSegments() was called with this very list before and nothing has changed since.
/// Every polyline of a drawing is given its own segments again whenever anything is erased, so this
/// must not read the memory in which they lie.
bool DXFPolyline::isMadeOf(const QVector<Segment>& segments) const
{
    return m_geometry.derived == Derived::AllPoints && m_geometry.needsSetup
           && segments.isSharedWith(m_geometry.segments);
}

void DXFPolyline::setSegments(const QVector<Segment>& segments)
{
    if (isMadeOf(segments))
        return;

    Changes::note();
    const bool isSameList = segments.isSharedWith(m_geometry.segments);
    m_geometry.mVertices = 0;
    m_geometry.nVertices = 0;
    m_geometry.needsSetup = true;
    if (segments.isEmpty()) {
        m_geometry.keepVertices();
        m_geometry.derived = Derived::None;
    } else if (!isSameList || m_geometry.derived != Derived::AllPoints) {
        m_geometry.vertices = QVector<DXFVertex>();
        m_geometry.derived = Derived::AllPoints;
    }
    if (!isSameList) {
        m_geometry.segments = segments;
        m_geometry.summarize();
    }
    if (segments.isEmpty())
        return;

    m_geometry.setClosed(
        coincide(segments.constFirst().line().p1(), segments.constLast().line().p2()));
    if (m_areVerticesKnown)
        m_geometry.keepVertices();
}

/// Gives each segment the id and the flags of its counterpart in a list of the same length.
void DXFPolyline::takeSegmentIdsFrom(const QVector<Segment>& segments)
{
    if (segments.size() != m_geometry.segments.size())
        return;
    QVector<Segment> renamed = m_geometry.segments;
    auto former = segments.cbegin();
    for (Segment& segment : renamed) {
        const QLineF line = segment.line();
        segment = *former++;
        segment.setLine(line);
    }
    m_geometry.segments = renamed;
    m_geometry.summarize();
}

void DXFPolyline::setSelectedSegments(QVector<int> ids)
{
    PolylineAccess::selectSegments(*this, IdSet(ids));
}

void DXFPolyline::setHoveredSegments(QVector<int> ids)
{
    PolylineAccess::hoverSegments(*this, IdSet(ids));
}

/// Gives ids to the segments that have none. The loop detaches a shared list first: otherwise its
/// other holders would get the same ids.
void DXFPolyline::assignIds()
{
    for (const Segment& segment : m_geometry.segments)
        segment.id();
    m_geometry.summarize();
}

void DXFPolyline::selectSegments(const IdSet& ids)
{
    m_geometry.isAnySelected =
        flagSegments<&IDeletable::isSelected, &IDeletable::setSelected>(m_geometry.segments, ids);
}

void DXFPolyline::hoverSegments(const IdSet& ids)
{
    m_geometry.isAnyHovered =
        flagSegments<&IDeletable::isHovered, &IDeletable::setHovered>(m_geometry.segments, ids);
}
