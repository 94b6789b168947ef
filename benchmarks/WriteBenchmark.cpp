// SPDX-License-Identifier: GPL-2.0-or-later

#include "Comparison.h"

#include "dxfviewer/io/DXFAdapter.h"
#include "dxfviewer/io/DXFWriter.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFPolyline.h"

#include <QTemporaryDir>

#include <dl_dxf.h>

#include <memory>

namespace
{

using namespace dxfbench;

constexpr int leastRounds = 1;

/// Writes the polylines with dxflib's own writer, in the format version that the library uses.
void writePlainly(const DXFDocument& document, const std::string& fileName)
{
    DL_Dxf dxf;
    const std::unique_ptr<DL_WriterA> writer(dxf.out(fileName.c_str(), DL_Codes::AC1009));
    dxf.writeHeader(*writer);
    writer->sectionEnd();
    writer->sectionEntities();
    const auto entities = document.entities();
    for (const auto& entity : entities) {
        const auto polyline = entity.staticCast<DXFPolyline>();
        dxf.writePolyline(*writer, DXFAdapter::makePolyline(polyline),
                          DXFAdapter::makeAttributes(polyline->attributes()));
        for (const DXFVertex& vertex : polyline->vertices())
            dxf.writeVertex(*writer, DXFAdapter::makeVertex(vertex));
        dxf.writePolylineEnd(*writer);
    }
    writer->sectionEnd();
    writer->dxfEOF();
    writer->close();
}

void writeBytes(benchmark::State& state, const Plan& plan)
{
    const auto document = makeReadyDocument(plan);
    const QTemporaryDir folder;
    const std::string fileName = folder.filePath(QStringLiteral("plain.dxf")).toStdString();
    compare(
        state, plan.segments, roundsFor(plan.segments, leastRounds),
        [&] { return secondsOf([&] { benchmark::DoNotOptimize(DXFWriter(*document).save()); }); },
        [&] { return secondsOf([&] { writePlainly(*document, fileName); }); });
}

const int registered = registerForAllDrawings("write_bytes", writeBytes);

} // namespace
