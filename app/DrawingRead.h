// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QSharedPointer>
#include <QString>

class DXFDocument;
class ReadingWatch;

/// What came of reading a file.
struct DrawingRead {
    /// Null if it could not be read. It is not set up: ids are given in the GUI thread only.
    QSharedPointer<DXFDocument> document;
    /// Why it could not be read, a sentence for the user; empty if it was cancelled.
    QString reason;
};

/// Reads a drawing. May be called in any thread, but in one at a time.
DrawingRead readDocument(const QString& fileName, ReadingWatch& watch);
