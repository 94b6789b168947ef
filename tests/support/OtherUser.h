// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QtGlobal>

namespace dxftest
{

/// While it lives, a process of root has the rights of an ordinary user. Root may read and write
/// files whatever their permissions are.
class OtherUser
{
public:
    OtherUser();
    ~OtherUser();

private:
    Q_DISABLE_COPY(OtherUser)

    bool m_isRoot;
};

} // namespace dxftest
