#pragma once

#include "platform/desktop.h"

#include <functional>
#include <string>
#include <vector>

namespace cli {

/// The person at a terminal: boxes become lines on standard error, pickers take the answer that the
/// command line gave.
class TerminalDesktop final : public Desktop {
public:
    void messageBox(const std::string& text, const std::string& title, MessageIcon icon) override;
    std::string pickFolder(const std::string& title) override;
    std::string pickFile(const std::string& title) override;
    void pumpMessages() override;
    int showHelp(const std::string& file, int topic) override;

    /// What the next pickers answer; the empty text is a cancel.
    void answerPickers(std::string path) { answer_ = std::move(path); }

    /// Runs at each pump, such as to see whether the person pressed Ctrl-C.
    void onPump(std::function<void()> handler) { onPump_ = std::move(handler); }

    /// Runs before a line goes to standard error, such as to take a progress bar away.
    void beforeMessage(std::function<void()> handler) { beforeMessage_ = std::move(handler); }

    /// Texts of the boxes shown so far that told of a failure.
    const std::vector<std::string>& failures() const { return failures_; }

private:
    std::string answer_;
    std::function<void()> onPump_;
    std::function<void()> beforeMessage_;
    std::vector<std::string> failures_;
};

} // namespace cli
