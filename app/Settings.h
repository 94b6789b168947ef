// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QSettings>

/// What the program remembers from run to run: one file for all of its parts, in the user's folder
/// for such files. The file may hold anything.
class Settings : public QSettings
{
public:
    Settings()
        : QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("dxfviewer"),
                    QStringLiteral("dxfviewer"))
    {
    }
};
