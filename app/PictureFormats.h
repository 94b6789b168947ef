// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QStringList>

class Picture;
class QByteArray;

// The formats of picture files, by the file name suffixes.

/// png, svg, pdf.
QStringList pictureSuffixes();

/// A file with the picture, which must have something to paint. Empty if there is not enough
/// memory.
QByteArray pictureFile(const Picture& picture, const QString& suffix);
