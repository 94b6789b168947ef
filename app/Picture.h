// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QPolygonF>
#include <QRectF>
#include <QSharedPointer>
#include <QString>
#include <QVector>

#include <optional>

class DXFDocument;
class QPainter;
class QSize;

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

    /// Why there is nothing to paint, a sentence for the user; empty if there is something.
    QString fault() const;
    bool isTooLarge() const { return !m_strokes.isEmpty() && !m_bounds; }

    /// Writes a file in the format of its suffix. On failure false is returned, and the reason, a
    /// sentence for the user, is set.
    bool write(const QString& fileName, QString& reason) const;

    /// Whether the drawing is wider than it is high.
    bool isWide() const;
    /// Paints it into a rectangle, as large as it fits, without ground.
    void paintInto(QPainter& painter, const QRectF& rect) const;

    /// The width of lines that have none, in pixels of size(): a fifth of a millimetre on paper.
    /// On a screen a picture is often seen smaller than it is.
    static constexpr int onPaperPx = 1;
    static constexpr int onScreenPx = 2;
    /// Paints the lines as large as size(), without ground. Nothing may be at fault.
    void paintStrokes(QPainter& painter, int thinnestPx) const;
    QSize size() const;
    QColor ground() const { return m_ground; }
    QString title() const { return m_title; }

private:
    struct Stroke {
        QPolygonF points;
        QColor color;
        int width;
    };

    void take(const DXFDocument& document);

    QVector<Stroke> m_strokes;
    /// In drawing units, with a margin; nothing if that cannot be computed.
    std::optional<QRectF> m_bounds;
    QColor m_ground;
    QString m_title;
};
