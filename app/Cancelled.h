// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

/// Thrown out of a reader's callback to end a read that nobody waits for any more.
struct Cancelled {
};
