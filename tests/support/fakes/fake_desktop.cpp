#include "support/fakes/fake_desktop.h"

#include "runtime/run_time_error.h"

void FakeDesktop::messageBox(const std::string& text, const std::string& title, MessageIcon icon)
{
    messages_.push_back(Message{text, title, icon});
}

std::string FakeDesktop::nextAnswer()
{
    if (pickerFault_ != 0) throw RunTimeError(pickerFault_);
    if (answers_.empty()) return "";
    std::string answer = std::move(answers_.front());
    answers_.pop_front();
    return answer;
}

std::string FakeDesktop::pickFolder(const std::string& title)
{
    folderPickers_.push_back(title);
    return nextAnswer();
}

std::string FakeDesktop::pickFile(const std::string& title)
{
    filePickers_.push_back(title);
    return nextAnswer();
}

void FakeDesktop::pumpMessages()
{
    ++pumps_;
    if (event_) event_();
}

int FakeDesktop::showHelp(const std::string& file, int topic)
{
    help_.push_back(Help{file, topic});
    return helpWindow;
}
