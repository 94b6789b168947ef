// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/DXFReader.h"
#include "dxfviewer/model/DXFDocument.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"

#include <gmock/gmock.h>

#include <QTemporaryDir>

#include <cstdlib>
#include <limits>
#include <new>

using namespace dxftest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr std::size_t largeSize = 1 << 16;
constexpr int polylines = 6;
constexpr int verticesPerPolyline = 4000;

/// How many more large pieces of memory can be allocated. Negative: any number.
class Supply
{
public:
    void limitTo(int pieces) { m_left = pieces; }
    void lift() { m_left = -1; }
    int left() const { return m_left; }

    bool gives(std::size_t size)
    {
        if (size < largeSize || m_left < 0)
            return true;
        if (m_left == 0)
            return false;
        --m_left;
        return true;
    }

private:
    int m_left = -1;
};

Supply arrays;
Supply blocks;

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

/// A drawing that must be repaired, so its bytes are copied.
QByteArray damagedDrawing()
{
    return "999\ndxflib\n" + drawing();
}

void* allocated(std::size_t size)
{
    if (void* memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}

class MemoryTest : public LoggedTest
{
protected:
    QString fileWith(const QByteArray& text)
    {
        return dxftest::fileWith(text, folder.filePath(QStringLiteral("drawing.dxf")));
    }

    void expectReadable()
    {
        DXFDocument document;
        EXPECT_TRUE(DXFReader(document).load(drawing()));
        EXPECT_EQ(document.entities().size(), polylines);
        takeDebugMessages();
    }

    QTemporaryDir folder;
};

/// Reading fails at the large array whose number is the parameter. dxflib allocates one for each
/// polyline, and frees the one before.
class OutOfArraysTest : public MemoryTest, public ::testing::WithParamInterface<int>
{
protected:
    template <typename Source>
    void expectFailure(const Source& source)
    {
        DXFDocument document;
        DXFReader reader(document);
        arrays.limitTo(GetParam() - 1);

        const bool read = reader.load(source);

        EXPECT_EQ(arrays.left(), 0) << "nothing was refused";
        arrays.lift();
        EXPECT_FALSE(read);
    }
};

TEST_P(OutOfArraysTest, ReadingBytesFailsAndTheNextReadWorks)
{
    expectFailure(drawing());

    EXPECT_THAT(takeDebugMessages(),
                ElementsAre(QStringLiteral("DXFReader::Could not parse dxf data")));
    expectReadable();
}

TEST_P(OutOfArraysTest, ReadingAFileFailsAndTheNextReadWorks)
{
    expectFailure(fileWith(drawing()));

    const QStringList messages = takeDebugMessages();
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages.first().contains(QStringLiteral("could not be opened.")));
    expectReadable();
}

TEST_P(OutOfArraysTest, DocumentOfUnreadBytesIsNull)
{
    const QByteArray bytes = drawing();
    arrays.limitTo(GetParam() - 1);

    const auto document = DXFDocument::load(bytes);

    arrays.lift();
    EXPECT_TRUE(document.isNull());
    EXPECT_THAT(takeDebugMessages(),
                ElementsAre(QStringLiteral("DXFReader::Could not parse dxf data")));
}

INSTANTIATE_TEST_SUITE_P(Arrays, OutOfArraysTest, ::testing::Range(1, polylines + 1),
                         [](const auto& array) { return "Array" + std::to_string(array.param); });

/// Loads with fewer and fewer large pieces of memory. A stream does not report that it gets none.
class OutOfBlocksTest : public MemoryTest
{
protected:
    template <typename Source>
    void expectAllOrFailure(const Source& source, const QString& message)
    {
        const int needed = blocksOfALoad(source);
        EXPECT_GT(needed, 0);
        for (int given = 0; given < needed; ++given) {
            SCOPED_TRACE(given);
            DXFDocument document;
            DXFReader reader(document);
            blocks.limitTo(given);

            const bool read = reader.load(source);

            blocks.lift();
            if (read) {
                EXPECT_EQ(document.entities().size(), polylines);
                EXPECT_THAT(takeDebugMessages(), IsEmpty());
            } else {
                EXPECT_THAT(takeDebugMessages(), ElementsAre(message));
            }
        }
        expectReadable();
    }

    template <typename Source>
    static int blocksOfALoad(const Source& source)
    {
        constexpr int plenty = std::numeric_limits<int>::max();
        DXFDocument document;
        DXFReader reader(document);
        blocks.limitTo(plenty);
        EXPECT_TRUE(reader.load(source));
        const int used = plenty - blocks.left();
        blocks.lift();
        EXPECT_EQ(document.entities().size(), polylines);
        return used;
    }
};

TEST_F(OutOfBlocksTest, BytesAreReadCompletelyOrNotAtAll)
{
    const QString message = QStringLiteral("DXFReader::Could not parse dxf data");

    expectAllOrFailure(damagedDrawing(), message);
}

TEST_F(OutOfBlocksTest, SoundBytesAreReadInPlace)
{
    EXPECT_EQ(blocksOfALoad(drawing()), 0);
}

TEST_F(OutOfBlocksTest, FileIsReadCompletelyOrNotAtAll)
{
    const QString name = fileWith(drawing());
    const QString message = QLatin1Char('"') + name + QLatin1String("\"  could not be opened.\n");

    expectAllOrFailure(name, message);
    fileWith(damagedDrawing());
    expectAllOrFailure(name, message);
}

TEST_F(OutOfBlocksTest, DocumentOfUnreadBytesIsNull)
{
    const QByteArray bytes = damagedDrawing();
    blocks.limitTo(0);

    const auto document = DXFDocument::load(bytes);

    blocks.lift();
    EXPECT_TRUE(document.isNull());
    EXPECT_THAT(takeDebugMessages(),
                ElementsAre(QStringLiteral("DXFReader::Could not parse dxf data")));
}

} // namespace

void* operator new(std::size_t size)
{
    if (!blocks.gives(size))
        throw std::bad_alloc();
    return allocated(size);
}

void* operator new[](std::size_t size)
{
    if (!arrays.gives(size))
        throw std::bad_alloc();
    return allocated(size);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}
