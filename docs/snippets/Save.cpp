// SPDX-License-Identifier: GPL-2.0-or-later

#include "docs/snippets/Embedding.h"

// [save]
#include <dxfviewer/viewer/DXFViewer.h>

#include <QSaveFile>

bool save(DXFViewer& viewer, const QString& fileName)
{
    const QByteArray text = viewer.getData();
    QSaveFile file(fileName);
    return !text.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(text) == text.size()
           && file.commit();
}
// [save]
