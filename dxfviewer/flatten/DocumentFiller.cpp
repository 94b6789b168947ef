// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/DocumentFiller.h"

#include "dxfviewer/flatten/BlockWeights.h"
#include "dxfviewer/flatten/Drawing.h"
#include "dxfviewer/io/Utf8.h"
#include "dxfviewer/model/DXFAttributes.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFLayer.h"
#include "dxfviewer/model/DXFPolyline.h"
#include "dxfviewer/model/PolylineAccess.h"

#include <algorithm>
#include <cstdlib>

namespace
{

using namespace dxfviewer;

constexpr int foregroundColor = 7;
constexpr int defaultWidth = -3;
constexpr int noHandle = -1;
constexpr const char* continuous = "CONTINUOUS";

std::uint64_t pairOf(std::size_t context, std::size_t look)
{
    constexpr int halfOfKey = 32;
    return static_cast<std::uint64_t>(context) << halfOfKey | look;
}

/// What by-block means in the drawing itself, outside all blocks.
Look outermostLook()
{
    Look look;
    look.color = foregroundColor;
    look.width = defaultWidth;
    look.lineType = continuous;
    return look;
}

bool isResolved(int color)
{
    return color != byBlockColor && color != byLayerColor;
}

} // namespace

namespace dxfviewer
{

DocumentFiller::DocumentFiller(DXFDocument& document, Drawing& drawing, IReadingSteps* steps)
    : m_document(document)
    , m_drawing(drawing)
    , m_meter(steps)
{
}

bool DocumentFiller::fill(long long most)
{
    const BlockWeights weights(m_drawing, most + 1, m_meter);
    if (weights.of(Drawing::model) > most)
        return false;
    count(weights);
    dropEmptyInserts(weights);
    indexLayers();
    add();
    return true;
}

void DocumentFiller::count(const BlockWeights& weights)
{
    for (std::size_t id = 0; id < m_drawing.blockCount(); ++id) {
        const Block& block = m_drawing.block(id);
        if (!weights.isReached(id)) {
            m_elsewhere += block.isLayout ? block.entityCount() : 0;
            continue;
        }
        m_elsewhere += block.elsewhere;
        m_invisible += block.invisible;
        for (const auto& [kind, number] : block.shown)
            m_shown[kindName(kind)] += number;
        for (const auto& [kind, number] : block.skipped)
            m_skipped[kindName(kind)] += number;
        for (const Block::Item& item : block.items) {
            m_meter.add();
            if (item.insert < 0)
                continue;
            const BlockInsert& insert = block.inserts[static_cast<std::size_t>(item.insert)];
            if (insert.isCut || !m_drawing.block(insert.block).isDefined)
                ++m_skipped[kindName(item.kind)];
            else if (weights.of(insert.block) > 0)
                ++m_shown[kindName(item.kind)];
        }
    }
}

/// Removes the inserts that show nothing: each would cost time whenever its block is inserted.
void DocumentFiller::dropEmptyInserts(const BlockWeights& weights)
{
    for (std::size_t id = 0; id < m_drawing.blockCount(); ++id) {
        Block& block = m_drawing.block(id);
        const auto showsNothing = [this, &block, &weights](const Block::Item& item) {
            m_meter.add();
            if (item.insert < 0)
                return false;
            const BlockInsert& insert = block.inserts[static_cast<std::size_t>(item.insert)];
            return insert.isCut || weights.of(insert.block) == 0;
        };
        block.items.erase(std::remove_if(block.items.begin(), block.items.end(), showsNothing),
                          block.items.end());
    }
}

void DocumentFiller::indexLayers()
{
    const auto layers = m_document.layers();
    for (const auto& layer : layers) {
        const QString name = layer->name();
        if (!m_layerNames.contains(name.toCaseFolded()))
            m_layerNames.insert(name.toCaseFolded(), name);
    }
}

void DocumentFiller::add()
{
    const std::size_t context = m_contexts.idOf(outermostLook());
    std::vector<Instance> way{{Drawing::model, {}, context, false}};
    while (!way.empty()) {
        if (!addNext(way))
            way.pop_back();
    }
}

/// Adds the next item of the innermost instance. False at its end.
bool DocumentFiller::addNext(std::vector<Instance>& way)
{
    m_meter.add();
    Instance& instance = way.back();
    const Block& block = m_drawing.block(instance.block);
    if (instance.item == block.items.size())
        return false;

    const Block::Item& item = block.items[instance.item];
    if (item.insert < 0) {
        addChain(instance, item);
        ++instance.chain;
        ++instance.item;
        return true;
    }
    const BlockInsert& insert = block.inserts[static_cast<std::size_t>(item.insert)];
    if (instance.repeated == insert.instances()) {
        instance.repeated = 0;
        ++instance.item;
        return true;
    }
    way.push_back(inserted(instance, item, instance.repeated++));
    return true;
}

DocumentFiller::Instance DocumentFiller::inserted(const Instance& outer, const Block::Item& item,
                                                  long long number)
{
    const BlockInsert& insert =
        m_drawing.block(outer.block).inserts[static_cast<std::size_t>(item.insert)];
    const long long column = number % insert.columns;
    const long long row = number / insert.columns;
    Placement placement = insert.placement;
    placement.origin = placement.origin + insert.columnStep * static_cast<double>(column)
                       + insert.rowStep * static_cast<double>(row);
    if (insert.placesBase)
        placement = placement * moved(Point3{} - m_drawing.block(insert.block).base);
    return {insert.block, outer.placement * placement, contextOf(outer.context, item.look), true};
}

void DocumentFiller::addChain(const Instance& instance, const Block::Item& item)
{
    const Chains& chains = m_drawing.block(instance.block).chains;
    const std::size_t begin = chains.begin(instance.chain);
    const std::size_t end = chains.end(instance.chain);
    m_meter.add(end - begin);
    QVector<DXFVertex> vertices;
    vertices.reserve(static_cast<int>(end - begin));
    for (std::size_t i = begin; i < end; ++i) {
        const Point3& given = chains.points()[i];
        const Point3 point = instance.isPlaced ? instance.placement.map(given) : given;
        // Where a block's numbers are too large for its scale, nothing can be seen.
        if (!std::isfinite(point.x) || !std::isfinite(point.y)) {
            ++m_skipped[kindName(item.kind)];
            return;
        }
        vertices.append(DXFVertex(point.x, point.y, 0.0, true, 0.0));
    }

    const auto polyline = QSharedPointer<DXFPolyline>::create(0U, 0U, 0U);
    PolylineAccess::setVertices(*polyline, vertices);
    polyline->setAttributes(attributesOf(instance.context, item.look));
    m_document.addEntity(polyline);
}

QSharedPointer<DXFAttributes> DocumentFiller::attributesOf(std::size_t context, std::size_t look)
{
    QSharedPointer<DXFAttributes>& known = m_attributesOfLooks[pairOf(context, look)];
    if (known)
        return known;

    const Look result = resolved(context, look);
    const std::size_t id = m_resolved.idOf(result);
    if (id == m_attributes.size()) {
        m_attributes.push_back(QSharedPointer<DXFAttributes>::create(
            layerName(result.layer), result.color, result.color24, result.width,
            decoded(result.lineType), result.lineTypeScale, noHandle, result.isInPaperSpace));
    }
    known = m_attributes[id];
    return known;
}

std::size_t DocumentFiller::contextOf(std::size_t context, std::size_t look)
{
    const auto [known, isNew] = m_contextIds.try_emplace(pairOf(context, look));
    if (isNew)
        known->second = m_contexts.idOf(withoutLayer(resolved(context, look)));
    return known->second;
}

/// A look in which the insert's values replace by-block.
Look DocumentFiller::resolved(std::size_t context, std::size_t look) const
{
    const Look& insert = m_contexts[context];
    Look result = m_drawing.looks()[look];
    if (result.layer == "0")
        result.layer = insert.layer;
    if (result.color == byBlockColor && result.color24 == noTrueColor) {
        result.color = insert.color;
        result.color24 = insert.color24;
    }
    if (result.width == byBlockWidth)
        result.width = insert.width;
    if (isByBlock(result.lineType))
        result.lineType = insert.lineType;
    result.isInPaperSpace = result.isInPaperSpace || insert.isInPaperSpace;
    return result;
}

/// An insert's look in which its layer's values replace by-layer: by-block entities of the block
/// may lie on another layer.
Look DocumentFiller::withoutLayer(const Look& look) const
{
    const auto layer = m_document.getLayer(layerName(look.layer));
    const auto attributes = layer ? layer->attributes() : nullptr;
    Look result = look;
    if (result.color == byLayerColor && result.color24 == noTrueColor) {
        // The number is negative if the layer is off.
        const int color = attributes ? std::abs(attributes->color()) : foregroundColor;
        result.color = isResolved(color) ? color : foregroundColor;
        result.color24 = attributes ? attributes->color24() : noTrueColor;
    }
    if (result.width == byLayerWidth)
        result.width = attributes && attributes->width() >= 0 ? attributes->width() : defaultWidth;
    if (isByLayer(result.lineType)) {
        const std::string known = attributes ? attributes->lineType().toStdString() : std::string();
        result.lineType = isByLayer(known) || isByBlock(known) ? continuous : known;
    }
    return result;
}

/// The name as the layer itself spells it: in the format names do not differ by case alone.
QString DocumentFiller::layerName(const std::string& name) const
{
    const QString given = decoded(name);
    return m_document.getLayer(given) ? given : m_layerNames.value(given.toCaseFolded(), given);
}

QString DocumentFiller::kindName(std::size_t kind) const
{
    return decoded(m_drawing.kindName(kind));
}

} // namespace dxfviewer
