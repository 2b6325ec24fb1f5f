#include "hosts/viewer/window/viewer_options.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace viewer {

namespace {

const QString programName = QStringLiteral("orvandiag-viewer");

NoWindow refused(const QString& sentence)
{
    return windowStart::refusedUsage(programName, sentence);
}

QCommandLineOption option(const char* name, const char* what, const char* value)
{
    return {QString::fromLatin1(name), QString::fromLatin1(what), QString::fromLatin1(value)};
}

void declare(QCommandLineParser& parser)
{
    // The tool that gathers starts the viewer with "-db" and the database.
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(
        QStringLiteral("Shows logs, trace databases and gathered cabinets as one line of time."));
    parser.addOptions({
        {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help.")},
        {{QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("Show the version.")},
        {QStringLiteral("follow"), QStringLiteral("Show what comes to logs as they grow.")},
        option("db", "A trace database to open.", "DATABASE"),
        {QStringLiteral("fresh"),
         QStringLiteral("Show all rows, not what was on show when the sources were open last.")},
        option("theme", "Look: system, light or dark.", "NAME"),
        option("size", "Size of the window, such as 1280x760.", "WIDTHxHEIGHT"),
        option("screenshot", "Write a picture of the window and end.", "FILE"),
    });
    parser.addPositionalArgument(
        QStringLiteral("SOURCE"),
        QStringLiteral("A log, a trace database, a cabinet, an exported event log, or a folder of "
                       "those; - for standard input."),
        QStringLiteral("[SOURCE]..."));
}

} // namespace

std::variant<ViewerOptions, NoWindow> viewerOptionsOf(const QStringList& arguments)
{
    QCommandLineParser parser;
    declare(parser);
    if (!parser.parse(arguments)) return refused(parser.errorText());
    if (parser.isSet(QStringLiteral("help"))) return NoWindow{parser.helpText().toStdString()};
    if (parser.isSet(QStringLiteral("version")))
        return NoWindow{programName.toStdString() + " " +
                        QCoreApplication::applicationVersion().toStdString() + "\n"};

    ViewerOptions options;
    options.sources = parser.values(QStringLiteral("db")) + parser.positionalArguments();
    if (options.sources.contains(QString()))
        return refused(QStringLiteral("an empty name leads to no source"));
    options.follow = parser.isSet(QStringLiteral("follow"));
    options.theme = parser.value(QStringLiteral("theme"));
    options.fresh = parser.isSet(QStringLiteral("fresh"));
    options.screenshot = parser.value(QStringLiteral("screenshot"));
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

} // namespace viewer
