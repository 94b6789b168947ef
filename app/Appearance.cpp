// SPDX-License-Identifier: GPL-2.0-or-later

#include "Appearance.h"

#include "ViewerParts.h"

#include <dxfviewer/edit/DXFEditor.h>
#include <dxfviewer/model/DXFDocument.h>
#include <dxfviewer/render/DXFGraphicsItem.h>
#include <dxfviewer/render/DisplayColors.h>
#include <dxfviewer/viewer/DXFViewer.h>

#include <QActionGroup>
#include <QGraphicsView>
#include <QMenu>
#include <QUndoStack>

Appearance::Appearance(DXFViewer& viewer, QObject* parent)
    : QObject(parent)
    , m_viewer(viewer)
    , m_actions(new QActionGroup(this))
{
    const auto addGround = [this](Ground ground, const QString& text) {
        QAction* action = m_actions->addAction(text);
        action->setCheckable(true);
        action->setChecked(ground == m_ground);
        action->setData(nameOf(ground));
        connect(action, &QAction::triggered, this, [this, ground] { setGround(ground); });
    };
    addGround(Ground::Dark, tr("&Dark"));
    addGround(Ground::Light, tr("&Light"));
    addGround(Ground::White, tr("&White"));
    applyToView();
}

Appearance::~Appearance() = default;

void Appearance::addActionsTo(QMenu& menu)
{
    menu.addMenu(tr("&Background"))->addActions(m_actions->actions());
}

void Appearance::setGround(Ground ground)
{
    if (ground == m_ground)
        return;
    m_ground = ground;
    const auto actions = m_actions->actions();
    for (QAction* action : actions)
        action->setChecked(action->data().toString() == nameOf(ground));
    applyToView();
    colorShown();
    // Polylines that an undo brings back have the colours of the moment when they were erased.
    if (DXFEditor* editor = currentEditor(m_viewer))
        connect(editor->stack(), &QUndoStack::indexChanged, this, &Appearance::colorShown,
                Qt::UniqueConnection);
    Q_EMIT groundChanged();
}

void Appearance::color(DXFDocument& document) const
{
    document.setup();
    DisplayColors(colorOf(m_ground)).apply(document);
}

void Appearance::colorShown()
{
    DXFGraphicsItem* item = shownItem(m_viewer);
    if (!item || !item->document())
        return;
    color(*item->document());
    item->update();
}

void Appearance::applyToView()
{
    drawingView(m_viewer).setBackgroundBrush(colorOf(m_ground));
}
