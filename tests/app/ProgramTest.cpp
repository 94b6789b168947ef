// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/support/FileSizeLimit.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QSet>
#include <QSvgRenderer>
#include <QTemporaryDir>

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace
{

struct Outcome {
    int exitCode = -1;
    std::string output;
    std::string errors;
};

class ProgramTest : public dxftest::LoggedTest
{
protected:
    Outcome run(const QStringList& arguments, const QString& language = QStringLiteral("en"),
                const QString& outputFile = QString())
    {
        QProcess process;
        if (!outputFile.isEmpty())
            process.setStandardOutputFile(outputFile);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        environment.insert(QStringLiteral("LANGUAGE"), language);
        // The program must run without a display.
        for (const char* display : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
            environment.remove(QLatin1String(display));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(DXFVIEWER_APP), arguments);
        EXPECT_TRUE(process.waitForFinished(dxftest::patienceMs));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), process.readAllStandardOutput().toStdString(),
                process.readAllStandardError().toStdString()};
    }

    Outcome runPicture(const QString& picture, const QString& drawing)
    {
        return run({QStringLiteral("--picture"), picture, drawing});
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

QString sample(const QString& name)
{
    return QStringLiteral(DXFVIEWER_SAMPLES "/") + name;
}

/// The number of colours. A blank picture has one.
int colorCount(const QImage& image)
{
    QSet<QRgb> colors;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y)
            colors.insert(image.pixel(x, y));
    }
    return static_cast<int>(colors.size());
}

class ProgramSampleTest : public ProgramTest, public ::testing::WithParamInterface<const char*>
{
protected:
    static QString drawing() { return sample(QLatin1String(GetParam()) + QStringLiteral(".dxf")); }
};

TEST_F(ProgramTest, TellsItsVersion)
{
    const Outcome outcome = run({QStringLiteral("--version")});

    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.output, "dxfviewer " DXFVIEWER_APP_VERSION "\n");
}

TEST_F(ProgramTest, TellsItsOptions)
{
    const Outcome outcome = run({QStringLiteral("--help")});

    EXPECT_EQ(outcome.exitCode, 0);
    for (const char* option : {"--edit", "--picture <FILE>", "--ground <GROUND>", "--report",
                               "--verbose", "--version", "--help", "DRAWING"})
        EXPECT_THAT(outcome.output, HasSubstr(option));
}

TEST_F(ProgramTest, HelpNamesItsArgumentsInTheUsersLanguage)
{
    const Outcome outcome = run({QStringLiteral("--help")}, QStringLiteral("de"));

    EXPECT_THAT(outcome.output, HasSubstr("--picture <DATEI>"));
    EXPECT_THAT(outcome.output, HasSubstr("in DATEI speichern"));
    EXPECT_THAT(outcome.output, HasSubstr("--ground <HINTERGRUND>"));
}

TEST_F(ProgramTest, RefusesAnUnknownOption)
{
    const Outcome outcome = run({QStringLiteral("--nonsense")});

    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("nonsense"));
}

TEST_F(ProgramTest, RefusesTwoDrawings)
{
    const Outcome outcome = run({QStringLiteral("a.dxf"), QStringLiteral("b.dxf")});

    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("Only one drawing"));
}

TEST_F(ProgramTest, StartsInEditModeWithTheOption)
{
    QProcess process;
    process.start(QStringLiteral(DXFVIEWER_APP),
                  {QStringLiteral("--edit"), QStringLiteral("--verbose"),
                   sample(QStringLiteral("floor-plan.dxf"))});
    QByteArray messages;

    EXPECT_TRUE(dxftest::eventually([&] {
        messages += process.readAllStandardError();
        return messages.contains("DXFEditor created ");
    })) << messages.toStdString();

    EXPECT_EQ(process.state(), QProcess::Running);
    process.terminate();
    EXPECT_TRUE(process.waitForFinished(dxftest::patienceMs));
}

TEST_P(ProgramSampleTest, GivesAPngWithTheDrawing)
{
    const QString picture = path(QStringLiteral("out.png"));

    const Outcome outcome = runPicture(picture, drawing());

    ASSERT_EQ(outcome.exitCode, 0) << outcome.errors;
    EXPECT_GT(colorCount(QImage(picture)), 5);
}

TEST_P(ProgramSampleTest, GivesAnSvgWithTheDrawing)
{
    const QString picture = path(QStringLiteral("out.svg"));

    const Outcome outcome = runPicture(picture, drawing());

    ASSERT_EQ(outcome.exitCode, 0) << outcome.errors;
    QImage image(800, 600, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    QSvgRenderer renderer(picture);
    renderer.render(&painter);
    painter.end();
    EXPECT_GT(colorCount(image), 5);
}

TEST_P(ProgramSampleTest, GivesAPdf)
{
    const QString picture = path(QStringLiteral("out.pdf"));

    const Outcome outcome = runPicture(picture, drawing());

    ASSERT_EQ(outcome.exitCode, 0) << outcome.errors;
    const QByteArray pdf = dxftest::contentOf(picture);
    EXPECT_THAT(pdf.toStdString(), StartsWith("%PDF"));
    EXPECT_GT(pdf.size(), 5000);
}

INSTANTIATE_TEST_SUITE_P(, ProgramSampleTest,
                         ::testing::Values("floor-plan", "contour-map", "bracket-part"),
                         [](const auto& sampleInfo) {
                             std::string name = sampleInfo.param;
                             name[name.find('-')] = '_';
                             return name;
                         });

TEST_F(ProgramTest, MakesPicturesOnTheNamedGround)
{
    const QString picture = path(QStringLiteral("out.png"));
    const QString drawing = sample(QStringLiteral("floor-plan.dxf"));

    ASSERT_EQ(runPicture(picture, drawing).exitCode, 0);
    EXPECT_EQ(QImage(picture).pixel(0, 0), qRgb(255, 255, 255));

    ASSERT_EQ(run({QStringLiteral("--picture"), picture, QStringLiteral("--ground"),
                   QStringLiteral("dark"), drawing})
                  .exitCode,
              0);
    EXPECT_LT(qGreen(QImage(picture).pixel(0, 0)), 60);

    const Outcome wrong = run({QStringLiteral("--picture"), picture, QStringLiteral("--ground"),
                               QStringLiteral("purple"), drawing});
    EXPECT_EQ(wrong.exitCode, 1);
    EXPECT_THAT(wrong.errors, HasSubstr("dark, light or white"));
}

TEST_F(ProgramTest, MakesNoPictureOfADrawingWithNothingToShow)
{
    const QString drawing =
        dxftest::fileWith("0\nSECTION\n2\nENTITIES\n0\nHATCH\n8\n0\n0\nENDSEC\n0\nEOF\n",
                          path(QStringLiteral("hatch.dxf")));

    const Outcome outcome = runPicture(path(QStringLiteral("out.png")), drawing);

    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("nothing in this drawing that can be shown"));
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("out.png"))));
}

TEST_F(ProgramTest, ReportsOnEachDrawing)
{
    const QString drawing = dxftest::fileWith(
        "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n-1\n20\n2\n11\n2\n21\n6\n"
        "0\nTEXT\n8\n0\n10\n0\n20\n0\n40\n1\n1\nA\n0\nHATCH\n8\n0\n0\nENDSEC\n0\nEOF\n",
        path(QStringLiteral("a.dxf")));
    const std::string line = drawing.toStdString() + "\t5\t-1\t2\t2\t6\tHATCH=1,TEXT=1\n";

    const Outcome outcome = run({QStringLiteral("--report"), drawing, drawing});

    EXPECT_EQ(outcome.exitCode, 0) << outcome.errors;
    EXPECT_EQ(outcome.output, line + line);
}

TEST_F(ProgramTest, ReportsOnTheOthersWhenOneCannotBeRead)
{
    const Outcome outcome = run({QStringLiteral("--report"), path(QStringLiteral("none.dxf")),
                                 sample(QStringLiteral("floor-plan.dxf"))});

    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("There is no such file."));
    EXPECT_THAT(outcome.output, HasSubstr("floor-plan.dxf\t"));

    const Outcome nothing = run({QStringLiteral("--report")});
    EXPECT_EQ(nothing.exitCode, 1);
    EXPECT_THAT(nothing.errors, HasSubstr("no drawing to report on"));
}

TEST_F(ProgramTest, SaysThatAReportCannotBeWritten)
{
    const Outcome outcome =
        run({QStringLiteral("--report"), sample(QStringLiteral("bracket-part.dxf"))},
            QStringLiteral("en"), QStringLiteral("/dev/full"));

    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("The report cannot be written."));
}

TEST_F(ProgramTest, LogsOnlyWhenVerbose)
{
    // A block of one line, 900 million times.
    const QString drawing = dxftest::fileWith(
        "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n8\n0\n2\nB\n10\n0\n20\n0\n"
        "0\nLINE\n8\n0\n10\n0\n20\n0\n11\n9\n21\n9\n0\nENDBLK\n0\nENDSEC\n"
        "0\nSECTION\n2\nENTITIES\n0\nINSERT\n8\n0\n2\nB\n10\n0\n20\n0\n70\n30000\n"
        "71\n30000\n44\n1\n45\n1\n0\nENDSEC\n0\nEOF\n",
        path(QStringLiteral("array.dxf")));

    const Outcome quiet = run({QStringLiteral("--report"), drawing});
    const Outcome verbose = run({QStringLiteral("--report"), QStringLiteral("--verbose"), drawing});

    EXPECT_EQ(quiet.exitCode, 1);
    EXPECT_THAT(quiet.errors, HasSubstr("It has more lines and curves than can be shown."));
    EXPECT_THAT(quiet.errors, Not(HasSubstr("FlatteningReader:")));
    EXPECT_THAT(verbose.errors, HasSubstr("FlatteningReader:"));
}

TEST_F(ProgramTest, MakesNoPictureWithoutADrawing)
{
    const Outcome outcome = run({QStringLiteral("--picture"), path(QStringLiteral("out.png"))});

    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("no drawing"));
}

TEST_F(ProgramTest, MakesNoPictureOfWhatIsNoDrawing)
{
    const Outcome outcome =
        runPicture(path(QStringLiteral("out.png")), sample(QStringLiteral("make_samples.cpp")));

    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("make_samples.cpp\nIt is not a DXF drawing."));
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("out.png"))));
}

TEST_F(ProgramTest, MakesNoPictureOfAMissingFile)
{
    const Outcome outcome =
        runPicture(path(QStringLiteral("out.png")), path(QStringLiteral("none\n.dxf")));

    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("There is no such file."));
    EXPECT_THAT(outcome.errors, Not(HasSubstr("none\n.dxf")));
}

TEST_F(ProgramTest, SaysThatAPictureCannotBeWritten)
{
    const Outcome outcome = runPicture(QStringLiteral("/no/such/folder/out.png"),
                                       sample(QStringLiteral("floor-plan.dxf")));

    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.errors,
                HasSubstr("The picture cannot be written.\n/no/such/folder/out.png\n"));
}

TEST_F(ProgramTest, AFullDiskLeavesTheOldPicture)
{
    const QString drawing =
        dxftest::fileWith("0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n-1\n20\n2\n11\n2\n21\n6\n"
                          "0\nENDSEC\n0\nEOF\n",
                          path(QStringLiteral("line.dxf")));
    for (const char* name : {"out.png", "out.svg", "out.pdf"}) {
        const QString picture = dxftest::fileWith("old", path(QLatin1String(name)));
        Outcome outcome;
        {
            const dxftest::FileSizeLimit limit(1);
            outcome = runPicture(picture, drawing);
        }

        EXPECT_EQ(outcome.exitCode, 1) << name;
        EXPECT_THAT(outcome.errors, HasSubstr("The picture cannot be written.")) << name;
        EXPECT_EQ(dxftest::contentOf(picture), "old") << name;
    }
}

TEST_F(ProgramTest, TakesNamesOfOtherAlphabets)
{
    const QString drawing = path(QString::fromUtf8("Stra\xC3\x9F"
                                                   "e \xE5\x9B\xB3.dxf"));
    ASSERT_TRUE(QFile::copy(sample(QStringLiteral("floor-plan.dxf")), drawing));
    const QString picture = path(QString::fromUtf8("\xC3\x9C.png"));

    const Outcome outcome = runPicture(picture, drawing);

    EXPECT_EQ(outcome.exitCode, 0) << outcome.errors;
    EXPECT_TRUE(QFile::exists(picture));
}

} // namespace
