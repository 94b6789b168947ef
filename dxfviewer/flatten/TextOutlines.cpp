// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/TextOutlines.h"

#include "dxfviewer/flatten/Chains.h"
#include "dxfviewer/flatten/Fineness.h"
#include "dxfviewer/flatten/Placement.h"
#include "dxfviewer/io/WorkMeter.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainterPath>
#include <QPolygonF>
#include <QString>

#include <algorithm>

namespace
{

// Large enough that Qt's flattening of curves cannot be seen.
constexpr int pixelSize = 64;

// For a font that does not tell the height of its capitals.
constexpr double usualCapitals = 0.7 * pixelSize;

// The time to lay out a text grows faster than its length.
constexpr int longestPiece = 256;

// An outline has some dozen points.
constexpr std::size_t workOfLetter = 32;

QFont fontOf(const QString& family)
{
    QFont font;
    if (!family.isEmpty())
        font.setFamily(family);
    font.setPixelSize(pixelSize);
    // What is scaled afterwards must not be fitted to pixels.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

double capitalsOf(const QFontMetricsF& metrics)
{
    const double height = metrics.capHeight();
    return height > 0.0 ? height : usualCapitals;
}

} // namespace

namespace dxfviewer
{

TextOutlines::TextOutlines(const QString& family)
    : m_font(fontOf(family))
    , m_scale(1.0 / capitalsOf(QFontMetricsF(m_font)))
    , m_depth(QFontMetricsF(m_font).descent() * m_scale)
{
}

bool TextOutlines::areAvailable()
{
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
}

double TextOutlines::widthOf(const QString& text) const
{
    const QFontMetricsF metrics(m_font);
    double width = 0.0;
    for (int i = 0; i < text.size(); i += longestPiece)
        width += metrics.horizontalAdvance(text.mid(i, longestPiece)) * m_scale;
    return width;
}

void TextOutlines::append(Chains& chains, const QString& text, const Placement& placement,
                          const Fineness& fineness) const
{
    double x = 0.0;
    for (int i = 0; i < text.size() && chains.points().size() < fineness.mostPoints;
         i += longestPiece) {
        const QString piece = text.mid(i, longestPiece);
        fineness.meter.add(workOfLetter * static_cast<std::size_t>(piece.size()));
        QPainterPath path;
        path.addText(QPointF(), m_font, piece);
        const auto outlines = path.toSubpathPolygons();
        for (const QPolygonF& outline : outlines) {
            for (const QPointF& point : outline) {
                // In Qt the y axis points down.
                chains.open().push_back(
                    placement.map({x + point.x() * m_scale, -point.y() * m_scale, 0.0}));
            }
            chains.close();
        }
        x += widthOf(piece);
    }
}

} // namespace dxfviewer
