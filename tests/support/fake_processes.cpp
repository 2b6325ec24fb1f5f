#include "support/fake_processes.h"

#include "runtime/run_time_error.h"
#include "support/fake_paths.h"

namespace {

/// The program that a command line begins with, in lower case.
std::string programOf(const std::string& commandLine)
{
    const bool quoted = !commandLine.empty() && commandLine.front() == '"';
    const std::size_t start = quoted ? 1 : 0;
    const std::size_t end = commandLine.find(quoted ? '"' : ' ', start);
    return fakePaths::lower(commandLine.substr(start, end - start));
}

} // namespace

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

FakeProcesses& FakeProcesses::missing(const std::string& program)
{
    missing_.insert(fakePaths::lower(program));
    return *this;
}

FakeProcesses& FakeProcesses::running(std::int32_t processId)
{
    running_.insert(processId);
    return *this;
}

FakeProcesses& FakeProcesses::reporting(ProcessReport report)
{
    report_ = std::move(report);
    return *this;
}

std::int32_t FakeProcesses::start(const std::string& commandLine, WindowStyle window)
{
    commandLines_.push_back(commandLine);
    windows_.push_back(window);
    if (fault_ != 0) throw RunTimeError(fault_);
    if (missing_.count(programOf(commandLine)) != 0)
        throw RunTimeError(runTimeErrors::fileNotFound);
    if (program_) program_(commandLine);
    running_.insert(++lastId_);
    return lastId_;
}

bool FakeProcesses::wait(std::int32_t processId, std::int32_t milliseconds)
{
    waits_.emplace_back(processId, milliseconds);
    return running_.erase(processId) != 0;
}
