// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QCoreApplication>
#include <QSharedPointer>
#include <QString>

class DXFDocument;
class Picture;
class QPrinter;
class QWidget;

/**
 * Puts a whole drawing on one page: fitted, the right way up, on white.
 *
 * The page is landscape if the drawing is wider than high, unless the user turns it.
 */
class Printing
{
    Q_DECLARE_TR_FUNCTIONS(Printing)

public:
    /// The name is the one of the drawing's file. Dialogs and boxes belong to the window.
    Printing(const QSharedPointer<DXFDocument>& document, const QString& fileName, QWidget& window);

    /// Asks for the printer, and prints.
    void print() const;
    /// Shows the page in a dialog from which it can be printed.
    void preview() const;

private:
    /// Says so if the printer has not taken the page, or has not written its file to the end.
    bool tellTooLarge(const Picture& picture) const;
    void tellFailure(const QPrinter& printer, bool isTaken) const;

    QSharedPointer<DXFDocument> m_document;
    QString m_fileName;
    QWidget& m_window;
};
