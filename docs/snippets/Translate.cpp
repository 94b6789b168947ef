// SPDX-License-Identifier: GPL-2.0-or-later

#include "docs/snippets/Embedding.h"

// [translate]
#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

bool translate(QTranslator& translator, const QString& folder)
{
    return translator.load(QLocale(), QStringLiteral("dxfviewer"), QStringLiteral("_"), folder)
           && QCoreApplication::installTranslator(&translator);
}
// [translate]
