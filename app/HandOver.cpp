// SPDX-License-Identifier: GPL-2.0-or-later

#include "HandOver.h"

#include "BackgroundReader.h"
#include "ViewerParts.h"

#include <dxfviewer/model/DXFDocument.h>
#include <dxfviewer/viewer/DXFViewer.h>

#include <QGraphicsView>

#include <utility>

namespace
{

// The drawing window shows a drawing 5 ms after it was loaded.
constexpr int dueMs = 5;

} // namespace

HandOver::HandOver(DXFViewer& viewer, QObject* parent)
    : QObject(parent)
    , m_viewer(viewer)
{
    m_due.setSingleShot(true);
    m_due.setInterval(dueMs);
    connect(&m_due, &QTimer::timeout, this, &HandOver::onDue);
}

HandOver::~HandOver() = default;

void HandOver::show(const QSharedPointer<DXFDocument>& document)
{
    m_previous = shownDocument(m_viewer);
    m_awaited = document;
    drawingView(m_viewer).setUpdatesEnabled(false);
    m_viewer.loadDocument(m_awaited);
    m_due.start();
}

void HandOver::onDue()
{
    if (shownDocument(m_viewer) != m_awaited) {
        m_due.start();
        return;
    }
    m_awaited.reset();
    freeInBackground(std::exchange(m_previous, nullptr));
    Q_EMIT shown();
    drawingView(m_viewer).setUpdatesEnabled(true);
}
