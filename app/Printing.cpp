// SPDX-License-Identifier: GPL-2.0-or-later

#include "Printing.h"

#include "Picture.h"
#include "Questions.h"
#include "WaitCursor.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

namespace
{

/// How a completely written document ends.
const QByteArray endOfDocument = "%%EOF";
constexpr qint64 longestEnd = 64;

void prepare(QPrinter& printer, const Picture& picture, const QString& fileName)
{
    printer.setDocName(QFileInfo(fileName).completeBaseName());
    printer.setCreator(QCoreApplication::applicationName());
    printer.setPageOrientation(picture.isWide() ? QPageLayout::Landscape : QPageLayout::Portrait);
}

/// False if the printer does not take the page.
bool paintPage(QPrinter& printer, const Picture& picture)
{
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    picture.paintInto(painter,
                      QRectF(QPointF(0, 0), printer.pageRect(QPrinter::DevicePixel).size()));
    return painter.end() && printer.printerState() != QPrinter::Error;
}

/// Whether the printed file is complete: a full disk is not reported.
bool isWhole(const QString& fileName)
{
    // Nothing is known about a device, and opening a pipe could wait for ever.
    QFile file(fileName);
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    file.seek(qMax<qint64>(0, file.size() - longestEnd));
    return file.read(longestEnd).trimmed().endsWith(endOfDocument);
}

} // namespace

Printing::Printing(const QSharedPointer<DXFDocument>& document, const QString& fileName,
                   QWidget& window)
    : m_document(document)
    , m_fileName(fileName)
    , m_window(window)
{
}

void Printing::print() const
{
    QPrinter printer(QPrinter::HighResolution);
    const Picture picture(m_document, Qt::white);
    if (tellTooLarge(picture))
        return;
    prepare(printer, picture, m_fileName);
    QPrintDialog dialog(&printer, &m_window);
    dialog.setWindowTitle(tr("Print"));
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialog.setOption(QAbstractPrintDialog::PrintCollateCopies, false);
    if (dialog.exec() != QDialog::Accepted)
        return;

    const bool isTaken = [&] {
        const WaitCursor wait;
        return paintPage(printer, picture);
    }();
    tellFailure(printer, isTaken);
}

void Printing::preview() const
{
    QPrinter printer(QPrinter::HighResolution);
    const Picture picture(m_document, Qt::white);
    if (tellTooLarge(picture))
        return;
    prepare(printer, picture, m_fileName);
    QPrintPreviewDialog dialog(&printer, &m_window);
    bool isTaken = false;
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&picture, &isTaken](QPrinter* page) { isTaken = paintPage(*page, picture); });
    // It is accepted when the user has printed from it.
    if (dialog.exec() == QDialog::Accepted)
        tellFailure(printer, isTaken);
}

/// Tells that a drawing is too large. The page of an empty one is empty, as it should be.
bool Printing::tellTooLarge(const Picture& picture) const
{
    if (picture.isTooLarge())
        showError(m_window, tr("The drawing cannot be printed."), m_fileName, picture.fault());
    return picture.isTooLarge();
}

void Printing::tellFailure(const QPrinter& printer, bool isTaken) const
{
    const QString file = printer.outputFileName();
    QString reason;
    if (!isTaken)
        reason = file.isEmpty() ? tr("The printer does not take it.")
                                : tr("%1 cannot be written.").arg(file);
    else if (!file.isEmpty() && !isWhole(file))
        reason = tr("%1 could not be written to its end. The disk may be full.").arg(file);
    if (!reason.isEmpty())
        showError(m_window, tr("The drawing cannot be printed."), m_fileName, reason);
}
