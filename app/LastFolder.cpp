// SPDX-License-Identifier: GPL-2.0-or-later

#include "LastFolder.h"

#include "Settings.h"

#include <QDir>
#include <QFileInfo>

namespace
{

constexpr const char* folderKey = "lastFolder";

} // namespace

LastFolder::LastFolder(Settings& settings)
    : m_settings(settings)
    , m_path(settings.value(QLatin1String(folderKey)).toString())
{
}

QString LastFolder::path() const
{
    const bool isThere = QDir::isAbsolutePath(m_path) && QFileInfo(m_path).isDir();
    return isThere ? m_path : QDir::currentPath();
}

void LastFolder::noteFile(const QString& fileName)
{
    m_path = QFileInfo(fileName).absolutePath();
    m_settings.setValue(QLatin1String(folderKey), m_path);
}
