// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/DXFAdapter.h"

#include "dxfviewer/model/DXFAttributes.h"
#include "dxfviewer/model/DXFLayer.h"
#include "dxfviewer/model/DXFLineType.h"
#include "dxfviewer/model/DXFPolyline.h"
#include "tests/support/LoggedTest.h"

using namespace dxftest;

namespace
{

class DXFAdapterTest : public LoggedTest
{
};

TEST_F(DXFAdapterTest, AttributesAreTakenOver)
{
    DL_Attributes record("W\xc3\xa4nde", 3, 0x123456, 25, "DaShed", 42);
    record.setLinetypeScale(2.5);

    const auto attributes = DXFAdapter::makeAttributes(record);

    EXPECT_EQ(attributes->layerName(), QString::fromUtf8("W\xc3\xa4nde"));
    EXPECT_EQ(attributes->color(), 3);
    EXPECT_EQ(attributes->color24(), 0x123456);
    EXPECT_EQ(attributes->width(), 25);
    EXPECT_EQ(attributes->lineType(), QStringLiteral("DaShed"));
    EXPECT_EQ(attributes->lineTypeScale(), 2.5);
    EXPECT_EQ(attributes->handle(), 42);
}

TEST_F(DXFAdapterTest, MissingLineTypeBecomesByLayer)
{
    const auto attributes = DXFAdapter::makeAttributes(DL_Attributes("0", 7, -1, -1, ""));

    EXPECT_EQ(attributes->lineType(), QStringLiteral("BYLAYER"));
}

TEST_F(DXFAdapterTest, PaperSpaceIsDroppedWhenReading)
{
    DL_Attributes record;
    record.setInPaperSpace(true);

    EXPECT_FALSE(DXFAdapter::makeAttributes(record)->inPaperSpace());
}

TEST_F(DXFAdapterTest, LineTypeScaleAndPaperSpaceAreDroppedWhenWriting)
{
    const auto attributes = QSharedPointer<DXFAttributes>::create(
        QString::fromUtf8("\xce\xa9"), 1, 2, 3, QStringLiteral("DOT"), 2.5, 4, true);

    const DL_Attributes record = DXFAdapter::makeAttributes(attributes);

    EXPECT_EQ(record.getLayer(), "\xce\xa9");
    EXPECT_EQ(record.getColor(), 1);
    EXPECT_EQ(record.getColor24(), 2);
    EXPECT_EQ(record.getWidth(), 3);
    EXPECT_EQ(record.getLinetype(), "DOT");
    EXPECT_EQ(record.getLinetypeScale(), 1.0);
    EXPECT_EQ(record.getHandle(), 4);
    EXPECT_FALSE(record.isInPaperSpace());
}

TEST_F(DXFAdapterTest, LineTypeSharesThePatternBothWays)
{
    double pattern[] = {1.0, -0.5};
    const DL_LinetypeData record("D\xc3\xa9", "__ __", 5, 2, 1.5, pattern);

    const auto lineType = DXFAdapter::makeLineType(record);
    const DL_LinetypeData back = DXFAdapter::makeLineType(lineType);

    EXPECT_EQ(lineType->name(), QString::fromUtf8("D\xc3\xa9"));
    EXPECT_EQ(lineType->description(), QStringLiteral("__ __"));
    EXPECT_EQ(lineType->flags(), 5);
    EXPECT_EQ(lineType->numberOfDashes(), 2);
    EXPECT_EQ(lineType->patternLength(), 1.5);
    EXPECT_EQ(lineType->pattern(), pattern);
    EXPECT_EQ(back.name, record.name);
    EXPECT_EQ(back.description, record.description);
    EXPECT_EQ(back.flags, 5);
    EXPECT_EQ(back.numberOfDashes, 2);
    EXPECT_EQ(back.patternLength, 1.5);
    EXPECT_EQ(back.pattern, pattern);
}

TEST_F(DXFAdapterTest, NullPatternKeepsItsNumberOfDashes)
{
    const auto lineType = DXFAdapter::makeLineType(DL_LinetypeData("A", "", 0, 4, 1.0));

    const DL_LinetypeData back = DXFAdapter::makeLineType(lineType);

    EXPECT_EQ(back.pattern, nullptr);
    EXPECT_EQ(back.numberOfDashes, 4);
}

TEST_F(DXFAdapterTest, LayerLosesItsOffFlagAndHasNoAttributes)
{
    const auto layer = DXFAdapter::makeLayer(DL_LayerData("\xd0\xa1", 70, true));
    const DL_LayerData back = DXFAdapter::makeLayer(layer);

    EXPECT_EQ(layer->name(), QString::fromUtf8("\xd0\xa1"));
    EXPECT_EQ(int(layer->flags()), 70);
    EXPECT_FALSE(layer->attributes());
    EXPECT_EQ(back.name, "\xd0\xa1");
    EXPECT_EQ(back.flags, 70);
    EXPECT_FALSE(back.off);
}

TEST_F(DXFAdapterTest, StringsAreConvertedBeyondTheirZeroBytes)
{
    const std::string name("a\0\xc3\xa4", 4);
    const std::string description("\0b", 2);
    const DL_Attributes record(name, 1, -1, -1, description);

    const auto layer = DXFAdapter::makeLayer(DL_LayerData(name, 0));
    const auto lineType = DXFAdapter::makeLineType(DL_LinetypeData(name, description, 0, 0, 0.0));
    const auto attributes = DXFAdapter::makeAttributes(record);

    const QString decodedName = QLatin1Char('a') + QString(QChar()) + QChar(0xe4);
    const QString decodedDescription = QString(QChar()) + QLatin1Char('b');
    EXPECT_EQ(layer->name(), decodedName);
    EXPECT_EQ(DXFAdapter::makeLayer(layer).name, name);
    EXPECT_EQ(lineType->name(), decodedName);
    EXPECT_EQ(lineType->description(), decodedDescription);
    EXPECT_EQ(DXFAdapter::makeLineType(lineType).name, name);
    EXPECT_EQ(DXFAdapter::makeLineType(lineType).description, description);
    EXPECT_EQ(attributes->layerName(), decodedName);
    EXPECT_EQ(attributes->lineType(), decodedDescription);
    EXPECT_EQ(DXFAdapter::makeAttributes(attributes).getLayer(), name);
    EXPECT_EQ(DXFAdapter::makeAttributes(attributes).getLinetype(), description);
}

TEST_F(DXFAdapterTest, PolylineLosesItsNumberAndElevation)
{
    const auto polyline = DXFAdapter::makePolyline(DL_PolylineData(7, 2, 3, 129, 3.0));
    const DL_PolylineData back = DXFAdapter::makePolyline(polyline);

    EXPECT_EQ(polyline->vertexNumber(), 0);
    EXPECT_EQ(polyline->mVertices(), 2U);
    EXPECT_EQ(polyline->nVertices(), 3U);
    EXPECT_EQ(polyline->flags(), 129U);
    EXPECT_FALSE(polyline->attributes());
    EXPECT_EQ(back.number, 0U);
    EXPECT_EQ(back.m, 2U);
    EXPECT_EQ(back.n, 3U);
    EXPECT_EQ(back.flags, 129);
    EXPECT_EQ(back.elevation, 0.0);
}

TEST_F(DXFAdapterTest, PolylineAnnouncesTheNumberOfItsVertices)
{
    const auto polyline = QSharedPointer<DXFPolyline>::create(0U, 0U, 0U);
    polyline->appendPoint(DXFVertex(1.0, 2.0, 0.0, true, 0.0));

    EXPECT_EQ(DXFAdapter::makePolyline(polyline).number, 1U);
}

TEST_F(DXFAdapterTest, VertexKeepsPlaceAndBulge)
{
    const DXFVertex vertex = DXFAdapter::makeVertex(DL_VertexData(1.0, 2.0, 3.0, -0.5));
    const DL_VertexData back = DXFAdapter::makeVertex(vertex);

    EXPECT_EQ(vertex.x(), 1.0);
    EXPECT_EQ(vertex.y(), 2.0);
    EXPECT_EQ(vertex.z(), 3.0);
    EXPECT_EQ(vertex.bulge(), -0.5);
    EXPECT_EQ(back.x, 1.0);
    EXPECT_EQ(back.y, 2.0);
    EXPECT_EQ(back.z, 3.0);
    EXPECT_EQ(back.bulge, -0.5);
}

} // namespace
