// SPDX-License-Identifier: GPL-2.0-or-later

#include "Picture.h"

#include "DrawingFile.h"
#include "FileNames.h"
#include "Polylines.h"

#include <dxfviewer/model/DXFDocument.h>
#include <dxfviewer/render/DisplayColors.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double longEdgePx = 2000.0;
constexpr double shortestEdgePx = 40.0;
constexpr double marginPerSize = 0.02;
// The square of the scale must still be a number.
constexpr double mostSize = 1e150;
constexpr int pixelsPerInch = 144;
// At this many pixels a line on paper is a fifth of a millimetre wide. On a screen a picture is
// often seen smaller than it is.
constexpr int thinnestOnPaperPx = 1;
constexpr int thinnestOnScreenPx = 2;
constexpr double pointsPerInch = 72.0;

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

QStringList Picture::suffixes()
{
    return {QStringLiteral("png"), QStringLiteral("svg"), QStringLiteral("pdf")};
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
    paintStrokes(painter, thinnestOnPaperPx);
    painter.restore();
}

void Picture::paint(QPainter& painter) const
{
    painter.fillRect(QRect(QPoint(0, 0), size()), m_ground);
    paintStrokes(painter, thinnestOnPaperPx);
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

bool Picture::write(const QString& fileName, QString& reason) const
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    if (!suffixes().contains(suffix)) {
        reason = tr("The name of a picture must end in .png, .svg or .pdf.");
        return false;
    }
    if (m_strokes.isEmpty()) {
        reason = tr("There is nothing in this drawing that can be shown.");
        return false;
    }
    if (!m_bounds) {
        reason = tr("The drawing's coordinates are too large for a picture.");
        return false;
    }
    const QByteArray content = suffix == QLatin1String("png")   ? png()
                               : suffix == QLatin1String("svg") ? svg()
                                                                : pdf();
    if (content.isEmpty()) {
        reason = tr("There is not enough memory for the picture.");
        return false;
    }
    return writeFile(fileName, content, reason);
}

QByteArray Picture::png() const
{
    QImage image(size(), QImage::Format_RGB32);
    if (image.isNull())
        return QByteArray();
    // Not smoothed. A smoothed line between two rows of pixels, or thinner than a pixel, would mix
    // with the ground and be hard to see.
    image.fill(m_ground);
    QPainter painter(&image);
    paintStrokes(painter, thinnestOnScreenPx);
    painter.end();

    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

QByteArray Picture::svg() const
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    // The generator does not escape it.
    generator.setTitle(m_title.toHtmlEscaped());
    generator.setDescription(QString());
    // Gives the size in millimetres, the same as that of the page.
    generator.setResolution(pixelsPerInch);
    generator.setSize(size());
    generator.setViewBox(QRect(QPoint(0, 0), size()));
    QPainter painter(&generator);
    paint(painter);
    painter.end();
    return buffer.data();
}

QByteArray Picture::pdf() const
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setCreator(QCoreApplication::applicationName());
    writer.setTitle(m_title);
    writer.setResolution(pixelsPerInch);
    writer.setPageSize(QPageSize(QSizeF(size()) * pointsPerInch / pixelsPerInch, QPageSize::Point,
                                 QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    paint(painter);
    painter.end();
    return buffer.data();
}
