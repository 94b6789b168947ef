// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QString>
#include <QtGlobal>

#include <functional>

namespace dxftest
{

/**
 * A host that acts from within Qt's log: it does something at the first message of a text.
 *
 * Every message goes to the handler that was installed before, this one first. Qt prints by itself
 * what comes while a handler is at work.
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
