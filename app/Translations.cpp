// SPDX-License-Identifier: GPL-2.0-or-later

#include "Translations.h"

#include "QtVersions.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace
{

/// Where the .qm files of the drawing window and of the program are: the build's folder or the
/// installed one.
QStringList folders()
{
    const QString program = QCoreApplication::applicationDirPath() + QLatin1Char('/');
    QStringList found;
    for (const char* fromProgram : {DXFVIEWER_APP_TRANSLATIONS})
        found += program + QLatin1String(fromProgram);
    return found;
}

void install(QCoreApplication& application, const QString& name, const QStringList& folders)
{
    auto* translator = new QTranslator(&application);
    for (const QString& folder : folders) {
        if (translator->load(QLocale(), name, QStringLiteral("_"), folder)) {
            QCoreApplication::installTranslator(translator);
            return;
        }
    }
    delete translator;
}

} // namespace

void installTranslations(QCoreApplication& application)
{
    install(application, QStringLiteral("qtbase"), {qtTranslationsFolder()});
    install(application, QStringLiteral("dxfviewer"), folders());
    install(application, QStringLiteral("dxfviewer-app"), folders());
}
