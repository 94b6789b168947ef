// SPDX-License-Identifier: GPL-2.0-or-later

#include "RecentFiles.h"

#include "FileNames.h"
#include "Settings.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>

namespace
{

constexpr const char* key = "recentDrawings";

// No system has longer file names, but the settings may.
constexpr int longestName = 4096;

bool isUsable(const QString& fileName)
{
    return fileName.size() <= longestName && QDir::isAbsolutePath(fileName)
           && !fileName.contains(QChar(0));
}

/// A name as the text of an action: an ampersand alone would underline the next character.
QString menuText(const QString& fileName)
{
    return readableName(fileName).replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

RecentFiles::RecentFiles(Settings& settings, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
{
}

QStringList RecentFiles::names() const
{
    // Another program may have changed them, and they may hold anything.
    m_settings.sync();
    QStringList names;
    const QStringList stored = m_settings.value(QLatin1String(key)).toStringList();
    for (const QString& name : stored) {
        if (isUsable(name) && !names.contains(name) && names.size() < most)
            names.append(name);
    }
    return names;
}

void RecentFiles::add(const QString& fileName)
{
    const QString name = QFileInfo(fileName).absoluteFilePath();
    QStringList others;
    const QStringList known = names();
    for (const QString& other : known) {
        if (other != name && !isSameFile(other, name))
            others.append(other);
    }
    write(QStringList(name) + others);
}

void RecentFiles::remove(const QString& fileName)
{
    QStringList left = names();
    left.removeAll(QFileInfo(fileName).absoluteFilePath());
    write(left);
}

void RecentFiles::clear()
{
    write({});
}

void RecentFiles::write(const QStringList& names)
{
    m_settings.setValue(QLatin1String(key), QStringList(names.mid(0, most)));
    m_settings.sync();
}

void RecentFiles::serve(QMenu& menu)
{
    connect(&menu, &QMenu::aboutToShow, this, [this, &menu] { fill(menu); });
}

void RecentFiles::fill(QMenu& menu)
{
    menu.clear();
    const QStringList offered = names();
    for (const QString& name : offered) {
        const QAction* action = menu.addAction(menuText(name));
        connect(action, &QAction::triggered, this, [this, name] { Q_EMIT chosen(name); });
    }
    if (offered.isEmpty()) {
        menu.addAction(tr("No drawing was opened yet"))->setEnabled(false);
        return;
    }
    menu.addSeparator();
    connect(menu.addAction(tr("Clear List")), &QAction::triggered, this, &RecentFiles::clear);
}
