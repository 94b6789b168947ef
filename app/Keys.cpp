// SPDX-License-Identifier: GPL-2.0-or-later

#include "Keys.h"

QList<QKeySequence> keysOf(const QStringList& everywhere,
                           const QList<QKeySequence::StandardKey>& standard)
{
    QList<QKeySequence> keys;
    for (const QString& key : everywhere)
        keys += QKeySequence::fromString(key);
    for (const QKeySequence::StandardKey standardKey : standard) {
        const auto bindings = QKeySequence::keyBindings(standardKey);
        for (const QKeySequence& key : bindings) {
            if (!keys.contains(key))
                keys += key;
        }
    }
    return keys;
}
