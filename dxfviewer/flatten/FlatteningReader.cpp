// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/FlatteningReader.h"

#include "dxfviewer/flatten/DocumentFiller.h"
#include "dxfviewer/flatten/DrawingGatherer.h"
#include "dxfviewer/flatten/DrawingText.h"

#include <QDebug>

#include <algorithm>
#include <limits>

FlatteningReader::FlatteningReader(DXFDocument& document, const FlatteningOptions& options)
    : DXFReader(document)
    , m_filledDocument(document)
    , m_options(options)
{
    // All may belong to one polyline, and Qt 5 counts the vertices of a list with an int.
    constexpr qint64 mostVertices = std::numeric_limits<int>::max();
    m_options.maximalVertices = std::clamp(m_options.maximalVertices, qint64(0), mostVertices);
}

FlatteningReader::~FlatteningReader() = default;

std::optional<std::string> FlatteningReader::textOf(std::string_view bytes)
{
    m_isTooLarge = false;
    m_gatherer = std::make_unique<dxfviewer::DrawingGatherer>(m_options, this);
    return dxfviewer::utf8TextOf(bytes, this);
}

bool FlatteningReader::takesGroup(int code, std::string_view value)
{
    return m_gatherer && m_gatherer->takeGroup(code, value);
}

bool FlatteningReader::finishReading()
{
    // Taken out of the member, so that the next drawing always begins with a new one.
    const auto gatherer = std::move(m_gatherer);
    if (!gatherer)
        return true;
    gatherer->finish();
    dxfviewer::DocumentFiller filler(m_filledDocument, gatherer->drawing(), this);
    m_isTooLarge = gatherer->isTooLarge() || !filler.fill(m_options.maximalVertices);
    if (m_isTooLarge) {
        qDebug("FlatteningReader: the drawing has more than %lld vertices",
               static_cast<long long>(m_options.maximalVertices));
        return false;
    }
    m_shown = filler.shown();
    m_skipped = filler.skipped();
    m_elsewhere = filler.elsewhere();
    m_invisible = filler.invisible();
    return true;
}
