// SPDX-License-Identifier: GPL-2.0-or-later

// A host that leaks a window in edit mode, in the middle of a stroke, and exits. The argument says
// how: "destroyed", "quit", "exit", "leaked" or "second". It must exit with 0 and print nothing.

#include "dxfviewer/viewer/DXFViewer.h"
#include "dxfviewer/viewer/View.h"

#include "tests/support/SceneMouse.h"
#include "tests/support/WindowParts.h"

#include <QAction>
#include <QApplication>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace
{

using namespace dxftest;

/// Prints all messages except debug messages and those about missing features of the platform.
void say(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    if (type != QtDebugMsg && !text.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

// A global, so that LeakSanitizer still finds the window and reports no leak.
DXFViewer* window = nullptr;

bool leakWindowInAStroke()
{
    window = new DXFViewer;
    window->show();
    if (!loadAndShow(*window, drawingText({{{{0, 0}, {100, 0}, {100, 100}, {0, 100}}, false}})))
        return false;
    editActionOf(*window).setChecked(true);

    SceneMouse mouse(viewOf(*window));
    mouse.drag({{50, -20}, {50, 0}, {50, 20}});
    mouse.press({120, 50});
    mouse.move({100, 50});
    return window->getData().count("VERTEX") == 3;
}

int failure(const char* text)
{
    std::fprintf(stderr, "%s\n", text);
    return EXIT_FAILURE;
}

int run(QApplication& application, const QByteArray& manner)
{
    if (!leakWindowInAStroke())
        return failure("the stroke erased nothing");
    if (manner == "quit") {
        QTimer::singleShot(0, &application, &QCoreApplication::quit);
        return QApplication::exec();
    }
    if (manner == "exit") {
        QTimer::singleShot(0, &application, [] { std::exit(EXIT_SUCCESS); });
        return QApplication::exec();
    }
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    qInstallMessageHandler(say);
    const QByteArray manner(argc > 1 ? argv[1] : "");
    if (manner == "leaked") {
        static auto* application = new QApplication(argc, argv);
        return run(*application, manner);
    }
    if (manner == "second") {
        const QApplication first(argc, argv);
        if (!leakWindowInAStroke())
            return failure("the stroke erased nothing");
        delete window;
    }
    QApplication application(argc, argv);
    return run(application, manner);
}
