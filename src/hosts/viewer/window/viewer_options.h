#pragma once

#include "hosts/common/look/window_start.h"

#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace viewer {

/// What the viewer's command line asks for. An empty text: nothing was said of it.
struct ViewerOptions {
    QStringList sources; ///< paths in the order in which they are opened, databases first
    QString theme;       ///< "system", "light" or "dark"
    QString screenshot;  ///< a file for a picture of the window, after which the program ends
    std::optional<QSize> size;
    bool follow = false; ///< whether logs are followed from the beginning
    bool fresh = false;  ///< sources are not shown as they were seen last
};

/// Reads a command line, the program's name first. Needs an application object of any kind.
std::variant<ViewerOptions, NoWindow> viewerOptionsOf(const QStringList& arguments);

} // namespace viewer
