// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QByteArray>
#include <QPointF>
#include <QVector>

namespace dxftest
{

/// One of a few sound drawings, of usual and of extreme sizes.
QByteArray goodDrawing(int which);
/// A text that is no drawing, or half of one.
QByteArray badDrawing(int which);

/// The vertices of a polyline that only a host can make.
QVector<QPointF> oddPoints(int which);

} // namespace dxftest
