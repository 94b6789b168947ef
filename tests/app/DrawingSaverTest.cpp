// SPDX-License-Identifier: GPL-2.0-or-later

#include "DrawingSaver.h"
#include "EditHistory.h"

#include "dxfviewer/viewer/DXFViewer.h"
#include "tests/app/DialogRobot.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"
#include "tests/support/WindowParts.h"

#include <QAbstractButton>
#include <QAction>
#include <QFileDialog>
#include <QMenu>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

using dxftest::contentOf;

namespace
{

class DrawingSaverTest : public dxftest::LoggedTest
{
protected:
    DrawingSaverTest()
    {
        m_viewer->show();
        EXPECT_TRUE(
            dxftest::loadAndShow(*m_viewer, dxftest::drawingText({{{{0, 0}, {9, 9}}, false}})));
        m_saver.addActionsTo(m_menu);
    }

    ~DrawingSaverTest() override
    {
        // The history must outlive the viewer.
        m_viewer.reset();
    }

    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    /// The drawing is shown as if it were read from this file.
    void follow(const QString& fileName)
    {
        m_saver.follow(fileName, FileMark(fileName), DrawingRead());
    }
    /// Saves to a new file.
    void saveTo(const QString& fileName)
    {
        m_robot.expectFileName(fileName);
        EXPECT_TRUE(m_saver.saveAs());
    }
    /// Saves, and keeps the name that is proposed. Nothing is saved then.
    QString proposedName()
    {
        QString proposed;
        m_robot.expect<QFileDialog>([&proposed](QFileDialog& dialog) {
            proposed = dialog.selectedFiles().value(0);
            dialog.reject();
        });
        EXPECT_FALSE(m_saver.save());
        return proposed;
    }

    const QTemporaryDir m_folder;
    dxftest::DialogRobot m_robot;
    QWidget m_window;
    std::unique_ptr<DXFViewer> m_viewer = std::make_unique<DXFViewer>();
    EditHistory m_history{*m_viewer};
    DrawingSaver m_saver{*m_viewer, m_history, m_window};
    QMenu m_menu;
};

TEST_F(DrawingSaverTest, TheActionsNeedADrawing)
{
    ASSERT_EQ(m_menu.actions().size(), 2);
    for (const bool hasDrawing : {false, true}) {
        for (const QAction* action : m_menu.actions())
            EXPECT_EQ(action->isEnabled(), hasDrawing);
        follow(path("a.dxf"));
    }
}

TEST_F(DrawingSaverTest, AsksForANameTheFirstTimeOnly)
{
    follow(path("a.dxf"));
    EXPECT_EQ(proposedName(), path("a-edited.dxf"));

    const QSignalSpy saved(&m_saver, &DrawingSaver::saved);
    saveTo(path("kept.dxf"));
    EXPECT_EQ(m_saver.fileName(), path("kept.dxf"));
    EXPECT_TRUE(m_saver.save());

    EXPECT_EQ(saved.count(), 2);
    EXPECT_EQ(contentOf(path("kept.dxf")), m_viewer->getData());
}

TEST_F(DrawingSaverTest, ACopyThatIsReadAgainIsSavedWithoutAQuestion)
{
    follow(path("a.dxf"));
    saveTo(path("kept.dxf"));

    follow(path("kept.dxf"));

    EXPECT_TRUE(m_saver.save());
}

TEST_F(DrawingSaverTest, ACopyThatWasReadBeforeItWasSavedIsNot)
{
    follow(path("a.dxf"));
    dxftest::fileWith("older", path("kept.dxf"));
    const FileMark older(path("kept.dxf"));
    m_robot.expectFileName(path("kept.dxf"));
    m_robot.expect<QMessageBox>([](QMessageBox& box) {
        const auto buttons = box.buttons();
        for (QAbstractButton* button : buttons) {
            if (box.buttonRole(button) == QMessageBox::DestructiveRole)
                button->click();
        }
    });
    EXPECT_TRUE(m_saver.saveAs());

    m_saver.follow(path("kept.dxf"), older, DrawingRead());

    EXPECT_EQ(proposedName(), path("kept-edited.dxf"));
}

TEST_F(DrawingSaverTest, ACopyThatAnotherProgramHasChangedIsNot)
{
    follow(path("a.dxf"));
    saveTo(path("kept.dxf"));
    const FileMark saved(path("kept.dxf"));
    dxftest::fileWith("of another program", path("kept.dxf"));

    m_saver.follow(path("kept.dxf"), saved, DrawingRead());

    EXPECT_EQ(proposedName(), path("kept-edited.dxf"));
}

TEST_F(DrawingSaverTest, ThereIsNothingToDiscardWithoutEdits)
{
    EXPECT_TRUE(m_saver.mayDiscardEdits());
}

} // namespace
