// SPDX-License-Identifier: GPL-2.0-or-later

#include "Comparison.h"

#include "dxfviewer/io/DXFReader.h"
#include "dxfviewer/model/DXFDocument.h"

#include <QTemporaryFile>

#include <dl_creationadapter.h>
#include <dl_dxf.h>

#include <sstream>

namespace
{

using namespace dxfbench;

constexpr int leastRounds = 2;
constexpr int polylinesPerLayer = 2;

double secondsToParse(const QByteArray& text)
{
    DL_CreationAdapter nothing;
    return secondsOf([&] {
        std::stringstream stream;
        stream << text.constData();
        DL_Dxf().in(stream, &nothing);
    });
}

double secondsToParse(const QString& fileName)
{
    DL_CreationAdapter nothing;
    const std::string name = fileName.toStdString();
    return secondsOf([&] { DL_Dxf().in(name, &nothing); });
}

/// The seconds do not include the destruction of the document.
template <typename Source>
double secondsToLoad(const Source& source)
{
    DXFDocument document;
    DXFReader reader(document);
    return secondsOf([&] { reader.load(source); });
}

template <typename Source>
void compareLoading(benchmark::State& state, const Plan& plan, const Source& source)
{
    compare(
        state, plan.segments, roundsFor(plan.segments, leastRounds),
        [&] { return secondsToLoad(source); }, [&] { return secondsToParse(source); });
}

void readBytes(benchmark::State& state, const Plan& plan)
{
    compareLoading(state, plan, makeText(plan));
}

void readFile(benchmark::State& state, const Plan& plan)
{
    QTemporaryFile file;
    if (!file.open()) {
        state.SkipWithError("no temporary file");
        return;
    }
    file.write(makeText(plan));
    file.close();
    compareLoading(state, plan, file.fileName());
}

void readManyLayers(benchmark::State& state)
{
    Plan plan;
    plan.shape = Shape::OneEach;
    plan.segments = static_cast<int>(state.range(0));
    plan.layers = plan.segments / polylinesPerLayer;
    readBytes(state, plan);
}

const int registered =
    registerForAllDrawings("read_bytes", readBytes) + registerForAllDrawings("read_file", readFile);
BENCHMARK(readManyLayers)
    ->Name("read_many_layers/one_each")
    ->Arg(10000)
    ->Arg(100000)
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

} // namespace
