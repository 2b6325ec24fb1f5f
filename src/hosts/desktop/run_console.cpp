#include "hosts/desktop/run_console.h"

#include "hosts/common/look/end_wish.h"
#include "hosts/common/look/screenshot.h"
#include "hosts/common/look/theme.h"
#include "hosts/common/places.h"
#include "hosts/desktop/console_options.h"
#include "hosts/desktop/program.h"

#include <QAction>
#include <QApplication>
#include <QSettings>
#include <QTimer>

#include <exception>
#include <memory>

namespace desktop {

namespace {

const QString programName = QStringLiteral("orvandiag-console");

HostFacts hostFacts(const ConsoleOptions& options)
{
    HostFacts facts;
    facts.version = {ORVAN_VERSION_MAJOR, ORVAN_VERSION_MINOR, ORVAN_VERSION_PATCH};
    facts.commandLine = "orvandiag-console";
    facts.developmentHost = options.developmentHost;
    facts.interrupted = EndWish::signalled;
    facts.toolFolder = places::wholePath(options.toolFolder.toStdString());
    return facts;
}

int run(const ConsoleOptions& options, const std::function<void(Program&)>& opened)
{
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
    if (QAction* action = program.window().consoleAction(options.command))
        QTimer::singleShot(0, action, &QAction::trigger);
    // Only now: a window that is on show lays itself out again at each step of the opening.
    if (options.size) program.window().resize(*options.size);
    program.window().show();
    if (!options.screenshot.isEmpty()) takeScreenshot(program.window(), options.screenshot);
    const EndWish wish([&program] { program.window().end(); });
    // What unloading puts back is put back however the program ends.
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, &program.window(),
                     [&program] { program.close(); });
    if (opened) opened(program);
    const int result = wish.made() ? 0 : QApplication::exec();
    program.close();
    // The window has gone, so what it would say goes to the terminal.
    const QString problem = program.window().problem();
    return problem.isEmpty() ? result : windowStart::refuse(programName, problem.toStdString());
}

} // namespace

int runConsole(int argc, char** argv, const std::function<void(Program&)>& opened)
{
    QCoreApplication::setApplicationName(QStringLiteral("orvandiag-console"));
    QCoreApplication::setOrganizationName(QStringLiteral("orvandiag"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORVAN_VERSION));
    if (windowStart::asksForText(argc, argv)) {
        const QCoreApplication application(argc, argv);
        const auto answer = consoleOptionsOf(QCoreApplication::arguments());
        if (const auto* text = std::get_if<NoWindow>(&answer)) return windowStart::say(*text);
    }
    auto watch = std::make_unique<windowStart::DisplayWatch>(programName);
    const QApplication application(argc, argv);
    watch.reset();
    try {
        const auto options = consoleOptionsOf(QCoreApplication::arguments());
        if (const auto* refused = std::get_if<NoWindow>(&options))
            return windowStart::say(*refused);
        return run(std::get<ConsoleOptions>(options), opened);
    } catch (const std::exception& error) {
        return windowStart::refuse(programName, error.what());
    }
}

} // namespace desktop
