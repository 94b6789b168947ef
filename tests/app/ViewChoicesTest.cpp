// SPDX-License-Identifier: GPL-2.0-or-later

#include "ViewChoices.h"
#include "DrawingFiles.h"
#include "EditHistory.h"
#include "ViewerParts.h"

#include "dxfviewer/edit/DXFEditor.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/viewer/DXFViewer.h"
#include "tests/app/DialogRobot.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/Patience.h"

#include <QAction>
#include <QFile>
#include <QMenu>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUndoStack>

#include <memory>

namespace
{

/// A polyline, a line and a text.
const QByteArray drawingOfThree = "0\nSECTION\n2\nENTITIES\n"
                                  "0\nLWPOLYLINE\n8\n0\n90\n2\n10\n0\n20\n0\n10\n9\n20\n9\n"
                                  "0\nLINE\n8\n0\n10\n0\n20\n0\n11\n5\n21\n5\n"
                                  "0\nTEXT\n8\n0\n10\n0\n20\n0\n40\n3\n1\nA\n"
                                  "0\nENDSEC\n0\nEOF\n";

class ViewChoicesTest : public dxftest::LoggedTest
{
protected:
    ViewChoicesTest()
    {
        m_choices.addActionsTo(m_menu);
        m_viewer->show();
    }

    ~ViewChoicesTest() override
    {
        // The history must outlive the viewer.
        m_viewer.reset();
    }

    QAction& texts() const { return *m_menu.actions().at(0); }
    QAction& onlyPolylines() const { return *m_menu.actions().at(1); }

    void openDrawing()
    {
        m_files.open(
            dxftest::fileWith(drawingOfThree, m_folder.filePath(QStringLiteral("mixed.dxf"))));
        EXPECT_TRUE(nextDrawing());
    }
    bool nextDrawing()
    {
        const int before = m_seen;
        const bool isThere = dxftest::eventually([&] { return m_shown.count() > before; });
        m_seen = static_cast<int>(m_shown.count());
        return isThere;
    }
    int entities() const { return static_cast<int>(shownDocument(*m_viewer)->entities().size()); }

    /// Makes an unsaved edit.
    void edit()
    {
        editAction(*m_viewer).setChecked(true);
        currentEditor(*m_viewer)->stack()->push(new QUndoCommand);
        EXPECT_TRUE(m_history.hasUnsavedEdits());
    }

    const QTemporaryDir m_folder;
    dxftest::DialogRobot m_robot;
    QWidget m_window;
    std::unique_ptr<DXFViewer> m_viewer = std::make_unique<DXFViewer>();
    EditHistory m_history{*m_viewer};
    DrawingFiles m_files{*m_viewer, m_history, m_window};
    QSignalSpy m_shown{&m_files, &DrawingFiles::drawingShown};
    int m_seen = 0;
    ViewChoices m_choices{m_files};
    QMenu m_menu;
};

TEST_F(ViewChoicesTest, TheMenuSaysHowDrawingsAreRead)
{
    ASSERT_EQ(m_menu.actions().size(), 2);
    EXPECT_EQ(texts().text(), QStringLiteral("&Texts"));
    EXPECT_EQ(onlyPolylines().text(), QStringLiteral("Only &Polylines"));
    EXPECT_TRUE(texts().isChecked());
    EXPECT_FALSE(onlyPolylines().isChecked());
    EXPECT_EQ(m_choices.choices(), ReadingChoices());
}

TEST_F(ViewChoicesTest, EachActionIsAnIndependentChoice)
{
    texts().trigger();
    EXPECT_FALSE(m_files.choices().showsTexts);
    EXPECT_FALSE(m_files.choices().onlyPolylines);

    onlyPolylines().trigger();
    EXPECT_FALSE(m_choices.choices().showsTexts);
    EXPECT_TRUE(m_choices.choices().onlyPolylines);
}

TEST_F(ViewChoicesTest, TheActionsFollowWhatIsSet)
{
    ReadingChoices choices;
    choices.showsTexts = false;
    choices.onlyPolylines = true;

    m_choices.setChoices(choices);

    EXPECT_EQ(m_files.choices(), choices);
    EXPECT_FALSE(texts().isChecked());
    EXPECT_TRUE(onlyPolylines().isChecked());
}

TEST_F(ViewChoicesTest, EachChangeReadsTheDrawingAgain)
{
    openDrawing();
    const int all = entities();
    ASSERT_GT(all, 2);

    texts().trigger();
    ASSERT_TRUE(nextDrawing());
    EXPECT_EQ(entities(), 2);

    onlyPolylines().trigger();
    ASSERT_TRUE(nextDrawing());
    EXPECT_EQ(entities(), 1);

    m_choices.setChoices(ReadingChoices());
    ASSERT_TRUE(nextDrawing());
    EXPECT_EQ(entities(), all);
}

TEST_F(ViewChoicesTest, SameChoicesDoNotReadAgain)
{
    openDrawing();

    m_choices.setChoices(m_choices.choices());

    EXPECT_FALSE(m_files.reader().isReading());
}

TEST_F(ViewChoicesTest, NothingChangesIfTheUserKeepsTheEdits)
{
    openDrawing();
    edit();
    m_robot.expectButton(QMessageBox::Cancel);

    texts().trigger();

    EXPECT_TRUE(texts().isChecked());
    EXPECT_EQ(m_choices.choices(), ReadingChoices());
    EXPECT_FALSE(m_files.reader().isReading());
}

TEST_F(ViewChoicesTest, TheChoiceAppliesIfTheUserDiscardsTheEdits)
{
    openDrawing();
    edit();
    m_robot.expectButton(QMessageBox::Discard);

    texts().trigger();

    EXPECT_TRUE(nextDrawing());
    EXPECT_FALSE(texts().isChecked());
    EXPECT_FALSE(m_choices.choices().showsTexts);
}

/// Takes the file away, and changes a choice in vain.
TEST_F(ViewChoicesTest, AChoiceThatCannotBeReadIsTakenBack)
{
    openDrawing();
    const int all = entities();
    ASSERT_TRUE(QFile::remove(m_files.fileName()));
    std::string error;
    m_robot.expectError(error);

    onlyPolylines().trigger();
    EXPECT_TRUE(dxftest::eventually([&error] { return !error.empty(); }));

    EXPECT_THAT(error, testing::HasSubstr("There is no such file."));
    EXPECT_FALSE(onlyPolylines().isChecked());
    EXPECT_EQ(m_choices.choices(), ReadingChoices());
    EXPECT_EQ(entities(), all);
}

TEST_F(ViewChoicesTest, AChoiceWhoseReadingIsCancelledIsTakenBack)
{
    openDrawing();

    texts().trigger();
    EXPECT_FALSE(texts().isChecked());
    m_files.reader().cancel();

    EXPECT_TRUE(texts().isChecked());
    EXPECT_EQ(m_choices.choices(), ReadingChoices());
    EXPECT_FALSE(m_files.reader().isReading());
}

TEST_F(ViewChoicesTest, AChoiceIsTakenBackIfNewEditsAreKept)
{
    openDrawing();
    texts().trigger();
    edit();
    m_robot.expectButton(QMessageBox::Cancel);

    EXPECT_TRUE(dxftest::eventually([this] { return texts().isChecked(); }));

    EXPECT_EQ(m_choices.choices(), ReadingChoices());
}

TEST_F(ViewChoicesTest, WithoutADrawingAChoiceStaysForTheNextOne)
{
    onlyPolylines().trigger();
    std::string error;
    m_robot.expectError(error);

    m_files.open(m_folder.filePath(QStringLiteral("missing.dxf")));
    EXPECT_TRUE(dxftest::eventually([&error] { return !error.empty(); }));

    EXPECT_TRUE(onlyPolylines().isChecked());
    openDrawing();
    EXPECT_EQ(entities(), 1);
}

} // namespace
