// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

#include <QColor>
#include <QVector>

class DXFDocument;
class DXFEntity;

/**
 * The drawing's own colours, legible on a given ground. For hosts: the window itself paints in the
 * colours that DXFDocument::setup() resolves.
 *
 * A colour number stands for one of the format's 255 index colours; a true colour is used instead
 * of it, under by-layer as well. By-layer (256) is the colour of the entity's layer. By-block (0)
 * and everything that cannot be resolved is colour 7. Colours 7 and 255 are black on a light ground
 * and white on a dark one. Any other colour whose contrast against the ground is below 3 : 1
 * becomes lighter or darker, with the same hue, until it has that contrast.
 *
 * Only the resolved colours of entities are set. Attributes and saved bytes stay as they are, and
 * copies and cut-off pieces keep the colour.
 */
class DXFVIEWER_EXPORT DisplayColors
{
public:
    /// The drawing's colours on this ground.
    explicit DisplayColors(const QColor& ground);
    /// One colour for everything, as it is given.
    static DisplayColors allIn(const QColor& color);

    /// Sets the colour of every entity. Call it after DXFDocument::setup(), which sets them too.
    void apply(const DXFDocument& document) const;

    /// The colour of an entity of this document.
    QColor colorOf(const DXFEntity& entity, const DXFDocument& document) const;

    /// The colour of a colour number (1 to 255) on the ground.
    QColor indexColor(int number) const;
    /// The colour itself if it is legible on the ground, else with the nearest lightness that is.
    QColor legible(const QColor& color) const;

    /// The format's own colour of a number from 1 to 255; white for every other number.
    static QColor tableColor(int number);
    /// How well two colours can be told apart, from 1 to 21: the ratio of their luminances.
    static double contrast(const QColor& one, const QColor& other);

private:
    QColor resolved(int number, int color24) const;

    QColor m_ground;
    // By number, computed once: a large drawing asks very often.
    QVector<QColor> m_indexColors;
    // Invalid if the drawing's own colours are shown.
    QColor m_single;
};
