// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QMap>
#include <QPointF>

#include <optional>

class DXFDocument;
class QByteArray;
class QString;

/// The measures of a drawing's segments, seen from above, in drawing units.
struct Measures {
    struct Box {
        QPointF least;
        QPointF greatest;
    };

    double length = 0.0;
    /// Nothing if there is no segment.
    std::optional<Box> box;
};

/// Measures the segments of a document, which must be set up.
Measures measuresOf(const DXFDocument& document);

/// One line with tabs between its fields: file, length, least x and y, greatest x and y, and what
/// was skipped, as KIND=COUNT separated by commas. Numbers have 15 digits; if there is no box, its
/// numbers are nan.
QByteArray reportLine(const QString& fileName, const Measures& measures,
                      const QMap<QString, int>& skipped);
