// SPDX-License-Identifier: GPL-2.0-or-later

// A drawing in text and in binary form. The flattening reader reads it and shows every entity.

#include "fuzz/Drawing.h"

#include "dxfviewer/flatten/FlatteningReader.h"
#include "dxfviewer/io/DXFWriter.h"
#include "dxfviewer/model/DXFPolyline.h"

#include <cmath>

namespace
{

// Enough for a small text, and few enough to read many drawings a second.
constexpr qint64 mostVertices = 50000;

// The bytes after it are groups of the binary form.
const QByteArray sentinel("Written Binary DXF\r\n\x1a\0", 22);

bool isSegmentChain(const DXFPolyline& polyline)
{
    if (polyline.vertexNumber() < 2 || polyline.flags() != 0 || !polyline.attributes())
        return false;
    for (const DXFVertex& vertex : polyline.vertices()) {
        if (!std::isfinite(vertex.x()) || !std::isfinite(vertex.y()) || vertex.z() != 0.0
            || vertex.bulge() != 0.0)
            return false;
    }
    return true;
}

bool flatten(DXFDocument& document, const QByteArray& bytes)
{
    FlatteningOptions options;
    options.maximalVertices = mostVertices;
    options.showsPaperSpace = true;
    FlatteningReader reader(document, options);
    if (!reader.load(bytes)) {
        dxffuzz::require(document.entities().isEmpty(), "a refused drawing is shown in part");
        return false;
    }

    qint64 vertices = 0;
    const auto entities = document.entities();
    for (const auto& entity : entities) {
        const auto polyline = entity.staticCast<DXFPolyline>();
        dxffuzz::require(isSegmentChain(*polyline), "there is more than segments");
        vertices += polyline->vertexNumber();
    }
    dxffuzz::require(vertices <= mostVertices, "there are more vertices than allowed");
    dxffuzz::require(vertices == 0 || !reader.shown().isEmpty(), "what is shown has no name");
    return true;
}

void flattenAgain(const DXFDocument& document)
{
    DXFDocument again;
    dxffuzz::require(flatten(again, DXFWriter(document).save()), "what was written is refused");
    dxffuzz::require(
        dxffuzz::survivedWriting(dxffuzz::shapesOf(document), dxffuzz::shapesOf(again)),
        "the drawing comes back different");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    dxffuzz::silenceLog();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray text = dxffuzz::textOf(data, size);
    DXFDocument document;
    if (flatten(document, text)) {
        flattenAgain(document);
        document.setup();
    }
    DXFDocument fromBinary;
    flatten(fromBinary, sentinel + text);
    return 0;
}
