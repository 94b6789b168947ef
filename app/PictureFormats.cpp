// SPDX-License-Identifier: GPL-2.0-or-later

#include "PictureFormats.h"

#include "Picture.h"

#include <QBuffer>
#include <QByteArray>
#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace
{

constexpr int pixelsPerInch = 144;
constexpr double pointsPerInch = 72.0;

void paintOnGround(QPainter& painter, const Picture& picture)
{
    painter.fillRect(QRect(QPoint(0, 0), picture.size()), picture.ground());
    picture.paintStrokes(painter, Picture::onPaperPx);
}

QByteArray png(const Picture& picture)
{
    QImage image(picture.size(), QImage::Format_RGB32);
    if (image.isNull())
        return QByteArray();
    // Not smoothed. A smoothed line between two rows of pixels, or thinner than a pixel, would mix
    // with the ground and be hard to see.
    image.fill(picture.ground());
    QPainter painter(&image);
    picture.paintStrokes(painter, Picture::onScreenPx);
    painter.end();

    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

QByteArray svg(const Picture& picture)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    // The generator does not escape it.
    generator.setTitle(picture.title().toHtmlEscaped());
    generator.setDescription(QString());
    // Gives the size in millimetres, the same as that of the page.
    generator.setResolution(pixelsPerInch);
    generator.setSize(picture.size());
    generator.setViewBox(QRect(QPoint(0, 0), picture.size()));
    QPainter painter(&generator);
    paintOnGround(painter, picture);
    painter.end();
    return buffer.data();
}

QByteArray pdf(const Picture& picture)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setCreator(QCoreApplication::applicationName());
    writer.setTitle(picture.title());
    writer.setResolution(pixelsPerInch);
    writer.setPageSize(QPageSize(QSizeF(picture.size()) * pointsPerInch / pixelsPerInch,
                                 QPageSize::Point, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    paintOnGround(painter, picture);
    painter.end();
    return buffer.data();
}

} // namespace

QStringList pictureSuffixes()
{
    return {QStringLiteral("png"), QStringLiteral("svg"), QStringLiteral("pdf")};
}

QByteArray pictureFile(const Picture& picture, const QString& suffix)
{
    if (suffix == QLatin1String("png"))
        return png(picture);
    return suffix == QLatin1String("svg") ? svg(picture) : pdf(picture);
}
