// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

class QByteArray;
class QString;

namespace dxftest
{

/// The content of a file. If it cannot be read, the test fails.
QByteArray contentOf(const QString& fileName);

/// Writes a file and returns its name. If it cannot be written, the test fails.
QString fileWith(const QByteArray& content, const QString& fileName);

} // namespace dxftest
