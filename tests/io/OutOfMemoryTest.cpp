// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/DXFReader.h"
#include "dxfviewer/model/DXFDocument.h"
#include "tests/support/LoggedTest.h"

#include <gmock/gmock.h>

#include <QTemporaryDir>

#include <new>

using namespace dxftest;
using ::testing::ElementsAre;

namespace
{

constexpr std::size_t largeArray = 1 << 16;
constexpr int polylines = 6;
constexpr int verticesPerPolyline = 4000;

// How many more large arrays there is memory for; negative if there is no end.
int arraysLeft = -1;

QByteArray drawing()
{
    QByteArray text = "0\nSECTION\n2\nENTITIES\n";
    for (int i = 0; i < polylines; ++i) {
        text += "0\nLWPOLYLINE\n90\n" + QByteArray::number(verticesPerPolyline) + "\n";
        for (int vertex = 0; vertex < verticesPerPolyline; ++vertex)
            text += "10\n" + QByteArray::number(vertex) + "\n20\n1\n";
    }
    return text + "0\nENDSEC\n0\nEOF\n";
}

/// Reading ends at the large array of that number: dxflib has one for each polyline, and has freed
/// the one before.
class OutOfMemoryTest : public LoggedTest, public ::testing::WithParamInterface<int>
{
protected:
    template <typename Source>
    void expectFailure(const Source& source)
    {
        DXFDocument document;
        DXFReader reader(document);
        arraysLeft = GetParam() - 1;

        const bool read = reader.load(source);

        EXPECT_EQ(arraysLeft, 0) << "nothing was refused";
        arraysLeft = -1;
        EXPECT_FALSE(read);
    }

    void expectReadable()
    {
        DXFDocument document;
        EXPECT_TRUE(DXFReader(document).load(drawing()));
        EXPECT_EQ(document.entities().size(), polylines);
        takeDebugMessages();
    }
};

TEST_P(OutOfMemoryTest, BytesAreNotReadAndTheProcessGoesOn)
{
    expectFailure(drawing());

    EXPECT_THAT(takeDebugMessages(),
                ElementsAre(QStringLiteral("DXFReader::Could not parse dxf data")));
    expectReadable();
}

TEST_P(OutOfMemoryTest, FileIsNotReadAndTheProcessGoesOn)
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("drawing.dxf"));
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(drawing());
    file.close();

    expectFailure(name);

    const QStringList messages = takeDebugMessages();
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages.first().contains(QStringLiteral("could not be opened.")));
    expectReadable();
}

INSTANTIATE_TEST_SUITE_P(Arrays, OutOfMemoryTest, ::testing::Range(1, polylines + 1),
                         [](const auto& array) { return "Array" + std::to_string(array.param); });

} // namespace

void* operator new[](std::size_t size)
{
    if (size >= largeArray && arraysLeft >= 0) {
        if (arraysLeft == 0)
            throw std::bad_alloc();
        --arraysLeft;
    }
    return ::operator new(size);
}
