// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/support/Printers.h"

#include <QByteArray>
#include <QColor>
#include <QDebug>
#include <QLineF>
#include <QPen>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QString>

#include <limits>
#include <ostream>

namespace
{

template <typename T>
void printByDebug(const T& value, std::ostream* out)
{
    QString text;
    QDebug(&text).nospace() << qSetRealNumberPrecision(std::numeric_limits<double>::max_digits10)
                            << value;
    *out << text.toStdString();
}

} // namespace

QT_BEGIN_NAMESPACE

void PrintTo(const QString& text, std::ostream* out)
{
    printByDebug(text, out);
}

void PrintTo(const QByteArray& bytes, std::ostream* out)
{
    printByDebug(bytes, out);
}

void PrintTo(const QColor& color, std::ostream* out)
{
    printByDebug(color, out);
}

void PrintTo(const QPen& pen, std::ostream* out)
{
    printByDebug(pen, out);
}

void PrintTo(const QPoint& point, std::ostream* out)
{
    printByDebug(point, out);
}

void PrintTo(const QPointF& point, std::ostream* out)
{
    printByDebug(point, out);
}

void PrintTo(const QLineF& line, std::ostream* out)
{
    printByDebug(line, out);
}

void PrintTo(const QRect& rect, std::ostream* out)
{
    printByDebug(rect, out);
}

void PrintTo(const QRectF& rect, std::ostream* out)
{
    printByDebug(rect, out);
}

QT_END_NAMESPACE
