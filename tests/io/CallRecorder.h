// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <dl_creationadapter.h>
#include <dl_dxf.h>

#include <sstream>
#include <string>
#include <vector>

namespace dxftest
{

/// Records what dxflib's parser delivers, in order, with the values that it defines.
class CallRecorder : public DL_CreationAdapter
{
public:
    const std::vector<std::string>& calls() const { return m_calls; }

    /// The calls of one callback.
    std::vector<std::string> calls(const std::string& name) const
    {
        std::vector<std::string> found;
        for (const std::string& call : m_calls) {
            if (call.rfind(name + ' ', 0) == 0)
                found.push_back(call);
        }
        return found;
    }

    void addLayer(const DL_LayerData& a) override { record(__func__, a.name, a.flags); }
    void addLinetype(const DL_LinetypeData& a) override
    {
        record(__func__, a.name, a.description, a.flags, a.numberOfDashes, a.patternLength);
    }
    void addLinetypeDash(double a) override { record(__func__, a); }
    void addBlock(const DL_BlockData& a) override { record(__func__, a.name); }
    void endBlock() override { record(__func__); }
    void addTextStyle(const DL_StyleData&) override { record(__func__); }
    void addPoint(const DL_PointData& a) override { record(__func__, a.x, a.y, a.z); }
    void addLine(const DL_LineData& a) override
    {
        record(__func__, a.x1, a.y1, a.z1, a.x2, a.y2, a.z2);
    }
    void addXLine(const DL_XLineData&) override { record(__func__); }
    void addRay(const DL_RayData&) override { record(__func__); }
    void addArc(const DL_ArcData&) override { record(__func__); }
    void addCircle(const DL_CircleData&) override { record(__func__); }
    void addEllipse(const DL_EllipseData&) override { record(__func__); }
    void addPolyline(const DL_PolylineData& a) override
    {
        record(__func__, a.m, a.n, a.flags, a.elevation);
    }
    void addVertex(const DL_VertexData& a) override { record(__func__, a.x, a.y, a.z, a.bulge); }
    void addSpline(const DL_SplineData& a) override
    {
        record(__func__, a.degree, a.nKnots, a.nControl, a.nFit, a.flags);
    }
    void addControlPoint(const DL_ControlPointData& a) override
    {
        record(__func__, a.x, a.y, a.z, a.w);
    }
    void addFitPoint(const DL_FitPointData& a) override { record(__func__, a.x, a.y, a.z); }
    void addKnot(const DL_KnotData& a) override { record(__func__, a.k); }
    void addInsert(const DL_InsertData&) override { record(__func__); }
    void addMText(const DL_MTextData&) override { record(__func__); }
    void addMTextChunk(const std::string& a) override { record(__func__, a); }
    void addText(const DL_TextData& a) override { record(__func__, a.text, a.height); }
    void addArcAlignedText(const DL_ArcAlignedTextData&) override { record(__func__); }
    void addAttribute(const DL_AttributeData&) override { record(__func__); }
    void addDimAlign(const DL_DimensionData&, const DL_DimAlignedData&) override
    {
        record(__func__);
    }
    void addDimLinear(const DL_DimensionData&, const DL_DimLinearData&) override
    {
        record(__func__);
    }
    void addDimRadial(const DL_DimensionData&, const DL_DimRadialData&) override
    {
        record(__func__);
    }
    void addDimDiametric(const DL_DimensionData&, const DL_DimDiametricData&) override
    {
        record(__func__);
    }
    void addDimAngular(const DL_DimensionData&, const DL_DimAngular2LData&) override
    {
        record(__func__);
    }
    void addDimAngular3P(const DL_DimensionData&, const DL_DimAngular3PData&) override
    {
        record(__func__);
    }
    void addDimOrdinate(const DL_DimensionData&, const DL_DimOrdinateData&) override
    {
        record(__func__);
    }
    void addLeader(const DL_LeaderData&) override { record(__func__); }
    void addLeaderVertex(const DL_LeaderVertexData& a) override { record(__func__, a.x, a.y, a.z); }
    void addHatch(const DL_HatchData& a) override { record(__func__, a.numLoops, a.pattern); }
    void addTrace(const DL_TraceData&) override { record(__func__); }
    void add3dFace(const DL_3dFaceData&) override { record(__func__); }
    void addSolid(const DL_SolidData&) override { record(__func__); }
    void addImage(const DL_ImageData& a) override { record(__func__, a.ref); }
    void linkImage(const DL_ImageDefData& a) override { record(__func__, a.ref); }
    void addHatchLoop(const DL_HatchLoopData& a) override { record(__func__, a.numEdges); }
    void addHatchEdge(const DL_HatchEdgeData&) override { record(__func__); }
    void addXRecord(const std::string& a) override { record(__func__, a); }
    void addXRecordString(int a, const std::string& b) override { record(__func__, a, b); }
    void addXRecordReal(int a, double b) override { record(__func__, a, b); }
    void addXRecordInt(int a, int b) override { record(__func__, a, b); }
    void addXRecordBool(int a, bool b) override { record(__func__, a, b); }
    void addXDataApp(const std::string& a) override { record(__func__, a); }
    void addXDataString(int a, const std::string& b) override { record(__func__, a, b); }
    void addXDataReal(int a, double b) override { record(__func__, a, b); }
    void addXDataInt(int a, int b) override { record(__func__, a, b); }
    void addDictionary(const DL_DictionaryData&) override { record(__func__); }
    void addDictionaryEntry(const DL_DictionaryEntryData&) override { record(__func__); }
    void endEntity() override
    {
        record(__func__, attributes.getLayer(), attributes.getColor(), attributes.getWidth());
    }
    void addComment(const std::string& a) override { record(__func__, a); }
    void setVariableVector(const std::string& a, double b, double c, double d, int e) override
    {
        record(__func__, a, b, c, d, e);
    }
    void setVariableString(const std::string& a, const std::string& b, int c) override
    {
        record(__func__, a, b, c);
    }
    void setVariableInt(const std::string& a, int b, int c) override { record(__func__, a, b, c); }
    void setVariableDouble(const std::string& a, double b, int c) override
    {
        record(__func__, a, b, c);
    }
    void endSequence() override { record(__func__); }

private:
    template <typename... Values>
    void record(const char* name, const Values&... values)
    {
        std::ostringstream call;
        call.precision(17);
        call << name << ' ';
        ((call << values << ' '), ...);
        m_calls.push_back(call.str());
    }

    std::vector<std::string> m_calls;
};

/// The calls that dxflib makes for a text, or those of one callback.
inline std::vector<std::string> parsed(const std::string& text, const char* callback = nullptr)
{
    CallRecorder recorder;
    std::stringstream stream(text);
    DL_Dxf parser;
    parser.in(stream, &recorder);
    return callback ? recorder.calls(callback) : recorder.calls();
}

} // namespace dxftest
