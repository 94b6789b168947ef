// SPDX-License-Identifier: GPL-2.0-or-later

#include "Ground.h"

#include <QColor>
#include <QString>

#include <array>

namespace
{

struct Entry {
    Ground ground;
    QRgb color;
    const char* name;
};

constexpr std::array<Entry, 3> entries{{{Ground::Dark, qRgb(33, 37, 43), "dark"},
                                        {Ground::Light, qRgb(240, 238, 230), "light"},
                                        {Ground::White, qRgb(255, 255, 255), "white"}}};

const Entry& entryOf(Ground ground)
{
    return entries[static_cast<std::size_t>(ground)];
}

} // namespace

QColor colorOf(Ground ground)
{
    return QColor(entryOf(ground).color);
}

QString nameOf(Ground ground)
{
    return QLatin1String(entryOf(ground).name);
}

std::optional<Ground> groundNamed(const QString& name)
{
    for (const Entry& entry : entries) {
        if (name == QLatin1String(entry.name))
            return entry.ground;
    }
    return std::nullopt;
}
