// SPDX-License-Identifier: GPL-2.0-or-later

#include "docs/snippets/Embedding.h"

// [log]
#include <QStringList>

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
