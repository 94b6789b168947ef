// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/support/AtMessage.h"

#include <utility>

namespace dxftest
{

AtMessage* AtMessage::s_installed = nullptr;

AtMessage::AtMessage(const char* text, std::function<void()> action)
    : m_text(QString::fromLatin1(text))
    , m_action(std::move(action))
    , m_previous(qInstallMessageHandler(&AtMessage::handle))
{
    s_installed = this;
}

AtMessage::~AtMessage()
{
    qInstallMessageHandler(m_previous);
    s_installed = nullptr;
}

void AtMessage::handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    AtMessage& self = *s_installed;
    self.m_previous(type, context, text);
    if (self.m_action && text == self.m_text)
        std::exchange(self.m_action, nullptr)();
}

} // namespace dxftest
