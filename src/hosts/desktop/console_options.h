#pragma once

#include "hosts/common/look/window_start.h"

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

/// Reads a command line, the program's name first. Needs an application object of any kind.
std::variant<ConsoleOptions, NoWindow> consoleOptionsOf(const QStringList& arguments);

} // namespace desktop
