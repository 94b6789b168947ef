// SPDX-License-Identifier: GPL-2.0-or-later

#include "DrawingDrop.h"

#include "tests/app/WindowActions.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"

#include <QMimeData>
#include <QSignalSpy>
#include <QUrl>
#include <QWidget>

using dxftest::dropOn;

namespace
{

class DrawingDropTest : public dxftest::LoggedTest
{
protected:
    DrawingDropTest() { m_window.show(); }

    QWidget m_window;
    DrawingDrop m_drop{m_window};
    QSignalSpy m_dropped{&m_drop, &DrawingDrop::dropped};
};

TEST_F(DrawingDropTest, TellsTheFirstDrawingAfterTheEvent)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/a.txt")),
                  QUrl::fromLocalFile(QStringLiteral("/b.DXF")),
                  QUrl::fromLocalFile(QStringLiteral("/c.dxf"))});

    EXPECT_TRUE(dropOn(m_window, data));
    EXPECT_EQ(m_dropped.count(), 0);

    ASSERT_TRUE(m_dropped.wait(dxftest::patienceMs));
    EXPECT_EQ(m_dropped.constFirst().constFirst().toString(), QStringLiteral("/b.DXF"));
    EXPECT_EQ(m_dropped.count(), 1);
}

TEST_F(DrawingDropTest, RefusesWhatIsNoLocalDrawing)
{
    QMimeData words;
    words.setText(QStringLiteral("a.dxf"));
    QMimeData remote;
    remote.setUrls({QUrl(QStringLiteral("https://localhost/a.dxf"))});

    EXPECT_FALSE(dropOn(m_window, words));
    EXPECT_FALSE(dropOn(m_window, remote));
    EXPECT_FALSE(dropOn(m_window, QStringLiteral("/a.txt")));
}

} // namespace
