#include "hosts/cli/terminal/terminal_desktop.h"

#include "platform/desktop_contract.h"

#include <functional>
#include <string>

namespace cli {
namespace {

/// A person at a terminal, whose answers the command line gave.
class PersonAtATerminal {
public:
    Desktop& desktop() { return desktop_; }

    void personCloses()
    {
        seen_ = false;
        desktop_.beforeMessage([this] { seen_ = true; });
    }
    bool boxWasSeen() const { return seen_; }

    std::string personPicksFolder() { return picks("C:\\Out"); }
    std::string personPicksFile() { return picks("C:\\Logs\\a.txt"); }
    void personCancels() { desktop_.answerPickers(""); }

    void post(std::function<void()> event) { desktop_.onPump(std::move(event)); }

    bool showsHelp() const { return false; }
    int helpTopic() const { return 100; }

private:
    std::string picks(const std::string& path)
    {
        desktop_.answerPickers(path);
        return path;
    }

    TerminalDesktop desktop_;
    bool seen_ = false;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Terminal, DesktopContract, PersonAtATerminal);

/// What a box brings to standard error.
std::string shown(TerminalDesktop& desktop, const std::string& text, MessageIcon icon)
{
    testing::internal::CaptureStderr();
    desktop.messageBox(text, "Title", icon);
    return testing::internal::GetCapturedStderr();
}

TEST(TerminalDesktop, ShowsABoxAsOneLineWithoutItsTitle)
{
    TerminalDesktop desktop;
    EXPECT_EQ("orvandiag: one  two\n", shown(desktop, "one\r\ntwo", MessageIcon::information));
}

TEST(TerminalDesktop, KeepsTheTextsOfBoxesThatTellOfAFailure)
{
    TerminalDesktop desktop;
    shown(desktop, "done", MessageIcon::information);
    shown(desktop, "one\r\ntwo", MessageIcon::critical);
    EXPECT_EQ((std::vector<std::string>{"one\r\ntwo"}), desktop.failures());
}

} // namespace
} // namespace cli
