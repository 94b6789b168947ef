// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QtGlobal>

#include <iosfwd>

// GoogleTest finds these by the namespace of the printed type. Coordinates are printed so exactly
// that two different ones look different.

QT_BEGIN_NAMESPACE
class QByteArray;
class QColor;
class QLineF;
class QPen;
class QPoint;
class QPointF;
class QRect;
class QRectF;
class QString;

void PrintTo(const QString& text, std::ostream* out);
void PrintTo(const QByteArray& bytes, std::ostream* out);
void PrintTo(const QColor& color, std::ostream* out);
void PrintTo(const QPen& pen, std::ostream* out);
void PrintTo(const QPoint& point, std::ostream* out);
void PrintTo(const QPointF& point, std::ostream* out);
void PrintTo(const QLineF& line, std::ostream* out);
void PrintTo(const QRect& rect, std::ostream* out);
void PrintTo(const QRectF& rect, std::ostream* out);
QT_END_NAMESPACE
