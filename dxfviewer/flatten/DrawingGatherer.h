// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/flatten/Drawing.h"
#include "dxfviewer/flatten/FlatteningOptions.h"
#include "dxfviewer/flatten/PolylineShapes.h"
#include "dxfviewer/flatten/Record.h"
#include "dxfviewer/flatten/TextOutlines.h"
#include "dxfviewer/io/WorkMeter.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace dxfviewer
{

struct Fineness;

/**
 * Makes a drawing from the groups of a DXF text.
 *
 * It takes all groups but those of layers and line types. A text without sections is taken for
 * entities.
 */
class DrawingGatherer
{
public:
    /// @param steps  asked now and then whether to go on; may be null
    explicit DrawingGatherer(const FlatteningOptions& options, IReadingSteps* steps = nullptr);

    /// Whether the group was taken.
    bool takeGroup(int code, std::string_view value);
    /// Ends the last record. No other record may follow it.
    void finish();

    /// Whether the drawing holds more than the options allow. Then nothing more is gathered.
    bool isTooLarge() const { return m_isTooLarge; }
    Drawing& drawing() { return m_drawing; }

private:
    enum class Section { None, Tables, Entities, Other };
    /// What becomes of the groups of a record.
    enum class Use { Passed, Gathered, Dropped };
    /// A polyline or a mesh whose vertices are being read.
    struct OpenPolyline {
        OldPolyline polyline;
        Appearance appearance;
        std::size_t kind;
    };

    Use useOf(std::string_view name);
    void beginRecord(std::string_view name);
    void beginSection(std::string_view name);
    void endRecord();
    void addRecord();
    void endPolyline();
    void addEntity();
    void addInsert(std::size_t kind, std::size_t look);
    template <typename Append>
    void addShapes(std::size_t kind, std::size_t look, Append append);
    bool append(Chains& chains, const Fineness& fineness) const;
    bool isElsewhere(const Appearance& appearance) const;
    bool admits(const Appearance& appearance, bool isHidden);
    void skip(std::size_t kind);
    Block& block() { return m_drawing.block(m_block); }

    FlatteningOptions m_options;
    WorkMeter m_meter;
    double m_longestStep;
    /// Nothing if texts are not shown.
    std::optional<TextOutlines> m_outlines;
    Drawing m_drawing;
    Section m_section = Section::None;
    bool m_awaitsSectionName = false;
    Use m_use = Use::Passed;
    Record m_record;
    std::optional<OpenPolyline> m_polyline;
    /// The block that is being filled.
    std::size_t m_block = Drawing::model;
    std::size_t m_pointCount = 0;
    bool m_isTooLarge = false;
};

} // namespace dxfviewer
