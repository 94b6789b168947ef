// SPDX-License-Identifier: GPL-2.0-or-later

#include "Settings.h"

#include "tests/support/ChildProcess.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/Files.h"
#include "tests/support/LoggedTest.h"

#include <QDir>
#include <QFileInfo>

#include <functional>

namespace
{

const QString key = QStringLiteral("some/key");
const QString otherKey = QStringLiteral("other/key");

// Enough for the file that locks the settings, which is written first.
constexpr int lockFileBytes = 1000;

/// Does something with the settings in another process.
void inAnotherProgram(const std::function<void(Settings&)>& action)
{
    EXPECT_EQ(dxftest::statusOfChild([&action] {
                  Settings settings;
                  action(settings);
                  settings.sync();
                  return settings.status() == QSettings::NoError ? EXIT_SUCCESS : EXIT_FAILURE;
              }),
              EXIT_SUCCESS);
}

class SettingsTest : public dxftest::LoggedTest
{
protected:
    SettingsTest()
    {
        Settings().clear();
        EXPECT_TRUE(QDir().mkpath(QFileInfo(m_fileName).path()));
    }
    ~SettingsTest() override
    {
        QDir(m_fileName).removeRecursively();
        QFile::remove(m_fileName);
    }

    static void store(const QVariant& value)
    {
        Settings settings;
        settings.setValue(key, value);
        settings.sync();
    }

    // Settings that could not be written are written when the next ones are destroyed.
    const QString m_fileName = Settings().fileName();
};

TEST_F(SettingsTest, AnotherProgramReadsWhatIsStored)
{
    for (const QVariant& value :
         {QVariant(true), QVariant(QStringLiteral("a \"text\"\nof \u00FC")), QVariant(QString()),
          QVariant(QStringList{QStringLiteral("a, b"), QStringLiteral("@c")})}) {
        inAnotherProgram([&value](Settings& settings) { settings.setValue(key, value); });

        EXPECT_EQ(Settings().value(key).toStringList(), value.toStringList());
        EXPECT_EQ(Settings().value(key).toBool(), value.toBool());
    }
}

TEST_F(SettingsTest, ProgramsKeepTheValuesOfEachOther)
{
    Settings settings;
    settings.setValue(key, 1);
    settings.sync();
    inAnotherProgram([](Settings& others) { others.setValue(otherKey, 2); });
    settings.setValue(key, 3);
    settings.sync();

    EXPECT_EQ(dxftest::contentOf(m_fileName).simplified(), R"({ "other/key": 2, "some/key": 3 })");
}

TEST_F(SettingsTest, NonsenseInTheFileCountsAsNothing)
{
    for (const QByteArray& nonsense :
         {QByteArray(4096, '\xFF'), QByteArray("\0\0[[[=;\n%%%", 10), QByteArray("{\"some/key\":"),
          QByteArray("[\"some/key\"]"), QByteArray(1000000, '['),
          R"({"some/key":)" + QByteArray("{\"a\":").repeated(100000),
          R"({"some/key":")" + QByteArray(2000000, 'a') + "\"}",
          QByteArray("[General]\nsome/key=@Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xff)\n")}) {
        dxftest::fileWith(nonsense, m_fileName);

        EXPECT_FALSE(Settings().value(key).isValid()) << nonsense.left(40).toStdString();

        store(7);
        EXPECT_EQ(dxftest::contentOf(m_fileName).simplified(), R"({ "some/key": 7 })");
        QFile::remove(m_fileName);
    }
}

TEST_F(SettingsTest, ValuesOfUnknownKindsStay)
{
    dxftest::fileWith(R"({"":null,"/":[[]],"a":{"b":-1e300}})", m_fileName);

    store(7);

    EXPECT_EQ(QString::fromUtf8(dxftest::contentOf(m_fileName))
                  .remove(QLatin1Char('\n'))
                  .remove(QLatin1Char(' ')),
              QStringLiteral(R"({"":null,"/":[[]],"a":{"b":-1e+300},"some/key":7})"));
}

TEST_F(SettingsTest, AFullDiskLeavesTheOldFile)
{
    // Small content is still in a buffer when all of it is written.
    for (const auto size : {5000, 100000}) {
        store(1);
        const QByteArray old = dxftest::contentOf(m_fileName);
        ASSERT_FALSE(old.isEmpty());
        Settings settings;
        {
            const dxftest::FileSizeLimit limit(lockFileBytes);
            settings.setValue(key, QString(size, QLatin1Char('a')));
            settings.sync();
        }
        EXPECT_EQ(settings.status(), QSettings::AccessError);
        EXPECT_EQ(dxftest::contentOf(m_fileName), old);

        settings.setValue(otherKey, 2);
        settings.sync();
        EXPECT_GT(dxftest::contentOf(m_fileName).size(), size);
    }
}

TEST_F(SettingsTest, AFolderInPlaceOfTheFileDoesNoHarm)
{
    ASSERT_TRUE(QDir().mkpath(m_fileName + QStringLiteral("/inner")));

    Settings settings;
    EXPECT_FALSE(settings.value(key).isValid());
    settings.setValue(key, 1);
    settings.sync();

    EXPECT_EQ(settings.status(), QSettings::AccessError);
    EXPECT_EQ(settings.value(key).toInt(), 1);
    EXPECT_TRUE(QFileInfo(m_fileName + QStringLiteral("/inner")).isDir());
}

} // namespace
