// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/edit/ISelectionTool.h"

#include <gtest/gtest.h>

#include <QEvent>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>
#include <QMetaEnum>
#include <QPointF>

#include <string>

namespace dxftest
{

/// Gives a tool a mouse event, as the scene would make it. Returns the result of handle().
inline bool sendMouse(ISelectionTool& tool, QEvent::Type type, const QPointF& pos,
                      Qt::MouseButtons held)
{
    QGraphicsSceneMouseEvent event(type);
    event.setPos(pos);
    event.setButtons(held);
    return tool.handle(event);
}

/// The same with a hover event.
inline bool sendHover(ISelectionTool& tool, QEvent::Type type, const QPointF& pos)
{
    QGraphicsSceneHoverEvent event(type);
    event.setPos(pos);
    return tool.handle(event);
}

inline bool isHover(QEvent::Type type)
{
    return type == QEvent::GraphicsSceneHoverEnter || type == QEvent::GraphicsSceneHoverMove
           || type == QEvent::GraphicsSceneHoverLeave;
}

/// Names a test by its event.
inline std::string eventName(const ::testing::TestParamInfo<QEvent::Type>& info)
{
    return QMetaEnum::fromType<QEvent::Type>().valueToKey(info.param);
}

} // namespace dxftest
