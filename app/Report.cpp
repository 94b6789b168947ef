// SPDX-License-Identifier: GPL-2.0-or-later

#include "Report.h"

#include "Polylines.h"

#include <dxfviewer/model/DXFDocument.h>

#include <QByteArray>
#include <QFile>
#include <QString>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

constexpr int digits = 15;

/// A sum that does not lose small values beside a large total.
class Sum
{
public:
    void add(double value)
    {
        const double corrected = value - m_lost;
        const double next = m_value + corrected;
        m_lost = (next - m_value) - corrected;
        m_value = next;
    }
    double value() const { return m_value; }

private:
    double m_value = 0.0;
    double m_lost = 0.0;
};

void take(const QPointF& point, std::optional<Measures::Box>& box)
{
    if (!box) {
        box = Measures::Box{point, point};
        return;
    }
    box->least = {std::min(box->least.x(), point.x()), std::min(box->least.y(), point.y())};
    box->greatest = {std::max(box->greatest.x(), point.x()),
                     std::max(box->greatest.y(), point.y())};
}

/// Text as a part of a line. With control characters or separators it would look like more.
QByteArray fieldWith(QByteArray text, const QByteArray& separators = QByteArray())
{
    for (char& character : text) {
        const bool isControl = static_cast<unsigned char>(character) < ' ';
        if (isControl || separators.contains(character))
            character = ' ';
    }
    return text;
}

} // namespace

Measures measuresOf(const DXFDocument& document)
{
    Measures measures;
    Sum length;
    const auto entities = document.entities();
    for (const auto& entity : entities) {
        const DXFPolyline* polyline = asPolyline(entity);
        if (!polyline)
            continue;
        const auto segments = polyline->segments();
        for (const Segment& segment : segments) {
            const QLineF line = segment.line();
            length.add(std::hypot(line.dx(), line.dy()));
            take(line.p1(), measures.box);
            take(line.p2(), measures.box);
        }
    }
    measures.length = length.value();
    return measures;
}

QByteArray reportLine(const QString& fileName, const Measures& measures,
                      const QMap<QString, int>& skipped)
{
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    const auto box = measures.box.value_or(Measures::Box{QPointF(none, none), QPointF(none, none)});
    QByteArray line = fieldWith(QFile::encodeName(fileName));
    for (const double number :
         {measures.length, box.least.x(), box.least.y(), box.greatest.x(), box.greatest.y()})
        line += '\t' + QByteArray::number(number, 'g', digits);
    char separator = '\t';
    if (skipped.isEmpty())
        line += separator;
    for (auto kind = skipped.cbegin(); kind != skipped.cend(); ++kind) {
        line += separator + fieldWith(kind.key().toUtf8(), ",=") + '='
                + QByteArray::number(kind.value());
        separator = ',';
    }
    return line;
}
