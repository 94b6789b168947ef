// SPDX-License-Identifier: GPL-2.0-or-later

#include "ViewPlacer.h"

#include "tests/support/LoggedTest.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QTest>

#include <memory>

namespace
{

class ViewPlacerTest : public dxftest::LoggedTest
{
protected:
    ViewPlacerTest()
    {
        m_view->resize(300, 200);
        m_view->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(m_view.get()));
    }

    QGraphicsScene m_scene{3e6, 5e6, 4000, 4000};
    std::unique_ptr<QGraphicsView> m_view = std::make_unique<QGraphicsView>(&m_scene);
    ViewPlacer m_placer{*m_view};
    const QPointF m_point{3e6 + 2000, 5e6 + 1000};
};

TEST_F(ViewPlacerTest, BringsAPointToAPlace)
{
    for (const bool isMirrored : {true, false}) {
        m_placer.setScale(2.5, isMirrored, m_point);
        m_placer.bring(m_point, m_placer.middle());

        EXPECT_DOUBLE_EQ(m_placer.scale(), 2.5);
        EXPECT_LT((m_placer.sceneAt(m_placer.middle()) - m_point).manhattanLength(), 1.0);
        const double upwards =
            m_placer.sceneAt(m_placer.middle() - QPointF(0, 50)).y() - m_point.y();
        EXPECT_NEAR(upwards, isMirrored ? 20.0 : -20.0, 1.0);
    }
}

TEST_F(ViewPlacerTest, PlacesHaveFractionsOfPixels)
{
    m_placer.setScale(0.5, true, m_point);

    const QPointF there = m_placer.sceneAt({10.25, 20.5}) - m_placer.sceneAt({10, 20});

    EXPECT_NEAR(there.x(), 0.5, 1e-6);
    EXPECT_NEAR(there.y(), -1.0, 1e-6);
}

TEST_F(ViewPlacerTest, TheScaleAlwaysHasAnInverse)
{
    m_placer.setScale(1e-30, true, m_point);

    bool hasInverse = false;
    const QTransform inverse = m_view->transform().inverted(&hasInverse);
    EXPECT_TRUE(hasInverse);
    EXPECT_GT(inverse.m11(), 0.0);
}

TEST_F(ViewPlacerTest, KnowsThatTheViewIsGone)
{
    m_view.reset();

    EXPECT_EQ(m_placer.view(), nullptr);
}

} // namespace
