// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/model/DXFDocument.h"

#include <QByteArray>
#include <QLineF>
#include <QSharedPointer>
#include <QVector>

#include <cstddef>
#include <cstdint>

class DXFPolyline;

/// What several fuzz targets need of drawings.
namespace dxffuzz
{

/// Discards Qt's log from now on, because hostile drawings log a line for each record.
void silenceLog();

/// Ends the process with a message if the condition does not hold. The fuzzer reports that as a
/// crash.
void require(bool condition, const char* what);

/// The input as the bytes of a drawing.
QByteArray textOf(const uint8_t* data, std::size_t size);

/// The polylines of a document, each once even if it is listed several times.
QVector<DXFPolyline*> polylinesOf(const DXFDocument& document);

/// The parts of a polyline that files keep.
struct Shape {
    bool isClosed;
    QVector<double> numbers;
};

QVector<Shape> shapesOf(const DXFDocument& document);

/// Whether two drawings have the same polylines, number for number and NaN for NaN.
bool areIdentical(const QVector<Shape>& a, const QVector<Shape>& b);

/// Whether the second is what a reader makes of the first after it was written: polylines without
/// vertices are lost, numbers that are not finite become 0, and 16 decimals are kept.
bool survivedWriting(const QVector<Shape>& written, const QVector<Shape>& read);

/// The lines of all segments, each polyline once.
QVector<QLineF> linesOf(const DXFDocument& document);

/// Requires that there are no more vertices and entities than the text can hold.
void requireBounded(const DXFDocument& document, const QByteArray& text);

} // namespace dxffuzz
