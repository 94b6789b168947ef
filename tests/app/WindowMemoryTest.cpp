// SPDX-License-Identifier: GPL-2.0-or-later

#include "WindowMemory.h"
#include "Appearance.h"
#include "DrawingFiles.h"
#include "EditHistory.h"
#include "Navigation.h"
#include "RecentFiles.h"
#include "Settings.h"
#include "ViewChoices.h"
#include "ViewerParts.h"

#include "dxfviewer/viewer/DXFViewer.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"

#include <QDir>
#include <QFileInfo>
#include <QGraphicsView>
#include <QMainWindow>
#include <QScreen>

#include <memory>

using testing::HasSubstr;

namespace
{

/// The parts of the program's window that are remembered.
struct Remembered {
    ~Remembered()
    {
        // The history must outlive the viewer.
        viewer.reset();
    }

    QMainWindow window;
    std::unique_ptr<DXFViewer> viewer = std::make_unique<DXFViewer>();
    EditHistory history{*viewer};
    DrawingFiles files{*viewer, history, window};
    Navigation navigation{drawingView(*viewer)};
    Appearance appearance{*viewer};
    ViewChoices choices{files};
    WindowMemory memory{window, navigation, appearance, choices};
};

ReadingChoices otherChoices()
{
    ReadingChoices choices;
    choices.showsTexts = !choices.showsTexts;
    choices.onlyPolylines = !choices.onlyPolylines;
    return choices;
}

/// Changes everything that is remembered from its default.
void change(Remembered& it)
{
    it.window.setGeometry(60, 50, 433, 311);
    it.navigation.setAsStored(true);
    it.appearance.setGround(Ground::White);
    it.choices.setChoices(otherChoices());
}

void expectFirstTime(const Remembered& it)
{
    const QSize room = it.window.screen()->availableSize();
    EXPECT_LT(it.window.width(), room.width());
    EXPECT_LT(it.window.height(), room.height());
    EXPECT_GT(it.window.width(), room.width() / 2);
    EXPECT_GT(it.window.height(), room.height() / 2);
    EXPECT_FALSE(it.navigation.isAsStored());
    EXPECT_EQ(it.appearance.ground(), Ground::Dark);
    EXPECT_EQ(it.choices.choices(), ReadingChoices());
}

class WindowMemoryTest : public dxftest::LoggedTest
{
protected:
    WindowMemoryTest() { Settings().clear(); }
    ~WindowMemoryTest() override { Settings().clear(); }

    Remembered m_it;
};

TEST_F(WindowMemoryTest, TheDefaultSizeFitsTheScreen)
{
    m_it.memory.restore();

    expectFirstTime(m_it);
}

TEST_F(WindowMemoryTest, WithoutSettingsTheDefaultsAreRestored)
{
    change(m_it);

    m_it.memory.restore();

    expectFirstTime(m_it);
}

TEST_F(WindowMemoryTest, TheNextWindowIsLikeTheLastOne)
{
    change(m_it);
    m_it.memory.remember();

    Remembered next;
    next.memory.restore();

    EXPECT_EQ(next.window.geometry(), QRect(60, 50, 433, 311));
    EXPECT_TRUE(next.navigation.isAsStored());
    EXPECT_EQ(next.appearance.ground(), Ground::White);
    EXPECT_EQ(next.choices.choices(), otherChoices());
}

TEST_F(WindowMemoryTest, TheLatestStateIsRemembered)
{
    change(m_it);
    m_it.memory.remember();
    m_it.appearance.setGround(Ground::Light);
    m_it.choices.setChoices(ReadingChoices());
    m_it.memory.remember();

    Remembered next;
    next.memory.restore();

    EXPECT_EQ(next.appearance.ground(), Ground::Light);
    EXPECT_EQ(next.choices.choices(), ReadingChoices());
}

TEST_F(WindowMemoryTest, NonsenseInTheFileGivesTheDefaults)
{
    const QString fileName = Settings().fileName();
    ASSERT_TRUE(QDir().mkpath(QFileInfo(fileName).path()));
    for (const QByteArray& nonsense :
         {QByteArray(4096, '\xFF'), QByteArray("\0\0[[[=;\n%%%", 10),
          QByteArray("[view]\nbackground=@Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)\n"),
          QByteArray(R"({"window/geometry":"xx","view/background":"purple",)"
                     R"("view/asStored":"purple","view/texts":0,"view/onlyPolylines":"purple"})"),
          QByteArray(R"({"window/geometry":[],"view/background":{"a":1},)"
                     R"("view/asStored":null,"view/texts":[1],"view/onlyPolylines":["true"]})")}) {
        dxftest::fileWith(nonsense, fileName);

        Remembered next;
        next.memory.restore();

        expectFirstTime(next);
    }
}

TEST_F(WindowMemoryTest, AFullDiskLeavesWhatWasRemembered)
{
    // The disk still has room for the file that locks the settings.
    constexpr int room = 1000;
    Settings().setValue(QStringLiteral("other"), QString(2 * room, QLatin1Char('a')));
    m_it.memory.remember();
    const QString fileName = Settings().fileName();
    const QByteArray old = dxftest::contentOf(fileName);
    change(m_it);
    {
        const dxftest::FileSizeLimit limit(room);
        m_it.memory.remember();
    }

    EXPECT_EQ(dxftest::contentOf(fileName), old);
}

TEST_F(WindowMemoryTest, RecentDrawingsOfAnotherProgramStay)
{
    m_it.memory.remember();
    const int status = dxftest::statusOfChild([] {
        Settings settings;
        RecentFiles(settings).add(QStringLiteral("/a.dxf"));
        return EXIT_SUCCESS;
    });
    ASSERT_EQ(status, EXIT_SUCCESS);

    change(m_it);
    m_it.memory.remember();

    EXPECT_THAT(dxftest::contentOf(Settings().fileName()).toStdString(), HasSubstr("/a.dxf"));
}

TEST_F(WindowMemoryTest, ValuesOfOtherTypesGiveTheDefaults)
{
    const QVariant others[] = {QVariant(), QVariantMap{{QStringLiteral("a"), 1}}, -1e300,
                               QByteArray(100000, '\x01'), QSize(-1, -1)};
    for (const QVariant& other : others) {
        {
            Settings settings;
            for (const char* key : {"window/geometry", "view/background", "view/asStored",
                                    "view/texts", "view/onlyPolylines"})
                settings.setValue(QLatin1String(key), other);
        }
        Remembered next;
        next.memory.restore();

        expectFirstTime(next);
    }
}

} // namespace
