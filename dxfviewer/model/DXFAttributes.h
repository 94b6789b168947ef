// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

#include <QString>

/**
 * The attributes that a DXF file gives every entity and every layer.
 *
 * A record never changes once it is made, so entities and layers share it through
 * QSharedPointer. The values are those of the file. DXFPaintHelper decides what they mean on the
 * screen.
 */
class DXFVIEWER_EXPORT DXFAttributes
{
public:
    DXFAttributes(const QString& layerName, int color, int color24, int width,
                  const QString& lineType, double lineTypeScale, int handle, bool inPaperSpace);

    /// Name of the layer that the record belongs to (group 8).
    QString layerName() const { return m_layerName; }
    /// Colour number (group 62): 0 is by-block, 256 by-layer.
    int color() const { return m_color; }
    /// True colour as 0xRRGGBB (group 420), -1 when there is none.
    int color24() const { return m_color24; }
    /// Line weight in hundredths of a millimetre (group 370): -1 is by-layer, -2 by-block.
    int width() const { return m_width; }
    /// Name of the line type (group 6).
    QString lineType() const { return m_lineType; }
    /// Scale of the line type's pattern (group 48).
    double lineTypeScale() const { return m_lineTypeScale; }
    /// The record's handle (group 5), -1 when there is none.
    int handle() const { return m_handle; }
    /// Whether the record lies in paper space (group 67).
    bool inPaperSpace() const { return m_inPaperSpace; }

    /// One line for the log.
    QString toString() const;

private:
    QString m_layerName;
    int m_color;
    int m_color24;
    int m_width;
    QString m_lineType;
    double m_lineTypeScale;
    int m_handle;
    bool m_inPaperSpace;
};
