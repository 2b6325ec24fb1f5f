#include "hosts/desktop/console_options.h"

#include "hosts/desktop/window/commands.h"
#include "text/visible_text.h"

#include <QCommandLineParser>
#include <QRegularExpression>

#include <algorithm>
#include <string_view>

namespace desktop {

namespace {

constexpr int wrongUsage = 2;
constexpr std::string_view textOptions[] = {"-h", "--help", "-v", "--version"};
const QString themeNames[] = {QStringLiteral("system"), QStringLiteral("light"),
                              QStringLiteral("dark")};

NoWindow refused(const QString& sentence)
{
    return {"orvandiag-console: " + visibleText(sentence.toStdString()) +
                " (orvandiag-console --help tells the options)\n",
            wrongUsage};
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
                       "place,\nwhere it makes a sample server when there is none."));
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

std::optional<QSize> sizeOf(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^([1-9][0-9]{1,4})x([1-9][0-9]{1,4})$"));
    const auto match = form.match(text);
    if (!match.hasMatch()) return std::nullopt;
    return QSize(match.captured(1).toInt(), match.captured(2).toInt());
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
    const bool themed = parser.isSet(QStringLiteral("theme"));
    if (themed && std::find(std::begin(themeNames), std::end(themeNames), options.theme) ==
                      std::end(themeNames))
        return refused(
            QStringLiteral("--theme takes system, light or dark, not %1").arg(options.theme));
    if (parser.isSet(QStringLiteral("size"))) {
        options.size = sizeOf(parser.value(QStringLiteral("size")));
        if (!options.size)
            return refused(QStringLiteral("--size takes a size such as 1280x760, not %1")
                               .arg(parser.value(QStringLiteral("size"))));
    }
    return options;
}

bool asksForText(int argc, const char* const* argv)
{
    return std::any_of(argv + 1, argv + std::max(1, argc), [](std::string_view argument) {
        return std::find(std::begin(textOptions), std::end(textOptions), argument) !=
               std::end(textOptions);
    });
}

} // namespace desktop
