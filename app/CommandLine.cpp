// SPDX-License-Identifier: GPL-2.0-or-later

#include "CommandLine.h"

#include "Ground.h"

#include <QCoreApplication>

CommandLine::CommandLine()
    : m_help(m_parser.addHelpOption())
    , m_version(m_parser.addVersionOption())
    , m_edit(QStringLiteral("edit"), tr("Start in edit mode."))
    , m_picture(QStringLiteral("picture"),
                tr("Write a picture of the drawing to FILE (.png, .svg or .pdf) and exit."),
                tr("FILE"))
    , m_ground(QStringLiteral("ground"),
               tr("What a picture lies on: dark, light or white (the default)."), tr("GROUND"),
               nameOf(Ground::White))
    , m_report(QStringLiteral("report"),
               tr("Print a line for each drawing, with tabs between: the file, the length of "
                  "all lines, the least x and y, the greatest x and y, and how many objects "
                  "of which kind are not shown."))
    , m_verbose(QStringLiteral("verbose"), tr("Print what is read and left out."))
{
    m_parser.setApplicationDescription(tr("Views DXF drawings and erases parts of them."));
    for (const QCommandLineOption* option : {&m_edit, &m_picture, &m_ground, &m_report, &m_verbose})
        m_parser.addOption(*option);
    m_parser.addPositionalArgument(QStringLiteral("DRAWING"), tr("A .dxf file to open."),
                                   QStringLiteral("[DRAWING]"));
}

CommandLine::~CommandLine() = default;

bool CommandLine::parse(const QStringList& arguments)
{
    return m_parser.parse(arguments);
}

void CommandLine::process(const QStringList& arguments)
{
    m_parser.process(arguments);
}

bool CommandLine::needsWindow() const
{
    return !m_parser.isSet(m_help) && !m_parser.isSet(QStringLiteral("help-all"))
           && !m_parser.isSet(m_version) && !wantsPicture() && !wantsReport()
           && mistake().isEmpty();
}

QString CommandLine::mistake() const
{
    if (!groundNamed(m_parser.value(m_ground)))
        return tr("The ground of a picture is dark, light or white.");
    if (wantsReport() && drawings().isEmpty())
        return tr("There is no drawing to report on.");
    if (!wantsReport() && drawings().size() > 1)
        return tr("Only one drawing can be opened.");
    if (wantsPicture() && drawings().isEmpty())
        return tr("There is no drawing to make a picture of.");
    return QString();
}

Ground CommandLine::ground() const
{
    return groundNamed(m_parser.value(m_ground)).value_or(Ground::White);
}
