// SPDX-License-Identifier: GPL-2.0-or-later

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
    int exitCode;
    std::string output;
    std::string errors;
};

class ProgramTest : public dxftest::LoggedTest
{
protected:
    Outcome run(const QStringList& arguments)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        // The program must see by itself that it needs no display.
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

/// A blank picture has one.
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
    for (const char* option : {"--edit", "--picture <FILE>", "--version", "--help", "DRAWING"})
        EXPECT_THAT(outcome.output, HasSubstr(option));
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

TEST_F(ProgramTest, StartsInEditModeWhenTold)
{
    QProcess process;
    process.start(QStringLiteral(DXFVIEWER_APP),
                  {QStringLiteral("--edit"), sample(QStringLiteral("floor-plan.dxf"))});
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
    QFile file(picture);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_THAT(file.readAll().toStdString(), StartsWith("%PDF"));
    EXPECT_GT(file.size(), 5000);
}

INSTANTIATE_TEST_SUITE_P(, ProgramSampleTest,
                         ::testing::Values("floor-plan", "contour-map", "bracket-part"),
                         [](const auto& sampleInfo) {
                             std::string name = sampleInfo.param;
                             name[name.find('-')] = '_';
                             return name;
                         });

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
