// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QByteArray>
#include <QList>
#include <QSharedPointer>
#include <QString>
#include <QVector>

class DXFDocument;
class DXFEditor;
class DXFGraphicsItem;
class QGraphicsScene;

/// What must hold whatever was done. Each check returns what is wrong, or an empty string.
namespace dxftest
{

QList<DXFEditor*> overlaysIn(const QGraphicsScene& scene);
QList<DXFGraphicsItem*> documentItemsIn(const QGraphicsScene& scene);

/// Segments chain, and every id is there once.
QString problemOf(const DXFDocument& document);

/// Exactly those of the ids are selected that the document's polylines and segments have.
QString problemOfSelection(const DXFDocument& document, const QVector<int>& ids);

/// Reading what was saved gives the same polylines.
QString problemOfSaving(const DXFDocument& document, const QByteArray& saved);

} // namespace dxftest
