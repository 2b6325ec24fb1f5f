#include "support/fake_processes.h"

#include "runtime/run_time_error.h"

FakeProcesses& FakeProcesses::onStart(std::function<void(const std::string& commandLine)> program)
{
    program_ = std::move(program);
    return *this;
}

FakeProcesses& FakeProcesses::failing(int number)
{
    fault_ = number;
    return *this;
}

FakeProcesses& FakeProcesses::running(std::int32_t processId)
{
    running_.insert(processId);
    return *this;
}

std::int32_t FakeProcesses::start(const std::string& commandLine, WindowStyle window)
{
    commandLines_.push_back(commandLine);
    windows_.push_back(window);
    if (fault_ != 0) throw RunTimeError(fault_);
    if (program_) program_(commandLine);
    running_.insert(++lastId_);
    return lastId_;
}

bool FakeProcesses::wait(std::int32_t processId, std::int32_t milliseconds)
{
    waits_.emplace_back(processId, milliseconds);
    return running_.erase(processId) != 0;
}
