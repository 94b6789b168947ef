// SPDX-License-Identifier: GPL-2.0-or-later

#include "FileMark.h"

#include <QFileInfo>

FileMark::FileMark(const QString& fileName)
    : m_fileName(QFileInfo(fileName).absoluteFilePath())
    , m_time(QFileInfo(fileName).lastModified())
    , m_size(QFileInfo(fileName).size())
{
}

bool FileMark::isOf(const QString& fileName) const
{
    return !m_fileName.isEmpty() && m_fileName == QFileInfo(fileName).absoluteFilePath();
}

bool FileMark::operator==(const FileMark& other) const
{
    return m_fileName == other.m_fileName && m_time == other.m_time && m_size == other.m_size;
}

bool FileMark::isChanged() const
{
    const QFileInfo info(m_fileName);
    return info.exists() && (info.lastModified() != m_time || info.size() != m_size);
}
