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

/// Checks that must hold after every step. Each returns what is wrong, or an empty string.
namespace dxftest
{

QList<DXFEditor*> overlaysIn(const QGraphicsScene& scene);
QList<DXFGraphicsItem*> documentItemsIn(const QGraphicsScene& scene);

/// The segments of a polyline form a chain, and every id is there once.
QString problemOf(const DXFDocument& document);

/// Of these ids, exactly those that belong to the document's polylines and segments are selected.
QString problemOfSelection(const DXFDocument& document, const QVector<int>& ids);

/// Reading what was saved gives the same polylines.
QString problemOfSaving(const DXFDocument& document, const QByteArray& saved);

} // namespace dxftest
