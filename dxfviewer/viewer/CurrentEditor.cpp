// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/viewer/CurrentEditor.h"

#include "dxfviewer/edit/DXFEditor.h"
#include "dxfviewer/render/DXFGraphicsItem.h"

namespace dxfviewer
{

CurrentEditor::~CurrentEditor()
{
    end();
}

DXFEditor* CurrentEditor::begin(DXFGraphicsItem& item, const QObject& owner)
{
    const auto itemLife = item.lifeToken();
    auto* const editor = new DXFEditor(item);
    // Read only now: the constructor logs and adds to the scene, and a handler of that may have
    // begun another editor.
    DXFEditor* const former = m_editor;
    m_editor = editor;
    m_owner = &owner;
    const quint64 beginning = ++m_beginnings;
    // The former one ends last: a slot that runs during its end finds the new one in its place.
    if (former)
        former->end();
    if (beginning != m_beginnings)
        return nullptr;
    if (itemLife.expired())
        end();
    return m_editor;
}

void CurrentEditor::end()
{
    DXFEditor* const editor = m_editor;
    m_editor.clear();
    if (editor)
        editor->end();
}

bool CurrentEditor::isOf(const QObject& owner) const
{
    return m_editor && m_owner == &owner;
}

} // namespace dxfviewer
