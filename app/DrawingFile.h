// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QByteArray>

#include <optional>

class QString;
class ReadingWatch;

/**
 * Reads the text of a drawing, for DXFViewer::loadData().
 *
 * The window does not say whether a drawing could be read, and drops the old one in any case. So a
 * file that is clearly not a drawing is refused here, before the window gets it: then nothing is
 * returned, and the reason, a sentence for the user, is set.
 */
std::optional<QByteArray> readDrawing(const QString& fileName, QString& reason);
/// The same, but throws Cancelled as soon as the watch is cancelled.
std::optional<QByteArray> readDrawing(const QString& fileName, QString& reason,
                                      const ReadingWatch& watch);

/**
 * Writes a whole file, or leaves the old one as it was.
 *
 * On failure false is returned, and the reason, a sentence for the user, is set.
 */
bool writeFile(const QString& fileName, const QByteArray& content, QString& reason);
