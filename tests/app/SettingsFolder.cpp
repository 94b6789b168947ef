// SPDX-License-Identifier: GPL-2.0-or-later

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QtGlobal>

#include <memory>

namespace
{

/// Gives the tests, and the programs that they start, a settings folder of their own. They must not
/// read or change the user's settings.
class SettingsFolder : public ::testing::Environment
{
public:
    void SetUp() override
    {
        m_folder = std::make_unique<QTemporaryDir>();
        ASSERT_TRUE(m_folder->isValid());
        qputenv("XDG_CONFIG_HOME", m_folder->path().toLocal8Bit());
    }
    void TearDown() override { m_folder.reset(); }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

const auto* const folder = ::testing::AddGlobalTestEnvironment(new SettingsFolder);

} // namespace
