// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

class ReadingWatch;

/**
 * Reads the text of a drawing, for DXFViewer::loadData().
 *
 * The window tells nobody whether a drawing could be read, and forgets the old one in any case. So
 * what is evidently no drawing is refused here, before the window hears of it: nothing is returned,
 * and the reason, a sentence for the user, is set.
 */
std::optional<QByteArray> readDrawing(const QString& fileName, QString& reason);
/// The same for as long as the watch lets it go on: throws Cancelled if that ends.
std::optional<QByteArray> readDrawing(const QString& fileName, QString& reason,
                                      const ReadingWatch& watch);

/**
 * Writes a whole file, or leaves the old one as it was.
 *
 * On failure false is returned, and the reason, a sentence for the user, is set.
 */
bool writeFile(const QString& fileName, const QByteArray& content, QString& reason);
