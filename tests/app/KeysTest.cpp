// SPDX-License-Identifier: GPL-2.0-or-later

#include "Keys.h"

#include <gtest/gtest.h>

namespace
{

const QKeySequence f5(QStringLiteral("F5"));

TEST(KeysTest, TheKeyThatIsTheSameEverywhereComesFirst)
{
    EXPECT_EQ(keysOf({QStringLiteral("Ctrl+1"), QStringLiteral("F5")}, {}),
              (QList<QKeySequence>{QKeySequence(QStringLiteral("Ctrl+1")), f5}));
}

TEST(KeysTest, ThePlatformsKeysFollowEachOnce)
{
    const auto standard = QKeySequence::keyBindings(QKeySequence::Refresh);

    const auto keys = keysOf({QStringLiteral("F5")}, {QKeySequence::Refresh, QKeySequence::Close});

    EXPECT_EQ(keys.constFirst(), f5);
    EXPECT_EQ(keys.count(f5), 1);
    for (const QKeySequence& key : standard + QKeySequence::keyBindings(QKeySequence::Close))
        EXPECT_EQ(keys.count(key), 1) << key.toString().toStdString();
}

} // namespace
