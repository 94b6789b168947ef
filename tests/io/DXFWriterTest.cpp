// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/DXFWriter.h"

#include "dxfviewer/io/DXFAdapter.h"
#include "dxfviewer/io/DXFReader.h"
#include "dxfviewer/model/DXFAttributes.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFLayer.h"
#include "dxfviewer/model/DXFLineType.h"
#include "dxfviewer/model/DXFPolyline.h"
#include "tests/io/DrawingText.h"
#include "tests/io/TestLocales.h"
#include "tests/support/Builders.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/OtherEntity.h"

#include <QTemporaryDir>
#if __has_include(<QTextCodec>)
#include <QTextCodec>
#endif

#include <array>
#include <cctype>
#include <clocale>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <future>
#include <iterator>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include <dl_dxf.h>

using namespace dxftest;

namespace
{

/// Sets the folder for temporary files while it lives.
class TemporaryFolder
{
public:
    explicit TemporaryFolder(const QString& name)
        : m_had(qEnvironmentVariableIsSet("TMPDIR"))
        , m_old(qgetenv("TMPDIR"))
    {
        qputenv("TMPDIR", name.toLocal8Bit());
    }
    ~TemporaryFolder()
    {
        if (m_had)
            qputenv("TMPDIR", m_old);
        else
            qunsetenv("TMPDIR");
    }

private:
    Q_DISABLE_COPY(TemporaryFolder)

    bool m_had;
    QByteArray m_old;
};

#if __has_include(<QTextCodec>)
/// Sets the local encoding of file names while it lives.
class LocalEncoding
{
public:
    explicit LocalEncoding(const char* name)
        : m_codec(QTextCodec::codecForLocale())
    {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(name));
    }
    ~LocalEncoding() { QTextCodec::setCodecForLocale(m_codec); }

private:
    Q_DISABLE_COPY(LocalEncoding)

    QTextCodec* m_codec;
};
#endif

/// Whether a descriptor is that of a regular file that is open for reading and writing.
bool isReadAndWritten(int descriptor)
{
    struct stat status {
    };
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)
           && (fcntl(descriptor, F_GETFL) & O_ACCMODE) == O_RDWR;
}

/// An entity that makes the writer's temporary file unreadable when it is asked for its type.
class BreakingEntity : public OtherEntity
{
public:
    BreakingEntity()
        : OtherEntity(1)
    {
        for (int descriptor = 0; descriptor < descriptors; ++descriptor)
            m_isOfOthers.push_back(isReadAndWritten(descriptor));
    }

    int type() override
    {
        for (int descriptor = 0; descriptor < descriptors; ++descriptor) {
            if (!m_isOfOthers[static_cast<std::size_t>(descriptor)]
                && isReadAndWritten(descriptor)) {
                // read() fails on a folder.
                const int directory = open("/", O_RDONLY | O_DIRECTORY);
                dup2(directory, descriptor);
                close(directory);
                ++m_broken;
            }
        }
        return OtherEntity::type();
    }

    int broken() const { return m_broken; }

private:
    static constexpr int descriptors = 256;

    std::vector<bool> m_isOfOthers;
    int m_broken = 0;
};

const char* const emptyDrawing = "999\ndxflib 3.26.4.0\n"
                                 "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1009\n"
                                 "  0\nENDSEC\n"
                                 "  0\nSECTION\n  2\nTABLES\n"
                                 "  0\nTABLE\n  2\nLTYPE\n 70\n1\n"
                                 "  0\nLTYPE\n  2\nCONTINUOUS\n 70\n0\n  3\nSolid line\n"
                                 " 72\n65\n 73\n0\n 40\n0.0\n  0\nENDTAB\n"
                                 "  0\nTABLE\n  2\nLAYER\n 70\n1\n"
                                 "  0\nLAYER\n  2\n0\n 70\n0\n 62\n7\n  6\nCONTINUOUS\n"
                                 "  0\nENDTAB\n  0\nENDSEC\n"
                                 "  0\nSECTION\n  2\nBLOCKS\n  0\nENDSEC\n"
                                 "  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n";

void writeEveryPart(DXFWriter& writer)
{
    writer.writeHeader();
    writer.writeVPORT_table();
    writer.writeLineType_table();
    writer.writeTextStyle_table();
    writer.writeUserCS_table();
    writer.writeVIEW_table();
    writer.writeDIMSTYLE_table();
    writer.writeLAYER_table();
    writer.writeAPPID_table();
    writer.writeEntities_section();
}

class DXFWriterTest : public LoggedTest
{
protected:
    std::string saved() { return DXFWriter(document).save().toStdString(); }

    /// The text between the start of a table or section and its end.
    std::string part(const std::string& name, const std::string& end)
    {
        const std::string text = saved();
        const std::size_t start = text.find("  2\n" + name + "\n");
        return text.substr(start, text.find("  0\n" + end + "\n", start) - start);
    }

    void addLineType(const char* name, int dashes, double* pattern)
    {
        document.addLineType(
            DXFAdapter::makeLineType(DL_LinetypeData(name, "d", 0, dashes, 1.5, pattern)));
    }

    /// A document with enough text to fill several buffers.
    void addManyPolylines(int count = 2000)
    {
        for (int i = 0; i < count; ++i) {
            auto polyline = makePolyline({{0.1 * i, 1}, {2, 3}, {4, 5.25}});
            polyline->setAttributes(makeAttributes(QStringLiteral("layer %1").arg(i % 7), i % 256));
            document.addEntity(polyline);
        }
    }

    QTemporaryDir folder;
    DXFDocument document;
};

TEST_F(DXFWriterTest, EmptyDocumentHasADefaultLineTypeAndLayer)
{
    EXPECT_EQ(saved(), emptyDrawing);
    EXPECT_TRUE(document.lineTypes().isEmpty());
    EXPECT_TRUE(document.layers().isEmpty());
}

TEST_F(DXFWriterTest, DefaultsAreNotAddedTwice)
{
    addLineType("CONTINUOUS", 0, nullptr);
    document.addLayer(makeLayer(QStringLiteral("0"), 5));

    EXPECT_EQ(part("LTYPE", "ENDTAB"), "  2\nLTYPE\n 70\n1\n  0\nLTYPE\n  2\nCONTINUOUS\n 70\n0\n"
                                       "  3\nSolid line\n 72\n65\n 73\n0\n 40\n0.0\n");
    EXPECT_EQ(part("LAYER", "ENDTAB"),
              "  2\nLAYER\n 70\n1\n  0\nLAYER\n  2\n0\n 70\n0\n 62\n5\n  6\nCONTINUOUS\n");
}

TEST_F(DXFWriterTest, DefaultLineTypeIsAddedIfTheCaseDiffers)
{
    addLineType("Continuous", 0, nullptr);

    EXPECT_EQ(part("LTYPE", "ENDTAB"), "  2\nLTYPE\n 70\n2\n  0\nLTYPE\n  2\nCONTINUOUS\n 70\n0\n"
                                       "  3\nSolid line\n 72\n65\n 73\n0\n 40\n0.0\n"
                                       "  0\nLTYPE\n  2\nContinuous\n 70\n0\n"
                                       "  3\nSolid line\n 72\n65\n 73\n0\n 40\n0.0\n");
    EXPECT_EQ(document.lineTypes().size(), 1);
}

TEST_F(DXFWriterTest, DefaultLayerIsWrittenFirst)
{
    document.addLayer(makeLayer(QStringLiteral("A"), 1));
    document.addLayer(makeLayer(QStringLiteral("B"), 2));

    EXPECT_EQ(part("LAYER", "ENDTAB"),
              "  2\nLAYER\n 70\n3\n  0\nLAYER\n  2\n0\n 70\n0\n 62\n7\n  6\nCONTINUOUS\n"
              "  0\nLAYER\n  2\nA\n 70\n0\n 62\n1\n  6\nCONTINUOUS\n"
              "  0\nLAYER\n  2\nB\n 70\n0\n 62\n2\n  6\nCONTINUOUS\n");
    EXPECT_EQ(document.layers().size(), 2);
}

TEST_F(DXFWriterTest, LayerKeepsItsFlags)
{
    document.addLayer(DXFAdapter::makeLayer(DL_LayerData("0", 71)));

    EXPECT_EQ(part("LAYER", "ENDTAB"),
              "  2\nLAYER\n 70\n1\n  0\nLAYER\n  2\n0\n 70\n71\n 62\n7\n  6\nCONTINUOUS\n");
}

TEST_F(DXFWriterTest, LayerWithoutAttributesGetsThoseOfTheDefaultLayer)
{
    document.addLayer(DXFAdapter::makeLayer(DL_LayerData("A", 0)));

    EXPECT_NE(part("LAYER", "ENDTAB").find("  2\nA\n 70\n0\n 62\n7\n  6\nCONTINUOUS\n"),
              std::string::npos);
}

TEST_F(DXFWriterTest, PatternIsWrittenDashByDash)
{
    double pattern[] = {1.0, -0.5};
    addLineType("DASHED", 2, pattern);

    EXPECT_NE(saved().find("  2\nDASHED\n 70\n0\n  3\nd\n 72\n65\n 73\n2\n 40\n1.5\n"
                           " 49\n1.0\n 49\n-0.5\n  0\nENDTAB\n"),
              std::string::npos);
}

TEST_F(DXFWriterTest, LineTypeWithoutPatternHasNoDashes)
{
    double pattern[] = {1.0};
    addLineType("A", 2, nullptr);
    addLineType("B", 2147483647, nullptr);
    addLineType("C", -3, pattern);

    const std::string table = part("LTYPE", "ENDTAB");

    EXPECT_EQ(table.find(" 49\n"), std::string::npos);
    EXPECT_EQ(table.find(" 73\n2"), std::string::npos);
    EXPECT_EQ(table.find(" 73\n-3"), std::string::npos);
    EXPECT_EQ(table.substr(0, 15), "  2\nLTYPE\n 70\n4");
}

TEST_F(DXFWriterTest, PolylineBecomesVerticesAndASequenceEnd)
{
    const auto polyline = makePolyline({{1, 2}, {3, 4}}, true);
    polyline->appendPoint(DXFVertex(5.0, 6.0, 7.0, true, -0.5));
    polyline->setAttributes(makeAttributes(QString::fromUtf8("W\xc3\xa4nde"), 3));
    document.addEntity(polyline);

    EXPECT_EQ(part("ENTITIES", "ENDSEC"),
              "  2\nENTITIES\n  0\nPOLYLINE\n  8\nW\xc3\xa4nde\n 62\n3\n 66\n1\n 70\n1\n"
              " 10\n0.0\n 20\n0.0\n 30\n0.0\n"
              "  0\nVERTEX\n  8\nW\xc3\xa4nde\n 10\n1.0\n 20\n2.0\n 30\n0.0\n"
              "  0\nVERTEX\n  8\nW\xc3\xa4nde\n 10\n3.0\n 20\n4.0\n 30\n0.0\n"
              "  0\nVERTEX\n  8\nW\xc3\xa4nde\n 10\n5.0\n 20\n6.0\n 30\n7.0\n 42\n-0.5\n"
              "  0\nSEQEND\n");
}

TEST_F(DXFWriterTest, EmptyPolylineWithoutAttributesGetsTheDefaults)
{
    document.addEntity(makePolyline({}));

    EXPECT_EQ(part("ENTITIES", "ENDSEC"),
              "  2\nENTITIES\n  0\nPOLYLINE\n  8\n0\n  6\nBYLAYER\n 66\n1\n 70\n0\n"
              " 10\n0.0\n 20\n0.0\n 30\n0.0\n  0\nSEQEND\n");
}

TEST_F(DXFWriterTest, OtherEntitiesAreLeftOut)
{
    document.addEntity(QSharedPointer<OtherEntity>::create(-1));
    document.addEntity(QSharedPointer<DXFEntity>());
    document.addEntity(QSharedPointer<OtherEntity>::create(5));

    EXPECT_EQ(saved(), emptyDrawing);
    EXPECT_EQ(takeDebugMessages(),
              QStringList(QStringLiteral("DXFWriter:: attempted writing of unsuported entity")));
}

TEST_F(DXFWriterTest, FileHoldsTheSavedBytes)
{
    addManyPolylines();
    const QString name = folder.filePath(QStringLiteral("a.dxf"));
    DXFWriter writer(document);

    EXPECT_FALSE(writer.save(name));

    const QByteArray content = contentOf(name);
    EXPECT_GT(content.size(), 200000);
    EXPECT_TRUE(content == writer.save());
    EXPECT_TRUE(takeDebugMessages().isEmpty());
}

TEST_F(DXFWriterTest, PolylinesAreWrittenAsByDxflib)
{
    addManyPolylines(300);
    const QString name = folder.filePath(QStringLiteral("theirs.dxf"));
    {
        DL_Dxf parser;
        const std::unique_ptr<DL_WriterA> file(
            parser.out(name.toLocal8Bit().constData(), DL_Codes::AC1009));
        file->sectionEntities();
        const auto entities = document.entities();
        for (const auto& entity : entities) {
            const auto polyline = entity.staticCast<DXFPolyline>();
            parser.writePolyline(*file, DXFAdapter::makePolyline(polyline),
                                 DXFAdapter::makeAttributes(polyline->attributes()));
            for (const DXFVertex& vertex : polyline->vertices())
                parser.writeVertex(*file, DXFAdapter::makeVertex(vertex));
            parser.writePolylineEnd(*file);
        }
        file->sectionEnd();
        file->dxfEOF();
    }

    const QByteArray theirs = contentOf(name);
    EXPECT_GT(theirs.size(), 20000);
    EXPECT_TRUE(DXFWriter(document).save().endsWith(theirs));
}

TEST_F(DXFWriterTest, SavedDrawingIsReadAgain)
{
    addManyPolylines(50);

    const auto again = DXFDocument::load(DXFWriter(document).save());

    ASSERT_EQ(again->entities().size(), 50);
    for (int i = 0; i < 50; ++i)
        EXPECT_EQ(pointsOf(*polylineAt(again, i)),
                  pointsOf(*document.entities()[i].staticCast<DXFPolyline>()));
    EXPECT_EQ(again->entities()[3]->attributes()->layerName(), QStringLiteral("layer 3"));
}

TEST_F(DXFWriterTest, LineEndsInNamesDoNotMakeGroups)
{
    const auto polyline = makePolyline({});
    polyline->setAttributes(makeAttributes(QStringLiteral("a\n  0\nPOLYLINE\r"), 3));
    document.addEntity(polyline);

    EXPECT_NE(saved().find("  8\na   0 POLYLINE \n 62\n"), std::string::npos);
}

TEST_F(DXFWriterTest, FileThatCannotBeOpenedIsReported)
{
    DXFWriter writer(document);

    EXPECT_FALSE(writer.save(QStringLiteral("/no such folder/a.dxf")));

    EXPECT_EQ(takeDebugMessages(),
              QStringList(
                  QStringLiteral("\"DXFWriter: Cannot open /no such folder/a.dxf for writing.\"")));
}

TEST_F(DXFWriterTest, WriterCanSaveAgainAfterAFailure)
{
    DXFWriter writer(document);
    writer.save(QStringLiteral("/no such folder/a.dxf"));
    writer.writeEntities_section();
    takeDebugMessages();

    EXPECT_EQ(writer.save(), QByteArray(emptyDrawing));
    EXPECT_EQ(writer.save(), QByteArray(emptyDrawing));
    EXPECT_TRUE(takeDebugMessages().isEmpty());
}

TEST_F(DXFWriterTest, PartsDoNothingWithoutAFile)
{
    DXFWriter writer(document);

    writeEveryPart(writer);

    EXPECT_TRUE(takeDebugMessages().isEmpty());
}

TEST_F(DXFWriterTest, PartsDoNothingAfterASave)
{
    addManyPolylines();
    const QString name = folder.filePath(QStringLiteral("a.dxf"));
    QByteArray written;
    {
        DXFWriter writer(document);
        writer.save(name);
        written = contentOf(name);

        writeEveryPart(writer);

        EXPECT_TRUE(contentOf(name) == written);
        EXPECT_TRUE(writer.save() == written);

        writer.save(name);
        writeEveryPart(writer);
    }
    EXPECT_TRUE(contentOf(name) == written);
    EXPECT_TRUE(takeDebugMessages().isEmpty());
}

TEST_F(DXFWriterTest, FullDiskIsReportedAndLeavesNoBytes)
{
    addManyPolylines();
    DXFWriter writer(document);
    QByteArray bytes;
    {
        const FileSizeLimit limit(100000);
        bytes = writer.save();
    }

    EXPECT_TRUE(bytes.isEmpty());
    const QStringList messages = takeDebugMessages();
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages.first().startsWith(QStringLiteral("\"DXFWriter: Cannot write ")));
}

TEST_F(DXFWriterTest, TemporaryFileThatCannotBeReadIsReported)
{
    const auto breaking = QSharedPointer<BreakingEntity>::create();
    document.addEntity(breaking);

    EXPECT_TRUE(DXFWriter(document).save().isEmpty());

    EXPECT_EQ(breaking->broken(), 1);
    const QStringList messages = takeDebugMessages();
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages.first().startsWith(QStringLiteral("\"DXFWriter: Cannot write ")));
}

TEST_F(DXFWriterTest, FullDeviceIsReported)
{
    EXPECT_FALSE(DXFWriter(document).save(QStringLiteral("/dev/full")));

    EXPECT_EQ(takeDebugMessages(),
              QStringList(QStringLiteral("\"DXFWriter: Cannot write /dev/full.\"")));
}

TEST_F(DXFWriterTest, UnusableTemporaryFolderIsReported)
{
    const QString file = fileWith(QByteArray(), folder.filePath(QStringLiteral("file")));
    // Not even root can create a file in these. A missing folder would not do: Qt uses the root
    // folder instead.
    for (const QString& name : {file, QStringLiteral("/proc")}) {
        const TemporaryFolder temporary(name);

        EXPECT_TRUE(DXFWriter(document).save().isEmpty());

        const QStringList messages = takeDebugMessages();
        ASSERT_EQ(messages.size(), 1);
        EXPECT_TRUE(messages.first().startsWith(QStringLiteral("\"DXFWriter: Cannot open ")));
    }
}

#if __has_include(<QTextCodec>)
// With Qt 6 the local encoding is always UTF-8.
TEST_F(DXFWriterTest, WriterTakesLocalFileNamesAndReaderTakesUtf8)
{
    addManyPolylines(3);
    const QString name = folder.filePath(QString::fromUtf8("\xc3\xbc.dxf"));
    const std::filesystem::path path(folder.path().toStdString());
    const LocalEncoding encoding("ISO-8859-1");

    DXFWriter(document).save(name);

    ASSERT_TRUE(std::filesystem::exists(path / "\xfc.dxf"));
    EXPECT_FALSE(std::filesystem::exists(path / "\xc3\xbc.dxf"));
    EXPECT_TRUE(takeDebugMessages().isEmpty());

    DXFDocument again;
    EXPECT_FALSE(DXFReader(again).load(name));
    EXPECT_EQ(takeDebugMessages(),
              QStringList(QLatin1Char('"') + name + QLatin1String("\"  could not be opened.\n")));

    std::filesystem::rename(path / "\xfc.dxf", path / "\xc3\xbc.dxf");
    EXPECT_TRUE(DXFReader(again).load(name));
    EXPECT_EQ(again.entities().size(), 3);
}
#endif

TEST_F(DXFWriterTest, LocaleDoesNotMatter)
{
    addManyPolylines(300);
    const std::string expected = saved();
    const TestLocales locales;
    if (!locales.areAvailable())
        GTEST_SKIP() << "there is no localedef here";

    for (const char* name : {"de_DE.UTF-8", "ps_AF.UTF-8", "en_IN.UTF-8"}) {
        std::locale::global(std::locale(name));
        ASSERT_NE(std::setlocale(LC_ALL, "ps_AF.UTF-8"), nullptr);

        EXPECT_TRUE(saved() == expected) << name;

        EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "ps_AF.UTF-8");
        EXPECT_EQ(std::locale().name(), name);
    }
}

TEST_F(DXFWriterTest, TurkishLettersDoNotMatter)
{
    std::array<double, 2> pattern{0.5, -0.25};
    for (const char* name : {"Continuous", "ByLayer", "byblock", "tightline"})
        addLineType(name, 2, pattern.data());
    const std::string elsewhere = saved();

    const TestLocales locales;
    if (!locales.areAvailable())
        GTEST_SKIP() << "there is no localedef here";
    // Only in a single-byte encoding does a locale affect the letters of C.
    ASSERT_NE(std::setlocale(LC_ALL, "tr_TR.ISO-8859-9"), nullptr);
    ASSERT_NE(std::toupper('i'), 'I');

    EXPECT_EQ(saved(), elsewhere);
}

/// Reads from a pipe until no writer has it open. If the writer opens it again, the rest is read as
/// well: else the writer would wait for ever.
std::string readPipe(const std::string& name)
{
    const auto untilEnd = [&name] {
        std::ifstream pipe(name);
        return std::string(std::istreambuf_iterator<char>(pipe), {});
    };
    std::string text = untilEnd();
    if (text.empty())
        untilEnd();
    return text;
}

TEST_F(DXFWriterTest, PipeIsWrittenInOnePiece)
{
    addManyPolylines(100);
    const std::string expected = saved();
    const QByteArray name = folder.filePath(QStringLiteral("pipe")).toLocal8Bit();
    ASSERT_EQ(mkfifo(name.constData(), S_IRUSR | S_IWUSR), 0);

    for (int i = 0; i < 20; ++i) {
        auto text = std::async(std::launch::async, readPipe, name.toStdString());
        DXFWriter(document).save(QFile::decodeName(name));
        ASSERT_EQ(text.get(), expected) << i;
    }
}

} // namespace
