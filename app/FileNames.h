// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

class QString;

/// A file name as one line of readable text: characters that cannot be shown are replaced, and the
/// middle of a very long name is left out.
QString readableName(const QString& fileName);

/// A free name in the folder of this file, for an edited copy of it. A copy of a copy gets the next
/// number, not a longer name.
QString nameForEditedCopy(const QString& fileName);

/// Whether both names lead to the same existing file.
bool isSameFile(const QString& one, const QString& other);
