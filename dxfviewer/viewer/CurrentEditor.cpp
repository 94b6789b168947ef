// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/viewer/CurrentEditor.h"

#include "dxfviewer/edit/DXFEditor.h"
#include "dxfviewer/render/DXFGraphicsItem.h"

#include <utility>

namespace dxfviewer
{

CurrentEditor::~CurrentEditor()
{
    end();
}

DXFEditor* CurrentEditor::begin(DXFGraphicsItem& item, const QObject& owner)
{
    const auto itemLife = item.lifeToken();
    const QPointer<DXFEditor> editor(new DXFEditor(item));
    // Now, and not before: the editor has said that it is there, and who hears that may have begun
    // another one.
    QPointer<DXFEditor> former = editor;
    former.swap(m_editor);
    m_owner = &owner;
    // The former one goes last: who hears of its end finds the new one in its place.
    if (former)
        former->end();
    if (editor && editor == m_editor && itemLife.expired())
        end();
    return editor == m_editor ? editor.data() : nullptr;
}

void CurrentEditor::end()
{
    const QPointer<DXFEditor> editor = std::exchange(m_editor, nullptr);
    if (editor)
        editor->end();
}

bool CurrentEditor::isOf(const QObject& owner) const
{
    return m_editor && m_owner == &owner;
}

} // namespace dxfviewer
