// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/flatten/Block.h"
#include "dxfviewer/flatten/Look.h"
#include "dxfviewer/flatten/Placement.h"
#include "dxfviewer/io/WorkMeter.h"

#include <QHash>
#include <QMap>
#include <QSharedPointer>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

class DXFAttributes;
class DXFDocument;

namespace dxfviewer
{

class BlockWeights;
class Drawing;

/// Adds a gathered drawing to a document: every chain becomes a polyline. The chains of a block do
/// so at each of its inserts.
class DocumentFiller
{
public:
    /// @param steps  asked now and then whether to go on; may be null
    DocumentFiller(DXFDocument& document, Drawing& drawing, IReadingSteps* steps = nullptr);

    /// False, and nothing is added, if that makes more vertices and inserted blocks than this.
    bool fill(long long most);

    /// The entities that became polylines, and those that are not shown, by their kinds. What lies
    /// in a block counts once if the block is shown at all.
    QMap<QString, int> shown() const { return m_shown; }
    QMap<QString, int> skipped() const { return m_skipped; }
    /// The entities that are left out, counted in the same way: on layouts, and invisible ones.
    int elsewhere() const { return m_elsewhere; }
    int invisible() const { return m_invisible; }

private:
    /// An instance of a block, as far as it has been added.
    struct Instance {
        std::size_t block;
        Placement placement;
        /// The look that by-block means in it: its number in m_contexts.
        std::size_t context;
        bool isPlaced;
        std::size_t item = 0;
        std::size_t chain = 0;
        long long repeated = 0;
    };

    void count(const BlockWeights& weights);
    void dropEmptyInserts(const BlockWeights& weights);
    void indexLayers();
    void add();
    bool addNext(std::vector<Instance>& way);
    void addChain(const Instance& instance, const Block::Item& item);
    Instance inserted(const Instance& outer, const Block::Item& item, long long number);
    QSharedPointer<DXFAttributes> attributesOf(std::size_t context, std::size_t look);
    std::size_t contextOf(std::size_t context, std::size_t look);
    Look resolved(std::size_t context, std::size_t look) const;
    Look withoutLayer(const Look& look) const;
    QString layerName(const std::string& name) const;
    QString kindName(std::size_t kind) const;

    DXFDocument& m_document;
    Drawing& m_drawing;
    WorkMeter m_meter;
    QMap<QString, int> m_shown;
    QMap<QString, int> m_skipped;
    int m_elsewhere = 0;
    int m_invisible = 0;
    /// The names of the document's layers, by the same name without case.
    QHash<QString, QString> m_layerNames;

    /// The looks of inserts, fully resolved.
    Looks m_contexts;
    std::unordered_map<std::uint64_t, std::size_t> m_contextIds;
    Looks m_resolved;
    std::vector<QSharedPointer<DXFAttributes>> m_attributes;
    std::unordered_map<std::uint64_t, QSharedPointer<DXFAttributes>> m_attributesOfLooks;
};

} // namespace dxfviewer
