// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

#include <QObject>

class QEvent;
class QGraphicsItem;

/**
 * A tool that turns the events of a graphics scene into a selection in a document.
 *
 * It knows nothing of undo. A subclass
 * - selects in its document what it finds under the pointer;
 * - emits requestDelete() when the document's selection is to be deleted, and must expect to be
 *   destroyed by a slot that is connected to it;
 * - makes its marker at the first call of getMarker() and returns the same one as long as that
 *   lives.
 */
class DXFVIEWER_EXPORT ISelectionTool : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Takes one event of the scene, in the coordinates of the drawing.
    virtual bool handle(QEvent& event) = 0;
    /// The item that shows the tool under the pointer. Once it has a parent item or a scene, it
    /// belongs to that; until then it belongs to the caller. It never belongs to the tool.
    virtual QGraphicsItem* getMarker() = 0;

Q_SIGNALS:
    /// What is selected in the document is to be deleted.
    void requestDelete();
};
