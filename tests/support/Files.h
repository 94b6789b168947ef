// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

namespace dxftest
{

/// The content of a file. That it cannot be read is a failure of the test.
QByteArray contentOf(const QString& fileName);

/// Writes a file and returns its name. That it cannot be written is a failure of the test.
QString fileWith(const QByteArray& content, const QString& fileName);

} // namespace dxftest
