// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/DXFReader.h"

#include "dxfviewer/io/DXFAdapter.h"
#include "dxfviewer/io/DrawingParser.h"
#include "dxfviewer/io/Utf8.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFLayer.h"
#include "dxfviewer/model/DXFLineType.h"
#include "dxfviewer/model/Identical.h"
#include "dxfviewer/model/PolylineAccess.h"
#include "dxfviewer/model/Polylines.h"

#include <QByteArray>
#include <QDebug>
#include <QString>

#include <functional>
#include <string_view>

using dxfviewer::decoded;
using dxfviewer::identical;

namespace
{

// Entries of a table by hashes: attributes with the same hash take turns in one entry.
constexpr std::size_t convertedEntries = 256;

void logName(const char* callback)
{
    qDebug("%s", callback);
}

/// Whether both records convert to the same attributes.
bool convertAlike(const DL_Attributes& a, const DL_Attributes& b)
{
    return a.getHandle() == b.getHandle() && a.getColor() == b.getColor()
           && a.getColor24() == b.getColor24() && a.getWidth() == b.getWidth()
           && identical(a.getLinetypeScale(), b.getLinetypeScale()) && a.getLayer() == b.getLayer()
           && a.getLinetype() == b.getLinetype();
}

} // namespace

DXFReader::DXFReader(DXFDocument& document)
    : m_document(document)
    , m_converted(convertedEntries)
{
}

DXFReader::~DXFReader() = default;

bool DXFReader::load(const QString& fileName)
{
    const bool read = dxfviewer::parseFile(fileName.toUtf8().toStdString(), *this);
    if (!read)
        qDebug() << fileName << " could not be opened.\n";
    return read;
}

bool DXFReader::load(const QByteArray& data)
{
    const std::string_view bytes(data.constData(), static_cast<std::size_t>(data.size()));
    const bool parsed = dxfviewer::parseText(bytes, *this);
    if (!parsed)
        qDebug("DXFReader::Could not parse dxf data");
    return parsed;
}

QSharedPointer<DXFDocument> DXFDocument::load(const QByteArray& data)
{
    auto document = QSharedPointer<DXFDocument>::create();
    DXFReader reader(*document);
    return reader.load(data) ? document : QSharedPointer<DXFDocument>();
}

void DXFReader::importEntity(QSharedPointer<DXFEntity> entity)
{
    if (entity)
        entity->setAttributes(currentAttributes());
}

QSharedPointer<DXFAttributes> DXFReader::currentAttributes()
{
    Converted& known = entryFor(attributes);
    if (!known.attributes || !convertAlike(known.record, attributes))
        known = {attributes, DXFAdapter::makeAttributes(attributes)};
    return known.attributes;
}

/// The entry of the cache for a record. Records with the same hash share one entry.
DXFReader::Converted& DXFReader::entryFor(const DL_Attributes& record)
{
    const auto hash =
        std::hash<std::string>()(record.getLayer()) + static_cast<std::size_t>(record.getColor());
    return m_converted[hash % m_converted.size()];
}

QString DXFReader::stringnifyVersion(DL_Codes::version version)
{
    switch (version) {
    case DL_Codes::AC1009_MIN:
        return QStringLiteral("AC1009_MIN");
    case DL_Codes::AC1009:
        return QStringLiteral("AC1009");
    case DL_Codes::AC1012:
        return QStringLiteral("AC1012");
    case DL_Codes::AC1014:
        return QStringLiteral("AC1014");
    case DL_Codes::AC1015:
        return QStringLiteral("AC1015");
    }
    return QStringLiteral("Unknown");
}

void DXFReader::addLinetype(const DL_LinetypeData& data)
{
    m_document.addLineType(DXFAdapter::makeLineType(data));
}

void DXFReader::addLayer(const DL_LayerData& data)
{
    const auto layer = DXFAdapter::makeLayer(data);
    layer->setAttributes(currentAttributes());
    m_document.addLayer(layer);
}

void DXFReader::addPolyline(const DL_PolylineData& data)
{
    m_currentEntity = DXFAdapter::makePolyline(data);
}

void DXFReader::addVertex(const DL_VertexData& data)
{
    if (!m_currentEntity)
        return;

    if (m_currentEntity->type() == dxfviewer::unknownType)
        qDebug() << "addVertex"
                 << "Unsuported type";
    if (auto* polyline = dxfviewer::asPolyline(m_currentEntity))
        polyline->appendPoint(DXFAdapter::makeVertex(data));
}

void DXFReader::endEntity()
{
    if (!m_currentEntity)
        return;

    importEntity(m_currentEntity);
    if (auto* polyline = dxfviewer::asPolyline(m_currentEntity))
        dxfviewer::PolylineAccess::trim(*polyline);
    m_document.addEntity(m_currentEntity);
    // It stays current: dxflib ends some entities that it never began, and each such end lists the
    // polyline once more.
}

void DXFReader::addBlock(const DL_BlockData& data)
{
    qDebug() << "addBlock" << decoded(data.name);
}

void DXFReader::addTextStyle(const DL_StyleData& data)
{
    qDebug() << "addTextStyle" << decoded(data.name);
}

void DXFReader::addDictionary(const DL_DictionaryData& data)
{
    qDebug() << "addDictionary" << decoded(data.handle);
}

void DXFReader::addDictionaryEntry(const DL_DictionaryEntryData& data)
{
    qDebug() << "addDictionaryEntry" << decoded(data.name) << decoded(data.handle);
}

void DXFReader::setVariableInt(const std::string& key, int value, int code)
{
    qDebug() << "setVariableInt" << decoded(key) << QString::number(value) << QString::number(code);
}

void DXFReader::setVariableDouble(const std::string& key, double value, int code)
{
    qDebug() << "setVariableDouble" << decoded(key) << QString::number(value)
             << QString::number(code);
}

// One line each: clang-format would make four of it.
// clang-format off
void DXFReader::add3dFace(const DL_3dFaceData&) { logName(__func__); }
void DXFReader::addArc(const DL_ArcData&) { logName(__func__); }
void DXFReader::addAttribute(const DL_AttributeData&) { logName(__func__); }
void DXFReader::addCircle(const DL_CircleData&) { logName(__func__); }
void DXFReader::addControlPoint(const DL_ControlPointData&) { logName(__func__); }
void DXFReader::addDimAlign(const DL_DimensionData&, const DL_DimAlignedData&)
{ logName(__func__); }
void DXFReader::addDimAngular(const DL_DimensionData&, const DL_DimAngular2LData&)
{ logName(__func__); }
void DXFReader::addDimAngular3P(const DL_DimensionData&, const DL_DimAngular3PData&)
{ logName(__func__); }
void DXFReader::addDimDiametric(const DL_DimensionData&, const DL_DimDiametricData&)
{ logName(__func__); }
void DXFReader::addDimLinear(const DL_DimensionData&, const DL_DimLinearData&)
{ logName(__func__); }
void DXFReader::addDimOrdinate(const DL_DimensionData&, const DL_DimOrdinateData&)
{ logName(__func__); }
void DXFReader::addDimRadial(const DL_DimensionData&, const DL_DimRadialData&)
{ logName(__func__); }
void DXFReader::addEllipse(const DL_EllipseData&) { logName(__func__); }
void DXFReader::addFitPoint(const DL_FitPointData&) { logName(__func__); }
void DXFReader::addHatch(const DL_HatchData&) { logName(__func__); }
void DXFReader::addHatchEdge(const DL_HatchEdgeData&) { logName(__func__); }
void DXFReader::addHatchLoop(const DL_HatchLoopData&) { logName(__func__); }
void DXFReader::addImage(const DL_ImageData&) { logName(__func__); }
void DXFReader::addInsert(const DL_InsertData&) { logName(__func__); }
void DXFReader::addKnot(const DL_KnotData&) { logName(__func__); }
void DXFReader::addLeader(const DL_LeaderData&) { logName(__func__); }
void DXFReader::addLeaderVertex(const DL_LeaderVertexData&) { logName(__func__); }
void DXFReader::addLine(const DL_LineData&) { logName(__func__); }
void DXFReader::addLinetypeDash(double) { logName(__func__); }
void DXFReader::addMText(const DL_MTextData&) { logName(__func__); }
void DXFReader::addMTextChunk(const std::string&) { logName(__func__); }
void DXFReader::addPoint(const DL_PointData&) { logName(__func__); }
void DXFReader::addRay(const DL_RayData&) { logName(__func__); }
void DXFReader::addSolid(const DL_SolidData&) { logName(__func__); }
void DXFReader::addSpline(const DL_SplineData&) { logName(__func__); }
void DXFReader::addText(const DL_TextData&) { logName(__func__); }
void DXFReader::addTrace(const DL_TraceData&) { logName(__func__); }
void DXFReader::addXDataApp(const std::string&) { logName(__func__); }
void DXFReader::addXDataInt(int, int) { logName(__func__); }
void DXFReader::addXDataReal(int, double) { logName(__func__); }
void DXFReader::addXDataString(int, const std::string&) { logName(__func__); }
void DXFReader::addXLine(const DL_XLineData&) { logName(__func__); }
void DXFReader::addXRecord(const std::string&) { logName(__func__); }
void DXFReader::addXRecordBool(int, bool) { logName(__func__); }
void DXFReader::addXRecordInt(int, int) { logName(__func__); }
void DXFReader::addXRecordReal(int, double) { logName(__func__); }
void DXFReader::addXRecordString(int, const std::string&) { logName(__func__); }
void DXFReader::endBlock() { logName(__func__); }
void DXFReader::linkImage(const DL_ImageDefData&) { logName(__func__); }
void DXFReader::setVariableVector(const std::string&, double, double, double, int)
{ logName(__func__); }
// clang-format on

void DXFReader::processCodeValuePair(unsigned int, const std::string&) {}

void DXFReader::addComment(const std::string&) {}

void DXFReader::setVariableString(const std::string&, const std::string&, int) {}

void DXFReader::endSection() {}

void DXFReader::endSequence() {}
