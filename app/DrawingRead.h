// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "ReadingChoices.h"

#include <QMap>
#include <QSharedPointer>
#include <QString>

class DXFDocument;
class ReadingWatch;

/// The result of reading a file.
struct DrawingRead {
    /// Null if it could not be read. It is not set up: ids are given in the GUI thread only.
    QSharedPointer<DXFDocument> document;
    /// Why it could not be read, a sentence for the user; empty if it was cancelled.
    QString reason;
    /// How many entities became polylines, and how many are not shown, by their names in DXF. Empty
    /// if only polylines are read.
    QMap<QString, int> shown;
    QMap<QString, int> skipped;
    /// How many entities are left out because they lie on layouts, and because they are invisible.
    int elsewhere = 0;
    int invisible = 0;
    /// How it was read.
    ReadingChoices choices;
};

/// Reads a drawing. May be called in any thread, but in one at a time.
DrawingRead readDocument(const QString& fileName, const ReadingChoices& choices,
                         ReadingWatch& watch);
