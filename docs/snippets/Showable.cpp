// SPDX-License-Identifier: GPL-2.0-or-later

#include "docs/snippets/Embedding.h"

// [showable]
#include <dxfviewer/model/DXFDocument.h>

#include <QByteArray>

bool isShowable(const QByteArray& text)
{
    const auto document = DXFDocument::load(text);
    return document && !document->entities().isEmpty();
}
// [showable]
