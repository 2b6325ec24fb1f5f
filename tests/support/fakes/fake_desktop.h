#pragma once

#include "platform/desktop.h"

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

/// A person at the desktop, as a test scripts one: pickers give the answers set for them, in order,
/// and then a cancel.
class FakeDesktop final : public Desktop {
public:
    struct Message {
        std::string text;
        std::string title;
        MessageIcon icon = MessageIcon::none;

        friend bool operator==(const Message&, const Message&) = default;
    };

    struct Help {
        std::string file;
        int topic = 0;

        friend bool operator==(const Help&, const Help&) = default;
    };

    FakeDesktop& picks(const std::string& path)
    {
        answers_.push_back(path);
        return *this;
    }

    /// From now on each picker raises `number`; 0 ends that.
    FakeDesktop& pickersFailing(int number)
    {
        pickerFault_ = number;
        return *this;
    }

    /// Runs in every pump, as a waiting event would.
    FakeDesktop& onPump(std::function<void()> event)
    {
        event_ = std::move(event);
        return *this;
    }

    /// What `showHelp` gives; 0 for help that does not show.
    int helpWindow = 1;

    const std::vector<Message>& messages() const { return messages_; }
    const std::vector<Help>& helpShown() const { return help_; }
    int pumps() const { return pumps_; }

    /// Titles of the pickers shown.
    const std::vector<std::string>& folderPickers() const { return folderPickers_; }
    const std::vector<std::string>& filePickers() const { return filePickers_; }

    void messageBox(const std::string& text, const std::string& title, MessageIcon icon) override;
    std::string pickFolder(const std::string& title) override;
    std::string pickFile(const std::string& title) override;
    void pumpMessages() override;
    int showHelp(const std::string& file, int topic) override;

private:
    std::string nextAnswer();

    std::deque<std::string> answers_;
    int pickerFault_ = 0;
    std::function<void()> event_;
    std::vector<Message> messages_;
    std::vector<Help> help_;
    int pumps_ = 0;
    std::vector<std::string> folderPickers_;
    std::vector<std::string> filePickers_;
};
