// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

#include <QGraphicsView>

/**
 * A graphics view, with a scene of its own, that zooms with Ctrl and the wheel and pans while Ctrl
 * is held.
 *
 * The zoom is a level on a linear scale: 250 is scale 1, and every 50 levels double it. The level
 * is taken from the transform at the first step only. If the transform is set elsewhere later, the
 * next step jumps to the scale of the stored level.
 */
class DXFVIEWER_EXPORT View : public QGraphicsView
{
    Q_OBJECT

public:
    explicit View(QWidget* parent = nullptr);
    ~View() override;

public Q_SLOTS:
    /// One zoom step of ten levels: in if scaleIncrement is positive, out otherwise.
    void zoomCalc(int scaleIncrement);

protected:
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    double m_zoomLevel = 0.0;
};
