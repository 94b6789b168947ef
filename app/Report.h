// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QByteArray>
#include <QMap>
#include <QPointF>
#include <QString>

#include <optional>

class DXFDocument;

/// What the segments of a drawing come to, seen from above, in drawing units.
struct Measures {
    struct Box {
        QPointF least;
        QPointF greatest;
    };

    double length = 0.0;
    /// Nothing if there is no segment.
    std::optional<Box> box;
};

/// Of a document that is set up: its segments are what is measured.
Measures measuresOf(const DXFDocument& document);

/// One line with tabs between its fields: file, length, least x and y, greatest x and y, and what
/// was skipped as KIND=COUNT with commas between. Numbers have 15 digits; those of an empty box are
/// nan.
QByteArray reportLine(const QString& fileName, const Measures& measures,
                      const QMap<QString, int>& skipped);
