// SPDX-License-Identifier: GPL-2.0-or-later

// What a host may do outside of the GUI thread. Under ThreadSanitizer (the preset tsan) these tests
// find data races. Without it they only check that the drawings are complete.

#include "dxfviewer/flatten/FlatteningReader.h"
#include "dxfviewer/io/DXFReader.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFPolyline.h"
#include "dxfviewer/viewer/DXFViewer.h"
#include "dxfviewer/viewer/View.h"

#include "tests/support/Builders.h"
#include "tests/support/Files.h"
#include "tests/support/Patience.h"
#include "tests/support/SceneMouse.h"
#include "tests/support/WindowParts.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <chrono>
#include <future>
#include <utility>
#include <vector>

using namespace dxftest;

namespace
{

constexpr int polylines = 200;

QByteArray drawing(int which)
{
    QVector<Chain> chains;
    for (int i = 0; i < polylines; ++i)
        chains.append({{{0.5 * which, 1.0 * i}, {300, 1.0 * i}, {400, 2.0 * i}}, i % 3 == 0});
    return drawingText(chains);
}

/// A reader of a host, with data of its own.
class HostsReader : public DXFReader
{
public:
    using DXFReader::DXFReader;

    void addVertex(const DL_VertexData& data) override
    {
        ++m_vertices;
        DXFReader::addVertex(data);
    }

    int vertices() const { return m_vertices; }

private:
    int m_vertices = 0;
};

template <typename Source>
QSharedPointer<DXFDocument> read(const Source& source)
{
    const auto document = QSharedPointer<DXFDocument>::create();
    HostsReader reader(*document);
    const bool isRead = reader.load(source);
    return isRead && reader.vertices() == 3 * polylines ? document : nullptr;
}

/// Runs something in a thread of its own.
template <typename Function>
auto inThread(Function function)
{
    return std::async(std::launch::async, std::move(function));
}

template <typename Result>
bool isReady(const std::future<Result>& future)
{
    return future.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

class ReadingThreadTest : public ::testing::Test
{
protected:
    // Set before any thread starts: a message handler may be called in each of them.
    ReadingThreadTest() { QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false")); }
    ~ReadingThreadTest() override { QLoggingCategory::setFilterRules(QString()); }
};

TEST_F(ReadingThreadTest, ReadingAssignsNoIds)
{
    const QByteArray text = drawing(0);
    const Segment before;
    const int id = before.id();

    const auto document = inThread([text] { return read(text); }).get();

    ASSERT_NE(document, nullptr);
    const Segment after;
    EXPECT_EQ(after.id(), id + 1);
}

TEST_F(ReadingThreadTest, SeveralThreadsReadWhileTheWindowIsInUse)
{
    DXFViewer window;
    window.show();
    ASSERT_TRUE(loadAndShow(window, drawing(0)));

    for (int round = 1; round <= 3; ++round) {
        std::vector<std::future<QSharedPointer<DXFDocument>>> readers;
        for (int i = 0; i < 3; ++i)
            readers.push_back(inThread([text = drawing(round)] { return read(text); }));
        editActionOf(window).setChecked(true);
        while (!isReady(readers[0]) || !isReady(readers[1]) || !isReady(readers[2])) {
            SceneMouse(viewOf(window)).drag({{200, -5}, {200, 0}, {200, 5}});
            window.grab();
            window.getData();
            QCoreApplication::processEvents();
        }

        for (auto& reader : readers) {
            const auto document = reader.get();
            ASSERT_NE(document, nullptr);
            window.loadDocument(document);
            ASSERT_TRUE(eventually([&] { return shownDocument(window) == document; }));
            const auto here = DXFDocument::load(drawing(round));
            here->setup();
            EXPECT_EQ(linesOf(document), linesOf(here));
        }
    }
}

TEST_F(ReadingThreadTest, FilesMayBeReadInAThread)
{
    const QTemporaryDir folder;
    const QString name = fileWith(drawing(1), folder.filePath(QStringLiteral("drawing.dxf")));

    auto first = inThread([name] { return read(name); });
    auto second = inThread([name] { return read(name); });
    const auto here = read(name);

    ASSERT_NE(here, nullptr);
    for (auto* reader : {&first, &second}) {
        const auto document = reader->get();
        ASSERT_NE(document, nullptr);
        document->setup();
        here->setup();
        EXPECT_EQ(linesOf(document), linesOf(here));
    }
}

/// A reader that leaves the read by an exception.
class LeavingReader : public DXFReader
{
public:
    using DXFReader::DXFReader;

    void addVertex(const DL_VertexData&) override { throw 1; }
};

TEST_F(ReadingThreadTest, ReadersMayLeaveByAnExceptionAtTheSameTime)
{
    constexpr int rounds = 50;
    const QByteArray text = drawing(0);
    const auto leave = [&text] {
        int left = 0;
        for (int i = 0; i < rounds; ++i) {
            DXFDocument document;
            left += LeavingReader(document).load(text) ? 0 : 1;
        }
        return left;
    };

    auto first = inThread(leave);
    auto second = inThread(leave);

    EXPECT_EQ(first.get(), rounds);
    EXPECT_EQ(second.get(), rounds);
    EXPECT_NE(read(text), nullptr);
}

QVector<QLineF> flattened()
{
    DXFDocument document;
    FlatteningOptions options;
    options.showsTexts = true;
    if (!FlatteningReader(document, options)
             .load(QStringLiteral(SAMPLES_DIR "/bearing-housing.dxf")))
        return {};
    QVector<QLineF> lines;
    const auto entities = document.entities();
    for (const auto& entity : entities) {
        const auto& vertices = static_cast<const DXFPolyline&>(*entity).vertices();
        for (int i = 1; i < vertices.size(); ++i)
            lines.append(
                {vertices[i - 1].x(), vertices[i - 1].y(), vertices[i].x(), vertices[i].y()});
    }
    return lines;
}

TEST_F(ReadingThreadTest, FlatteningReadersMayRunInAThread)
{
    auto first = inThread(flattened);
    auto second = inThread(flattened);
    const auto here = flattened();

    EXPECT_FALSE(here.isEmpty());
    EXPECT_EQ(first.get(), here);
    EXPECT_EQ(second.get(), here);
}

} // namespace
