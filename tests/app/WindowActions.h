// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

class QAction;
class QMimeData;
class QString;
class QWidget;

/// @file What a user does with the program's window.

namespace dxftest
{

/// The action with this text. Throws std::invalid_argument if there is none.
QAction& actionOf(const QWidget& window, const char* text);

/// Drops something on the window. False if the window refuses it.
bool dropOn(QWidget& window, const QMimeData& data);
/// Drops a file on the window.
bool dropOn(QWidget& window, const QString& fileName);

} // namespace dxftest
