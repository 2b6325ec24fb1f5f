#include "hosts/desktop/run_console.h"

#include "hosts/desktop/places.h"
#include "hosts/desktop/program.h"
#include "hosts/desktop/screenshot.h"
#include "hosts/desktop/theme.h"

#include <QAction>
#include <QApplication>
#include <QCommandLineParser>
#include <QSettings>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <exception>

#include <unistd.h>

namespace {

int refuse(const char* text)
{
    std::fprintf(stderr, "orvandiag-console: %s\n", text);
    return 1;
}

/// Qt ends the process where it finds no display; one line has to do.
void sayWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString&)
{
    if (type != QtFatalMsg) return;
    refuse("there is no display to open a window on (set DISPLAY or WAYLAND_DISPLAY)");
    ::_exit(1);
}

struct Options {
    QString site;
    QString node;
    QString command;
    QString screenshot;
    QString size;
    QString theme;
    bool developmentHost = false;
};

Options optionsOf(const QApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Diagnoses an Orvan voice-messaging server, in a window."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption site(QStringLiteral("site"),
                                  QStringLiteral("The folder of the site to open."),
                                  QStringLiteral("DIR"));
    const QCommandLineOption node(QStringLiteral("show"),
                                  QStringLiteral("Select the node of this name, such as a log."),
                                  QStringLiteral("NAME"));
    const QCommandLineOption command(
        QStringLiteral("command"),
        QStringLiteral("Start with a command of the tool, such as mnuGatherLogFiles."),
        QStringLiteral("NAME"));
    const QCommandLineOption scheme(QStringLiteral("theme"),
                                    QStringLiteral("Look: system, light or dark."),
                                    QStringLiteral("NAME"));
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Write a picture of the window and end."),
                                        QStringLiteral("FILE"));
    const QCommandLineOption size(QStringLiteral("size"), QStringLiteral("Size of the window."),
                                  QStringLiteral("WIDTHxHEIGHT"));
    const QCommandLineOption development(
        QStringLiteral("development-host"),
        QStringLiteral("Answer the tool's debug-mode test with true."));
    parser.addOptions({site, node, command, scheme, screenshot, size, development});
    parser.process(application);
    return {parser.value(site),       parser.value(node), parser.value(command),
            parser.value(screenshot), parser.value(size), parser.value(scheme),
            parser.isSet(development)};
}

HostFacts hostFacts(const Options& options)
{
    HostFacts facts;
    facts.version = {ORVAN_VERSION_MAJOR, ORVAN_VERSION_MINOR, ORVAN_VERSION_PATCH};
    facts.commandLine = "orvandiag-console";
    facts.developmentHost = options.developmentHost;
    return facts;
}

int run(const QApplication& application, const std::function<void(Program&)>& opened)
{
    const Options options = optionsOf(application);
    QSettings settings;
    theme::apply(theme::schemeOf(options.theme.isEmpty()
                                     ? settings.value(QStringLiteral("window/theme")).toString()
                                     : options.theme));
    Program program(settings, places::installedData(), hostFacts(options));
    if (options.site.isEmpty())
        program.openDefault(places::defaultSite());
    else
        program.openSite(options.site.toStdString());
    if (!options.node.isEmpty() && !program.window().showNode(options.node.toStdString()))
        program.window().showProblem([node = options.node] {
            return QObject::tr("This site has no %1 to show.").arg(node);
        });
    if (QAction* action = program.window().consoleAction(options.command.toStdString()))
        QTimer::singleShot(0, action, &QAction::trigger);
    // Only now: a window that is on show lays itself out again at each step of the opening.
    program.window().show();
    if (!options.screenshot.isEmpty())
        takeScreenshot(program.window(), options.screenshot, options.size);
    if (opened) opened(program);
    const int result = QApplication::exec();
    program.close();
    // The window has gone, so what it would say goes to the terminal.
    const QString problem = program.window().problem();
    return problem.isEmpty() ? result : refuse(qPrintable(problem));
}

} // namespace

int runConsole(int argc, char** argv, const std::function<void(Program&)>& opened)
{
    qInstallMessageHandler(sayWithoutDisplay);
    QApplication application(argc, argv);
    qInstallMessageHandler(nullptr);
    QApplication::setApplicationName(QStringLiteral("orvandiag-console"));
    QApplication::setOrganizationName(QStringLiteral("orvandiag"));
    QApplication::setApplicationVersion(QStringLiteral(ORVAN_VERSION));
    try {
        return run(application, opened);
    } catch (const std::exception& error) {
        return refuse(error.what());
    }
}
