// SPDX-License-Identifier: GPL-2.0-or-later

// Performs one sequence of steps, in a process of its own because it may crash.
//
//   dxfviewer_monkey STEPS PROGRESS
//
// The file PROGRESS holds the number of the current step.

#include "tests/monkey/Driver.h"
#include "tests/support/LogCapture.h"

#include <QApplication>
#include <QFile>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define MONKEY_HAS_LSAN
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define MONKEY_HAS_LSAN
#endif
#ifdef MONKEY_HAS_LSAN
#include <sanitizer/lsan_interface.h>
#endif

namespace
{

/// Warnings about things that the steps do on purpose.
constexpr std::array expectedWarnings{
    "DXFGraphicsItem:: cannot render blank document",
    // The item was deleted while the overlay logged its creation.
    "QObject::connect: Cannot connect (nullptr)::requestDelete() to "
    "DXFEditor::onDeleteRequested()",
};

/// The platform never frees its screen. That leak is not ours.
std::unique_ptr<QApplication> makeApplication(int& argc, char** argv)
{
#ifdef MONKEY_HAS_LSAN
    const __lsan::ScopedDisabler disabler;
#endif
    return std::make_unique<QApplication>(argc, argv);
}

QString unexpected(const QStringList& warnings)
{
    for (const QString& warning : warnings) {
        if (std::none_of(expectedWarnings.begin(), expectedWarnings.end(),
                         [&](const char* known) { return warning == QLatin1String(known); }))
            return QStringLiteral("warning: ") + warning;
    }
    return QString();
}

/// Passes every message to a driver, after the handler that was installed before.
class Hearing
{
public:
    explicit Hearing(dxftest::Driver& driver)
    {
        s_driver = &driver;
        s_previous = qInstallMessageHandler(&Hearing::handle);
    }
    ~Hearing()
    {
        qInstallMessageHandler(s_previous);
        s_driver = nullptr;
    }

private:
    Q_DISABLE_COPY(Hearing)

    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        s_previous(type, context, text);
        s_driver->hear(text);
    }

    static inline dxftest::Driver* s_driver = nullptr;
    static inline QtMessageHandler s_previous = nullptr;
};

int perform(const dxftest::Sequence& sequence, QFile& progress)
{
    dxftest::LogCapture log;
    dxftest::Driver driver;
    const Hearing hearing(driver);
    for (int i = 0; i < sequence.size(); ++i) {
        progress.seek(0);
        progress.write(QByteArray::number(i));
        progress.flush();
        driver.perform(sequence[i]);

        QString problem = driver.problem();
        if (problem.isEmpty())
            problem = unexpected(log.takeWarnings());
        log.takeDebugMessages();
        if (!problem.isEmpty()) {
            std::fprintf(stderr, "%s\n", qPrintable(problem));
            return 1;
        }
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    if (qEnvironmentVariableIntValue("DXFVIEWER_TEST_ONSCREEN") == 0)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const auto application = makeApplication(argc, argv);

    QFile steps(QFile::decodeName(argv[1]));
    QFile progress(QFile::decodeName(argv[2]));
    if (!steps.open(QIODevice::ReadOnly) || !progress.open(QIODevice::WriteOnly))
        return 2;
    const auto sequence = dxftest::deserialized(steps.readAll());
    if (!sequence.isEmpty() && sequence.first().op == dxftest::Op::OwnLoop)
        return perform(sequence, progress);
    // As most hosts do it, from Qt's event loop.
    QTimer::singleShot(0, application.get(),
                       [&] { QCoreApplication::exit(perform(sequence, progress)); });
    return QApplication::exec();
}
