#include "hosts/common/look/window_start.h"

#include "text/visible_text.h"

#include <QRegularExpression>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace windowStart {

namespace {

constexpr int wrongUsage = 2;
constexpr std::string_view textOptions[] = {"-h", "--help", "-v", "--version"};

/// Of the program that has no display yet; Qt's handler of messages takes nothing along.
QString& watchedProgram()
{
    static QString program;
    return program;
}

void sayWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString&)
{
    if (type != QtFatalMsg) return;
    refuse(watchedProgram(),
           "there is no display to open a window on (set DISPLAY or WAYLAND_DISPLAY)");
    std::_Exit(1);
}

} // namespace

bool asksForText(int argc, const char* const* argv)
{
    return std::any_of(argv + 1, argv + std::max(1, argc), [](std::string_view argument) {
        return std::find(std::begin(textOptions), std::end(textOptions), argument) !=
               std::end(textOptions);
    });
}

NoWindow refusedUsage(const QString& program, const QString& sentence)
{
    const std::string name = program.toStdString();
    return {name + ": " + visibleText(sentence.toStdString()) + " (" + name +
                " --help tells the options)\n",
            wrongUsage};
}

std::optional<QSize> sizeOf(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^([1-9][0-9]{1,4})x([1-9][0-9]{1,4})$"));
    const auto match = form.match(text);
    if (!match.hasMatch()) return std::nullopt;
    return QSize(match.captured(1).toInt(), match.captured(2).toInt());
}

bool isTheme(const QString& text)
{
    return text == QLatin1String("system") || text == QLatin1String("light") ||
           text == QLatin1String("dark");
}

int say(const NoWindow& answer)
{
    std::fputs(answer.text.c_str(), answer.status == 0 ? stdout : stderr);
    return answer.status;
}

int refuse(const QString& program, const std::string& text)
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(program), visibleText(text).c_str());
    return 1;
}

DisplayWatch::DisplayWatch(const QString& program)
{
    watchedProgram() = program;
    qInstallMessageHandler(sayWithoutDisplay);
}

DisplayWatch::~DisplayWatch()
{
    qInstallMessageHandler(nullptr);
}

} // namespace windowStart
