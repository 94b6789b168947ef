// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QStringList>

enum class Ground;

/// What the program is told to do.
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    CommandLine();
    ~CommandLine();

    bool parse(const QStringList& arguments);
    /// Exits if the arguments are wrong or ask for nothing but help or the version.
    void process(const QStringList& arguments);

    bool needsWindow() const;
    /// What is wrong with the arguments, a sentence for the user; empty if nothing is.
    QString mistake() const;

    bool wantsEditMode() const { return m_parser.isSet(m_edit); }
    bool wantsPicture() const { return m_parser.isSet(m_picture); }
    bool wantsReport() const { return m_parser.isSet(m_report); }
    bool isVerbose() const { return m_parser.isSet(m_verbose); }
    QString picture() const { return m_parser.value(m_picture); }
    /// The ground of a picture.
    Ground ground() const;
    QStringList drawings() const { return m_parser.positionalArguments(); }

private:
    Q_DISABLE_COPY(CommandLine)

    QCommandLineParser m_parser;
    QCommandLineOption m_help;
    QCommandLineOption m_version;
    QCommandLineOption m_edit;
    QCommandLineOption m_picture;
    QCommandLineOption m_ground;
    QCommandLineOption m_report;
    QCommandLineOption m_verbose;
};
