// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QDateTime>
#include <QString>

/// By what is seen later that a file is another one, or was changed.
class FileMark
{
public:
    /// Of no file.
    FileMark() = default;
    explicit FileMark(const QString& fileName);

    bool isOf(const QString& fileName) const;
    /// Whether the file is there and is not what it was.
    bool isChanged() const;

private:
    QString m_fileName;
    QDateTime m_time;
    qint64 m_size = -1;
};
