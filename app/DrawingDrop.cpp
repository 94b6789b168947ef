// SPDX-License-Identifier: GPL-2.0-or-later

#include "DrawingDrop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QString>
#include <QTimer>
#include <QUrl>
#include <QWidget>

namespace
{

/// The first drawing among what is dragged; empty if there is none.
QString draggedDrawing(const QMimeData* data)
{
    const auto urls = data->urls();
    for (const QUrl& url : urls) {
        QString fileName = url.toLocalFile();
        if (fileName.endsWith(QLatin1String(".dxf"), Qt::CaseInsensitive))
            return fileName;
    }
    return QString();
}

} // namespace

DrawingDrop::DrawingDrop(QWidget& window)
    : QObject(&window)
{
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

DrawingDrop::~DrawingDrop() = default;

bool DrawingDrop::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto& drop = static_cast<QDropEvent&>(*event);
    const QString fileName = draggedDrawing(drop.mimeData());
    if (fileName.isEmpty())
        return QObject::eventFilter(watched, event);
    drop.acceptProposedAction();
    if (event->type() == QEvent::Drop)
        QTimer::singleShot(0, this, [this, fileName] { Q_EMIT dropped(fileName); });
    return true;
}
