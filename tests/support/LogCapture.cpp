// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/support/LogCapture.h"

#include <algorithm>
#include <array>
#include <mutex>
#include <utility>

namespace dxftest
{

namespace
{

/// Warnings of the platform on which the tests run. They are ignored.
constexpr std::array platformWarnings{
    // The offscreen platform logs this whenever a window is shown.
    "This plugin does not support propagateSizeHints()",
    "This plugin does not support raise()",
};

bool isPlatformWarning(const QString& text)
{
    // The window may be destroyed before the window manager handles a request for it.
    if (text.startsWith(QLatin1String("QXcbConnection: XCB error")))
        return true;
    return std::any_of(platformWarnings.begin(), platformWarnings.end(),
                       [&text](const char* known) { return text == QLatin1String(known); });
}

/// Other threads, which read drawings, log messages as well.
std::mutex& recordMutex()
{
    static std::mutex mutex;
    return mutex;
}

/// Whether a message has a category, and not one of Qt's own.
bool isOfForeignCategory(const QMessageLogContext& context)
{
    const QLatin1String category(context.category);
    return !category.isEmpty() && category != QLatin1String("default")
           && !category.startsWith(QLatin1String("qt."));
}

} // namespace

LogCapture* LogCapture::s_innermost = nullptr;

LogCapture::LogCapture()
    : m_outer(std::exchange(s_innermost, this))
    , m_previous(qInstallMessageHandler(&LogCapture::handle))
{
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(m_previous);
    s_innermost = m_outer;
}

QStringList LogCapture::takeDebugMessages()
{
    const std::lock_guard lock(recordMutex());
    return std::exchange(m_debugMessages, QStringList());
}

QStringList LogCapture::takeWarnings()
{
    const std::lock_guard lock(recordMutex());
    return std::exchange(m_warnings, QStringList());
}

void LogCapture::handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    const std::lock_guard lock(recordMutex());
    s_innermost->record(type, context, text);
}

void LogCapture::record(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    const bool isForeign = isOfForeignCategory(context);
    const QString withCategory = QLatin1String(context.category) + QLatin1String(": ") + text;
    switch (type) {
    case QtDebugMsg:
        m_debugMessages.append(text);
        if (isForeign)
            m_warnings.append(withCategory);
        return;
    case QtWarningMsg:
    case QtCriticalMsg:
        if (!isPlatformWarning(text))
            m_warnings.append(isForeign ? withCategory : text);
        return;
    case QtInfoMsg:
    case QtFatalMsg:
        if (m_outer)
            m_outer->record(type, context, text);
        else if (m_previous)
            m_previous(type, context, text);
        return;
    }
}

} // namespace dxftest
