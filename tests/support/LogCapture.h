// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <QStringList>
#include <QtGlobal>

namespace dxftest
{

/**
 * Records Qt's log messages while it lives: debug messages in one list, warnings and worse in
 * another.
 *
 * The library logs without a category. So a message with a category counts as a warning that begins
 * with the category's name, unless the category is Qt's own.
 *
 * Captures may be nested: the innermost one records.
 */
class LogCapture
{
public:
    LogCapture();
    ~LogCapture();

    /// The debug messages since the last call, in order.
    QStringList takeDebugMessages();
    /// The warnings, and what is worse, since the last call, in order.
    QStringList takeWarnings();

private:
    Q_DISABLE_COPY(LogCapture)

    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text);

    void record(QtMsgType type, const QMessageLogContext& context, const QString& text);

    static LogCapture* s_innermost;

    LogCapture* m_outer;
    QtMessageHandler m_previous;
    QStringList m_debugMessages;
    QStringList m_warnings;
};

} // namespace dxftest
