#pragma once

#include "backends/windows/desktop/html_help.h"
#include "platform/desktop.h"

#include <windows.h>

/// The person's desktop, by the system's own boxes and pickers.
class WindowsDesktop final : public Desktop {
public:
    /// `owner` is the window over which boxes and pickers stand, or null; it outlives this.
    explicit WindowsDesktop(HWND owner) : owner_(owner) {}

    void messageBox(const std::string& text, const std::string& title, MessageIcon icon) override;
    std::string pickFolder(const std::string& title) override;

    /// Stands over the window that the person looks at.
    std::string pickFile(const std::string& title) override;

    /// A wish to end the program stays in the queue, for the host's own loop.
    void pumpMessages() override;

    /// The lower 32 bits of the window's handle, which are all that the system uses of one.
    int showHelp(const std::string& file, int topic) override;

private:
    HWND owner_;
    HtmlHelp help_;
};
