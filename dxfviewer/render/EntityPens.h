// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QColor>
#include <QPen>

#include <array>
#include <cstddef>

namespace dxfviewer
{

/// The pens of one painting. Making a pen costs as much as drawing a short line, and so does
/// handing it to the painter. So pens are kept in a small cache, and the caller learns when the
/// next segment needs another one.
class EntityPens
{
public:
    /// The pen for a segment; null if it is the one of the call before.
    const QPen* otherPen(int width, const QColor& color)
    {
        if (m_inUse && m_inUse->isFor(width, color))
            return nullptr;
        Kept& kept = m_kept[entryOf(width, color)];
        if (!kept.isFor(width, color))
            kept = {width, color, newPen(width, color)};
        m_inUse = &kept;
        return &kept.pen;
    }

private:
    static constexpr std::size_t entryCount = 64;

    struct Kept {
        int width = 0;
        QColor color;
        QPen pen = Qt::NoPen;

        bool isFor(int wantedWidth, const QColor& wantedColor) const
        {
            return width == wantedWidth && color == wantedColor && pen.style() != Qt::NoPen;
        }
    };

    static QPen newPen(int width, const QColor& color)
    {
        QPen pen;
        pen.setWidth(width);
        pen.setColor(color);
        pen.setCosmetic(true);
        return pen;
    }

    static std::size_t entryOf(int width, const QColor& color)
    {
        constexpr unsigned scatter = 2654435769U;
        constexpr unsigned shift = 26;
        return ((color.rgba() + static_cast<unsigned>(width)) * scatter) >> shift;
    }

    std::array<Kept, entryCount> m_kept;
    const Kept* m_inUse = nullptr;
};

} // namespace dxfviewer
