// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <string>
#include <vector>

struct QMetaObject;

namespace dxftest
{

/// The signals and slots that a class has of its own, in order, for example
/// "private slot void postLoad()".
std::vector<std::string> ownMethodsOf(const QMetaObject& meta);

} // namespace dxftest
