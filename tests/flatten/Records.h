// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/flatten/FlatteningOptions.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFPolyline.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QMap>
#include <QPointF>
#include <QRectF>
#include <QSharedPointer>
#include <QString>
#include <QVector>

/// @file Small drawings for tests, and the results of flattening them.

namespace dxftest
{

/**
 * The text of records. Each line of the argument is one record: its name, and then codes and values
 * in turn: "LINE 10 0 20 0 11 3 21 4".
 *
 * A "~" in a value stands for a blank.
 */
QByteArray records(const char* lines);

/// The parts of a drawing, each as records() takes them.
struct Parts {
    const char* entities = "";
    const char* blocks = "";
    const char* tables = "";
};

/// The text of a whole drawing.
QByteArray drawingOf(const Parts& parts);

/// How many there are of each kind, or for each reason.
using Counts = QMap<QString, int>;

/// A key of such counts.
QString key(const char* name);

/// The result of reading a drawing.
struct Flattened {
    QSharedPointer<DXFDocument> document;
    bool isRead = false;
    Counts shown;
    Counts skipped;
    int elsewhere = 0;
    int invisible = 0;

    int count() const { return static_cast<int>(document->entities().size()); }
    QSharedPointer<DXFPolyline> polyline(int index) const;
    /// The points of a polyline.
    QVector<QPointF> points(int index) const;
    QVector<QVector<QPointF>> chains() const;
    QSharedPointer<DXFAttributes> attributes(int index) const;
    double length() const;
    QRectF box() const;
};

Flattened flattened(const QByteArray& text, const FlatteningOptions& options = {});
Flattened flattened(const Parts& parts, const FlatteningOptions& options = {});

double lengthOf(const QVector<QPointF>& points);

/// Whether all chains are the same but for rounding. Names the first that is not.
::testing::AssertionResult areNear(const QVector<QVector<QPointF>>& actual,
                                   const QVector<QVector<QPointF>>& expected,
                                   double tolerance = 1e-9);

} // namespace dxftest
