// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QFont>

class QString;

namespace dxfviewer
{

class Chains;
struct Fineness;
struct Placement;

/// The outlines of a font's letters. Capitals are 1 high, and the line stands on y = 0.
class TextOutlines
{
public:
    /// @param family  empty for the application's font
    explicit TextOutlines(const QString& family);

    /// Whether there can be letters: without a QGuiApplication there are no fonts.
    static bool areAvailable();

    double widthOf(const QString& text) const;
    /// How far letters reach below the line.
    double depth() const { return m_depth; }

    /// Appends the outlines of a line of text that begins at the origin of a placement.
    void append(Chains& chains, const QString& text, const Placement& placement,
                const Fineness& fineness) const;

private:
    QFont m_font;
    double m_scale;
    double m_depth;
};

} // namespace dxfviewer
