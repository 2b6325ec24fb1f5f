#pragma once

#include <string>

enum class MessageIcon { none, information, exclamation, critical };

/// What the tool asks of the person's desktop besides the console's own windows.
class Desktop {
public:
    virtual ~Desktop() = default;

    /// Shows a box with an OK button and returns when it is closed.
    virtual void messageBox(const std::string& text, const std::string& title,
                            MessageIcon icon) = 0;

    /// Lets the person pick a folder; the empty text when the person cancels.
    virtual std::string pickFolder(const std::string& title) = 0;

    /// Lets the person pick a file or a folder; the empty text when the person cancels.
    virtual std::string pickFile(const std::string& title) = 0;

    /// Handles what waits in the host's message queue: the only way back into the tool's events,
    /// and so to a cancel, during long work.
    virtual void pumpMessages() = 0;

    /// Shows a help file, at its first page or at a numeric topic above 0. The window's handle, or
    /// 0 when nothing is shown.
    virtual int showHelp(const std::string& file, int topic) = 0;
};
