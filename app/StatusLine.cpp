// SPDX-License-Identifier: GPL-2.0-or-later

#include "StatusLine.h"

#include "Polylines.h"
#include "QtVersions.h"
#include "ViewerParts.h"

#include <dxfviewer/edit/DXFEditor.h>
#include <dxfviewer/model/DXFDocument.h>
#include <dxfviewer/render/DXFGraphicsItem.h>
#include <dxfviewer/viewer/DXFViewer.h>

#include <QAction>
#include <QElapsedTimer>
#include <QGraphicsView>
#include <QLabel>
#include <QLocale>
#include <QMouseEvent>
#include <QPoint>
#include <QStatusBar>
#include <QUndoStack>

#include <algorithm>
#include <cmath>

namespace
{

// Erasing changes the drawing twenty times a second. Counting a large drawing takes some
// milliseconds, so it may use one part in countShare of the time at most.
constexpr int countDelayMs = 100;
constexpr int countShare = 20;
constexpr int mostDecimals = 9;

/// As many decimals as pixels can tell apart.
int decimalsAt(double scale)
{
    return std::clamp(static_cast<int>(std::ceil(std::log10(std::max(scale, 1.0)))), 0,
                      mostDecimals);
}

/// Keeps the largest width so far: a width that changes with every digit would move all other
/// fields.
void setSteadyText(QLabel& label, const QString& text)
{
    label.setText(text);
    label.setMinimumWidth(std::max(label.minimumWidth(), label.sizeHint().width()));
}

} // namespace

StatusLine::StatusLine(DXFViewer& viewer, QStatusBar& bar, QObject* parent)
    : QObject(parent)
    , m_viewer(viewer)
    , m_view(&drawingView(viewer))
    , m_hint(new QLabel)
{
    // A long sentence must not make the window wider.
    m_hint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_hint->setTextFormat(Qt::PlainText);
    bar.addWidget(m_hint, 1);
    m_place = addField(bar);
    m_count = addField(bar);
    m_zoom = addField(bar);

    m_countTimer.setSingleShot(true);
    m_countTimer.setInterval(countDelayMs);
    connect(&m_countTimer, &QTimer::timeout, this, &StatusLine::count);
    connect(&editAction(viewer), &QAction::toggled, this, &StatusLine::onEditToggled);
    m_view->viewport()->installEventFilter(this);
}

StatusLine::~StatusLine() = default;

QLabel* StatusLine::addField(QStatusBar& bar)
{
    auto* field = new QLabel;
    field->setTextFormat(Qt::PlainText);
    bar.addPermanentWidget(field);
    return field;
}

void StatusLine::setNotShown(const QString& sentence)
{
    m_notShown = sentence;
    m_place->clear();
    m_place->setMinimumWidth(0);
    m_count->setMinimumWidth(0);
    showHint();
    count();
}

void StatusLine::setZoom(double zoom)
{
    if (!showsDrawing())
        return m_zoom->clear();
    const double percent = zoom * 100.0;
    setSteadyText(*m_zoom,
                  tr("%1 %").arg(QLocale().toString(percent, 'f', percent < 10.0 ? 1 : 0)));
}

/// A drawing that is too large is there, but not visible.
bool StatusLine::showsDrawing() const
{
    const DXFGraphicsItem* item = m_view ? shownItem(m_viewer) : nullptr;
    return item && item->isVisible();
}

void StatusLine::countLater()
{
    // Not restarted by each change: otherwise there would be no count during a long stroke.
    if (!m_countTimer.isActive())
        m_countTimer.start();
}

void StatusLine::count()
{
    const auto document = shownDocument(m_viewer);
    if (!document)
        return;
    QElapsedTimer duration;
    duration.start();
    qlonglong polylines = 0;
    qlonglong segments = 0;
    const auto entities = document->entities();
    for (const auto& entity : entities) {
        const DXFPolyline* polyline = asPolyline(entity);
        if (!polyline)
            continue;
        ++polylines;
        segments += polyline->segments().size();
    }
    m_countTimer.setInterval(
        std::max(countDelayMs, static_cast<int>(duration.elapsed()) * countShare));
    const QLocale locale;
    setSteadyText(*m_count, tr("Polylines: %1, segments: %2")
                                .arg(locale.toString(polylines), locale.toString(segments)));
}

void StatusLine::onEditToggled(bool isOn)
{
    // The window's own slot runs first, so the editor is there.
    if (DXFEditor* editor = isOn ? currentEditor(m_viewer) : nullptr) {
        connect(editor->stack(), &QUndoStack::indexChanged, this, &StatusLine::countLater);
        // Edit mode in another window ends this one without a signal.
        connect(editor, &QObject::destroyed, this, &StatusLine::showHint, Qt::QueuedConnection);
    }
    showHint();
}

void StatusLine::showHint()
{
    const bool isEditing = editAction(m_viewer).isChecked() && currentEditor(m_viewer);
    m_hint->setText(isEditing ? tr("Drag with the left mouse button to erase, with the middle one "
                                   "to move the drawing.")
                              : m_notShown);
    m_hint->setToolTip(m_hint->text());
}

bool StatusLine::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseMove)
        showPlace(placeOf(static_cast<const QMouseEvent&>(*event)));
    else if (event->type() == QEvent::Leave)
        m_place->clear();
    return QObject::eventFilter(watched, event);
}

void StatusLine::showPlace(const QPoint& place)
{
    if (!showsDrawing())
        return;
    const QPointF point = m_view->viewportTransform().inverted().map(QPointF(place));
    const int decimals = decimalsAt(m_view->transform().m11());
    const QLocale locale;
    setSteadyText(*m_place, QStringLiteral("x %1  y %2")
                                .arg(locale.toString(point.x(), 'f', decimals),
                                     locale.toString(point.y(), 'f', decimals)));
}
