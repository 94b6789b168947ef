// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/DXFAdapter.h"
#include "dxfviewer/io/DXFReader.h"
#include "dxfviewer/io/DXFWriter.h"
#include "dxfviewer/io/TextRepair.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFLayer.h"
#include "dxfviewer/model/DXFLineType.h"
#include "dxfviewer/model/DXFPolyline.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"

#include <QDir>
#include <QTemporaryDir>

#include <memory>

#include <dl_dxf.h>

using namespace dxftest;

namespace
{

/// Writes a drawing with a layer 0 and a continuous line type with dxflib alone.
void writeByDxflib(const DXFDocument& document, const QString& name)
{
    DL_Dxf parser;
    const std::unique_ptr<DL_WriterA> file(
        parser.out(name.toLocal8Bit().constData(), DL_Codes::AC1009));
    ASSERT_NE(file, nullptr);

    parser.writeHeader(*file);
    file->sectionEnd();
    file->sectionTables();
    const auto lineTypes = document.lineTypes();
    file->tableLinetypes(static_cast<int>(lineTypes.size()));
    for (const auto& lineType : lineTypes) {
        DL_LinetypeData record = DXFAdapter::makeLineType(lineType);
        // Reading keeps the number of dashes, but not the dashes.
        record.numberOfDashes = 0;
        parser.writeLinetype(*file, record);
    }
    file->tableEnd();
    const auto layers = document.layers();
    file->tableLayers(static_cast<int>(layers.size()));
    for (const auto& layer : layers)
        parser.writeLayer(*file, DXFAdapter::makeLayer(layer),
                          DXFAdapter::makeAttributes(layer->attributes()));
    file->tableEnd();
    file->sectionEnd();
    file->sectionBlocks();
    file->sectionEnd();
    file->sectionEntities();
    const auto entities = document.entities();
    for (const auto& entity : entities) {
        const auto polyline = entity.staticCast<DXFPolyline>();
        parser.writePolyline(*file, DXFAdapter::makePolyline(polyline),
                             DXFAdapter::makeAttributes(polyline->attributes()));
        for (const DXFVertex& vertex : polyline->vertices())
            parser.writeVertex(*file, DXFAdapter::makeVertex(vertex));
        parser.writePolylineEnd(*file);
    }
    file->sectionEnd();
    file->dxfEOF();
    file->close();
}

class SamplesTest : public LoggedTest
{
protected:
    SamplesTest()
    {
        const QDir samples(QStringLiteral(SAMPLES_DIR));
        const auto files = samples.entryInfoList({QStringLiteral("*.dxf")}, QDir::Files);
        for (const QFileInfo& file : files)
            names.append(file.filePath());
    }

    void SetUp() override { ASSERT_FALSE(names.isEmpty()); }

    QStringList names;
};

TEST_F(SamplesTest, AreWrittenAsByDxflib)
{
    const QTemporaryDir folder;
    const QString ours = folder.filePath(QStringLiteral("ours"));
    const QString dxflibs = folder.filePath(QStringLiteral("dxflib's"));
    for (const QString& name : qAsConst(names)) {
        SCOPED_TRACE(name.toStdString());
        DXFDocument document;
        ASSERT_TRUE(DXFReader(document).load(name));
        ASSERT_TRUE(document.getLayer(QStringLiteral("0")));
        ASSERT_TRUE(document.getLineType(QStringLiteral("CONTINUOUS")));

        DXFWriter(document).save(ours);
        writeByDxflib(document, dxflibs);

        const QByteArray written = contentOf(ours);
        EXPECT_EQ(written.count("\nPOLYLINE\n"), document.entities().size());
        EXPECT_TRUE(written == contentOf(dxflibs));
        takeDebugMessages();
    }
}

TEST_F(SamplesTest, NeedNoRepair)
{
    for (const QString& name : qAsConst(names))
        EXPECT_FALSE(dxfviewer::repaired(contentOf(name).toStdString())) << name.toStdString();
}

} // namespace
