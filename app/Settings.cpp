// SPDX-License-Identifier: GPL-2.0-or-later

#include "Settings.h"

#include <QFileDevice>
#include <QJsonDocument>
#include <QJsonObject>

namespace
{

// Far more than the program ever remembers.
constexpr qint64 mostBytes = 1024LL * 1024;

bool readJson(QIODevice& file, QSettings::SettingsMap& values)
{
    const QByteArray text = file.read(mostBytes + 1);
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (text.size() > mostBytes || !document.isObject())
        return false;
    values = document.object().toVariantMap();
    return true;
}

bool writeJson(QIODevice& file, const QSettings::SettingsMap& values)
{
    const QByteArray text = QJsonDocument(QJsonObject::fromVariantMap(values)).toJson();
    // Short texts stay in a buffer, and the old file would be replaced even if this cannot be
    // written.
    auto* const buffered = qobject_cast<QFileDevice*>(&file);
    return file.write(text) == text.size() && (!buffered || buffered->flush());
}

/// Qt's own format has values that take as much memory as the file says, and replaces the old file
/// by an empty one if the disk is full.
QSettings::Format jsonFormat()
{
    static const QSettings::Format registered =
        QSettings::registerFormat(QStringLiteral("json"), readJson, writeJson);
    return registered;
}

} // namespace

Settings::Settings()
    : QSettings(jsonFormat(), QSettings::UserScope, QStringLiteral("dxfviewer"),
                QStringLiteral("dxfviewer"))
{
}

Settings::~Settings() = default;
