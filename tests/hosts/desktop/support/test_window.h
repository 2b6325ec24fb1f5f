#pragma once

#include "hosts/desktop/open_tool.h"
#include "hosts/desktop/window/console_pane.h"
#include "hosts/desktop/window/main_window.h"
#include "sample/sample_server.h"
#include "support/fakes/fake_desktop.h"
#include "support/temporary_folder.h"
#include "support/windows/test_application.h"

#include <QApplication>
#include <QSettings>

#include <cstddef>
#include <memory>
#include <string>

namespace desktop {

/// A sample server in a folder of its own.
class TestServer {
public:
    explicit TestServer(std::size_t lines = 4000, LogFields fields = LogFields::basic);

    std::string site() const { return folder_ / "site"; }
    std::string logs() const { return site() + "/drive_c/KelmaOrvan/Logs"; }

    /// The name of the log that a process writes to at the end of the sample's days.
    std::string currentLog(const std::string& process) const;

    /// Makes a language the user's, for a tool that is opened from now on.
    void speak(int language) const;

    const TemporaryFolder& folder() const { return folder_; }

private:
    TemporaryFolder folder_;
};

/// A window on a sample server, with a scripted person in the place of boxes and pickers.
struct TestWindow {
    explicit TestWindow(std::size_t lines = 4000, LogFields fields = LogFields::basic);
    ~TestWindow();

    ConsolePane& pane() { return *window->pane(); }
    LogView& log();
    Console& console() { return tool->console(); }
    ListView& shownList();

    /// Shows the current log of a process.
    void showLog(const std::string& process);

    /// Chooses an interface language, such as 1036, in the about box. Raises when it is not there.
    void chooseLanguage(int identifier);

    /// Lets the window go and makes another one on the same site and settings.
    void reopen();

    /// The same, with another language of the user's.
    void reopenIn(int language);

    TestServer server;
    QSettings settings;
    FakeDesktop desktop;
    std::unique_ptr<OpenTool> tool;
    std::unique_ptr<MainWindow> window;

private:
    void open();
};

} // namespace desktop
