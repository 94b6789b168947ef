// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QPolygonF>
#include <QRectF>
#include <QSharedPointer>
#include <QSize>
#include <QStringList>
#include <QVector>

#include <optional>

class DXFDocument;
class QByteArray;
class QPainter;

/**
 * A picture of a whole drawing, not only of the part in the window: in its own colours, with y
 * upwards.
 *
 * It is taken when it is constructed: later edits do not change it.
 */
class Picture
{
    Q_DECLARE_TR_FUNCTIONS(Picture)

public:
    /// The title is the name of the drawing, for people who look at the file's properties.
    Picture(const QSharedPointer<DXFDocument>& document, const QColor& ground,
            const QString& title = QString());

    /// The file name suffixes that write() accepts: png, svg, pdf.
    static QStringList suffixes();

    /// Writes a file in the format of its suffix. On failure false is returned, and the reason, a
    /// sentence for the user, is set.
    bool write(const QString& fileName, QString& reason) const;

    /// Whether the drawing is wider than it is high.
    bool isWide() const;
    /// Paints it into a rectangle, as large as it fits, without ground.
    void paintInto(QPainter& painter, const QRectF& rect) const;

private:
    struct Stroke {
        QPolygonF points;
        QColor color;
        int width;
    };

    void take(const DXFDocument& document);
    QSize size() const;
    void paint(QPainter& painter) const;
    void paintStrokes(QPainter& painter, int thinnestPx) const;
    QByteArray png() const;
    QByteArray svg() const;
    QByteArray pdf() const;

    QVector<Stroke> m_strokes;
    /// In drawing units, with a margin; nothing if that cannot be computed.
    std::optional<QRectF> m_bounds;
    QColor m_ground;
    QString m_title;
};
