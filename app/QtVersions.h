// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QLibraryInfo>
#include <QMouseEvent>
#include <QString>

/// @file
/// What has different names in Qt 5 and Qt 6. No other file asks for the version.

/// Where Qt has the translations of its own texts.
inline QString qtTranslationsFolder()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}

/// Where the mouse is, in the pixels of the widget that gets the event.
inline QPoint placeOf(const QMouseEvent& event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event.position().toPoint();
#else
    return event.pos();
#endif
}
