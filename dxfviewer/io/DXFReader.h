// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

#include <QSharedPointer>

#include <dl_creationadapter.h>

#include <vector>

class DXFAttributes;
class DXFDocument;
class DXFEntity;
class QByteArray;
class QString;

/**
 * Fills a document from DXF data: its layers, its line types and its polylines.
 *
 * Everything else is dropped, most of it after a debug line that names the callback of dxflib that
 * delivered it. Polylines inside block definitions are kept like any other. Make a reader over a
 * new document, call load() once, and destroy it.
 */
class DXFVIEWER_EXPORT DXFReader : public DL_CreationAdapter
{
public:
    /// The document must outlive the reader.
    explicit DXFReader(DXFDocument& document);
    ~DXFReader() override;

    /// Reads a file. False, after a message on the debug channel, if it cannot be read; what was
    /// added to the document by then stays in it.
    bool load(const QString& fileName);
    /// Reads the text of a DXF file, up to its first zero byte. Failure is as above.
    bool load(const QByteArray& data);

    /// Gives the entity the attributes that dxflib announced last.
    void importEntity(QSharedPointer<DXFEntity> entity);

    /// The name of a version of the format, "Unknown" for those without one.
    static QString stringnifyVersion(DL_Codes::version version);

    /// @name What the document is filled from
    /// @{
    void addLinetype(const DL_LinetypeData& data) override;
    void addLayer(const DL_LayerData& data) override;
    void addPolyline(const DL_PolylineData& data) override;
    void addVertex(const DL_VertexData& data) override;
    void endEntity() override;
    /// @}

    /// @name What is logged with a value and dropped
    /// @{
    void addBlock(const DL_BlockData& data) override;
    void addTextStyle(const DL_StyleData& data) override;
    void addDictionary(const DL_DictionaryData& data) override;
    void addDictionaryEntry(const DL_DictionaryEntryData& data) override;
    void setVariableInt(const std::string& key, int value, int code) override;
    void setVariableDouble(const std::string& key, double value, int code) override;
    /// @}

    /// @name What is logged by name and dropped
    /// @{
    void add3dFace(const DL_3dFaceData&) override;
    void addArc(const DL_ArcData&) override;
    void addAttribute(const DL_AttributeData&) override;
    void addCircle(const DL_CircleData&) override;
    void addControlPoint(const DL_ControlPointData&) override;
    void addDimAlign(const DL_DimensionData&, const DL_DimAlignedData&) override;
    void addDimAngular(const DL_DimensionData&, const DL_DimAngular2LData&) override;
    void addDimAngular3P(const DL_DimensionData&, const DL_DimAngular3PData&) override;
    void addDimDiametric(const DL_DimensionData&, const DL_DimDiametricData&) override;
    void addDimLinear(const DL_DimensionData&, const DL_DimLinearData&) override;
    void addDimOrdinate(const DL_DimensionData&, const DL_DimOrdinateData&) override;
    void addDimRadial(const DL_DimensionData&, const DL_DimRadialData&) override;
    void addEllipse(const DL_EllipseData&) override;
    void addFitPoint(const DL_FitPointData&) override;
    void addHatch(const DL_HatchData&) override;
    void addHatchEdge(const DL_HatchEdgeData&) override;
    void addHatchLoop(const DL_HatchLoopData&) override;
    void addImage(const DL_ImageData&) override;
    void addInsert(const DL_InsertData&) override;
    void addKnot(const DL_KnotData&) override;
    void addLeader(const DL_LeaderData&) override;
    void addLeaderVertex(const DL_LeaderVertexData&) override;
    void addLine(const DL_LineData&) override;
    void addLinetypeDash(double) override;
    void addMText(const DL_MTextData&) override;
    void addMTextChunk(const std::string&) override;
    void addPoint(const DL_PointData&) override;
    void addRay(const DL_RayData&) override;
    void addSolid(const DL_SolidData&) override;
    void addSpline(const DL_SplineData&) override;
    void addText(const DL_TextData&) override;
    void addTrace(const DL_TraceData&) override;
    void addXDataApp(const std::string&) override;
    void addXDataInt(int, int) override;
    void addXDataReal(int, double) override;
    void addXDataString(int, const std::string&) override;
    void addXLine(const DL_XLineData&) override;
    void addXRecord(const std::string&) override;
    void addXRecordBool(int, bool) override;
    void addXRecordInt(int, int) override;
    void addXRecordReal(int, double) override;
    void addXRecordString(int, const std::string&) override;
    void endBlock() override;
    void linkImage(const DL_ImageDefData&) override;
    void setVariableVector(const std::string&, double, double, double, int) override;
    /// @}

    /// @name What is dropped
    /// @{
    void processCodeValuePair(unsigned int, const std::string&) override;
    void addComment(const std::string&) override;
    void setVariableString(const std::string&, const std::string&, int) override;
    void endSection() override;
    void endSequence() override;
    /// @}

private:
    /// Attributes as dxflib announced them, and what they were converted to.
    struct Converted {
        DL_Attributes record;
        QSharedPointer<DXFAttributes> attributes;
    };

    QSharedPointer<DXFAttributes> currentAttributes();
    Converted& entryFor(const DL_Attributes& record);

    DXFDocument& m_document;
    QSharedPointer<DXFEntity> m_currentEntity;
    // A cache. Most entities have the same attributes as an earlier one and share its record.
    std::vector<Converted> m_converted;
};
