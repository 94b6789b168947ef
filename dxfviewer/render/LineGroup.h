// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QLineF>
#include <QPainter>

#include <array>

namespace dxfviewer
{

/// Collects lines that a painter is to draw with the pen that it has now. Handing lines over one by
/// one costs about as much as drawing short ones.
class LineGroup
{
public:
    explicit LineGroup(QPainter& painter)
        : m_painter(painter)
    {
    }

    void add(const QLineF& line)
    {
        m_lines[m_count++] = line;
        if (m_count == m_lines.size())
            draw();
    }

    /// To be called before the pen changes, and at the end.
    void draw()
    {
        const int count = static_cast<int>(m_count);
        m_count = 0;
        if (count > 0)
            m_painter.drawLines(m_lines.data(), count);
    }

private:
    static constexpr std::size_t mostLines = 256;

    QPainter& m_painter;
    std::array<QLineF, mostLines> m_lines;
    std::size_t m_count = 0;
};

} // namespace dxfviewer
