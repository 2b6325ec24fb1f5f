#pragma once

#include "backends/site/site_host_module.h"
#include "hosts/common/look/interface_language.h"
#include "hosts/desktop/desktop_services.h"
#include "hosts/desktop/open_tool.h"
#include "hosts/desktop/window/main_window.h"

#include <QString>

#include <functional>
#include <memory>
#include <string>

class QSettings;

namespace desktop {

/// The window, and the tool on the site that is open in it.
class Program {
public:
    /// `settings` outlives the program. `installedData` is what ships with the tool.
    Program(QSettings& settings, std::string installedData, HostFacts facts);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Opens a site in the place of the one before. A site that can't be opened leaves what was
    /// open, and the window says why.
    void openSite(const std::string& folder);

    /// Makes a sample server in a folder, with the folders above it, and opens it.
    void openSample(const std::string& folder);

    /// Shows a file of the machine: a log by the tool's own command, as if it was picked; what the
    /// tool does not read, and anything while no site is open, in the viewer. The window says why
    /// when neither can be.
    void openFile(const QString& path);

    /// Opens a file of the machine in the viewer; the window says why where that can't be.
    void openForViewer(const QString& path);

    /// Opens the site at the default place; where none is there, the window shows the ways to
    /// begin.
    void openDefault(const std::string& folder);

    /// Lets the tool go. The window says what went wrong with it.
    void close();

    MainWindow& window() { return window_; }

    /// Null while no site is open.
    OpenTool* tool() { return tool_.get(); }

    /// Opens a file in the viewer; false where that can't be.
    std::function<bool(const QString& path)> viewer;

    DesktopServices& desktop() { return desktop_; }

private:
    LiveSentence letGo();

    QSettings& settings_;
    std::string installedData_;
    HostFacts facts_;
    DesktopServices desktop_;
    std::unique_ptr<OpenTool> tool_;
    MainWindow window_;
};

} // namespace desktop
