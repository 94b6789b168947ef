// SPDX-License-Identifier: GPL-2.0-or-later

#include "DrawingFile.h"
#include "FileNames.h"
#include "MainWindow.h"
#include "Picture.h"
#include "Translations.h"

#include <dxfviewer/model/DXFDocument.h>
#include <dxfviewer/viewer/View.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>

#include <cstdio>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

/// The options, and a drawing if one is named.
class CommandLine
{
public:
    CommandLine()
        : m_help(m_parser.addHelpOption())
        , m_version(m_parser.addVersionOption())
        , m_edit(QStringLiteral("edit"), Texts::tr("Start in edit mode."))
        , m_picture(
              QStringLiteral("picture"),
              Texts::tr("Write a picture of the drawing to FILE (.png, .svg or .pdf) and exit."),
              Texts::tr("FILE"))
    {
        m_parser.setApplicationDescription(
            Texts::tr("Views DXF drawings and erases parts of them."));
        m_parser.addOption(m_edit);
        m_parser.addOption(m_picture);
        m_parser.addPositionalArgument(QStringLiteral("DRAWING"), Texts::tr("A .dxf file to open."),
                                       QStringLiteral("[DRAWING]"));
    }

    bool parse(const QStringList& arguments) { return m_parser.parse(arguments); }
    /// Exits if the arguments are wrong or ask for nothing but help or the version.
    void process(const QStringList& arguments) { m_parser.process(arguments); }

    bool needsWindow() const
    {
        return !m_parser.isSet(m_help) && !m_parser.isSet(QStringLiteral("help-all"))
               && !m_parser.isSet(m_version) && !wantsPicture();
    }
    bool wantsEditMode() const { return m_parser.isSet(m_edit); }
    bool wantsPicture() const { return m_parser.isSet(m_picture); }
    QString picture() const { return m_parser.value(m_picture); }
    QStringList drawings() const { return m_parser.positionalArguments(); }

private:
    QCommandLineParser m_parser;
    QCommandLineOption m_help;
    QCommandLineOption m_version;
    QCommandLineOption m_edit;
    QCommandLineOption m_picture;
};

int fail(const QString& message)
{
    std::fprintf(stderr, "%s\n", qPrintable(message));
    return EXIT_FAILURE;
}

int failWithFile(const QString& what, const QString& fileName, const QString& reason)
{
    return fail(Texts::tr("%1\n%2\n%3").arg(what, readableName(fileName), reason));
}

int writePicture(const QString& drawing, const QString& picture)
{
    const QString cannotOpen = Texts::tr("The drawing cannot be opened.");
    QString reason;
    const auto text = readDrawing(drawing, reason);
    if (!text)
        return failWithFile(cannotOpen, drawing, reason);
    const auto document = DXFDocument::load(*text);
    if (!document)
        return failWithFile(cannotOpen, drawing, Texts::tr("It cannot be read."));
    if (!Picture(document, View().backgroundBrush()).write(picture, reason))
        return failWithFile(Texts::tr("The picture cannot be written."), picture, reason);
    return EXIT_SUCCESS;
}

int showWindow(const CommandLine& commandLine)
{
    MainWindow window;
    if (commandLine.wantsEditMode())
        window.editNextDrawing();
    // Shown before the drawing is loaded: it is fitted to the window once, and the window must have
    // its size by then.
    window.show();
    if (!commandLine.drawings().isEmpty())
        window.openDrawing(commandLine.drawings().constFirst());
    return QApplication::exec();
}

/// Whether there will be a window, found out before there is an application that needs a display.
bool isWindowNeeded(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    CommandLine commandLine;
    return commandLine.parse(arguments) && commandLine.needsWindow()
           && commandLine.drawings().size() <= 1;
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
    QGuiApplication::setApplicationDisplayName(Texts::tr("DXF Viewer"));
    QGuiApplication::setDesktopFileName(QStringLiteral(DXFVIEWER_APP_PROGRAM));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/dxfviewer.svg")));

    CommandLine commandLine;
    commandLine.process(QCoreApplication::arguments());
    if (commandLine.drawings().size() > 1)
        return fail(Texts::tr("Only one drawing can be opened."));
    if (!commandLine.wantsPicture())
        return showWindow(commandLine);
    if (commandLine.drawings().isEmpty())
        return fail(Texts::tr("There is no drawing to make a picture of."));
    return writePicture(commandLine.drawings().constFirst(), commandLine.picture());
}
