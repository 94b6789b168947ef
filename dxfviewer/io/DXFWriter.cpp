// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/DXFWriter.h"

#include "dxfviewer/io/DXFAdapter.h"
#include "dxfviewer/io/GroupWriter.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFLayer.h"
#include "dxfviewer/model/DXFLineType.h"
#include "dxfviewer/model/PolylineAccess.h"
#include "dxfviewer/model/Polylines.h"
#include "dxfviewer/model/SpecialValues.h"

#include <QByteArray>
#include <QDebug>
#include <QString>
#include <QTemporaryFile>

#include <algorithm>
#include <string>

#include <dl_dxf.h>

using dxfviewer::GroupWriter;

using dxfviewer::byLayerColor;
using dxfviewer::byLayerWidth;
using dxfviewer::noTrueColor;

namespace
{

constexpr DL_Codes::version fileVersion = DL_Codes::AC1009;
constexpr int appIdHandle = 0x12;

constexpr int defaultLayerColor = 7;

QSharedPointer<DXFLineType> continuousLineType()
{
    return DXFAdapter::makeLineType(DL_LinetypeData("CONTINUOUS", "Solid Line", 0, 0, 0.0));
}

DL_Attributes defaultLayerAttributes(const std::string& name)
{
    return DL_Attributes(name, defaultLayerColor, noTrueColor, byLayerWidth, "CONTINUOUS");
}

DL_Attributes newEntityAttributes()
{
    return DL_Attributes("0", byLayerColor, noTrueColor, byLayerWidth, "BYLAYER");
}

QSharedPointer<DXFLayer> defaultLayer()
{
    const DL_LayerData data("0", 0);
    auto layer = DXFAdapter::makeLayer(data);
    layer->setAttributes(DXFAdapter::makeAttributes(defaultLayerAttributes(data.name)));
    return layer;
}

char upperCase(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool isContinuous(std::string name)
{
    std::transform(name.begin(), name.end(), name.begin(), upperCase);
    return name == "CONTINUOUS";
}

/// dxflib reads as many dashes as the record announces, even through a null pattern. It writes
/// continuous lines in a special form, but recognises their name with the locale's help: in a
/// Turkish locale small letters do not match. So the record gets that form here.
DL_LinetypeData writableRecord(const QSharedPointer<DXFLineType>& lineType)
{
    DL_LinetypeData record = DXFAdapter::makeLineType(lineType);
    if (!record.pattern || record.numberOfDashes < 0)
        record.numberOfDashes = 0;
    if (isContinuous(record.name))
        return {record.name, "Solid line", record.flags, 0, 0.0};
    return record;
}

void logFailure(const QString& text, const QString& fileName)
{
    qDebug() << text.arg(fileName);
}

void logCannotOpen(const QString& fileName)
{
    logFailure(QStringLiteral("DXFWriter: Cannot open %1 for writing."), fileName);
}

void logCannotWrite(const QString& fileName)
{
    logFailure(QStringLiteral("DXFWriter: Cannot write %1."), fileName);
}

} // namespace

DXFWriter::DXFWriter(const DXFDocument& document)
    : m_document(document)
{
}

DXFWriter::~DXFWriter() = default;

bool DXFWriter::save(const QString& fileName)
{
    write(fileName);
    return false;
}

QByteArray DXFWriter::save()
{
    QTemporaryFile file;
    if (!file.open()) {
        m_writer.reset();
        logCannotOpen(file.fileTemplate());
        return QByteArray();
    }

    const QString fileName = QString::fromLocal8Bit(file.fileName().toLocal8Bit());
    if (!write(fileName))
        return QByteArray();

    QByteArray data = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        logCannotWrite(fileName);
        return QByteArray();
    }
    return data;
}

/// False, after a message, if the file does not hold the whole drawing.
bool DXFWriter::write(const QString& fileName)
{
    const QByteArray localName = fileName.toLocal8Bit();
    m_parser = std::make_unique<DL_Dxf>();
    // Only this makes the parser object write the right version, and it tells whether the file can
    // be written at all. Our writer replaces its writer, but only when ours is open: the reader of
    // a pipe that has no writer for a moment would see the end of the file.
    m_writer.reset(m_parser->out(localName.constData(), fileVersion));
    if (!m_writer) {
        logCannotOpen(fileName);
        return false;
    }

    auto writer = std::make_unique<GroupWriter>(localName.constData(), fileVersion);
    GroupWriter& file = *writer;
    m_writer = std::move(writer);
    writeDrawing();
    if (!file.finish()) {
        logCannotWrite(fileName);
        return false;
    }
    return true;
}

void DXFWriter::writeDrawing()
{
    writeHeader();
    m_writer->sectionTables();
    writeLineType_table();
    writeLAYER_table();
    m_writer->sectionEnd();
    m_writer->sectionBlocks();
    m_writer->sectionEnd();
    writeEntities_section();
    m_writer->dxfEOF();
}

void DXFWriter::writeHeader()
{
    if (!m_writer)
        return;
    m_parser->writeHeader(*m_writer);
    m_writer->sectionEnd();
}

void DXFWriter::writeVPORT_table()
{
    if (!m_writer)
        return;
    m_parser->writeVPort(*m_writer);
}

void DXFWriter::writeLineType_table()
{
    if (!m_writer)
        return;
    auto lineTypes = m_document.lineTypes();
    const auto continuous = continuousLineType();
    if (!m_document.getLineType(continuous->name()))
        lineTypes.prepend(continuous);

    m_writer->tableLinetypes(static_cast<int>(lineTypes.size()));
    for (const auto& lineType : qAsConst(lineTypes))
        m_parser->writeLinetype(*m_writer, writableRecord(lineType));
    m_writer->tableEnd();
}

void DXFWriter::writeTextStyle_table() {}

void DXFWriter::writeUserCS_table() {}

void DXFWriter::writeVIEW_table() {}

void DXFWriter::writeDIMSTYLE_table() {}

void DXFWriter::writeLAYER_table()
{
    if (!m_writer)
        return;
    auto layers = m_document.layers();
    const auto layer0 = defaultLayer();
    if (!m_document.getLayer(layer0->name()))
        layers.prepend(layer0);

    m_writer->tableLayers(static_cast<int>(layers.size()));
    for (const auto& layer : qAsConst(layers)) {
        const DL_LayerData record = DXFAdapter::makeLayer(layer);
        const auto attributes = layer->attributes();
        m_parser->writeLayer(*m_writer, record,
                             attributes ? DXFAdapter::makeAttributes(attributes)
                                        : defaultLayerAttributes(record.name));
    }
    m_writer->tableEnd();
}

void DXFWriter::writeAPPID_table()
{
    if (!m_writer)
        return;
    m_writer->tableAppid(1);
    m_writer->tableAppidEntry(appIdHandle);
    m_writer->dxfString(2, "ACAD");
    m_writer->dxfInt(70, 0);
    m_writer->tableEnd();
}

void DXFWriter::writeEntities_section()
{
    if (!m_writer)
        return;
    m_writer->sectionEntities();
    const auto entities = m_document.entities();
    for (const auto& entity : entities) {
        if (!entity)
            continue;
        const int type = entity->type();
        if (type == dxfviewer::unknownType)
            qDebug("DXFWriter:: attempted writing of unsuported entity");
        else if (type == dxfviewer::polylineType)
            writePolyline(entity.staticCast<DXFPolyline>());
    }
    m_writer->sectionEnd();
}

void DXFWriter::writePolyline(const QSharedPointer<DXFPolyline>& polyline)
{
    const auto attributes = polyline->attributes();
    m_parser->writePolyline(*m_writer, DXFAdapter::makePolyline(polyline),
                            attributes ? DXFAdapter::makeAttributes(attributes)
                                       : newEntityAttributes());
    const auto vertices = dxfviewer::PolylineAccess::vertices(*polyline);
    for (const DXFVertex& vertex : vertices)
        m_parser->writeVertex(*m_writer, DXFAdapter::makeVertex(vertex));
    m_parser->writePolylineEnd(*m_writer);
}
