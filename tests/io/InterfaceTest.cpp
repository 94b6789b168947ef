// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/DXFAdapter.h"
#include "dxfviewer/io/DXFReader.h"
#include "dxfviewer/io/DXFWriter.h"
#include "dxfviewer/model/DXFAttributes.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFLayer.h"
#include "dxfviewer/model/DXFLineType.h"
#include "dxfviewer/model/DXFPolyline.h"

#include <type_traits>

// Hosts are compiled against these. dxflib calls the reader's callbacks only if they override its
// own. The type of a callback's address tells whether the reader declares it.

namespace
{

using std::is_same_v;
using Attributes = QSharedPointer<DXFAttributes>;
using Layer = QSharedPointer<DXFLayer>;
using LineType = QSharedPointer<DXFLineType>;
using Polyline = QSharedPointer<DXFPolyline>;

/// Whether exactly this one is among the overloads of a function.
template <typename Function>
constexpr bool has(Function)
{
    return true;
}

static_assert(std::is_empty_v<DXFAdapter>);
static_assert(has<Attributes (*)(const DL_Attributes&)>(&DXFAdapter::makeAttributes));
static_assert(has<DL_Attributes (*)(Attributes)>(&DXFAdapter::makeAttributes));
static_assert(has<LineType (*)(const DL_LinetypeData&)>(&DXFAdapter::makeLineType));
static_assert(has<DL_LinetypeData (*)(LineType)>(&DXFAdapter::makeLineType));
static_assert(has<Layer (*)(const DL_LayerData&)>(&DXFAdapter::makeLayer));
static_assert(has<DL_LayerData (*)(Layer)>(&DXFAdapter::makeLayer));
static_assert(has<Polyline (*)(const DL_PolylineData&)>(&DXFAdapter::makePolyline));
static_assert(has<DL_PolylineData (*)(Polyline)>(&DXFAdapter::makePolyline));
static_assert(has<DXFVertex (*)(const DL_VertexData&)>(&DXFAdapter::makeVertex));
static_assert(has<DL_VertexData (*)(DXFVertex)>(&DXFAdapter::makeVertex));

static_assert(std::is_convertible_v<DXFReader*, DL_CreationAdapter*>);
static_assert(std::has_virtual_destructor_v<DXFReader>);
static_assert(std::is_constructible_v<DXFReader, DXFDocument&>);
static_assert(!std::is_constructible_v<DXFReader, const DXFDocument&>);
static_assert(has<bool (DXFReader::*)(const QString&)>(&DXFReader::load));
static_assert(has<bool (DXFReader::*)(const QByteArray&)>(&DXFReader::load));
static_assert(
    is_same_v<decltype(&DXFReader::importEntity), void (DXFReader::*)(QSharedPointer<DXFEntity>)>);
static_assert(is_same_v<decltype(&DXFReader::stringnifyVersion), QString (*)(DL_Codes::version)>);

template <typename... Arguments>
using Callback = void (DXFReader::*)(Arguments...);

static_assert(is_same_v<decltype(&DXFReader::addLinetype), Callback<const DL_LinetypeData&>>);
static_assert(is_same_v<decltype(&DXFReader::addLayer), Callback<const DL_LayerData&>>);
static_assert(is_same_v<decltype(&DXFReader::addPolyline), Callback<const DL_PolylineData&>>);
static_assert(is_same_v<decltype(&DXFReader::addVertex), Callback<const DL_VertexData&>>);
static_assert(is_same_v<decltype(&DXFReader::endEntity), Callback<>>);
static_assert(is_same_v<decltype(&DXFReader::addBlock), Callback<const DL_BlockData&>>);
static_assert(is_same_v<decltype(&DXFReader::addTextStyle), Callback<const DL_StyleData&>>);
static_assert(is_same_v<decltype(&DXFReader::addDictionary), Callback<const DL_DictionaryData&>>);
static_assert(
    is_same_v<decltype(&DXFReader::addDictionaryEntry), Callback<const DL_DictionaryEntryData&>>);
static_assert(
    is_same_v<decltype(&DXFReader::setVariableInt), Callback<const std::string&, int, int>>);
static_assert(
    is_same_v<decltype(&DXFReader::setVariableDouble), Callback<const std::string&, double, int>>);
static_assert(is_same_v<decltype(&DXFReader::add3dFace), Callback<const DL_3dFaceData&>>);
static_assert(is_same_v<decltype(&DXFReader::addArc), Callback<const DL_ArcData&>>);
static_assert(is_same_v<decltype(&DXFReader::addAttribute), Callback<const DL_AttributeData&>>);
static_assert(is_same_v<decltype(&DXFReader::addCircle), Callback<const DL_CircleData&>>);
static_assert(
    is_same_v<decltype(&DXFReader::addControlPoint), Callback<const DL_ControlPointData&>>);
static_assert(is_same_v<decltype(&DXFReader::addDimAlign),
                        Callback<const DL_DimensionData&, const DL_DimAlignedData&>>);
static_assert(is_same_v<decltype(&DXFReader::addDimAngular),
                        Callback<const DL_DimensionData&, const DL_DimAngular2LData&>>);
static_assert(is_same_v<decltype(&DXFReader::addDimAngular3P),
                        Callback<const DL_DimensionData&, const DL_DimAngular3PData&>>);
static_assert(is_same_v<decltype(&DXFReader::addDimDiametric),
                        Callback<const DL_DimensionData&, const DL_DimDiametricData&>>);
static_assert(is_same_v<decltype(&DXFReader::addDimLinear),
                        Callback<const DL_DimensionData&, const DL_DimLinearData&>>);
static_assert(is_same_v<decltype(&DXFReader::addDimOrdinate),
                        Callback<const DL_DimensionData&, const DL_DimOrdinateData&>>);
static_assert(is_same_v<decltype(&DXFReader::addDimRadial),
                        Callback<const DL_DimensionData&, const DL_DimRadialData&>>);
static_assert(is_same_v<decltype(&DXFReader::addEllipse), Callback<const DL_EllipseData&>>);
static_assert(is_same_v<decltype(&DXFReader::addFitPoint), Callback<const DL_FitPointData&>>);
static_assert(is_same_v<decltype(&DXFReader::addHatch), Callback<const DL_HatchData&>>);
static_assert(is_same_v<decltype(&DXFReader::addHatchEdge), Callback<const DL_HatchEdgeData&>>);
static_assert(is_same_v<decltype(&DXFReader::addHatchLoop), Callback<const DL_HatchLoopData&>>);
static_assert(is_same_v<decltype(&DXFReader::addImage), Callback<const DL_ImageData&>>);
static_assert(is_same_v<decltype(&DXFReader::addInsert), Callback<const DL_InsertData&>>);
static_assert(is_same_v<decltype(&DXFReader::addKnot), Callback<const DL_KnotData&>>);
static_assert(is_same_v<decltype(&DXFReader::addLeader), Callback<const DL_LeaderData&>>);
static_assert(
    is_same_v<decltype(&DXFReader::addLeaderVertex), Callback<const DL_LeaderVertexData&>>);
static_assert(is_same_v<decltype(&DXFReader::addLine), Callback<const DL_LineData&>>);
static_assert(is_same_v<decltype(&DXFReader::addLinetypeDash), Callback<double>>);
static_assert(is_same_v<decltype(&DXFReader::addMText), Callback<const DL_MTextData&>>);
static_assert(is_same_v<decltype(&DXFReader::addMTextChunk), Callback<const std::string&>>);
static_assert(is_same_v<decltype(&DXFReader::addPoint), Callback<const DL_PointData&>>);
static_assert(is_same_v<decltype(&DXFReader::addRay), Callback<const DL_RayData&>>);
static_assert(is_same_v<decltype(&DXFReader::addSolid), Callback<const DL_SolidData&>>);
static_assert(is_same_v<decltype(&DXFReader::addSpline), Callback<const DL_SplineData&>>);
static_assert(is_same_v<decltype(&DXFReader::addText), Callback<const DL_TextData&>>);
static_assert(is_same_v<decltype(&DXFReader::addTrace), Callback<const DL_TraceData&>>);
static_assert(is_same_v<decltype(&DXFReader::addXDataApp), Callback<const std::string&>>);
static_assert(is_same_v<decltype(&DXFReader::addXDataInt), Callback<int, int>>);
static_assert(is_same_v<decltype(&DXFReader::addXDataReal), Callback<int, double>>);
static_assert(is_same_v<decltype(&DXFReader::addXDataString), Callback<int, const std::string&>>);
static_assert(is_same_v<decltype(&DXFReader::addXLine), Callback<const DL_XLineData&>>);
static_assert(is_same_v<decltype(&DXFReader::addXRecord), Callback<const std::string&>>);
static_assert(is_same_v<decltype(&DXFReader::addXRecordBool), Callback<int, bool>>);
static_assert(is_same_v<decltype(&DXFReader::addXRecordInt), Callback<int, int>>);
static_assert(is_same_v<decltype(&DXFReader::addXRecordReal), Callback<int, double>>);
static_assert(is_same_v<decltype(&DXFReader::addXRecordString), Callback<int, const std::string&>>);
static_assert(is_same_v<decltype(&DXFReader::endBlock), Callback<>>);
static_assert(is_same_v<decltype(&DXFReader::linkImage), Callback<const DL_ImageDefData&>>);
static_assert(is_same_v<decltype(&DXFReader::setVariableVector),
                        Callback<const std::string&, double, double, double, int>>);
static_assert(is_same_v<decltype(&DXFReader::processCodeValuePair),
                        Callback<unsigned int, const std::string&>>);
static_assert(is_same_v<decltype(&DXFReader::addComment), Callback<const std::string&>>);
static_assert(is_same_v<decltype(&DXFReader::setVariableString),
                        Callback<const std::string&, const std::string&, int>>);
static_assert(is_same_v<decltype(&DXFReader::endSection), Callback<>>);
static_assert(is_same_v<decltype(&DXFReader::endSequence), Callback<>>);
static_assert(is_same_v<decltype(&DXFReader::addArcAlignedText),
                        void (DL_CreationAdapter::*)(const DL_ArcAlignedTextData&)>);

using WritePart = void (DXFWriter::*)();

static_assert(std::is_constructible_v<DXFWriter, const DXFDocument&>);
static_assert(has<bool (DXFWriter::*)(const QString&)>(&DXFWriter::save));
static_assert(has<QByteArray (DXFWriter::*)()>(&DXFWriter::save));
static_assert(is_same_v<decltype(&DXFWriter::writeHeader), WritePart>);
static_assert(is_same_v<decltype(&DXFWriter::writeVPORT_table), WritePart>);
static_assert(is_same_v<decltype(&DXFWriter::writeLineType_table), WritePart>);
static_assert(is_same_v<decltype(&DXFWriter::writeTextStyle_table), WritePart>);
static_assert(is_same_v<decltype(&DXFWriter::writeUserCS_table), WritePart>);
static_assert(is_same_v<decltype(&DXFWriter::writeVIEW_table), WritePart>);
static_assert(is_same_v<decltype(&DXFWriter::writeDIMSTYLE_table), WritePart>);
static_assert(is_same_v<decltype(&DXFWriter::writeLAYER_table), WritePart>);
static_assert(is_same_v<decltype(&DXFWriter::writeAPPID_table), WritePart>);
static_assert(is_same_v<decltype(&DXFWriter::writeEntities_section), WritePart>);

} // namespace
