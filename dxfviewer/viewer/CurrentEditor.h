// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QPointer>

class DXFEditor;
class DXFGraphicsItem;
class QObject;

namespace dxfviewer
{

/**
 * Edit mode: at most one editor, and its owner.
 *
 * The scene owns the editor too and may destroy it at any time. The end of the editor runs slots of
 * the host, which may end edit mode, begin it again, or destroy objects that take part in it.
 */
class CurrentEditor
{
public:
    CurrentEditor() = default;
    ~CurrentEditor();

    /// Makes an editor over the item, which must be in a scene, and ends the former one. Null if
    /// the new one did not survive that.
    DXFEditor* begin(DXFGraphicsItem& item, const QObject& owner);
    /// Ends edit mode, whoever began it.
    void end();
    /// Whether there is an editor and it was begun for this owner.
    bool isOf(const QObject& owner) const;

private:
    Q_DISABLE_COPY(CurrentEditor)

    QPointer<DXFEditor> m_editor;
    // Compared only: the owner may be gone.
    const QObject* m_owner = nullptr;
    // Tells editors apart: a later one may stand where a destroyed one stood.
    quint64 m_beginnings = 0;
};

} // namespace dxfviewer
