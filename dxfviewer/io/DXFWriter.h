// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

#include <QSharedPointer>

#include <memory>

class DL_Dxf;
class DL_WriterA;
class DXFDocument;
class DXFPolyline;
class QByteArray;
class QString;

/**
 * Writes a document as release-12 DXF: line types, layers and polylines.
 *
 * A writer can save any number of times.
 */
class DXFVIEWER_EXPORT DXFWriter
{
public:
    /// The document must outlive the writer.
    explicit DXFWriter(const DXFDocument& document);
    ~DXFWriter();

    /// Writes a file. Always returns false. A failure is a message on the debug channel; success
    /// shows only in the file.
    bool save(const QString& fileName);
    /// The text of such a file; empty, after a message, if it could not be written.
    QByteArray save();

    /// @name Parts of the file
    /// save() calls those that a drawing needs. Outside of it they write nothing.
    /// @{
    void writeHeader();
    /// Not part of a saved drawing.
    void writeVPORT_table();
    /// All line types. If the document has none called "CONTINUOUS", that one comes first.
    void writeLineType_table();
    /// Writes nothing.
    void writeTextStyle_table();
    /// Writes nothing.
    void writeUserCS_table();
    /// Writes nothing.
    void writeVIEW_table();
    /// Writes nothing.
    void writeDIMSTYLE_table();
    /// All layers. If the document has no layer "0", that one comes first.
    void writeLAYER_table();
    /// Not part of a saved drawing.
    void writeAPPID_table();
    /// All polylines. An entity of an unknown kind is logged and left out.
    void writeEntities_section();
    /// @}

private:
    Q_DISABLE_COPY(DXFWriter)

    bool write(const QString& fileName);
    void writeDrawing();
    void writePolyline(const QSharedPointer<DXFPolyline>& polyline);

    const DXFDocument& m_document;
    std::unique_ptr<DL_Dxf> m_parser;
    std::unique_ptr<DL_WriterA> m_writer;
};
