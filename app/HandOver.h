// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QObject>
#include <QSharedPointer>
#include <QTimer>

class DXFDocument;
class DXFViewer;

/**
 * Hands documents to the drawing window, and tells when they are on screen.
 *
 * The window does not tell, and it must not be seen before the drawing is fitted: until then it
 * paints nothing.
 */
class HandOver : public QObject
{
    Q_OBJECT

public:
    explicit HandOver(DXFViewer& viewer, QObject* parent = nullptr);
    ~HandOver() override;

    /// Shows the document. The one that was shown is freed in the background.
    void show(const QSharedPointer<DXFDocument>& document);

Q_SIGNALS:
    /// The document that was handed over last is on screen.
    void shown();

private Q_SLOTS:
    void onDue();

private:
    DXFViewer& m_viewer;
    // Runs until the document is on screen.
    QTimer m_due;
    QSharedPointer<DXFDocument> m_awaited;
    QSharedPointer<DXFDocument> m_previous;
};
