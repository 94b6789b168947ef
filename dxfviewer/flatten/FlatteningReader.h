// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"
#include "dxfviewer/flatten/FlatteningOptions.h"
#include "dxfviewer/io/DXFReader.h"
#include "dxfviewer/io/IReadingSteps.h"

#include <QMap>
#include <QString>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

class DXFDocument;

namespace dxfviewer
{
class DrawingGatherer;
}

/**
 * Fills a document with everything that can be drawn, as chains of straight segments.
 *
 * Lines, curves, faces, meshes, leaders and points become polylines. What lies in a block becomes
 * polylines at each insert of the block; a block that is never inserted is not shown. Everything is
 * seen from above: z is 0. A closed shape ends at its first vertex, so no polyline has flags or
 * bulges. A by-block entity has the attributes of its insert. Layers and line types are read as
 * DXFReader reads them. Entities come in the order of the drawing and share attributes.
 *
 * Texts that are not UTF-8 are decoded by the drawing's code page, and binary DXF is read as well.
 *
 * load() is the one of DXFReader. It also returns false, after a message on the debug channel, if
 * the drawing makes more vertices than the options allow; isTooLarge() tells. Make a reader for
 * each drawing.
 *
 * A subclass may override processCodeValuePair(), which is called for every group, to show
 * progress, goOn() to stop at any time by an exception, and readingFailed() to learn what stopped
 * the read.
 */
class DXFVIEWER_EXPORT FlatteningReader : public DXFReader, public IReadingSteps
{
public:
    /// The document must outlive the reader.
    explicit FlatteningReader(DXFDocument& document, const FlatteningOptions& options = {});
    ~FlatteningReader() override;

    /// The entities that became polylines, by their names in DXF ("ARC", "INSERT"). What lies in a
    /// block counts once if the block is shown, however often. Complete after load().
    QMap<QString, int> shown() const { return m_shown; }
    /// The entities that are not shown, counted in the same way. Entities that are invisible, or in
    /// a space that is not shown, are not counted.
    QMap<QString, int> skipped() const { return m_skipped; }
    /// The number of entities that are left out because they lie on layouts: in paper space (group
    /// 67), unless the options ask for it, and in the blocks of further layouts. Complete after
    /// load().
    int elsewhere() const { return m_elsewhere; }
    /// The number of entities that are left out because they are invisible (group 60), hidden
    /// attributes among them; those on layouts are not counted. Complete after load().
    int invisible() const { return m_invisible; }

    /// Whether load() returned false because the drawing makes more vertices than the options
    /// allow.
    bool isTooLarge() const { return m_isTooLarge; }

    /// @name Steps of load()
    /// @{
    std::optional<std::string> textOf(std::string_view bytes) override;
    bool takesGroup(int code, std::string_view value) override;
    bool finishReading() override;
    /// @}

private:
    DXFDocument& m_filledDocument;
    FlatteningOptions m_options;
    std::unique_ptr<dxfviewer::DrawingGatherer> m_gatherer;
    bool m_isTooLarge = false;
    QMap<QString, int> m_shown;
    QMap<QString, int> m_skipped;
    int m_elsewhere = 0;
    int m_invisible = 0;
};
