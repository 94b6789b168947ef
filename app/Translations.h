// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

class QCoreApplication;

/// Makes the program speak the language of the system: Qt's texts, the drawing window's and its
/// own. Texts without a translation stay English.
void installTranslations(QCoreApplication& application);
