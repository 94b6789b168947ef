// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"
#include "dxfviewer/model/IDeletable.h"

#include <QColor>
#include <QSharedPointer>

class DXFAttributes;
class QString;

/**
 * Base of everything that a drawing's ENTITIES section holds.
 *
 * A subclass
 * - returns its kind from type(): 0 is a polyline, the only kind that the library itself knows,
 *   -1 stands for an unknown kind; painting, erasing, selectedIDs() and writing skip whatever is
 *   not 0;
 * - rebuilds in setup() what it derives from its data, and does nothing there if that is done
 *   already;
 * - returns a new object from clone() that the caller owns and that has an id of its own.
 */
class DXFVIEWER_EXPORT DXFEntity : public IDeletable
{
public:
    DXFEntity();
    DXFEntity(const DXFEntity&);
    DXFEntity& operator=(const DXFEntity&);
    ~DXFEntity() override;

    virtual int type() = 0;
    /// One line for the log.
    virtual QString toString() const = 0;
    virtual void setup() = 0;
    virtual DXFEntity* clone() = 0;

    /// Colour to paint with; invalid until DXFDocument::setup() has resolved it.
    QColor color() const { return m_color; }
    void setColor(QColor color);

    /// Pen width in device pixels, 0 or 1 when resolved by DXFDocument::setup().
    int lineWidth() const { return m_lineWidth; }
    void setLineWidth(int lineWidth);

    /// What the file says about the entity. May be null; other entities may share it.
    QSharedPointer<DXFAttributes> attributes() const { return m_attributes; }
    void setAttributes(QSharedPointer<DXFAttributes> attributes);

private:
    friend class dxfviewer::PolylineAccess;

    QColor m_color;
    int m_lineWidth = 0;
    QSharedPointer<DXFAttributes> m_attributes;
};
