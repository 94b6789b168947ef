// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/DXFReader.h"
#include "dxfviewer/io/DXFWriter.h"
#include "dxfviewer/io/TextRepair.h"
#include "dxfviewer/model/DXFAttributes.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFLayer.h"
#include "dxfviewer/model/DXFLineType.h"
#include "dxfviewer/model/DXFPolyline.h"
#include "tests/support/Builders.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"

#include <QDir>

#include <algorithm>

using namespace dxftest;

namespace
{

/// Layer, flags and vertices of each polyline in a form that is easy to compare.
QStringList geometryOf(const DXFDocument& document)
{
    QStringList lines;
    for (const DXFPolyline* polyline : polylinesOf(document)) {
        QString line =
            polyline->attributes()->layerName() + QLatin1Char(' ') + polyline->toString();
        for (const DXFVertex& vertex : polyline->vertices()) {
            for (const double value : {vertex.x(), vertex.y(), vertex.z()})
                line += QLatin1Char(' ') + QString::number(value, 'f', 16);
        }
        lines.append(line);
    }
    return lines;
}

QStringList tablesOf(const DXFDocument& document)
{
    QStringList lines;
    const auto layers = document.layers();
    for (const auto& layer : layers)
        lines.append(layer->toString() + layer->attributes()->toString());
    const auto lineTypes = document.lineTypes();
    for (const auto& lineType : lineTypes)
        lines.append(lineType->toString());
    return lines;
}

// With the sanitizers reading is slow, and one test for all drawings would take too long.
constexpr int shards = 20;

/// Reads every twentieth drawing of a folder, beginning with the one whose number is the parameter.
class ExtraDrawingsTest : public LoggedTest, public ::testing::WithParamInterface<int>
{
protected:
    void SetUp() override
    {
        folder.setPath(qEnvironmentVariable("DXFVIEWER_EXTRA_DRAWINGS"));
        if (qEnvironmentVariableIsEmpty("DXFVIEWER_EXTRA_DRAWINGS"))
            GTEST_SKIP() << "DXFVIEWER_EXTRA_DRAWINGS names no folder of drawings";
        const QStringList all = folder.entryList({QStringLiteral("*.dxf")}, QDir::Files);
        ASSERT_FALSE(all.isEmpty());
        for (int i = GetParam(); i < all.size(); i += shards)
            names.append(all[i]);
        if (names.isEmpty())
            GTEST_SKIP() << "fewer drawings than tests";
    }

    QByteArray bytesOf(const QString& name) const { return contentOf(folder.filePath(name)); }

    QDir folder;
    QStringList names;
};

TEST_P(ExtraDrawingsTest, FileAndBytesGiveTheSame)
{
    for (const QString& name : qAsConst(names)) {
        SCOPED_TRACE(name.toStdString());
        // Only the file form reads beyond a zero byte.
        const QByteArray bytes = bytesOf(name);
        if (bytes.contains('\0'))
            continue;
        DXFDocument fromFile;
        DXFDocument fromBytes;

        ASSERT_TRUE(DXFReader(fromFile).load(folder.filePath(name)));
        const QStringList messages = takeDebugMessages();
        ASSERT_TRUE(DXFReader(fromBytes).load(bytes));

        EXPECT_EQ(takeDebugMessages(), messages);
        EXPECT_EQ(geometryOf(fromFile), geometryOf(fromBytes));
        EXPECT_EQ(tablesOf(fromFile), tablesOf(fromBytes));
    }
}

TEST_P(ExtraDrawingsTest, SavedDrawingKeepsGeometryLayersAndFlags)
{
    for (const QString& name : qAsConst(names)) {
        SCOPED_TRACE(name.toStdString());
        DXFDocument document;
        ASSERT_TRUE(DXFReader(document).load(folder.filePath(name)));

        const auto again = DXFDocument::load(DXFWriter(document).save());

        // dxflib never ends a polyline without vertices, and its writer has no place for the counts
        // of a mesh.
        DXFDocument expected;
        for (const DXFPolyline* read : polylinesOf(document)) {
            if (read->vertices().isEmpty())
                continue;
            const auto polyline = QSharedPointer<DXFPolyline>::create(0U, 0U, read->flags());
            for (const DXFVertex& vertex : read->vertices())
                polyline->appendPoint(vertex);
            polyline->setAttributes(read->attributes());
            expected.addEntity(polyline);
        }
        EXPECT_EQ(geometryOf(*again), geometryOf(expected));
        EXPECT_EQ(again->layers().size(),
                  document.layers().size() + (document.getLayer(QStringLiteral("0")) ? 0 : 1));
        const auto layers = document.layers();
        for (const auto& layer : layers) {
            const auto read = again->getLayer(layer->name());
            ASSERT_TRUE(read) << layer->name().toStdString();
            EXPECT_EQ(read->flags(), layer->flags());
        }
        takeDebugMessages();
    }
}

TEST_P(ExtraDrawingsTest, RepairedDrawingsAreSound)
{
    for (const QString& name : qAsConst(names)) {
        SCOPED_TRACE(name.toStdString());
        const auto result = dxfviewer::repaired(bytesOf(name).toStdString());

        EXPECT_TRUE(!result || !dxfviewer::repaired(*result));
    }
}

// Nearly all programs write drawings that dxflib can read as they are.
TEST(ExtraDrawingsSoundnessTest, MostDrawingsAreSound)
{
    if (qEnvironmentVariableIsEmpty("DXFVIEWER_EXTRA_DRAWINGS"))
        GTEST_SKIP() << "DXFVIEWER_EXTRA_DRAWINGS names no folder of drawings";
    const QDir folder(qEnvironmentVariable("DXFVIEWER_EXTRA_DRAWINGS"));
    const QStringList names = folder.entryList({QStringLiteral("*.dxf")}, QDir::Files);

    const auto sound = std::count_if(names.begin(), names.end(), [&folder](const QString& name) {
        return !dxfviewer::repaired(contentOf(folder.filePath(name)).toStdString());
    });

    EXPECT_GT(2 * sound, names.size());
}

INSTANTIATE_TEST_SUITE_P(Shards, ExtraDrawingsTest, ::testing::Range(0, shards));

} // namespace
