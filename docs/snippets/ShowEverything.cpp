// SPDX-License-Identifier: GPL-2.0-or-later

#include "docs/snippets/Embedding.h"

// [everything]
#include <dxfviewer/flatten/FlatteningReader.h>
#include <dxfviewer/model/DXFDocument.h>
#include <dxfviewer/render/DisplayColors.h>
#include <dxfviewer/viewer/DXFViewer.h>

#include <QGraphicsView>

bool showEverything(DXFViewer& viewer, const QString& fileName, QStringList& skipped)
{
    const auto document = QSharedPointer<DXFDocument>::create();
    FlatteningOptions options;
    options.showsTexts = true;
    FlatteningReader reader(*document, options);
    if (!reader.load(fileName))
        return false;
    skipped = reader.skipped().keys();
    const auto* view = viewer.findChild<QGraphicsView*>(QStringLiteral("graphicsView"));
    const QColor ground = view->backgroundBrush().color();
    document->setup();
    DisplayColors(ground).apply(*document);
    viewer.loadDocument(document);
    return true;
}
// [everything]
