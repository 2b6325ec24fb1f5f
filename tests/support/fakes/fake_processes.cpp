#include "support/fakes/fake_processes.h"

#include "runtime/run_time_error.h"
#include "support/fakes/files/fake_paths.h"

namespace {

/// The program that a command line begins with.
std::string programOf(const std::string& commandLine)
{
    const bool quoted = !commandLine.empty() && commandLine.front() == '"';
    const std::size_t start = quoted ? 1 : 0;
    const std::size_t end = commandLine.find(quoted ? '"' : ' ', start);
    return commandLine.substr(start, end - start);
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
    refusals_.insert_or_assign(fakePaths::folded(program),
                               RunTimeError(runTimeErrors::fileNotFound));
    return *this;
}

FakeProcesses& FakeProcesses::forbidden(const std::string& program)
{
    refusals_.insert_or_assign(
        fakePaths::folded(program),
        RunTimeError(runTimeErrors::permissionDenied, program + " is not run"));
    return *this;
}

FakeProcesses& FakeProcesses::running(std::int32_t processId)
{
    running_.insert(processId);
    return *this;
}

FakeProcesses& FakeProcesses::reporting(ProcessReport report)
{
    nextReport_ = std::move(report);
    return *this;
}

std::int32_t FakeProcesses::start(const std::string& commandLine, WindowStyle window)
{
    commandLines_.push_back(commandLine);
    windows_.push_back(window);
    lastReport_ = {};
    if (fault_ != 0) throw RunTimeError(fault_);
    const std::string program = programOf(commandLine);
    for (const char* ending : {"", ".exe"}) {
        const auto refusal = refusals_.find(fakePaths::folded(program + ending));
        if (refusal != refusals_.end()) throw RunTimeError(refusal->second);
    }
    if (program_) program_(commandLine);
    running_.insert(++lastId_);
    return lastId_;
}

bool FakeProcesses::wait(std::int32_t processId, std::int32_t milliseconds)
{
    waits_.emplace_back(processId, milliseconds);
    if (running_.erase(processId) == 0) return false;
    lastReport_ = nextReport_;
    return true;
}
