// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QtGlobal>

/// The bytes of memory that this machine has, or a modest amount if it does not say.
qint64 memoryOfMachine();
