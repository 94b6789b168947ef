// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/DrawingParser.h"

#include "dxfviewer/io/DXFReader.h"
#include "dxfviewer/io/IReadingSteps.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFPolyline.h"
#include "tests/io/CallRecorder.h"
#include "tests/io/DrawingText.h"
#include "tests/io/TestLocales.h"
#include "tests/support/Builders.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <functional>
#include <limits>
#include <new>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <dl_dxf.h>

using namespace dxftest;

namespace
{

int openDescriptors()
{
    return static_cast<int>(QDir(QStringLiteral("/proc/self/fd"))
                                .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
                                .size());
}

/// Runs an action at its third vertex. The action may throw.
class ActingReader : public DXFReader
{
public:
    ActingReader(DXFDocument& document, std::function<void()> act)
        : DXFReader(document)
        , m_act(std::move(act))
    {
    }

    void addVertex(const DL_VertexData& data) override
    {
        DXFReader::addVertex(data);
        if (++m_vertices == 3)
            m_act();
    }

private:
    std::function<void()> m_act;
    int m_vertices = 0;
};

/// Overwrites its file at its third vertex.
class OverwritingReader : public ActingReader
{
public:
    OverwritingReader(DXFDocument& document, const QString& fileName)
        : ActingReader(document, [fileName] { overwrite(fileName); })
    {
    }

private:
    static void overwrite(const QString& fileName)
    {
        QFile file(fileName);
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        const QByteArray hostile("  0\nSPLINE\n 72\n-2147483648\n 40\n1\n");
        while (file.pos() < file.size())
            file.write(hostile);
    }
};

/// Takes groups for itself, replaces the text and can let a read fail.
class SteppingReader : public DXFReader, public IReadingSteps
{
public:
    using DXFReader::DXFReader;

    std::optional<std::string> textOf(std::string_view given) override
    {
        bytes = given;
        return replacement;
    }

    bool takesGroup(int code, std::string_view value) override
    {
        seen.push_back({code, std::string(value)});
        return code == takenCode;
    }

    void processCodeValuePair(unsigned int code, const std::string& value) override
    {
        EXPECT_EQ(announced.size(), seen.size());
        announced.push_back({static_cast<int>(code), value});
    }

    bool finishReading() override
    {
        ++finished;
        return succeeds;
    }

    void goOn() override
    {
        ++questions;
        if (questions > mostQuestions)
            throw std::runtime_error("cancelled");
    }

    void readingFailed(const std::exception_ptr& reason) override
    {
        try {
            std::rethrow_exception(reason);
        } catch (const std::exception& exception) {
            failures.push_back(exception.what());
        }
        throw 42;
    }

    std::string bytes;
    std::optional<std::string> replacement;
    int takenCode = -1;
    std::vector<Group> seen;
    std::vector<Group> announced;
    int finished = 0;
    bool succeeds = true;
    int questions = 0;
    int mostQuestions = std::numeric_limits<int>::max();
    std::vector<std::string> failures;
};

/// An open file whose text cannot be read beyond a place.
class FailingFile
{
public:
    FailingFile(std::string text, std::size_t failsAt)
        : m_text(std::move(text))
        , m_failsAt(failsAt)
        , m_file(fopencookie(this, "rb", {&FailingFile::read, nullptr, nullptr, nullptr}))
    {
    }
    ~FailingFile() { std::fclose(m_file); }

    std::FILE* file() const { return m_file; }

private:
    Q_DISABLE_COPY(FailingFile)

    static ssize_t read(void* cookie, char* buffer, std::size_t size)
    {
        auto* self = static_cast<FailingFile*>(cookie);
        if (self->m_at >= self->m_failsAt) {
            errno = EIO;
            return -1;
        }
        const std::size_t length =
            self->m_text.copy(buffer, std::min(size, self->m_failsAt - self->m_at), self->m_at);
        self->m_at += length;
        return static_cast<ssize_t>(length);
    }

    std::string m_text;
    std::size_t m_failsAt;
    std::size_t m_at = 0;
    std::FILE* m_file;
};

std::vector<Group> polylineOf(const std::string& x)
{
    return {{0, "LWPOLYLINE"}, {90, "2"}, {10, x}, {20, "0.25"}, {10, "-1e3"}, {20, "7"}};
}

std::vector<Group> twoPolylines()
{
    auto groups = polylineOf("1234.5");
    const auto second = polylineOf("4096");
    groups.insert(groups.end(), second.begin(), second.end());
    return groups;
}

/// Enough to fill the buffers of a reader several times.
std::string longDrawing()
{
    std::vector<Group> groups;
    for (int i = 0; i < 10000; ++i) {
        const auto polyline = polylineOf(std::to_string(i));
        groups.insert(groups.end(), polyline.begin(), polyline.end());
    }
    return drawingOf(groups);
}

class DrawingParserTest : public LoggedTest
{
protected:
    QString path(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }

    QString fileWith(const std::string& text) const
    {
        return dxftest::fileWith(QByteArray::fromStdString(text), path("drawing.dxf"));
    }

    void expectRefused(const QString& name)
    {
        const int descriptors = openDescriptors();
        DXFDocument document;

        EXPECT_FALSE(DXFReader(document).load(name));

        EXPECT_EQ(takeDebugMessages(), QStringList(QLatin1Char('"') + name
                                                   + QLatin1String("\"  could not be opened.\n")));
        EXPECT_EQ(openDescriptors(), descriptors);
    }

    QTemporaryDir folder;
};

TEST_F(DrawingParserTest, OnlyRegularFilesAreOpened)
{
    ASSERT_EQ(mkfifo(path("fifo").toLocal8Bit().constData(), 0600), 0);
    const int listener = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray socketName = path("socket").toLocal8Bit();
    ASSERT_LT(socketName.size(), int(sizeof address.sun_path));
    qstrcpy(address.sun_path, socketName.constData());
    ASSERT_EQ(bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);

    expectRefused(folder.path());
    expectRefused(path("fifo"));
    expectRefused(path("socket"));
    expectRefused(QStringLiteral("/dev/zero"));
    expectRefused(QStringLiteral("/dev/null"));
    expectRefused(path("missing"));
    expectRefused(QString());
    close(listener);
}

TEST_F(DrawingParserTest, ReadErrorIsReported)
{
    // A regular file whose first byte cannot be read.
    expectRefused(QStringLiteral("/proc/self/mem"));
}

TEST_F(DrawingParserTest, FileIsReadAsItWasAtTheBeginning)
{
    const QString name = fileWith(longDrawing());
    DXFDocument document;

    EXPECT_TRUE(OverwritingReader(document, name).load(name));

    ASSERT_EQ(document.entities().size(), 10000);
    EXPECT_EQ(pointsOf(*document.entities()[9999].staticCast<DXFPolyline>()),
              (QVector<QPointF>{{9999, 0.25}, {-1000, 7}}));
}

TEST_F(DrawingParserTest, FileIsReadUpToAReadError)
{
    const std::string text = longDrawing();
    for (const std::size_t place : {20000U, 200000U, 300000U}) {
        // The last polyline may be incomplete, so it does not count.
        const std::size_t failsAt = text.find("-1e3", place) + 2;
        const std::string readable = text.substr(0, failsAt);
        int polylines = -1;
        for (std::size_t at = 0; (at = readable.find("LWPOLYLINE", at)) != std::string::npos; ++at)
            ++polylines;
        const FailingFile file(text, failsAt);
        DXFDocument document;
        DXFReader reader(document);

        EXPECT_FALSE(dxfviewer::parseFile(file.file(), reader)) << place;

        EXPECT_EQ(document.entities().size(), polylines) << place;
    }
}

TEST_F(DrawingParserTest, DamagedFileIsRepaired)
{
    auto groups = twoPolylines();
    groups.insert(groups.begin(), {999, std::string(5000, 'c')});
    groups[2].value = "1000000000";
    DXFDocument document;

    ASSERT_TRUE(DXFReader(document).load(fileWith(drawingOf(groups))));

    ASSERT_EQ(document.entities().size(), 2);
    EXPECT_EQ(pointsOf(*document.entities()[0].staticCast<DXFPolyline>()),
              (QVector<QPointF>{{1234.5, 0.25}, {-1000, 7}}));
}

TEST_F(DrawingParserTest, FileIsReadBeyondItsZeroBytes)
{
    std::string text = drawingOf(twoPolylines());
    text.insert(text.find("LWPOLYLINE") + 10, std::string("\0tail", 5));
    DXFDocument document;

    ASSERT_TRUE(DXFReader(document).load(fileWith(text)));

    EXPECT_EQ(document.entities().size(), 2);
}

TEST_F(DrawingParserTest, LongLinesAreRepairedAtAllPlacesOfABuffer)
{
    for (const std::size_t before : {131000U, 131072U, 260000U}) {
        std::string text = drawingOf({});
        while (text.size() < before)
            text.insert(0, "999\nfiller\n");
        text.insert(0, "999\n" + std::string(1100, 'x') + '\n');
        text.insert(text.find("ENTITIES\n") + 9, textOf(twoPolylines()));
        DXFDocument document;

        ASSERT_TRUE(DXFReader(document).load(fileWith(text)));

        EXPECT_EQ(document.entities().size(), 2);
    }
    DXFDocument document;
    EXPECT_TRUE(DXFReader(document).load(fileWith(std::string(300000, 'x'))));
}

TEST_F(DrawingParserTest, LinesOfAboutTheGreatestLengthAreReadInBothForms)
{
    for (const std::size_t length : {1021U, 1022U, 1023U, 1024U}) {
        auto groups = twoPolylines();
        groups.insert(groups.begin(), {999, std::string(length, 'c')});
        DXFDocument fromFile;
        DXFDocument fromBytes;

        ASSERT_TRUE(DXFReader(fromFile).load(fileWith(drawingOf(groups)))) << length;
        ASSERT_TRUE(DXFReader(fromBytes).load(bytesOf(groups))) << length;

        EXPECT_EQ(fromFile.entities().size(), 2) << length;
        EXPECT_EQ(fromBytes.entities().size(), 2) << length;
    }
}

/// dxflib allocates at the count. There is not enough memory for these.
TEST_F(DrawingParserTest, HugeCountsDoNoHarmInBothForms)
{
    const std::string whole = textOf(twoPolylines());
    for (const std::string& record :
         {std::string("0\nLWPOLYLINE\n90\n2147483647\n"),
          std::string("0\nLWPOLYLINE\n90\n2147483647"),
          std::string("0\nLWPOLYLINE\r\r\n90\n2147483647\n0\nLINE\n"),
          std::string("0\nLWPOLYLINE\r\r\r\n90\n2147483647\r\r\n0\nLINE\r\r\n")}) {
        DXFDocument fromFile;
        DXFDocument fromBytes;

        EXPECT_TRUE(DXFReader(fromFile).load(fileWith(whole + record))) << record;
        EXPECT_TRUE(DXFReader(fromBytes).load(QByteArray::fromStdString(whole + record))) << record;

        EXPECT_GE(fromFile.entities().size(), 2) << record;
        EXPECT_EQ(fromFile.entities().size(), fromBytes.entities().size()) << record;
    }
}

TEST_F(DrawingParserTest, LastPolylineWithoutEndIsLost)
{
    for (const char* end : {"", "0", "  0", "0\n", "\n", "90\n", "90"}) {
        const std::string text = textOf(twoPolylines()) + end;
        DXFDocument fromFile;
        DXFDocument fromBytes;

        ASSERT_TRUE(DXFReader(fromFile).load(fileWith(text)));
        ASSERT_TRUE(DXFReader(fromBytes).load(QByteArray::fromStdString(text)));

        EXPECT_EQ(fromFile.entities().size(), fromBytes.entities().size()) << end;
        const bool ended = std::string(end) == "0\n" || std::string(end) == "\n";
        EXPECT_EQ(fromBytes.entities().size(), ended ? 2 : 1) << end;
    }
}

TEST_F(DrawingParserTest, SoundFileMakesTheCallsOfDxflib)
{
    for (unsigned seed = 0; seed < 10; ++seed) {
        DrawingGenerator generator(seed);
        const std::string name = fileWith(textOf(generator.makeDrawing(200))).toStdString();
        CallRecorder expected;
        CallRecorder actual;
        CallRecorder fromText;

        ASSERT_TRUE(DL_Dxf().in(name, &expected));
        ASSERT_TRUE(dxfviewer::parseFile(name, actual));
        ASSERT_TRUE(
            dxfviewer::parseText(textOf(DrawingGenerator(seed).makeDrawing(200)), fromText));

        EXPECT_EQ(actual.calls(), expected.calls());
        EXPECT_EQ(fromText.calls(), expected.calls());
    }
}

TEST_F(DrawingParserTest, ReaderWithStepsSeesEveryGroupInBothForms)
{
    const auto groups = twoPolylines();
    const std::string text = drawingOf(groups);
    for (const bool isFile : {true, false}) {
        DXFDocument document;
        SteppingReader reader(document);
        reader.takenCode = 90;

        ASSERT_TRUE(isFile ? reader.load(fileWith(text))
                           : reader.load(QByteArray::fromStdString(text)));

        EXPECT_EQ(reader.bytes, text);
        EXPECT_EQ(textOf(reader.seen), text);
        EXPECT_EQ(textOf(reader.announced), text);
        EXPECT_EQ(reader.finished, 1);
        EXPECT_EQ(document.entities().size(), 2);
        // Without its count dxflib finds no vertex.
        EXPECT_EQ(document.entities()[0].staticCast<DXFPolyline>()->vertexNumber(), 0);
    }
}

TEST_F(DrawingParserTest, ReaderWithStepsMayReadAnotherText)
{
    const std::string bytes("\0nothing that dxflib reads", 26);
    for (const bool isFile : {true, false}) {
        DXFDocument document;
        SteppingReader reader(document);
        reader.replacement = drawingOf(twoPolylines());

        ASSERT_TRUE(isFile ? reader.load(fileWith(bytes))
                           : reader.load(QByteArray::fromStdString(bytes)));

        EXPECT_EQ(reader.bytes, bytes);
        EXPECT_EQ(document.entities().size(), 2);
    }
}

TEST_F(DrawingParserTest, ReaderWithStepsDecidesWhetherTheReadSucceeds)
{
    const QString name = fileWith(drawingOf(twoPolylines()));
    DXFDocument document;
    SteppingReader reader(document);
    reader.succeeds = false;

    EXPECT_FALSE(reader.load(name));
    EXPECT_FALSE(reader.load(bytesOf(twoPolylines())));

    EXPECT_EQ(takeDebugMessages().size(), 2);
    EXPECT_EQ(document.entities().size(), 4);
}

std::string manyGroups()
{
    std::string text;
    for (int i = 0; i < 10000; ++i)
        text += "8\nWall\n";
    return text;
}

TEST_F(DrawingParserTest, ReaderWithStepsCanStopTheCheckOfAText)
{
    const std::string text = manyGroups();
    for (const bool isFile : {true, false}) {
        DXFDocument document;
        SteppingReader reader(document);
        reader.mostQuestions = isFile ? 2 : 0;

        EXPECT_FALSE(isFile ? reader.load(fileWith(text))
                            : reader.load(QByteArray::fromStdString(text)));

        EXPECT_EQ(reader.questions, reader.mostQuestions + 1);
        EXPECT_TRUE(reader.announced.empty());
        EXPECT_EQ(reader.finished, 0);
        EXPECT_EQ(reader.failures, std::vector<std::string>{"cancelled"});
        takeDebugMessages();
    }
}

TEST_F(DrawingParserTest, ReaderWithStepsCanStopTheRepairOfAText)
{
    DXFDocument document;
    SteppingReader reader(document);
    reader.mostQuestions = 0;

    // The check ends at the first value.
    EXPECT_FALSE(reader.load(QByteArray::fromStdString("10\n \n" + manyGroups())));

    EXPECT_EQ(reader.questions, 1);
    EXPECT_TRUE(reader.announced.empty());
    takeDebugMessages();
}

TEST_F(DrawingParserTest, ReaderWithStepsIsAskedWhileItGetsGroups)
{
    const std::string text = manyGroups();
    DXFDocument whole;
    SteppingReader reader(whole);
    ASSERT_TRUE(reader.load(QByteArray::fromStdString(text)));
    EXPECT_TRUE(reader.failures.empty());
    EXPECT_EQ(reader.questions, 4);

    DXFDocument part;
    SteppingReader cancelled(part);
    cancelled.mostQuestions = 3;
    EXPECT_FALSE(cancelled.load(QByteArray::fromStdString(text)));

    EXPECT_EQ(cancelled.questions, 4);
    EXPECT_GT(cancelled.announced.size(), 0U);
    EXPECT_LT(cancelled.announced.size(), reader.announced.size());
    EXPECT_EQ(cancelled.finished, 0);
    takeDebugMessages();
}

TEST_F(DrawingParserTest, ReaderWithStepsLearnsWhatEndedTheRead)
{
    class Failing : public SteppingReader
    {
    public:
        using SteppingReader::SteppingReader;
        void addVertex(const DL_VertexData&) override { throw std::bad_alloc(); }
    };
    DXFDocument document;
    Failing reader(document);

    EXPECT_FALSE(reader.load(bytesOf(twoPolylines())));

    EXPECT_EQ(reader.failures, std::vector<std::string>{std::bad_alloc().what()});
    takeDebugMessages();
}

TEST_F(DrawingParserTest, GroupsAreAnnouncedAlikeInBothForms)
{
    class Announced : public DXFReader
    {
    public:
        using DXFReader::DXFReader;
        void processCodeValuePair(unsigned int code, const std::string& value) override
        {
            groups.push_back({static_cast<int>(code), value});
        }
        std::vector<Group> groups;
    };
    const std::string text = drawingOf(twoPolylines());
    DXFDocument document;
    Announced fromFile(document);
    Announced fromBytes(document);

    ASSERT_TRUE(fromFile.load(fileWith(text)));
    ASSERT_TRUE(fromBytes.load(QByteArray::fromStdString(text)));

    EXPECT_EQ(textOf(fromFile.groups), text);
    EXPECT_EQ(textOf(fromBytes.groups), text);
}

TEST_F(DrawingParserTest, ExceptionsEndALoad)
{
    const std::vector<std::function<void()>> raises{[] { throw std::bad_alloc(); },
                                                    [] { throw std::runtime_error("no"); },
                                                    [] {
                                                        throw 42;
                                                    }};
    const QString name = fileWith(drawingOf(twoPolylines()));
    const int descriptors = openDescriptors();
    const std::string cLocale = std::setlocale(LC_ALL, nullptr);
    const std::locale locale;
    for (const auto& raise : raises) {
        DXFDocument fromFile;
        DXFDocument fromBytes;

        EXPECT_FALSE(ActingReader(fromFile, raise).load(name));
        EXPECT_EQ(takeDebugMessages(), QStringList(QLatin1Char('"') + name
                                                   + QLatin1String("\"  could not be opened.\n")));
        EXPECT_FALSE(ActingReader(fromBytes, raise).load(bytesOf(twoPolylines())));
        EXPECT_EQ(takeDebugMessages(),
                  QStringList(QStringLiteral("DXFReader::Could not parse dxf data")));

        EXPECT_EQ(fromFile.entities().size(), 1);
        EXPECT_EQ(fromBytes.entities().size(), 1);
        EXPECT_EQ(openDescriptors(), descriptors);
        EXPECT_EQ(std::setlocale(LC_ALL, nullptr), cLocale);
        EXPECT_TRUE(std::locale() == locale);
    }
}

class DrawingParserLocaleTest : public DrawingParserTest
{
protected:
    void SetUp() override
    {
        if (!locales.areAvailable())
            GTEST_SKIP() << "there is no localedef here";
    }

    /// Loads sound and damaged drawings in both forms, and checks the numbers and the locales.
    void expectNumbersRead()
    {
        const std::string cLocale = std::setlocale(LC_ALL, nullptr);
        const std::locale locale;
        auto damaged = twoPolylines();
        damaged[1].value = "99";
        for (const auto& groups : {twoPolylines(), damaged}) {
            DXFDocument document;
            ASSERT_TRUE(DXFReader(document).load(fileWith(drawingOf(groups))));
            ASSERT_TRUE(DXFReader(document).load(bytesOf(groups)));
            DXFReader(document).load(path("missing"));
            ActingReader(document, [] { throw 1; }).load(path("drawing.dxf"));
            takeDebugMessages();

            ASSERT_GE(document.entities().size(), 4);
            for (int i = 0; i < 4; ++i) {
                const qreal x = i % 2 == 0 ? 1234.5 : 4096;
                EXPECT_EQ(pointsOf(*document.entities()[i].staticCast<DXFPolyline>()),
                          (QVector<QPointF>{{x, 0.25}, {-1000, 7}}));
            }
        }
        EXPECT_EQ(std::setlocale(LC_ALL, nullptr), cLocale);
        EXPECT_TRUE(std::locale() == locale);
    }

    TestLocales locales;
};

TEST_F(DrawingParserLocaleTest, LocaleOfCDoesNotMatter)
{
    for (const char* name : {"de_DE.UTF-8", "ps_AF.UTF-8", "en_IN.UTF-8"}) {
        ASSERT_NE(std::setlocale(LC_ALL, name), nullptr);

        expectNumbersRead();
    }
}

TEST_F(DrawingParserLocaleTest, LocaleOfCppDoesNotMatter)
{
    for (const char* name : {"de_DE.UTF-8", "ps_AF.UTF-8", "en_IN.UTF-8"}) {
        std::locale::global(std::locale(name));

        expectNumbersRead();
    }
}

TEST_F(DrawingParserLocaleTest, DifferentLocalesStayDifferent)
{
    std::locale::global(std::locale("de_DE.UTF-8"));
    ASSERT_NE(std::setlocale(LC_ALL, "ps_AF.UTF-8"), nullptr);
    ASSERT_NE(std::setlocale(LC_NUMERIC, "en_IN.UTF-8"), nullptr);

    expectNumbersRead();
}

/// Other threads of the host may use it at the same time.
TEST_F(DrawingParserLocaleTest, LocaleOfCStaysWhileADrawingIsRead)
{
    std::locale::global(std::locale("de_DE.UTF-8"));
    ASSERT_NE(std::setlocale(LC_ALL, "ps_AF.UTF-8"), nullptr);
    std::string whileReading;
    const auto look = [&whileReading] {
        whileReading = std::setlocale(LC_ALL, nullptr);
    };
    DXFDocument document;

    ASSERT_TRUE(ActingReader(document, look).load(bytesOf(twoPolylines())));

    EXPECT_EQ(whileReading, "ps_AF.UTF-8");
}

TEST_F(DrawingParserLocaleTest, LocaleWithoutANameStays)
{
    struct Comma : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        std::string do_grouping() const override { return "\3"; }
    };
    std::locale::global(std::locale(std::locale(), new Comma));

    expectNumbersRead();
}

} // namespace
