// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/DXFDocument.h"

#include "dxfviewer/model/DXFEntity.h"
#include "dxfviewer/model/DXFLayer.h"
#include "dxfviewer/model/DXFLineType.h"
#include "dxfviewer/model/EntityWalk.h"
#include "dxfviewer/model/IdSet.h"
#include "dxfviewer/model/PolylineAccess.h"
#include "dxfviewer/model/Polylines.h"
#include "dxfviewer/render/DXFPaintHelper.h"

using dxfviewer::asPolyline;
using dxfviewer::EntityWalk;
using dxfviewer::IdSet;
using dxfviewer::PolylineAccess;
using dxfviewer::PolylineSummary;

namespace
{

/// Adds a named object to its list unless it is null or its name is taken: the first one wins.
template <typename Named>
bool addNamed(QList<QSharedPointer<Named>>& list, QHash<QString, QSharedPointer<Named>>& byName,
              const QSharedPointer<Named>& added)
{
    if (!added || byName.contains(added->name()))
        return false;
    byName.insert(added->name(), added);
    list.append(added);
    return true;
}

} // namespace

DXFDocument::DXFDocument() = default;
DXFDocument::~DXFDocument() = default;

QSharedPointer<DXFLayer> DXFDocument::getLayer(const QString& name) const
{
    return m_layersByName.value(name);
}

QSharedPointer<DXFLineType> DXFDocument::getLineType(const QString& name) const
{
    return m_lineTypesByName.value(name);
}

bool DXFDocument::addLayer(QSharedPointer<DXFLayer> layer)
{
    return addNamed(m_layers, m_layersByName, layer);
}

bool DXFDocument::addLineType(QSharedPointer<DXFLineType> lineType)
{
    return addNamed(m_lineTypes, m_lineTypesByName, lineType);
}

bool DXFDocument::addEntity(QSharedPointer<DXFEntity> entity)
{
    m_entities.append(entity);
    m_summaries.reset();
    return true;
}

bool DXFDocument::deleteEntity(QSharedPointer<DXFEntity> entity)
{
    m_entities.removeAll(entity);
    m_summaries.reset();
    return true;
}

void DXFDocument::setSelected(QVector<int> ids)
{
    const IdSet set(ids);
    const auto isConcerned = [&set](const PolylineSummary& polyline) {
        return !polyline.hasAllIds() || polyline.isSelected || polyline.isAnySegmentSelected
               || set.contains(polyline.id) || polyline.mayHaveAny(set);
    };
    EntityWalk(*this).change(isConcerned, [&set](const QSharedPointer<DXFEntity>& entity) {
        if (!entity)
            return;
        // Written only where it changes: a walk that only reads memory is cheaper.
        const bool isSelected = set.contains(entity->id());
        if (isSelected != entity->isSelected())
            entity->setSelected(isSelected);
        if (auto* polyline = asPolyline(entity))
            PolylineAccess::selectSegments(*polyline, set);
    });
}

void DXFDocument::setHovered(QVector<int> ids)
{
    const IdSet set(ids);
    const auto isConcerned = [&set](const PolylineSummary& polyline) {
        return !polyline.hasAllIds() || polyline.isHovered || polyline.isAnySegmentHovered
               || set.contains(polyline.id) || polyline.mayHaveAny(set);
    };
    EntityWalk(*this).change(isConcerned, [&set](const QSharedPointer<DXFEntity>& entity) {
        if (!entity)
            return;
        const bool isHovered = set.contains(entity->id());
        if (isHovered != entity->isHovered())
            entity->setHovered(isHovered);
        if (auto* polyline = asPolyline(entity))
            PolylineAccess::hoverSegments(*polyline, set);
    });
}

QVector<int> DXFDocument::selectedIDs() const
{
    QVector<int> ids;
    const auto isConcerned = [](const PolylineSummary& polyline) {
        return polyline.isSelected || polyline.isAnySegmentSelected;
    };
    EntityWalk(*this).look(isConcerned, [&ids](const QSharedPointer<DXFEntity>& entity) {
        const DXFPolyline* polyline = asPolyline(entity);
        if (!polyline)
            return;
        if (polyline->isSelected())
            ids.append(polyline->id());
        if (!PolylineAccess::isAnySegmentSelected(*polyline))
            return;
        for (const Segment& segment : PolylineAccess::segments(*polyline)) {
            if (segment.isSelected())
                ids.append(segment.id());
        }
    });
    return ids;
}

void DXFDocument::setup()
{
    if (!m_needsSetup)
        return;

    DXFPaintHelper paintHelper(*this);
    // A copy: a message handler that gets the warning about a colour may change the document.
    const auto entities = m_entities;
    for (const auto& entity : entities) {
        if (!entity)
            continue;
        entity->setLineWidth(paintHelper.lineWidth(entity));
        entity->setColor(paintHelper.lineColor(entity));
        entity->setup();
    }
    m_needsSetup = false;
}
