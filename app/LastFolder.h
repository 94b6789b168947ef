// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QString>

class Settings;

/// The folder of the file that was opened or saved last, in this window or else in the last run.
class LastFolder
{
public:
    /// The settings must outlive it.
    explicit LastFolder(Settings& settings);

    /// The current folder if there is none, or if it is gone.
    QString path() const;
    void noteFile(const QString& fileName);

private:
    Settings& m_settings;
    QString m_path;
};
