// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/edit/RubberTool.h"

#include "tests/edit/SceneEvents.h"
#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPointer>
#include <QSignalSpy>
#include <QTimer>

#include <memory>

namespace dxftest
{

/// Remembers the timer whose ticks it sees.
class TimerWatch : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Timer) {
            if (auto* ticking = qobject_cast<QTimer*>(watched))
                timer = ticking;
        }
        return false;
    }

    QPointer<QTimer> timer;
};

/// A tool whose marker is in the scene of a view, over three segments far from each other.
class RubberToolTest : public LoggedTest
{
protected:
    RubberToolTest()
        : document(makeDocument({
            makePolyline({{0, 0}, {100, 0}}),
            makePolyline({{0, 1000}, {100, 1000}}),
            makePolyline({{0, 2000}, {100, 2000}}),
        }))
        , view(&scene)
        , tool(std::make_unique<RubberTool>(document))
    {
        document->setup();
        scene.addItem(tool->getMarker());
        ids = segmentIdsOf(document);
    }

    bool press(Qt::MouseButtons held = Qt::LeftButton)
    {
        return sendMouse(*tool, QEvent::GraphicsSceneMousePress, {}, held);
    }
    bool move(const QPointF& pos, Qt::MouseButtons held = Qt::LeftButton)
    {
        return sendMouse(*tool, QEvent::GraphicsSceneMouseMove, pos, held);
    }
    bool release(Qt::MouseButtons stillHeld = Qt::NoButton)
    {
        return sendMouse(*tool, QEvent::GraphicsSceneMouseRelease, {}, stillHeld);
    }

    /// The tool's timer, stopped.
    QTimer* findTimer()
    {
        TimerWatch watch;
        QSignalSpy requests(tool.get(), SIGNAL(requestDelete()));
        qApp->installEventFilter(&watch);
        tool->enable();
        requests.wait(patienceMs);
        tool->disable();
        return watch.timer;
    }

    QVector<int> selection() const { return document->selectedIDs(); }

    const QPointF onFirst = QPointF(50, 1);
    const QPointF onSecond = QPointF(50, 1001);
    const QPointF onThird = QPointF(50, 2001);
    const QPointF onNothing = QPointF(50, 500);

    QSharedPointer<DXFDocument> document;
    QGraphicsScene scene;
    QGraphicsView view;
    std::unique_ptr<RubberTool> tool;
    QVector<int> ids;
};

} // namespace dxftest
