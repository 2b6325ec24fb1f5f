#include "hosts/desktop/console_options.h"

#include "hosts/desktop/window/commands.h"

#include <QCommandLineParser>

namespace desktop {

namespace {

const QString programName = QStringLiteral("orvandiag-console");

NoWindow refused(const QString& sentence)
{
    return windowStart::refusedUsage(programName, sentence);
}

QCommandLineOption option(const char* name, const char* what, const char* value = "")
{
    return {QString::fromLatin1(name), QString::fromLatin1(what), QString::fromLatin1(value)};
}

void declare(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Diagnoses an Orvan voice-messaging server, in a window.\n\n"
                       "Without --site it opens the site at $ORVAN_SITE, else the one at the usual "
                       "place;\nwhere there is none, it offers to open or make one."));
    parser.addOptions({
        {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help.")},
        {{QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("Show the version.")},
        option("site", "The folder of the site to open.", "DIR"),
        option("tool-folder",
               "The folder of the tool's files, also one of this machine; else the site's.", "DIR"),
        option("show", "Select the node of this name, such as a log.", "NAME"),
        option("command", "Start with a command of the tool, such as mnuGatherLogFiles.", "NAME"),
        option("theme", "Look: system, light or dark.", "NAME"),
        option("size", "Size of the window, such as 1280x760.", "WIDTHxHEIGHT"),
        option("screenshot", "Write a picture of the window and end.", "FILE"),
    });
    QCommandLineOption developmentHost(QStringLiteral("development-host"));
    developmentHost.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(developmentHost);
}

} // namespace

std::variant<ConsoleOptions, NoWindow> consoleOptionsOf(const QStringList& arguments)
{
    QCommandLineParser parser;
    declare(parser);
    if (!parser.parse(arguments)) return refused(parser.errorText());
    if (parser.isSet(QStringLiteral("help"))) return NoWindow{parser.helpText().toStdString()};
    if (parser.isSet(QStringLiteral("version")))
        return NoWindow{"orvandiag-console " +
                        QCoreApplication::applicationVersion().toStdString() + "\n"};
    if (!parser.positionalArguments().isEmpty())
        return refused(QStringLiteral("%1 stands alone; a site is given with --site")
                           .arg(parser.positionalArguments().first()));

    ConsoleOptions options;
    options.site = parser.value(QStringLiteral("site"));
    options.toolFolder = parser.value(QStringLiteral("tool-folder"));
    options.node = parser.value(QStringLiteral("show"));
    options.command = parser.value(QStringLiteral("command")).toStdString();
    options.theme = parser.value(QStringLiteral("theme"));
    options.screenshot = parser.value(QStringLiteral("screenshot"));
    options.developmentHost = parser.isSet(QStringLiteral("development-host"));
    if (!options.command.empty() && keyOfConsoleItem(options.command).isEmpty())
        return refused(QStringLiteral("the tool has no command %1")
                           .arg(QString::fromStdString(options.command)));
    if (parser.isSet(QStringLiteral("theme")) && !windowStart::isTheme(options.theme))
        return refused(
            QStringLiteral("--theme takes system, light or dark, not %1").arg(options.theme));
    if (parser.isSet(QStringLiteral("size"))) {
        options.size = windowStart::sizeOf(parser.value(QStringLiteral("size")));
        if (!options.size)
            return refused(QStringLiteral("--size takes a size such as 1280x760, not %1")
                               .arg(parser.value(QStringLiteral("size"))));
    }
    return options;
}

} // namespace desktop
