#pragma once

#include "backends/windows/desktop/html_help.h"
#include "hosts/mmc/com/com_pointer.h"
#include "platform/desktop.h"

#include <functional>

namespace mmc {

/// The person's desktop from within a console: boxes are the console's own, pickers and help stand
/// over its windows.
class ConsoleDesktop final : public Desktop {
public:
    /// The console that boxes are asked of; null while there is none, and then they are the
    /// system's.
    void connect(ComPointer<IConsole2> console) { console_ = std::move(console); }

    /// Called when the person wants the program to end while the tool is at work.
    std::function<void()> onQuit;

    /// Called before a box is shown, which may stay for long.
    std::function<void()> onBox;

    void messageBox(const std::string& text, const std::string& title, MessageIcon icon) override;
    std::string pickFolder(const std::string& title) override;
    std::string pickFile(const std::string& title) override;

    /// A wish to end the program stays in the queue, for the loop below.
    void pumpMessages() override;

    int showHelp(const std::string& file, int topic) override;

    /// The console's main window; null where there is none.
    HWND mainWindow() const;

    /// The window of the tool's thread that the person is in, which may be a wizard's; else the
    /// main window.
    HWND windowInUse() const;

private:
    ComPointer<IConsole2> console_;
    HtmlHelp help_;
};

} // namespace mmc
