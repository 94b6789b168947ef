// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/app/WindowActions.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QString>
#include <QUrl>
#include <QWidget>

#include <stdexcept>

namespace
{

constexpr QPoint place(9, 9);

} // namespace

namespace dxftest
{

QAction& actionOf(const QWidget& window, const char* text)
{
    const auto actions = window.findChildren<QAction*>();
    for (QAction* action : actions) {
        if (action->text() == QString::fromUtf8(text))
            return *action;
    }
    throw std::invalid_argument(text);
}

bool dropOn(QWidget& window, const QMimeData& data)
{
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    // A window that does nothing refuses.
    enter.ignore();
    QApplication::sendEvent(&window, &enter);
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &event);
    return enter.isAccepted();
}

bool dropOn(QWidget& window, const QString& fileName)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(fileName)});
    return dropOn(window, data);
}

} // namespace dxftest
