// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "MiddleButtonPan.h"
#include "ViewPlacer.h"

#include <QObject>
#include <QRectF>

class QAction;
class QGraphicsView;
class QMenu;
class QPointF;
class QWheelEvent;

/**
 * Zooming, fitting, panning, and which way up the drawing stands.
 *
 * The y axis of drawings points up, that of the scene points down, so the view is mirrored. The
 * view's own zoom steps would undo that. So this class takes Ctrl and the wheel before the view
 * gets them.
 *
 * The whole drawing stays fitted while the window changes its size, until the user zooms or pans.
 */
class Navigation : public QObject
{
    Q_OBJECT

public:
    explicit Navigation(QGraphicsView& view, QObject* parent = nullptr);
    ~Navigation() override;

    /// Adds Zoom In, Zoom Out, Fit and As Stored.
    void addActionsTo(QMenu& menu);

    /// Another drawing is on screen. It is fitted, and can be scrolled as far as its size allows.
    void showDrawing(const QRectF& bounds);

    /// 1 when the whole drawing just fits into the window.
    double zoom() const;

    bool isAsStored() const { return m_isAsStored; }
    void setAsStored(bool isAsStored);

public Q_SLOTS:
    void zoomIn();
    void zoomOut();
    void fit();

Q_SIGNALS:
    void zoomChanged();
    void asStoredChanged(bool isAsStored);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void noteScroll();

private:
    bool takeWheel(const QWheelEvent& event);
    void zoomAt(const QPointF& place, double factor);
    void zoomAtCenter(double factor);
    void setScale(double wanted);
    double scaleThatFits() const;

    ViewPlacer m_placer;
    MiddleButtonPan m_pan;
    QAction* m_asStored;
    QRectF m_bounds;
    bool m_isAsStored = false;
    bool m_isFitted = true;
};
