// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QKeySequence>
#include <QList>
#include <QStringList>

/// The keys of an action: those that it has everywhere, of which menus show the first, and then
/// the platform's own.
QList<QKeySequence> keysOf(const QStringList& everywhere,
                           const QList<QKeySequence::StandardKey>& standard);
