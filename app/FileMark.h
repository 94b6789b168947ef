// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QDateTime>
#include <QString>

/// Remembers a file, to see later whether it is the same one and unchanged.
class FileMark
{
public:
    /// A mark of no file.
    FileMark() = default;
    explicit FileMark(const QString& fileName);

    bool isOf(const QString& fileName) const;
    /// Whether both were taken of the same state of the same file.
    bool operator==(const FileMark& other) const;
    /// Whether the file exists and has changed.
    bool isChanged() const;

private:
    QString m_fileName;
    QDateTime m_time;
    qint64 m_size = -1;
};
