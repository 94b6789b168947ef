// SPDX-License-Identifier: GPL-2.0-or-later

#include "docs/snippets/Embedding.h"

#include <dxfviewer/edit/DXFEditor.h>
#include <dxfviewer/model/DXFDocument.h>
#include <dxfviewer/viewer/DXFViewer.h>

#include <QAction>
#include <QCoreApplication>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QLocale>
#include <QMenu>
#include <QSaveFile>
#include <QTranslator>
#include <QUndoGroup>

// [showable]
bool isShowable(const QByteArray& text)
{
    const auto document = DXFDocument::load(text);
    return document && !document->entities().isEmpty();
}
// [showable]

// [save]
bool save(DXFViewer& viewer, const QString& fileName)
{
    const QByteArray text = viewer.getData();
    QSaveFile file(fileName);
    return !text.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(text) == text.size()
           && file.commit();
}
// [save]

// [stack]
QUndoStack* editStack(const DXFViewer& viewer)
{
    const auto* view = viewer.findChild<QGraphicsView*>(QStringLiteral("graphicsView"));
    const auto items = view->scene()->items();
    for (QGraphicsItem* item : items) {
        if (auto* editor = qobject_cast<DXFEditor*>(item->toGraphicsObject()))
            return editor->stack();
    }
    return nullptr;
}
// [stack]

// [actions]
void addEditActions(DXFViewer& viewer, QMenu& menu)
{
    auto* group = new QUndoGroup(&viewer);
    auto* edit = viewer.findChild<QAction*>(QStringLiteral("actionEdit_dxf"));
    menu.addAction(edit);
    menu.addAction(group->createUndoAction(group));
    menu.addAction(group->createRedoAction(group));

    // The window's own slot runs first: the stack is there when this one does. A stack leaves the
    // group by itself when edit mode ends.
    QObject::connect(edit, &QAction::toggled, group, [group, &viewer] {
        if (QUndoStack* stack = editStack(viewer)) {
            group->addStack(stack);
            group->setActiveStack(stack);
        }
    });
}
// [actions]

// [log]
static QtMessageHandler formerHandler = nullptr;

static void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    const bool isDefault = qstrcmp(context.category, "default") == 0;
    if (isDefault && (type == QtDebugMsg || type == QtWarningMsg))
        hostLog().append(text);
    else if (formerHandler)
        formerHandler(type, context, text);
}

void routeLog()
{
    formerHandler = qInstallMessageHandler(handleMessage);
}
// [log]

QStringList& hostLog()
{
    static QStringList lines;
    return lines;
}

// [translate]
bool translate(QTranslator& translator, const QString& folder)
{
    return translator.load(QLocale(), QStringLiteral("dxfviewer"), QStringLiteral("_"), folder)
           && QCoreApplication::installTranslator(&translator);
}
// [translate]
