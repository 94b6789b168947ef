// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/FlatteningReader.h"

#include "tests/flatten/Records.h"
#include "tests/support/LoggedTest.h"

#include <QDir>

#include <ostream>

using namespace dxftest;

namespace
{

/// What is expected of one of the extra drawings. The kinds and their numbers are in one line.
struct Expected {
    const char* name;
    int polylines;
    int vertices;
    const char* shown;
    const char* skipped;
};

void PrintTo(const Expected& expected, std::ostream* out)
{
    *out << expected.name;
}

// clang-format off
const Expected drawings[] = {
    {"binary-r12.dxf", 3, 6,
     "LINE 3",
     ""},
    {"bulged-polylines-r12.dxf", 31, 721,
     "3DFACE 1 POLYLINE 30",
     ""},
    {"city-survey-cyrillic.dxf", 2292, 40915,
     "ARC 3 CIRCLE 213 INSERT 181 LINE 33 LWPOLYLINE 410 POINT 1294",
     "3DSOLID 1 HATCH 7 MULTILEADER 18 TEXT 1445"},
    {"closed-outline-r10-dashed.dxf", 1, 270,
     "POLYLINE 1",
     ""},
    {"detail-in-block-text-linetypes.dxf", 4, 8,
     "INSERT 1 LINE 3 LWPOLYLINE 1",
     "TEXT 3"},
    {"eagle-outline-r2.dxf", 10, 461,
     "POLYLINE 10",
     ""},
    {"entity-zoo-2004.dxf", 250, 74795,
     "3DFACE 2 ACAD_TABLE 1 ARC 5 ARC_DIMENSION 1 CIRCLE 1 DIMENSION 9 ELLIPSE 1 INSERT 10 LINE 67 LWPOLYLINE 11 POINT 46 POLYLINE 2 SOLID 15 SPLINE 2",
     "3DSOLID 1 ATTRIB 2 HATCH 1 LIGHT 1 MLINE 1 MTEXT 18 MULTILEADER 1 RAY 1 REGION 2 TEXT 2 TOLERANCE 1 WIPEOUT 2 XLINE 1"},
    {"greek-umlaut-layer-r12.dxf", 2, 4,
     "LINE 2",
     "TEXT 1"},
    {"house-floor-plan.dxf", 1492, 6455,
     "ARC 60 CIRCLE 23 DIMENSION 63 INSERT 136 LEADER 6 LINE 932 LWPOLYLINE 125 POINT 189",
     "HATCH 13 MTEXT 72 TEXT 89"},
    {"images-and-frames.dxf", 70, 2009,
     "CIRCLE 28 INSERT 2 LWPOLYLINE 41",
     "IMAGE 60 MTEXT 8 TEXT 93"},
    {"machine-drawing-r14-mixed.dxf", 1972, 12368,
     "ARC 207 CIRCLE 24 ELLIPSE 16 LINE 1450 LWPOLYLINE 49 POINT 179 POLYLINE 47",
     "HATCH 22 IMAGE 9 TEXT 117"},
    {"many-layers-lines-only.dxf", 2809, 5618,
     "LINE 2809",
     ""},
    {"many-vertices-r14.dxf", 356, 21626,
     "LINE 270 LWPOLYLINE 86",
     ""},
    {"no-tables-old-polylines.dxf", 29, 373,
     "POLYLINE 29",
     ""},
    {"spline-art-one-point-polylines.dxf", 7533, 97083,
     "LWPOLYLINE 69 SPLINE 7464",
     ""},
    {"spline-fit-polylines.dxf", 6, 726,
     "POLYLINE 6",
     ""},
    {"splines-only.dxf", 45, 35869,
     "SPLINE 45",
     ""},
    {"states-outline-map.dxf", 59, 5709,
     "LWPOLYLINE 59",
     ""},
    {"text-fields-long-lines.dxf", 4, 8,
     "LINE 4",
     "MTEXT 8"},
    {"wing-ribs-umlaut-layers.dxf", 188, 4635,
     "CIRCLE 30 LINE 58 LWPOLYLINE 100",
     ""},
};
// clang-format on

QString listed(const Counts& counts)
{
    QStringList words;
    for (auto count = counts.begin(); count != counts.end(); ++count)
        words << count.key() << QString::number(count.value());
    return words.join(QLatin1Char(' '));
}

/// Needs a folder with these drawings.
class FlattenedDrawingsTest : public LoggedTest, public ::testing::WithParamInterface<Expected>
{
protected:
    void SetUp() override
    {
        const QString folder = qEnvironmentVariable("DXFVIEWER_EXTRA_DRAWINGS");
        name = QDir(folder).filePath(QString::fromLatin1(GetParam().name));
        if (folder.isEmpty() || !QFile::exists(name))
            GTEST_SKIP() << "DXFVIEWER_EXTRA_DRAWINGS names no folder with this drawing";
    }

    QString name;
};

TEST_P(FlattenedDrawingsTest, HasTheExpectedNumbers)
{
    Flattened drawing;
    drawing.document = QSharedPointer<DXFDocument>::create();
    FlatteningReader reader(*drawing.document);

    ASSERT_TRUE(reader.load(name));

    int vertices = 0;
    for (int i = 0; i < drawing.count(); ++i)
        vertices += drawing.polyline(i)->vertexNumber();
    EXPECT_EQ(drawing.count(), GetParam().polylines);
    EXPECT_EQ(vertices, GetParam().vertices);
    EXPECT_EQ(listed(reader.shown()), QString::fromLatin1(GetParam().shown));
    EXPECT_EQ(listed(reader.skipped()), QString::fromLatin1(GetParam().skipped));
    EXPECT_EQ(takeDebugMessages(), QStringList());
}

TEST_P(FlattenedDrawingsTest, AllTextsAreShownOnRequest)
{
    DXFDocument document;
    FlatteningOptions options;
    options.showsTexts = true;
    FlatteningReader reader(document, options);

    ASSERT_TRUE(reader.load(name));

    for (const char* kind : {"TEXT", "MTEXT", "ATTRIB"})
        EXPECT_FALSE(reader.skipped().contains(QString::fromLatin1(kind))) << kind;
}

INSTANTIATE_TEST_SUITE_P(All, FlattenedDrawingsTest, ::testing::ValuesIn(drawings));

} // namespace
