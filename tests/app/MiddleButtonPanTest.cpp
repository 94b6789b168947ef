// SPDX-License-Identifier: GPL-2.0-or-later

#include "MiddleButtonPan.h"

#include "tests/support/LoggedTest.h"

#include <QApplication>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>

namespace
{

constexpr QPoint start(50, 60);
constexpr QPoint end(30, 75);

class MiddleButtonPanTest : public dxftest::LoggedTest
{
protected:
    MiddleButtonPanTest()
    {
        m_view.resize(200, 200);
        // Otherwise no move without a button gets there.
        m_view.viewport()->setMouseTracking(true);
        m_view.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_view));
        scrollTo(500, 600);
    }

    void scrollTo(int x, int y)
    {
        m_view.horizontalScrollBar()->setValue(x);
        m_view.verticalScrollBar()->setValue(y);
    }
    QPoint scrolled() const
    {
        return {m_view.horizontalScrollBar()->value(), m_view.verticalScrollBar()->value()};
    }
    void moveTo(const QPoint& place, Qt::MouseButtons held)
    {
        send(QEvent::MouseMove, place, Qt::NoButton, held);
    }
    void send(QEvent::Type type, const QPoint& place, Qt::MouseButton button, Qt::MouseButtons held)
    {
        QMouseEvent event(type, place, m_view.viewport()->mapToGlobal(place), button, held,
                          Qt::NoModifier);
        QApplication::sendEvent(m_view.viewport(), &event);
    }

    QGraphicsScene m_scene{0, 0, 2000, 2000};
    QGraphicsView m_view{&m_scene};
    MiddleButtonPan m_pan{m_view};
};

TEST_F(MiddleButtonPanTest, WhatIsShownFollowsThePointer)
{
    QTest::mousePress(m_view.viewport(), Qt::MiddleButton, {}, start);
    moveTo(end, Qt::MiddleButton);
    EXPECT_EQ(scrolled(), QPoint(500, 600) + start - end);

    QTest::mouseRelease(m_view.viewport(), Qt::MiddleButton, {}, end);
    moveTo(start, Qt::NoButton);
    EXPECT_EQ(scrolled(), QPoint(500, 600) + start - end);
}

TEST_F(MiddleButtonPanTest, StopsAtTheEndOfTheScene)
{
    scrollTo(5, 5);

    QTest::mousePress(m_view.viewport(), Qt::MiddleButton, {}, start);
    moveTo(start + QPoint(50, 50), Qt::MiddleButton);

    EXPECT_EQ(scrolled(), QPoint(0, 0));
}

TEST_F(MiddleButtonPanTest, OtherButtonsAreLeftToTheView)
{
    // The view does not take them either, which QTest would warn of.
    send(QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
    moveTo(end, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, end, Qt::LeftButton, Qt::NoButton);

    EXPECT_EQ(scrolled(), QPoint(500, 600));
}

TEST_F(MiddleButtonPanTest, ALostReleaseEndsIt)
{
    QTest::mousePress(m_view.viewport(), Qt::MiddleButton, {}, start);
    moveTo(start, Qt::NoButton);
    moveTo(end, Qt::MiddleButton);

    EXPECT_EQ(scrolled(), QPoint(500, 600));
}

} // namespace
