#include "hosts/cli/terminal/terminal_desktop.h"

#include "hosts/cli/terminal/message.h"
#include "runtime/text.h"

namespace cli {

void TerminalDesktop::messageBox(const std::string& text, const std::string&, MessageIcon icon)
{
    if (beforeMessage_) beforeMessage_();
    printMessage(replaceAll(text, lineBreak, "  "));
    if (icon == MessageIcon::critical) failures_.push_back(text);
}

std::string TerminalDesktop::pickFolder(const std::string&)
{
    return answer_;
}

std::string TerminalDesktop::pickFile(const std::string&)
{
    return answer_;
}

void TerminalDesktop::pumpMessages()
{
    if (onPump_) onPump_();
}

int TerminalDesktop::showHelp(const std::string&, int)
{
    return 0;
}

} // namespace cli
