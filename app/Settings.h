// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QSettings>

/**
 * What the program remembers from run to run: one file for all of its parts, in the user's folder
 * for such files.
 *
 * The values are texts, lists of texts, numbers, true and false. The file may hold anything: what
 * cannot be read counts as not there. A file that cannot be written whole stays as it was.
 */
class Settings : public QSettings
{
public:
    Settings();
    ~Settings() override;
};
