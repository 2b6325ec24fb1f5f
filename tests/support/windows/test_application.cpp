#include "support/windows/test_application.h"

#include "hosts/common/look/theme.h"

#include <QApplication>
#include <QElapsedTimer>

#include <cstdio>

/// Asked by the leak sanitizer: fontconfig keeps what it has read of fonts to the program's end.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig";
}

namespace {

/// All that Qt says but for what the offscreen platform says of itself at each window.
void passOn(QtMsgType, const QMessageLogContext&, const QString& text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

} // namespace

QApplication& testApplication()
{
    static int count = 1;
    static char name[] = "window_test";
    static char* arguments[] = {name, nullptr};
    if (!qApp) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler(passOn);
        // Never destroyed: Qt's own statics are gone when those of a program go.
        new QApplication(count, arguments);
        // The last window of a test is not the end of the program.
        QGuiApplication::setQuitOnLastWindowClosed(false);
        theme::apply(theme::Scheme::light);
    }
    return *qApp;
}

void settle()
{
    // An event may post another one.
    for (int round = 0; round < 5; ++round) QCoreApplication::processEvents();
}

bool waitUntil(const std::function<bool()>& holds, int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    while (!holds()) {
        if (clock.elapsed() > milliseconds) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return true;
}
