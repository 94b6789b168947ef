// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"
#include "dxfviewer/edit/ISelectionTool.h"
#include "dxfviewer/edit/SegmentGeometry.h"

#include <QSharedPointer>
#include <QTimer>
#include <QVector>

class DXFDocument;
class QGraphicsEllipseItem;
class QGraphicsSceneMouseEvent;
class QPointF;

/**
 * The eraser: a round tool that selects segments while it is moved over them with the left button
 * held. It asks for their deletion every 50 ms and at the release.
 *
 * Its radius is 5 device-independent pixels. At the press nothing is selected yet; moving without
 * the left button ends a stroke.
 */
class DXFVIEWER_EXPORT RubberTool : public ISelectionTool
{
    Q_OBJECT

public:
    explicit RubberTool(QSharedPointer<DXFDocument> document);
    /// Does not destroy the marker.
    ~RubberTool() override;

    /// The ids of the segments that lie nearer to pos than the radius, polyline by polyline, in
    /// order. pos is in drawing units. Without a view the radius is infinite.
    QVector<int> itemsUnderMouse(QPointF pos) const;
    /// The horizontal scale of the first view of the marker's scene, in device-independent pixels
    /// per drawing unit; 0 if there is no view.
    double getViewScaleFactor() const;

    /// Starts asking for deletions every 50 ms. Does nothing if the tool does so already.
    void enable();
    void disable();

    void handleMouseEvent(QGraphicsSceneMouseEvent& event);

    /// Always true.
    bool handle(QEvent& event) override;
    /// A red disc that keeps its size at every zoom.
    QGraphicsItem* getMarker() override;

private Q_SLOTS:
    void emitDeleteRequest();

private:
    class Marker;

    void moveMarker(const QPointF& pos);

    QSharedPointer<DXFDocument> m_document;
    QVector<int> m_collectedIds;
    QTimer m_deleteTimer;
    QGraphicsEllipseItem* m_marker = nullptr;
};
