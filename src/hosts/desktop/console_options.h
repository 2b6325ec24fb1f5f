#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>
#include <string>
#include <variant>

namespace desktop {

/// What the console's command line asks for. An empty text: nothing was said of it.
struct ConsoleOptions {
    QString site;        ///< a folder
    QString toolFolder;  ///< of the tool's files, a drive's path or one of this machine
    QString node;        ///< to select at the start
    std::string command; ///< of the tool, to start with
    QString theme;       ///< "system", "light" or "dark"
    QString screenshot;  ///< a file for a picture of the window, after which the program ends
    std::optional<QSize> size;
    bool developmentHost = false;
};

/// Why no window opens: a text for the terminal and the exit status.
struct NoWindow {
    std::string text;
    int status = 0; ///< 0: the text was asked for; 2: wrong usage
};

/// Reads a command line, the program's name first. Needs an application object of any kind.
std::variant<ConsoleOptions, NoWindow> consoleOptionsOf(const QStringList& arguments);

/// Whether a command line asks for a text alone, which needs no display.
bool asksForText(int argc, const char* const* argv);

} // namespace desktop
