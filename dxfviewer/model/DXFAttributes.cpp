// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/DXFAttributes.h"

DXFAttributes::DXFAttributes(const QString& layerName, int color, int color24, int width,
                             const QString& lineType, double lineTypeScale, int handle,
                             bool inPaperSpace)
    : m_layerName(layerName)
    , m_color(color)
    , m_color24(color24)
    , m_width(width)
    , m_lineType(lineType)
    , m_lineTypeScale(lineTypeScale)
    , m_handle(handle)
    , m_inPaperSpace(inPaperSpace)
{
}

QString DXFAttributes::toString() const
{
    // The label of the last value has no colon. That is its fixed form.
    return QStringLiteral("[ATTRIBUTE layerName: %1, color: %2, color24: %3, width: %4, "
                          "linetype: %5, linetypescale: %6, handle: %7, inpaperspace %8]")
        .arg(m_layerName)
        .arg(m_color)
        .arg(m_color24)
        .arg(m_width)
        .arg(m_lineType)
        .arg(m_lineTypeScale)
        .arg(m_handle)
        .arg(m_inPaperSpace ? 1 : 0);
}
