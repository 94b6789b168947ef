// SPDX-License-Identifier: GPL-2.0-or-later

#include "StrokeHistory.h"

#include "Keys.h"
#include "Machine.h"
#include "StrokeMemory.h"

#include <dxfviewer/edit/DXFEditor.h>

#include <QAction>
#include <QEvent>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QUndoStack>

#include <algorithm>

namespace
{

constexpr int memoryShare = 8;

} // namespace

StrokeHistory::StrokeHistory(QGraphicsView& view, QObject* parent)
    : StrokeHistory(view, memoryOfMachine() / memoryShare, parent)
{
}

StrokeHistory::StrokeHistory(QGraphicsView& view, qint64 memoryBytes, QObject* parent)
    : QObject(parent)
    , m_memoryBytes(memoryBytes)
    , m_undo(new QAction(tr("Undo"), this))
    , m_redo(new QAction(tr("Redo"), this))
{
    m_undo->setShortcuts(keysOf({QStringLiteral("Ctrl+Z")}, {QKeySequence::Undo}));
    m_redo->setShortcuts(
        keysOf({QStringLiteral("Ctrl+Shift+Z"), QStringLiteral("Ctrl+Y")}, {QKeySequence::Redo}));
    connect(m_undo, &QAction::triggered, this, &StrokeHistory::undo);
    connect(m_redo, &QAction::triggered, this, &StrokeHistory::redo);
    view.viewport()->installEventFilter(this);
    updateActions();
}

void StrokeHistory::follow(DXFEditor& editor, const DXFDocument& document)
{
    forget();
    m_stack = editor.stack();
    m_stack->setUndoLimit(stepsThatFit(m_memoryBytes, document));
    connect(m_stack, &QUndoStack::indexChanged, this, &StrokeHistory::onIndexChanged);
    connect(m_stack, &QObject::destroyed, this, &StrokeHistory::forget);
    // The actions that the window makes for its tool bar take back single steps.
    const auto singleSteps = editor.findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly);
    for (QAction* action : singleSteps)
        action->setVisible(false);
    updateActions();
}

void StrokeHistory::forget()
{
    if (m_stack)
        m_stack->disconnect(this);
    m_stack = nullptr;
    m_marks.clear();
    m_dropped = 0;
    m_place = 0;
    m_nextStep = nullptr;
    m_hasToldOfLoss = false;
    updateActions();
}

bool StrokeHistory::eventFilter(QObject* watched, QEvent* event)
{
    const bool isPress =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (isPress && static_cast<const QMouseEvent*>(event)->button() == Qt::LeftButton)
        beginStroke();
    return QObject::eventFilter(watched, event);
}

/// A stroke that hits nothing begins at the same place as the next one and leaves no mark of its
/// own.
void StrokeHistory::beginStroke()
{
    m_hasToldOfLoss = false;
    if (!m_stack)
        return;
    const auto after = std::lower_bound(m_marks.begin(), m_marks.end(), current());
    if (after == m_marks.end() || *after != current())
        m_marks.insert(after, current());
}

void StrokeHistory::onIndexChanged(int index)
{
    if (isPush(index))
        onPush(index);
    m_place = current();
    m_nextStep = m_stack->command(index);
    updateActions();
}

/// Whether the stack got to this index by a new step, not by undo or redo.
bool StrokeHistory::isPush(int index) const
{
    const int former = static_cast<int>(m_place - m_dropped);
    // A full stack drops one step for each new one.
    if (index == former)
        return index > 0 && index == m_stack->count();
    // Redo keeps the next step. A push destroys it and puts another in its place. That one was made
    // before, so its address differs.
    return index == former + 1 && m_stack->command(former) != m_nextStep;
}

void StrokeHistory::onPush(int index)
{
    while (!m_marks.empty() && m_marks.back() > m_place)
        m_marks.pop_back();
    m_dropped = m_place + 1 - index;
    const bool isBeginningLost = !m_marks.empty() && m_marks.back() < m_dropped;
    // The last mark before the first remaining step is kept: it says where the stroke of that step
    // began.
    while (m_marks.size() > 1 && m_marks[1] <= m_dropped)
        m_marks.pop_front();
    if (isBeginningLost && !m_hasToldOfLoss) {
        m_hasToldOfLoss = true;
        Q_EMIT beginningLost();
    }
}

void StrokeHistory::undo()
{
    if (!m_stack || !m_stack->canUndo())
        return;
    const auto after = std::lower_bound(m_marks.begin(), m_marks.end(), current());
    const Place mark = after == m_marks.begin() ? 0 : *(after - 1);
    moveTo(std::max(mark, m_dropped));
    if (mark < m_dropped)
        Q_EMIT beginningLost();
}

void StrokeHistory::redo()
{
    if (!m_stack || !m_stack->canRedo())
        return;
    const Place end = m_dropped + m_stack->count();
    const auto after = std::upper_bound(m_marks.begin(), m_marks.end(), current());
    moveTo(after == m_marks.end() ? end : std::min(*after, end));
}

void StrokeHistory::moveTo(Place place)
{
    m_stack->setIndex(static_cast<int>(place - m_dropped));
}

StrokeHistory::Place StrokeHistory::current() const
{
    return m_dropped + m_stack->index();
}

void StrokeHistory::updateActions()
{
    m_undo->setEnabled(m_stack && m_stack->canUndo());
    m_redo->setEnabled(m_stack && m_stack->canRedo());
}
