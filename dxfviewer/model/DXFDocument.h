// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

#include <QHash>
#include <QList>
#include <QSharedPointer>
#include <QString>
#include <QVector>

#include <memory>

class DXFEntity;
class DXFLayer;
class DXFLineType;
class QByteArray;

namespace dxfviewer
{
class DocumentAccess;
class EntitySummaries;
} // namespace dxfviewer

/**
 * A drawing in memory: its layers, its line types and its entities, each in the order of arrival.
 *
 * It is always held through a QSharedPointer: the graphics item, the eraser and every done delete
 * command share it. The lists that it returns are copies that point at the same objects; copying
 * them is cheap. Layers and line types are found by the name that they had when they were added.
 * A null entity is allowed; every walk skips it. GUI thread only.
 */
class DXFVIEWER_EXPORT DXFDocument
{
public:
    /// An empty drawing.
    DXFDocument();
    ~DXFDocument();

    /**
     * Reads a drawing from the text of a DXF file.
     *
     * The document is not set up yet: its polylines have no segments. Null on failure.
     */
    static QSharedPointer<DXFDocument> load(const QByteArray& data);

    QList<QSharedPointer<DXFLayer>> layers() const { return m_layers; }
    QList<QSharedPointer<DXFLineType>> lineTypes() const { return m_lineTypes; }
    QList<QSharedPointer<DXFEntity>> entities() const { return m_entities; }

    /// The layer of exactly this name, or null.
    QSharedPointer<DXFLayer> getLayer(const QString& name) const;
    /// The line type of exactly this name, or null.
    QSharedPointer<DXFLineType> getLineType(const QString& name) const;

    /// Adds a layer. False, and nothing is added, if it is null or its name is taken.
    bool addLayer(QSharedPointer<DXFLayer> layer);
    /// Adds a line type. False, and nothing is added, if it is null or its name is taken.
    bool addLineType(QSharedPointer<DXFLineType> lineType);

    /**
     * Adds an entity at the end, whether it is listed already or not. Always true.
     *
     * The entity is not set up. After the document's setup() the caller must do that.
     */
    bool addEntity(QSharedPointer<DXFEntity> entity);
    /// Removes every entry of this object. Always true, even if there was none.
    bool deleteEntity(QSharedPointer<DXFEntity> entity);

    /// Selects the entities and segments whose ids are listed and deselects all others.
    void setSelected(QVector<int> ids);
    /// Marks the entities and segments whose ids are listed as hovered, and no others.
    void setHovered(QVector<int> ids);
    /// The ids of the selected polylines and segments: entity by entity, each before its segments.
    QVector<int> selectedIDs() const;

    /**
     * Resolves the colour and the line width of every entity and makes the segments.
     *
     * Only the first call does anything: entities that are added later stay as they are.
     */
    void setup();

private:
    Q_DISABLE_COPY(DXFDocument)

    friend class dxfviewer::DocumentAccess;

    QList<QSharedPointer<DXFLayer>> m_layers;
    QList<QSharedPointer<DXFLineType>> m_lineTypes;
    QList<QSharedPointer<DXFEntity>> m_entities;
    // Made by the first walk that needs it, and used as long as it is current.
    mutable std::shared_ptr<dxfviewer::EntitySummaries> m_summaries;
    bool m_needsSetup = true;
    // The same objects by the name that each had when it was added.
    QHash<QString, QSharedPointer<DXFLayer>> m_layersByName;
    QHash<QString, QSharedPointer<DXFLineType>> m_lineTypesByName;
};
