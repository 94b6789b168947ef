// SPDX-License-Identifier: GPL-2.0-or-later

#include "Picture.h"

#include "DrawingFile.h"
#include "FileNames.h"
#include "PictureFormats.h"
#include "Polylines.h"

#include <dxfviewer/model/DXFDocument.h>
#include <dxfviewer/render/DisplayColors.h>

#include <QFileInfo>
#include <QPainter>
#include <QSize>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double longEdgePx = 2000.0;
constexpr double shortestEdgePx = 40.0;
constexpr double marginPerSize = 0.02;
// The square of the scale must still be a number.
constexpr double mostSize = 1e150;

/// Runs of connected segments.
QVector<QPolygonF> runsOf(const DXFPolyline& polyline)
{
    QVector<QPolygonF> runs;
    const auto segments = polyline.segments();
    for (const Segment& segment : segments) {
        const QLineF line = segment.line();
        if (runs.isEmpty() || runs.constLast().constLast() != line.p1())
            runs.append(QPolygonF() << line.p1());
        runs.last().append(line.p2());
    }
    return runs;
}

bool isFinite(const QRectF& rect)
{
    return std::isfinite(rect.x()) && std::isfinite(rect.y()) && std::isfinite(rect.width())
           && std::isfinite(rect.height());
}

std::optional<QRectF> withMargin(const QRectF& rect)
{
    const double size = std::max(rect.width(), rect.height());
    if (size > mostSize)
        return std::nullopt;
    const double margin = size > 0.0 ? size * marginPerSize : 1.0;
    const QRectF grown = rect.adjusted(-margin, -margin, margin, margin);
    // If rounding removes the margin, the size is 0 and cannot be divided by.
    if (!isFinite(grown) || grown.isEmpty())
        return std::nullopt;
    return grown;
}

/// Maps drawing units to a picture of this size.
QTransform fitted(const QRectF& bounds, const QSize& size)
{
    const double scale = std::min(size.width() / bounds.width(), size.height() / bounds.height());
    QTransform transform;
    transform.translate(size.width() / 2.0, size.height() / 2.0);
    // The y axis of drawings points up, that of pictures down.
    transform.scale(scale, -scale);
    transform.translate(-bounds.center().x(), -bounds.center().y());
    return transform;
}

} // namespace

Picture::Picture(const QSharedPointer<DXFDocument>& document, const QColor& ground,
                 const QString& title)
    : m_ground(ground)
    , m_title(readableName(title))
{
    document->setup();
    take(*document);
}

void Picture::take(const DXFDocument& document)
{
    const DisplayColors colors(m_ground);
    QPolygonF corners;
    const auto entities = document.entities();
    for (const auto& entity : entities) {
        const DXFPolyline* polyline = asPolyline(entity);
        if (!polyline)
            continue;
        const auto runs = runsOf(*polyline);
        for (const QPolygonF& run : runs) {
            m_strokes.append({run, colors.colorOf(*polyline, document), polyline->lineWidth()});
            corners += run;
        }
    }
    m_bounds = withMargin(corners.boundingRect());
}

QSize Picture::size() const
{
    const double scale = longEdgePx / std::max(m_bounds->width(), m_bounds->height());
    const QSizeF edges = m_bounds->size() * scale;
    return QSizeF(std::max(edges.width(), shortestEdgePx), std::max(edges.height(), shortestEdgePx))
        .toSize();
}

bool Picture::isWide() const
{
    return m_bounds && m_bounds->width() > m_bounds->height();
}

void Picture::paintInto(QPainter& painter, const QRectF& rect) const
{
    if (!m_bounds)
        return;
    const QSizeF all = size();
    const double scale = std::min(rect.width() / all.width(), rect.height() / all.height());
    painter.save();
    painter.translate(rect.center());
    painter.scale(scale, scale);
    painter.translate(-all.width() / 2.0, -all.height() / 2.0);
    painter.setRenderHint(QPainter::Antialiasing);
    paintStrokes(painter, onPaperPx);
    painter.restore();
}

void Picture::paintStrokes(QPainter& painter, int thinnestPx) const
{
    const QTransform toPixels = fitted(*m_bounds, size());
    // The points are mapped here and not by the painter: the generators write few digits, which
    // is enough for pixels but not for the coordinates of a survey.
    for (const Stroke& stroke : m_strokes) {
        painter.setPen(QPen(stroke.color, std::max(thinnestPx, stroke.width)));
        const QPolygonF points = toPixels.map(stroke.points);
        // Without a length a wide line is not painted.
        if (points.boundingRect().isNull())
            painter.drawPoint(points.constFirst());
        else
            painter.drawPolyline(points);
    }
}

QString Picture::fault() const
{
    if (m_strokes.isEmpty())
        return tr("There is nothing in this drawing that can be shown.");
    if (isTooLarge())
        return tr("The drawing's coordinates are too large for a picture.");
    return QString();
}

bool Picture::write(const QString& fileName, QString& reason) const
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    reason = pictureSuffixes().contains(suffix)
                 ? fault()
                 : tr("The name of a picture must end in .png, .svg or .pdf.");
    if (!reason.isEmpty())
        return false;
    const QByteArray content = pictureFile(*this, suffix);
    if (content.isEmpty()) {
        reason = tr("There is not enough memory for the picture.");
        return false;
    }
    return writeFile(fileName, content, reason);
}
