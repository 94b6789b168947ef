// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QString>
#include <QtGlobal>

#include <functional>

namespace dxftest
{

/**
 * A host that acts inside a message handler: it runs an action at the first message with a text.
 *
 * Every message then goes to the handler that was installed before. Qt itself prints messages that
 * are logged inside a message handler.
 */
class AtMessage
{
public:
    AtMessage(const char* text, std::function<void()> action);
    ~AtMessage();

    bool hasActed() const { return !m_action; }

private:
    Q_DISABLE_COPY(AtMessage)

    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text);

    static AtMessage* s_installed;

    QString m_text;
    std::function<void()> m_action;
    QtMessageHandler m_previous;
};

} // namespace dxftest
