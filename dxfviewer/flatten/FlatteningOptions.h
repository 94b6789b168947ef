// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

#include <QString>
#include <QtGlobal>

/// What a FlatteningReader shows, and how finely.
struct DXFVIEWER_EXPORT FlatteningOptions {
    /// The longest step along an arc, in degrees: 5.625 makes 64 steps of a full circle. A value
    /// outside 0.01 to 45 counts as the nearer of these, NaN as 5.625.
    double maximalStepDegrees = 5.625;
    /// Whether texts become the outlines of their letters. That needs a QGuiApplication.
    bool showsTexts = false;
    /// Whether what lies in paper space is shown beside what lies in model space.
    bool showsPaperSpace = false;
    /// The font of texts; an empty name is the application's font.
    QString fontFamily;
    /// How many vertices and inserted blocks a drawing may make. A drawing that makes more is not
    /// read.
    qint64 maximalVertices = 20'000'000;
};
