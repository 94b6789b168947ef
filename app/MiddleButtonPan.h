// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>

class QGraphicsView;
class QMouseEvent;

/// Moves what a view shows while the middle button is held. All other buttons are left to the view.
class MiddleButtonPan : public QObject
{
    Q_OBJECT

public:
    explicit MiddleButtonPan(QGraphicsView& view, QObject* parent = nullptr);
    ~MiddleButtonPan() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool takeButton(const QMouseEvent& event);
    bool takeMove(const QMouseEvent& event);

    QPointer<QGraphicsView> m_view;
    bool m_isPanning = false;
    QPoint m_place;
};
