// SPDX-License-Identifier: GPL-2.0-or-later

// The whole cycle: read, erase, undo, redo, write, read again.

#include "fuzz/Drawing.h"

#include "dxfviewer/edit/DeleteItems.h"
#include "dxfviewer/io/DXFWriter.h"
#include "dxfviewer/model/DXFPolyline.h"

#include <QUndoStack>

#include <random>

namespace
{

constexpr int batches = 3;
constexpr int undoLimit = 10;

/// The ids of about one segment in four, and an id that no segment has.
QVector<int> someSegmentIds(const DXFDocument& document, std::mt19937& random)
{
    QVector<int> ids{-1};
    for (const DXFPolyline* polyline : dxffuzz::polylinesOf(document)) {
        const auto segments = polyline->segments();
        for (const Segment& segment : segments) {
            if (random() % 4 == 0)
                ids.append(segment.id());
        }
    }
    return ids;
}

bool sameLines(const QVector<QLineF>& a, const QVector<QLineF>& b)
{
    const auto same = [](double x, double y) {
        return x == y || (x != x && y != y);
    };
    return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend(),
                      [same](const QLineF& l, const QLineF& m) {
                          return same(l.x1(), m.x1()) && same(l.y1(), m.y1())
                                 && same(l.x2(), m.x2()) && same(l.y2(), m.y2());
                      });
}

void eraseThereAndBack(const QSharedPointer<DXFDocument>& document, std::mt19937& random)
{
    QUndoStack stack;
    stack.setUndoLimit(undoLimit);
    QVector<QVector<QLineF>> states{dxffuzz::linesOf(*document)};
    for (int i = 0; i < batches; ++i) {
        stack.push(new DeleteItems(document, someSegmentIds(*document, random)));
        states.append(dxffuzz::linesOf(*document));
    }

    for (int i = batches; i-- > 0;) {
        stack.undo();
        dxffuzz::require(sameLines(dxffuzz::linesOf(*document), states[i]),
                         "undo does not bring the drawing back");
    }
    for (int i = 1; i <= batches; ++i) {
        stack.redo();
        dxffuzz::require(sameLines(dxffuzz::linesOf(*document), states[i]),
                         "redo does not erase the same again");
    }
}

void writeAndReadBack(const DXFDocument& document)
{
    const QByteArray written = DXFWriter(document).save();
    dxffuzz::require(!written.isEmpty(), "the drawing cannot be written");

    const auto again = DXFDocument::load(written);
    dxffuzz::require(again != nullptr, "what was written cannot be read");
    dxffuzz::require(
        dxffuzz::survivedWriting(dxffuzz::shapesOf(document), dxffuzz::shapesOf(*again)),
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
    const auto document = DXFDocument::load(dxffuzz::textOf(data, size));
    if (!document)
        return 0;
    writeAndReadBack(*document);

    document->setup();
    std::mt19937 random(static_cast<unsigned>(size));
    eraseThereAndBack(document, random);
    writeAndReadBack(*document);
    return 0;
}
