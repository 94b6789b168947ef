// SPDX-License-Identifier: GPL-2.0-or-later

#include "HandOver.h"
#include "ViewerParts.h"

#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/viewer/DXFViewer.h"
#include "tests/support/Builders.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"

#include <QGraphicsView>
#include <QSignalSpy>

namespace
{

class HandOverTest : public dxftest::LoggedTest
{
protected:
    HandOverTest() { m_viewer.show(); }

    static QSharedPointer<DXFDocument> drawing()
    {
        return dxftest::makeDocument({dxftest::makePolyline({{0, 0}, {9, 9}})});
    }

    DXFViewer m_viewer;
    HandOver m_handOver{m_viewer};
    QSignalSpy m_shown{&m_handOver, &HandOver::shown};
};

TEST_F(HandOverTest, TellsWhenTheDocumentIsOnScreen)
{
    const auto document = drawing();
    QSharedPointer<DXFDocument> seen;
    bool isPainting = true;
    QObject::connect(&m_handOver, &HandOver::shown, [&] {
        seen = shownDocument(m_viewer);
        isPainting = drawingView(m_viewer).updatesEnabled();
    });

    m_handOver.show(document);
    EXPECT_EQ(m_shown.count(), 0);

    ASSERT_TRUE(m_shown.wait(dxftest::patienceMs));
    EXPECT_EQ(seen, document);
    EXPECT_FALSE(isPainting);
    EXPECT_TRUE(drawingView(m_viewer).updatesEnabled());
}

TEST_F(HandOverTest, TellsOnceOfTheLastOfTwoDocuments)
{
    const auto last = drawing();

    m_handOver.show(drawing());
    m_handOver.show(last);

    ASSERT_TRUE(m_shown.wait(dxftest::patienceMs));
    EXPECT_EQ(shownDocument(m_viewer), last);
    EXPECT_EQ(m_shown.count(), 1);
}

TEST_F(HandOverTest, FreesTheDocumentThatWasShown)
{
    auto first = drawing();
    const QWeakPointer<DXFDocument> former = first;
    m_handOver.show(first);
    first.reset();
    ASSERT_TRUE(m_shown.wait(dxftest::patienceMs));
    EXPECT_FALSE(former.isNull());

    m_handOver.show(drawing());

    EXPECT_TRUE(dxftest::eventually([&former] { return former.isNull(); }));
}

} // namespace
