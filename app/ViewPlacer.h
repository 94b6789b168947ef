// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QPointer>

class QGraphicsView;
class QPointF;

/**
 * Scales, mirrors and scrolls a view, with fractions of pixels where the view's own functions know
 * only whole ones.
 */
class ViewPlacer
{
public:
    explicit ViewPlacer(QGraphicsView& view);

    /// Null once the view is destroyed. No other function may be called then.
    QGraphicsView* view() const;

    double scale() const;
    /// Scales the view, but not below the least scale that it can have. The origin should be near
    /// to what is shown.
    void setScale(double wanted, bool isMirrored, const QPointF& origin);

    /// The point in the scene at a place in the viewport.
    QPointF sceneAt(const QPointF& place) const;
    QPointF middle() const;
    /// Scrolls the point in the scene to the place in the viewport.
    void bring(const QPointF& scenePoint, const QPointF& place);

    /// True while this class scrolls, not the user.
    bool isMoving() const { return m_isMoving; }

private:
    // The window destroys the view with its form.
    QPointer<QGraphicsView> m_view;
    bool m_isMoving = false;
};
