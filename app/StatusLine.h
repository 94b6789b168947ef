// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

class DXFViewer;
class QGraphicsView;
class QLabel;
class QPoint;
class QStatusBar;

/**
 * What the status bar says all the time: the pointer's place, the number of polylines and segments,
 * the zoom, and on the left what is not shown or, in edit mode, how to erase.
 */
class StatusLine : public QObject
{
    Q_OBJECT

public:
    StatusLine(DXFViewer& viewer, QStatusBar& bar, QObject* parent = nullptr);
    ~StatusLine() override;

    /// The sentence about what the drawing holds and the window does not show; may be empty.
    void setNotShown(const QString& sentence);
    /// 1 is the whole drawing. Nothing is said without a drawing.
    void setZoom(double zoom);

public Q_SLOTS:
    /// The drawing has changed. Counting takes time, so it is done once after many changes.
    void countLater();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void count();
    void onEditToggled(bool isOn);

private:
    QLabel* addField(QStatusBar& bar);
    bool showsDrawing() const;
    void showPlace(const QPoint& place);
    void showHint();

    DXFViewer& m_viewer;
    QPointer<QGraphicsView> m_view;
    QLabel* m_hint;
    QLabel* m_place;
    QLabel* m_count;
    QLabel* m_zoom;
    QString m_notShown;
    QTimer m_countTimer;
};
