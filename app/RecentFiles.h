// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QObject>
#include <QStringList>

class QMenu;
class Settings;

/**
 * The drawings that were opened last, the newest first, and the menu that offers them.
 *
 * They are stored at once, so that windows and programs that run side by side see each other's.
 */
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    static constexpr int most = 10;

    /// The settings must outlive it.
    explicit RecentFiles(Settings& settings, QObject* parent = nullptr);

    QStringList names() const;
    void add(const QString& fileName);
    void remove(const QString& fileName);
    void clear();

    /// Fills the menu each time it comes up.
    void serve(QMenu& menu);

Q_SIGNALS:
    void chosen(const QString& fileName);

private:
    void fill(QMenu& menu);
    void write(const QStringList& names);

    Settings& m_settings;
};
