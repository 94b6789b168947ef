// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <functional>

namespace dxftest
{

/// Runs an action in a child process, which exits with the action's result. The status with which
/// it ends is returned, as waitpid() gives it.
int statusOfChild(const std::function<int()>& action);

} // namespace dxftest
