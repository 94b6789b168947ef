// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/DXFReader.h"

#include "dxfviewer/model/DXFAttributes.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFLayer.h"
#include "dxfviewer/model/DXFLineType.h"
#include "dxfviewer/model/DXFPolyline.h"
#include "tests/io/DrawingText.h"
#include "tests/support/Builders.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/OtherEntity.h"

#include <QTemporaryDir>

#include <cmath>
#include <functional>

using namespace dxftest;

namespace
{

class DXFReaderTest : public LoggedTest
{
protected:
    void expectLogged(const char* name, const std::function<void()>& call)
    {
        call();

        EXPECT_EQ(takeDebugMessages(), QStringList(QString::fromLatin1(name)));
    }

    QString fileWith(const std::string& text)
    {
        return dxftest::fileWith(QByteArray::fromStdString(text),
                                 folder.filePath(QStringLiteral("drawing.dxf")));
    }

    QTemporaryDir folder;
    DXFDocument document;
    DXFReader reader{document};
};

std::vector<Group> lwpolyline(const std::string& layer)
{
    return {{0, "LWPOLYLINE"}, {8, layer},   {62, "3"},   {90, "3"},   {70, "1"}, {10, "1.5"},
            {20, "2.5"},       {42, "0.25"}, {10, "3.5"}, {20, "4.5"}, {10, "5"}, {20, "6"}};
}

const std::vector<Group> oldPolyline{{0, "POLYLINE"}, {8, "header"}, {70, "0"},    {0, "VERTEX"},
                                     {8, "last"},     {10, "1"},     {20, "2"},    {30, "3"},
                                     {42, "0.5"},     {0, "VERTEX"}, {8, "last"},  {10, "4"},
                                     {20, "5"},       {0, "VERTEX"}, {8, "last"},  {10, "7"},
                                     {20, "8"},       {42, "-1"},    {0, "SEQEND"}};

TEST_F(DXFReaderTest, OldPolylineIsReadInOrderWithItsBulges)
{
    ASSERT_TRUE(reader.load(bytesOf(oldPolyline)));

    ASSERT_EQ(document.entities().size(), 1);
    const auto vertices = document.entities().first().staticCast<DXFPolyline>()->vertices();
    ASSERT_EQ(vertices.size(), 3);
    EXPECT_EQ(vertices[0].x(), 1.0);
    EXPECT_EQ(vertices[0].y(), 2.0);
    EXPECT_EQ(vertices[0].z(), 3.0);
    EXPECT_EQ(vertices[0].bulge(), 0.5);
    EXPECT_EQ(vertices[1].x(), 4.0);
    EXPECT_EQ(vertices[1].bulge(), 0.0);
    EXPECT_EQ(vertices[2].x(), 7.0);
    EXPECT_EQ(vertices[2].bulge(), -1.0);
}

TEST_F(DXFReaderTest, OldPolylineGetsTheAttributesAnnouncedLast)
{
    ASSERT_TRUE(reader.load(bytesOf(oldPolyline)));

    EXPECT_EQ(document.entities().first()->attributes()->layerName(), QStringLiteral("last"));
}

TEST_F(DXFReaderTest, LightPolylineIsReadWithItsAttributes)
{
    ASSERT_TRUE(reader.load(bytesOf(lwpolyline("walls"))));

    ASSERT_EQ(document.entities().size(), 1);
    const auto polyline = document.entities().first().staticCast<DXFPolyline>();
    EXPECT_EQ(pointsOf(*polyline), (QVector<QPointF>{{1.5, 2.5}, {3.5, 4.5}, {5, 6}}));
    EXPECT_EQ(polyline->vertices().first().bulge(), 0.25);
    EXPECT_TRUE(polyline->isClosed());
    EXPECT_TRUE(polyline->segments().isEmpty());
    EXPECT_EQ(polyline->attributes()->layerName(), QStringLiteral("walls"));
    EXPECT_EQ(polyline->attributes()->color(), 3);
    EXPECT_EQ(polyline->attributes()->width(), -1);
    EXPECT_EQ(polyline->attributes()->lineType(), QStringLiteral("BYLAYER"));
}

TEST_F(DXFReaderTest, TwoPolylinesBecomeTwoEntities)
{
    auto groups = lwpolyline("a");
    const auto second = lwpolyline("b");
    groups.insert(groups.end(), second.begin(), second.end());

    ASSERT_TRUE(reader.load(bytesOf(groups)));

    ASSERT_EQ(document.entities().size(), 2);
    EXPECT_EQ(document.entities()[0]->attributes()->layerName(), QStringLiteral("a"));
    EXPECT_EQ(document.entities()[1]->attributes()->layerName(), QStringLiteral("b"));
}

TEST_F(DXFReaderTest, EntitiesInARowShareEqualAttributes)
{
    auto groups = lwpolyline("a");
    for (const char* layer : {"a", "b", "a"}) {
        const auto next = lwpolyline(layer);
        groups.insert(groups.end(), next.begin(), next.end());
    }

    ASSERT_TRUE(reader.load(bytesOf(groups)));

    const auto entities = document.entities();
    EXPECT_EQ(entities[0]->attributes(), entities[1]->attributes());
    EXPECT_NE(entities[1]->attributes(), entities[2]->attributes());
    EXPECT_EQ(entities[3]->attributes()->layerName(), QStringLiteral("a"));
}

/// There are more layers than entries in the reader's cache of attributes. Each layer has two
/// colours.
TEST_F(DXFReaderTest, AttributesOfManyLayersStayDifferent)
{
    constexpr int layers = 600;
    std::vector<Group> groups;
    for (int layer = 0; layer < layers; ++layer) {
        for (const char* color : {"0", "256"}) {
            groups.insert(
                groups.end(),
                {{0, "LWPOLYLINE"}, {90, "0"}, {8, "L" + std::to_string(layer)}, {62, color}});
        }
    }

    ASSERT_TRUE(reader.load(bytesOf(groups)));

    const auto entities = document.entities();
    ASSERT_EQ(entities.size(), 2 * layers);
    for (int i = 0; i < entities.size(); ++i) {
        EXPECT_EQ(entities[i]->attributes()->layerName(), QStringLiteral("L%1").arg(i / 2));
        EXPECT_EQ(entities[i]->attributes()->color(), i % 2 == 0 ? 0 : 256);
    }
}

TEST_F(DXFReaderTest, PositiveAndNegativeZeroStayDifferent)
{
    ASSERT_TRUE(reader.load(bytesOf(
        {{0, "LWPOLYLINE"}, {90, "0"}, {48, "0.0"}, {0, "LWPOLYLINE"}, {90, "0"}, {48, "-0.0"}})));

    ASSERT_EQ(document.entities().size(), 2);
    EXPECT_FALSE(std::signbit(document.entities()[0]->attributes()->lineTypeScale()));
    EXPECT_TRUE(std::signbit(document.entities()[1]->attributes()->lineTypeScale()));
}

TEST_F(DXFReaderTest, EveryDifferenceOfAttributesIsKept)
{
    const std::vector<Group> differences{{5, "1F"},  {8, "x"},    {6, "DOT"}, {62, "9"},
                                         {420, "7"}, {370, "13"}, {48, "2.5"}};
    std::vector<Group> groups;
    for (const Group& difference : differences) {
        groups.insert(groups.end(), {{0, "LWPOLYLINE"}, {90, "0"}});
        groups.insert(groups.end(), {{0, "LWPOLYLINE"}, {90, "0"}, difference});
    }

    ASSERT_TRUE(reader.load(bytesOf(groups)));

    const auto entities = document.entities();
    EXPECT_EQ(entities[1]->attributes()->handle(), 0x1f);
    EXPECT_EQ(entities[3]->attributes()->layerName(), QStringLiteral("x"));
    EXPECT_EQ(entities[5]->attributes()->lineType(), QStringLiteral("DOT"));
    EXPECT_EQ(entities[7]->attributes()->color(), 9);
    EXPECT_EQ(entities[9]->attributes()->color24(), 7);
    EXPECT_EQ(entities[11]->attributes()->width(), 13);
    EXPECT_EQ(entities[13]->attributes()->lineTypeScale(), 2.5);
    EXPECT_EQ(entities[12]->attributes()->lineTypeScale(), 1.0);
}

TEST_F(DXFReaderTest, OtherEntitiesAreLoggedAndDropped)
{
    ASSERT_TRUE(reader.load(bytesOf({{0, "LINE"}, {0, "ARC"}, {0, "CIRCLE"}, {0, "LINE"}})));

    EXPECT_TRUE(document.entities().isEmpty());
    EXPECT_EQ(takeDebugMessages(),
              (QStringList{QStringLiteral("addLine"), QStringLiteral("addArc"),
                           QStringLiteral("addCircle"), QStringLiteral("addLine")}));
}

TEST_F(DXFReaderTest, BytesAfterAZeroAreNotRead)
{
    QByteArray data = bytesOf(lwpolyline("a"));
    data.truncate(data.indexOf("ENDSEC") + 7);
    data.append('\0');
    data.append(bytesOf(lwpolyline("b")));

    ASSERT_TRUE(reader.load(data));

    EXPECT_EQ(document.entities().size(), 1);
}

TEST_F(DXFReaderTest, BytesWithoutATerminatingZeroAreNotReadBeyondTheirEnd)
{
    const QByteArray whole = bytesOf(lwpolyline("a"));

    ASSERT_TRUE(reader.load(QByteArray::fromRawData(whole.constData(), whole.size() - 20)));

    EXPECT_TRUE(document.entities().isEmpty());
}

TEST_F(DXFReaderTest, AnyContentIsReadAsADrawing)
{
    EXPECT_TRUE(reader.load(QByteArray()));
    EXPECT_TRUE(reader.load(QByteArray("not a drawing")));
    EXPECT_EQ(document.entities().size(), 0);
}

TEST_F(DXFReaderTest, DocumentIsLoadedWithoutSetup)
{
    const auto loaded = DXFDocument::load(bytesOf(lwpolyline("a")));

    ASSERT_TRUE(loaded);
    ASSERT_EQ(loaded->entities().size(), 1);
    EXPECT_TRUE(loaded->entities().first().staticCast<DXFPolyline>()->segments().isEmpty());
    EXPECT_FALSE(loaded->entities().first()->color().isValid());
}

TEST_F(DXFReaderTest, MissingFileIsReported)
{
    EXPECT_FALSE(reader.load(QStringLiteral("/no such folder/a.dxf")));

    EXPECT_EQ(takeDebugMessages(),
              QStringList(QStringLiteral("\"/no such folder/a.dxf\"  could not be opened.\n")));
}

TEST_F(DXFReaderTest, FileNameIsUtf8)
{
    const QString name = folder.filePath(QString::fromUtf8("Fl\xc3\xbcgel.dxf"));
    ASSERT_TRUE(QFile::rename(fileWith(drawingOf(lwpolyline("a"))), name));

    EXPECT_TRUE(reader.load(name));

    EXPECT_EQ(document.entities().size(), 1);
}

TEST_F(DXFReaderTest, LayerGetsTheCurrentAttributes)
{
    ASSERT_TRUE(reader.load(bytesOf({{0, "LAYER"},
                                     {2, "W\xc3\xa4nde"},
                                     {8, "other"},
                                     {70, "5"},
                                     {62, "3"},
                                     {6, "DASHED"},
                                     {370, "35"}})));

    ASSERT_EQ(document.layers().size(), 1);
    const auto layer = document.getLayer(QString::fromUtf8("W\xc3\xa4nde"));
    ASSERT_TRUE(layer);
    EXPECT_TRUE(layer->isFrozen());
    EXPECT_TRUE(layer->isLocked());
    EXPECT_EQ(layer->attributes()->layerName(), QStringLiteral("other"));
    EXPECT_EQ(layer->attributes()->color(), 3);
    EXPECT_EQ(layer->attributes()->lineType(), QStringLiteral("DASHED"));
    EXPECT_EQ(layer->attributes()->width(), 35);
}

TEST_F(DXFReaderTest, SecondLayerOfANameIsDropped)
{
    ASSERT_TRUE(reader.load(
        bytesOf({{0, "LAYER"}, {2, "a"}, {70, "1"}, {0, "LAYER"}, {2, "a"}, {70, "4"}})));

    ASSERT_EQ(document.layers().size(), 1);
    EXPECT_TRUE(document.layers().first()->isFrozen());
}

TEST_F(DXFReaderTest, EveryLineTypeIsKeptWithoutItsDashes)
{
    ASSERT_TRUE(reader.load(bytesOf({{0, "LTYPE"},
                                     {2, "ByLayer"},
                                     {0, "LTYPE"},
                                     {2, "DASHED"},
                                     {3, "__ __"},
                                     {70, "1"},
                                     {73, "2"},
                                     {40, "0.75"},
                                     {49, "0.5"},
                                     {49, "-0.25"}})));

    ASSERT_EQ(document.lineTypes().size(), 2);
    const auto dashed = document.getLineType(QStringLiteral("DASHED"));
    ASSERT_TRUE(dashed);
    EXPECT_EQ(dashed->description(), QStringLiteral("__ __"));
    EXPECT_EQ(dashed->flags(), 1);
    EXPECT_EQ(dashed->numberOfDashes(), 2);
    EXPECT_EQ(dashed->patternLength(), 0.75);
    EXPECT_EQ(dashed->pattern(), nullptr);
    EXPECT_EQ(takeDebugMessages(),
              (QStringList{QStringLiteral("addLinetypeDash"), QStringLiteral("addLinetypeDash")}));
}

TEST_F(DXFReaderTest, PolylineInABlockIsKept)
{
    std::vector<Group> groups{{0, "BLOCK"}, {2, "Door"}};
    const auto polyline = lwpolyline("a");
    groups.insert(groups.end(), polyline.begin(), polyline.end());
    groups.push_back({0, "ENDBLK"});

    ASSERT_TRUE(reader.load(bytesOf(groups)));

    EXPECT_EQ(document.entities().size(), 1);
    EXPECT_EQ(takeDebugMessages(),
              (QStringList{QStringLiteral("addBlock \"Door\""), QStringLiteral("endBlock")}));
}

TEST_F(DXFReaderTest, VertexBeforeAnyPolylineIsLost)
{
    reader.addVertex(DL_VertexData(1.0, 2.0));
    reader.endEntity();

    EXPECT_TRUE(document.entities().isEmpty());
    EXPECT_TRUE(takeDebugMessages().isEmpty());
}

TEST_F(DXFReaderTest, PolylineWithoutEndIsDroppedByTheNext)
{
    reader.addPolyline(DL_PolylineData(0, 1, 0, 0));
    reader.addPolyline(DL_PolylineData(0, 2, 0, 0));
    reader.endEntity();

    ASSERT_EQ(document.entities().size(), 1);
    EXPECT_EQ(document.entities().first().staticCast<DXFPolyline>()->mVertices(), 2U);
}

TEST_F(DXFReaderTest, VertexAfterTheEndGoesToTheSamePolyline)
{
    reader.addPolyline(DL_PolylineData(0, 0, 0, 0));
    reader.endEntity();
    reader.addVertex(DL_VertexData(1.0, 2.0));

    EXPECT_EQ(document.entities().first().staticCast<DXFPolyline>()->vertexNumber(), 1);
}

TEST_F(DXFReaderTest, SecondEndListsThePolylineAgainWithNewAttributes)
{
    reader.addPolyline(DL_PolylineData(0, 0, 0, 0));
    reader.setAttributes(DL_Attributes("a", 1, -1, -1, "X"));
    reader.endEntity();
    reader.setAttributes(DL_Attributes("b", 1, -1, -1, "X"));
    reader.endEntity();

    ASSERT_EQ(document.entities().size(), 2);
    EXPECT_EQ(document.entities()[0], document.entities()[1]);
    EXPECT_EQ(document.entities()[0]->attributes()->layerName(), QStringLiteral("b"));
}

TEST_F(DXFReaderTest, CurrentPolylineStaysForTheNextLoad)
{
    ASSERT_TRUE(reader.load(bytesOf(lwpolyline("a"))));
    ASSERT_TRUE(reader.load(bytesOf({{0, "IMAGE"}})));

    EXPECT_EQ(document.entities().size(), 2);
    EXPECT_EQ(document.entities()[0], document.entities()[1]);
}

TEST_F(DXFReaderTest, VerticesOfOneLoadDoNotAppearInTheNext)
{
    const std::string full = drawingOf(lwpolyline("a"));
    const std::string bare = drawingOf({{0, "LWPOLYLINE"}});

    ASSERT_TRUE(reader.load(QByteArray::fromStdString(full)));
    ASSERT_TRUE(reader.load(QByteArray::fromStdString(bare)));
    ASSERT_TRUE(reader.load(fileWith(full)));
    ASSERT_TRUE(reader.load(fileWith(bare)));

    ASSERT_EQ(document.entities().size(), 4);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(document.entities()[i].staticCast<DXFPolyline>()->vertexNumber(),
                  i % 2 == 0 ? 3 : 0);
}

TEST_F(DXFReaderTest, BeforeALoadImportGivesDxflibsDefaults)
{
    const auto entity = QSharedPointer<OtherEntity>::create();

    reader.importEntity(entity);

    const auto attributes = entity->attributes();
    EXPECT_EQ(attributes->layerName(), QString());
    EXPECT_EQ(attributes->lineType(), QStringLiteral("BYLAYER"));
    EXPECT_EQ(attributes->color(), 0);
    EXPECT_EQ(attributes->color24(), -1);
    EXPECT_EQ(attributes->width(), 0);
    EXPECT_EQ(attributes->lineTypeScale(), 1.0);
    EXPECT_EQ(attributes->handle(), -1);
    EXPECT_FALSE(attributes->inPaperSpace());
}

TEST_F(DXFReaderTest, VersionsHaveNames)
{
    EXPECT_EQ(DXFReader::stringnifyVersion(DL_Codes::AC1009_MIN), QStringLiteral("AC1009_MIN"));
    EXPECT_EQ(DXFReader::stringnifyVersion(DL_Codes::AC1009), QStringLiteral("AC1009"));
    EXPECT_EQ(DXFReader::stringnifyVersion(DL_Codes::AC1012), QStringLiteral("AC1012"));
    EXPECT_EQ(DXFReader::stringnifyVersion(DL_Codes::AC1014), QStringLiteral("AC1014"));
    EXPECT_EQ(DXFReader::stringnifyVersion(DL_Codes::AC1015), QStringLiteral("AC1015"));
    EXPECT_EQ(DXFReader::stringnifyVersion(static_cast<DL_Codes::version>(7)),
              QStringLiteral("Unknown"));
}

TEST_F(DXFReaderTest, DroppedRecordsAreLoggedByName)
{
    expectLogged("addLinetypeDash", [this] { reader.addLinetypeDash(1.0); });
    expectLogged("endBlock", [this] { reader.endBlock(); });
    expectLogged("addPoint", [this] { reader.addPoint(DL_PointData(0.0, 0.0, 0.0)); });
    expectLogged("addLine", [this] { reader.addLine(DL_LineData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0)); });
    expectLogged("addXLine",
                 [this] { reader.addXLine(DL_XLineData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0)); });
    expectLogged("addRay", [this] { reader.addRay(DL_RayData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0)); });
    expectLogged("addArc", [this] { reader.addArc(DL_ArcData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0)); });
    expectLogged("addCircle", [this] { reader.addCircle(DL_CircleData(0.0, 0.0, 0.0, 0.0)); });
    expectLogged("addEllipse", [this] {
        reader.addEllipse(DL_EllipseData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0));
    });
    expectLogged("addSpline", [this] { reader.addSpline(DL_SplineData(0, 0, 0, 0, 0)); });
    expectLogged("addControlPoint",
                 [this] { reader.addControlPoint(DL_ControlPointData(0.0, 0.0, 0.0, 0.0)); });
    expectLogged("addFitPoint", [this] { reader.addFitPoint(DL_FitPointData(0.0, 0.0, 0.0)); });
    expectLogged("addKnot", [this] { reader.addKnot(DL_KnotData(1.0)); });
    expectLogged("addInsert", [this] {
        reader.addInsert(DL_InsertData("", 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0, 0, 0.0, 0.0));
    });
    expectLogged("addMText", [this] {
        reader.addMText(
            DL_MTextData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0, 0, 0, 0.0, "", "", 0.0));
    });
    expectLogged("addMTextChunk", [this] { reader.addMTextChunk("x"); });
    expectLogged("addText", [this] {
        reader.addText(DL_TextData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0, 0, 0, "", "", 0.0));
    });
    expectLogged("addAttribute", [this] {
        reader.addAttribute(
            DL_AttributeData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0, 0, 0, "", "", "", 0.0));
    });
    expectLogged("addDimAlign", [this] {
        reader.addDimAlign(
            DL_DimensionData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0, 0, 0, 0.0, "", "", 0.0, 0.0, 0.0),
            DL_DimAlignedData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0));
    });
    expectLogged("addDimLinear", [this] {
        reader.addDimLinear(
            DL_DimensionData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0, 0, 0, 0.0, "", "", 0.0, 0.0, 0.0),
            DL_DimLinearData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0));
    });
    expectLogged("addDimRadial", [this] {
        reader.addDimRadial(
            DL_DimensionData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0, 0, 0, 0.0, "", "", 0.0, 0.0, 0.0),
            DL_DimRadialData(0.0, 0.0, 0.0, 0.0));
    });
    expectLogged("addDimDiametric", [this] {
        reader.addDimDiametric(
            DL_DimensionData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0, 0, 0, 0.0, "", "", 0.0, 0.0, 0.0),
            DL_DimDiametricData(0.0, 0.0, 0.0, 0.0));
    });
    expectLogged("addDimAngular", [this] {
        reader.addDimAngular(
            DL_DimensionData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0, 0, 0, 0.0, "", "", 0.0, 0.0, 0.0),
            DL_DimAngular2LData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0));
    });
    expectLogged("addDimAngular3P", [this] {
        reader.addDimAngular3P(
            DL_DimensionData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0, 0, 0, 0.0, "", "", 0.0, 0.0, 0.0),
            DL_DimAngular3PData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0));
    });
    expectLogged("addDimOrdinate", [this] {
        reader.addDimOrdinate(
            DL_DimensionData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0, 0, 0, 0.0, "", "", 0.0, 0.0, 0.0),
            DL_DimOrdinateData(0.0, 0.0, 0.0, 0.0, 0.0, 0.0, false));
    });
    expectLogged("addLeader",
                 [this] { reader.addLeader(DL_LeaderData(0, 0, 0, 0, 0, 0.0, 0.0, 0, 0.0)); });
    expectLogged("addLeaderVertex",
                 [this] { reader.addLeaderVertex(DL_LeaderVertexData(0.0, 0.0, 0.0)); });
    expectLogged("addHatch", [this] { reader.addHatch(DL_HatchData()); });
    expectLogged("addTrace", [this] { reader.addTrace(DL_TraceData()); });
    expectLogged("add3dFace", [this] { reader.add3dFace(DL_3dFaceData()); });
    expectLogged("addSolid", [this] { reader.addSolid(DL_SolidData()); });
    expectLogged("addImage", [this] {
        reader.addImage(
            DL_ImageData("", 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0, 0, 0, 0, 0));
    });
    expectLogged("linkImage", [this] { reader.linkImage(DL_ImageDefData("", "")); });
    expectLogged("addHatchLoop", [this] { reader.addHatchLoop(DL_HatchLoopData(1)); });
    expectLogged("addHatchEdge", [this] { reader.addHatchEdge(DL_HatchEdgeData()); });
    expectLogged("addXRecord", [this] { reader.addXRecord("x"); });
    expectLogged("addXRecordString", [this] { reader.addXRecordString(1, "x"); });
    expectLogged("addXRecordReal", [this] { reader.addXRecordReal(1, 1.0); });
    expectLogged("addXRecordInt", [this] { reader.addXRecordInt(1, 1); });
    expectLogged("addXRecordBool", [this] { reader.addXRecordBool(1, true); });
    expectLogged("addXDataApp", [this] { reader.addXDataApp("x"); });
    expectLogged("addXDataString", [this] { reader.addXDataString(1, "x"); });
    expectLogged("addXDataReal", [this] { reader.addXDataReal(1, 1.0); });
    expectLogged("addXDataInt", [this] { reader.addXDataInt(1, 1); });
    expectLogged("setVariableVector", [this] { reader.setVariableVector("x", 1.0, 1.0, 1.0, 1); });
}

TEST_F(DXFReaderTest, SomeDroppedRecordsAreLoggedWithValues)
{
    expectLogged("addBlock \"B\"", [this] { reader.addBlock(DL_BlockData("B", 0, 0, 0, 0)); });
    expectLogged("addTextStyle \"S\"",
                 [this] { reader.addTextStyle(DL_StyleData("S", 0, 0, 0, 0, 0, 0, "", "")); });
    expectLogged("addDictionary \"1F\"", [this] { reader.addDictionary(DL_DictionaryData("1F")); });
    expectLogged("addDictionaryEntry \"E\" \"2F\"",
                 [this] { reader.addDictionaryEntry(DL_DictionaryEntryData("E", "2F")); });
    expectLogged("setVariableInt \"$A\" \"-5\" \"70\"",
                 [this] { reader.setVariableInt("$A", -5, 70); });
    expectLogged("setVariableDouble \"$B\" \"1.23457\" \"40\"",
                 [this] { reader.setVariableDouble("$B", 1.23456789, 40); });
}

TEST_F(DXFReaderTest, LoggedTextsAreUtf8)
{
    reader.addBlock(DL_BlockData("T\xc3\xa4r", 0, 0, 0, 0));
    reader.addTextStyle(DL_StyleData("Schr\xc3\xa4g", 0, 0, 0, 0, 0, 0, "", ""));
    reader.addDictionary(DL_DictionaryData("\xc3\xa4"));
    reader.addDictionaryEntry(DL_DictionaryEntryData("L\xc3\xa4nge", "\xc3\xa4"));
    reader.setVariableInt("$\xc3\xa4", 1, 70);
    reader.setVariableDouble("$\xc3\xa4", 0.5, 40);

    EXPECT_EQ(takeDebugMessages(),
              (QStringList{QString::fromUtf8("addBlock \"T\xc3\xa4r\""),
                           QString::fromUtf8("addTextStyle \"Schr\xc3\xa4g\""),
                           QString::fromUtf8("addDictionary \"\xc3\xa4\""),
                           QString::fromUtf8("addDictionaryEntry \"L\xc3\xa4nge\" \"\xc3\xa4\""),
                           QString::fromUtf8("setVariableInt \"$\xc3\xa4\" \"1\" \"70\""),
                           QString::fromUtf8("setVariableDouble \"$\xc3\xa4\" \"0.5\" \"40\"")}));
}

TEST_F(DXFReaderTest, SomeRecordsAreDroppedSilently)
{
    reader.processCodeValuePair(0, "x");
    reader.addComment("x");
    reader.setVariableString("$A", "x", 1);
    reader.endSection();
    reader.endSequence();
    reader.addArcAlignedText(DL_ArcAlignedTextData());

    EXPECT_TRUE(takeDebugMessages().isEmpty());
    EXPECT_TRUE(document.entities().isEmpty());
}

TEST_F(DXFReaderTest, FileAndBytesGiveTheSame)
{
    DrawingGenerator generator(1);
    const std::string text = textOf(generator.makeDrawing(300));
    DXFDocument fromFile;

    ASSERT_TRUE(DXFReader(fromFile).load(fileWith(text)));
    const QStringList fileMessages = takeDebugMessages();
    ASSERT_TRUE(reader.load(QByteArray::fromStdString(text)));

    EXPECT_EQ(takeDebugMessages(), fileMessages);
    ASSERT_GT(document.entities().size(), 30);
    ASSERT_EQ(document.entities().size(), fromFile.entities().size());
    for (int i = 0; i < document.entities().size(); ++i)
        EXPECT_EQ(pointsOf(*document.entities()[i].staticCast<DXFPolyline>()),
                  pointsOf(*fromFile.entities()[i].staticCast<DXFPolyline>()));
}

} // namespace
