// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QString>

/// A file name as one line of text that a person can read: what cannot be shown is replaced, and
/// the middle of a very long name is left out.
QString readableName(const QString& fileName);

/// A name beside this file that no file has yet, for an edited copy of it. A copy of a copy gets
/// the next number, and not a longer name.
QString nameForEditedCopy(const QString& fileName);

/// Whether both names lead to the same existing file.
bool isSameFile(const QString& one, const QString& other);
