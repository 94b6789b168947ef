// SPDX-License-Identifier: GPL-2.0-or-later

#include "StatusLine.h"
#include "ViewerParts.h"

#include "dxfviewer/edit/DXFEditor.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/render/DXFGraphicsItem.h"
#include "dxfviewer/viewer/DXFViewer.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"
#include "tests/support/SceneMouse.h"
#include "tests/support/WindowParts.h"

#include <QAction>
#include <QApplication>
#include <QGraphicsView>
#include <QLabel>
#include <QLocale>
#include <QStatusBar>
#include <QUndoStack>

using dxftest::SceneMouse;
using testing::StartsWith;

namespace
{

/// Two polylines, of two segments and of one.
QByteArray twoPolylines()
{
    return dxftest::drawingText(
        {{{{0, 0}, {100, 0}, {100, 50}}, false}, {{{0, 20}, {30, 20}}, false}});
}

class StatusLineTest : public dxftest::LoggedTest
{
protected:
    StatusLineTest()
    {
        m_viewer.resize(700, 500);
        m_viewer.show();
        m_bar.show();
    }

    void showDrawing()
    {
        EXPECT_TRUE(dxftest::loadAndShow(m_viewer, twoPolylines()));
        m_line.setNotShown(m_sentence);
    }

    /// What the bar says, from left to right: hint, place, count, zoom.
    QString field(int index) const
    {
        return m_bar.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)
            .value(index)
            ->text();
    }
    QString hint() const { return field(0); }
    QString place() const { return field(1); }
    QString count() const { return field(2); }
    QString zoom() const { return field(3); }

    static QString countOf(int polylines, int segments)
    {
        return QStringLiteral("Polylines: %1, segments: %2").arg(polylines).arg(segments);
    }

    /// The text for the pixel that holds a point.
    QString placeOf(const QPointF& point, int decimals) const
    {
        const QGraphicsView& view = drawingView(m_viewer);
        const QPointF pixel = view.mapToScene(view.mapFromScene(point));
        EXPECT_LT((pixel - point).manhattanLength(), 1.5);
        return QStringLiteral("x %1  y %2")
            .arg(pixel.x(), 0, 'f', decimals)
            .arg(pixel.y(), 0, 'f', decimals);
    }

    void eraseFirst() const
    {
        const auto document = shownDocument(m_viewer);
        document->deleteEntity(document->entities().constFirst());
    }

    const QString m_sentence = QStringLiteral("Not shown: 3 hatches.");
    DXFViewer m_viewer;
    QStatusBar m_bar;
    StatusLine m_line{m_viewer, m_bar};
};

TEST_F(StatusLineTest, SaysNothingWithoutADrawing)
{
    m_line.countLater();
    SceneMouse(drawingView(m_viewer)).move({0, 0});
    m_line.setNotShown(QString());
    m_line.setZoom(1.0);

    for (int index = 0; index < 4; ++index)
        EXPECT_EQ(field(index), QString());
}

TEST_F(StatusLineTest, SaysWhatIsShownAndWhatIsNot)
{
    showDrawing();

    EXPECT_EQ(hint(), m_sentence);
    EXPECT_EQ(count(), countOf(2, 3));
}

TEST_F(StatusLineTest, CountsAgainWhenTheDrawingHasChanged)
{
    showDrawing();
    eraseFirst();

    m_line.countLater();
    m_line.countLater();

    EXPECT_EQ(count(), countOf(2, 3));
    EXPECT_TRUE(dxftest::eventually([this] { return count() == countOf(1, 1); }));
}

TEST_F(StatusLineTest, CountsAgainAfterAnEdit)
{
    showDrawing();
    editAction(m_viewer).setChecked(true);
    eraseFirst();

    currentEditor(m_viewer)->stack()->push(new QUndoCommand);

    EXPECT_TRUE(dxftest::eventually([this] { return count() == countOf(1, 1); }));
}

TEST_F(StatusLineTest, TheZoomIsAPercentage)
{
    showDrawing();
    m_line.setZoom(1.0);
    EXPECT_EQ(zoom(), QStringLiteral("100 %"));

    m_line.setZoom(12.344);
    EXPECT_EQ(zoom(), QLocale().toString(1234) + QStringLiteral(" %"));

    m_line.setZoom(0.0525);
    EXPECT_EQ(zoom(), QStringLiteral("%1 %").arg(QLocale().toString(5.3, 'f', 1)));
}

TEST_F(StatusLineTest, SaysNothingOfZoomAndPlaceOfADrawingThatIsNotVisible)
{
    showDrawing();
    m_line.setZoom(1.0);
    shownItem(m_viewer)->setVisible(false);

    m_line.setZoom(2.0);
    SceneMouse(drawingView(m_viewer)).move({25, 10});

    EXPECT_EQ(zoom(), QString());
    EXPECT_EQ(place(), QString());
    EXPECT_EQ(count(), countOf(2, 3));
}

TEST_F(StatusLineTest, SaysWhereThePointerIsUntilItLeaves)
{
    showDrawing();
    QGraphicsView& view = drawingView(m_viewer);
    view.setTransform(QTransform());

    SceneMouse(view).move({25, 10});
    EXPECT_EQ(place(), placeOf({25, 10}, 0));

    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(view.viewport(), &leave);
    EXPECT_EQ(place(), QString());
}

TEST_F(StatusLineTest, ThePlaceHasAsManyDecimalsAsThePixelsNeed)
{
    showDrawing();
    QGraphicsView& view = drawingView(m_viewer);
    view.setTransform(QTransform::fromScale(100, 100));

    SceneMouse(view).move({25, 10});

    EXPECT_EQ(place(), placeOf({25, 10}, 2));
}

TEST_F(StatusLineTest, SaysHowToEraseInEditMode)
{
    showDrawing();

    editAction(m_viewer).setChecked(true);
    EXPECT_THAT(hint().toStdString(), StartsWith("Drag with the left mouse button to erase"));

    editAction(m_viewer).setChecked(false);
    EXPECT_EQ(hint(), m_sentence);
}

TEST_F(StatusLineTest, EditModeInAnotherWindowRemovesTheHint)
{
    showDrawing();
    editAction(m_viewer).setChecked(true);
    DXFViewer other;
    ASSERT_TRUE(dxftest::loadAndShow(other, twoPolylines()));

    editAction(other).setChecked(true);

    EXPECT_TRUE(dxftest::eventually([this] { return hint() == m_sentence; }));
}

TEST_F(StatusLineTest, ALongSentenceIsPlainAndDoesNotMakeTheWindowWider)
{
    const int width = m_bar.minimumSizeHint().width();
    const QString sentence = QStringLiteral("<b>M</b>").repeated(10000);

    m_line.setNotShown(sentence);

    EXPECT_EQ(hint(), sentence);
    EXPECT_EQ(m_bar.findChild<QLabel*>()->textFormat(), Qt::PlainText);
    EXPECT_EQ(m_bar.minimumSizeHint().width(), width);
}

} // namespace
