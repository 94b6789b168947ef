// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/render/DisplayColors.h"

#include "dxfviewer/model/DXFAttributes.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFEntity.h"
#include "dxfviewer/model/DXFLayer.h"
#include "dxfviewer/model/SpecialValues.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace
{

constexpr double leastContrast = 3.0;

constexpr int plainNumber = 7;
constexpr int lastNumber = 255;
constexpr int firstHueNumber = 10;
constexpr int firstGreyNumber = 250;
constexpr int numbersPerHue = 10;
constexpr int hueStep = 15;

constexpr std::array<QRgb, firstHueNumber> firstColors{
    qRgb(255, 255, 255), // not a number of the table
    qRgb(255, 0, 0),     qRgb(255, 255, 0),   qRgb(0, 255, 0),
    qRgb(0, 255, 255),   qRgb(0, 0, 255),     qRgb(255, 0, 255),
    qRgb(255, 255, 255), qRgb(128, 128, 128), qRgb(192, 192, 192)};
constexpr std::array<int, 6> greys{51, 91, 132, 173, 214, 255};

/// A hue has ten numbers: five brightnesses, each first full and then half saturated.
constexpr std::array<double, numbersPerHue / 2> brightnesses{1.0, 0.65, 0.5, 0.3, 0.15};

/// How much of red, green or blue a hue has at full brightness and saturation, from 0 to 1. The
/// peak is the hue, in degrees, that has nothing else.
double share(int hue, int peak)
{
    const int apart = std::abs((hue - peak + 540) % 360 - 180);
    return std::clamp((120 - apart) / 60.0, 0.0, 1.0);
}

QColor hueColor(int number)
{
    const int place = number - firstHueNumber;
    const int hue = place / numbersPerHue * hueStep;
    const double brightness =
        brightnesses[static_cast<std::size_t>(place % numbersPerHue / 2)] * 255.0;
    const double saturation = place % 2 == 0 ? 1.0 : 0.5;
    const auto channel = [&](int peak) {
        // The table cuts fractions off.
        return static_cast<int>(brightness * (1.0 - saturation * (1.0 - share(hue, peak))));
    };
    return QColor(channel(0), channel(120), channel(240));
}

/// How much light a channel of a screen gives, from 0 to 1.
double linear(int channel)
{
    static const auto values = [] {
        std::array<double, 256> all{};
        for (std::size_t i = 0; i < all.size(); ++i) {
            const double value = static_cast<double>(i) / 255.0;
            all[i] = value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        }
        return all;
    }();
    return values[static_cast<std::size_t>(channel)];
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.red()) + 0.7152 * linear(color.green())
           + 0.0722 * linear(color.blue());
}

QColor blackOrWhiteOn(const QColor& ground)
{
    const QColor white(Qt::white);
    const QColor black(Qt::black);
    return DisplayColors::contrast(white, ground) >= DisplayColors::contrast(black, ground) ? white
                                                                                            : black;
}

bool isLegible(const QColor& color, const QColor& ground)
{
    return DisplayColors::contrast(color, ground) >= leastContrast;
}

} // namespace

DisplayColors::DisplayColors(const QColor& ground)
    : m_ground(ground.isValid() ? ground.toRgb() : QColor(Qt::black))
    , m_indexColors(lastNumber + 1, blackOrWhiteOn(m_ground))
{
    for (int number = 1; number < lastNumber; ++number) {
        if (number != plainNumber)
            m_indexColors[number] = legible(tableColor(number));
    }
}

DisplayColors DisplayColors::allIn(const QColor& color)
{
    DisplayColors colors{QColor(Qt::black)};
    colors.m_single = color;
    return colors;
}

void DisplayColors::apply(const DXFDocument& document) const
{
    // Entities of a drawing share few colours.
    QHash<const DXFAttributes*, QColor> known;
    const auto entities = document.entities();
    for (const auto& entity : entities) {
        if (!entity)
            continue;
        QColor& color = known[entity->attributes().data()];
        if (!color.isValid())
            color = colorOf(*entity, document);
        entity->setColor(color);
    }
}

QColor DisplayColors::colorOf(const DXFEntity& entity, const DXFDocument& document) const
{
    const auto attributes = entity.attributes();
    if (m_single.isValid() || !attributes)
        return indexColor(plainNumber);
    if (attributes->color() != dxfviewer::byLayerColor
        || attributes->color24() != dxfviewer::noTrueColor)
        return resolved(attributes->color(), attributes->color24());

    const auto layer = document.getLayer(attributes->layerName());
    const auto ofLayer = layer ? layer->attributes() : nullptr;
    if (!ofLayer)
        return indexColor(plainNumber);
    // The number of a layer that is switched off is negative.
    return resolved(std::abs(std::max(ofLayer->color(), -lastNumber)), ofLayer->color24());
}

QColor DisplayColors::resolved(int number, int color24) const
{
    return color24 == dxfviewer::noTrueColor ? indexColor(number)
                                             : legible(QColor(static_cast<QRgb>(color24)));
}

QColor DisplayColors::indexColor(int number) const
{
    if (m_single.isValid())
        return m_single;
    return m_indexColors.at(number < 1 || number > lastNumber ? plainNumber : number);
}

QColor DisplayColors::legible(const QColor& color) const
{
    if (m_single.isValid())
        return m_single;
    QColor moved = color.toRgb();
    const int step = blackOrWhiteOn(m_ground) == QColor(Qt::white) ? 1 : -1;
    const QColor hsl = color.toHsl();
    for (int lightness = hsl.lightness(); !isLegible(moved, m_ground); lightness += step)
        moved = QColor::fromHsl(hsl.hslHue(), hsl.hslSaturation(), lightness).toRgb();
    return moved;
}

QColor DisplayColors::tableColor(int number)
{
    if (number < 1 || number > lastNumber)
        number = plainNumber;
    if (number < firstHueNumber)
        return QColor(firstColors[static_cast<std::size_t>(number)]);
    if (number < firstGreyNumber)
        return hueColor(number);
    const int grey = greys[static_cast<std::size_t>(number - firstGreyNumber)];
    return QColor(grey, grey, grey);
}

double DisplayColors::contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}
