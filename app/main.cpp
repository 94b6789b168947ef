// SPDX-License-Identifier: GPL-2.0-or-later

#include "CommandLine.h"
#include "DrawingRead.h"
#include "FileNames.h"
#include "Ground.h"
#include "MainWindow.h"
#include "Picture.h"
#include "ReadingWatch.h"
#include "Report.h"
#include "Translations.h"

#include <dxfviewer/model/DXFDocument.h>

#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <QLoggingCategory>

#include <cstdio>

namespace
{

int fail(const QString& message)
{
    std::fprintf(stderr, "%s\n", qPrintable(message));
    return EXIT_FAILURE;
}

int failWithFile(const QString& what, const QString& fileName, const QString& reason)
{
    return fail(CommandLine::tr("%1\n%2\n%3").arg(what, readableName(fileName), reason));
}

/// Reads a drawing without a window. If it cannot be read, the document is null, and the user is
/// told why.
DrawingRead readFile(const QString& fileName, const ReadingChoices& choices)
{
    ReadingWatch watch;
    DrawingRead result = readDocument(fileName, choices, watch);
    if (!result.document)
        failWithFile(CommandLine::tr("The drawing cannot be opened."), fileName, result.reason);
    return result;
}

int writePicture(const QString& drawing, const CommandLine& commandLine)
{
    const DrawingRead content = readFile(drawing, ReadingChoices());
    if (!content.document)
        return EXIT_FAILURE;
    const Picture picture(content.document, colorOf(commandLine.ground()),
                          QFileInfo(drawing).fileName());
    QString reason;
    if (!picture.write(commandLine.picture(), reason))
        return failWithFile(CommandLine::tr("The picture cannot be written."),
                            commandLine.picture(), reason);
    return EXIT_SUCCESS;
}

int report(const QStringList& drawings)
{
    // The outlines of letters depend on the fonts of the machine.
    ReadingChoices choices;
    choices.showsTexts = false;
    int result = EXIT_SUCCESS;
    for (const QString& drawing : drawings) {
        const DrawingRead content = readFile(drawing, choices);
        if (!content.document) {
            result = EXIT_FAILURE;
            continue;
        }
        content.document->setup();
        const QByteArray line = reportLine(drawing, measuresOf(*content.document), content.skipped);
        std::printf("%s\n", line.constData());
    }
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
        return fail(CommandLine::tr("The report cannot be written."));
    return result;
}

int showWindow(const CommandLine& commandLine)
{
    MainWindow window;
    if (commandLine.wantsEditMode())
        window.editNextDrawing();
    window.show();
    if (!commandLine.drawings().isEmpty())
        window.openDrawing(commandLine.drawings().constFirst());
    return QApplication::exec();
}

/// Whether there will be a window. This must be known before there is an application, which needs a
/// display.
bool isWindowNeeded(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    CommandLine commandLine;
    return commandLine.parse(arguments) && commandLine.needsWindow();
}

} // namespace

int main(int argc, char** argv)
{
    if (!isWindowNeeded(argc, argv))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    QApplication application(argc, argv);
    installTranslations(application);
    QCoreApplication::setApplicationName(QStringLiteral("dxfviewer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(DXFVIEWER_APP_VERSION));
    QGuiApplication::setApplicationDisplayName(CommandLine::tr("DXF Viewer"));
    QGuiApplication::setDesktopFileName(QStringLiteral(DXFVIEWER_APP_PROGRAM));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/dxfviewer.svg")));

    CommandLine commandLine;
    commandLine.process(QCoreApplication::arguments());
    // A drawing can cause a hundred thousand messages about what is left out. Warnings stay.
    if (!commandLine.isVerbose())
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    if (!commandLine.mistake().isEmpty())
        return fail(commandLine.mistake());
    if (commandLine.wantsReport())
        return report(commandLine.drawings());
    if (commandLine.wantsPicture())
        return writePicture(commandLine.drawings().constFirst(), commandLine);
    return showWindow(commandLine);
}
