#pragma once

#include "platform/processes.h"
#include "runtime/run_time_error.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

/// Starts nothing and remembers what should have been started.
class FakeProcesses final : public Processes {
public:
    /// Runs in place of each started program, with its command line.
    FakeProcesses& onStart(std::function<void(const std::string& commandLine)> program);

    /// From now on every start raises `number`; 0 ends that.
    FakeProcesses& failing(int number);

    /// A command line that begins with this program, quoted or not, raises 53; or 70, as one that
    /// may not be run.
    FakeProcesses& missing(const std::string& program);
    FakeProcesses& forbidden(const std::string& program);

    /// A process that a test pretends is running.
    FakeProcesses& running(std::int32_t processId);

    /// What is known from now on of a process, once it was waited for.
    FakeProcesses& reporting(ProcessReport report);

    const std::vector<std::string>& commandLines() const { return commandLines_; }
    const std::vector<WindowStyle>& windows() const { return windows_; }

    /// Process id and milliseconds of each wait.
    const std::vector<std::pair<std::int32_t, std::int32_t>>& waits() const { return waits_; }

    std::int32_t start(const std::string& commandLine, WindowStyle window) override;

    /// A process ends with its wait, so that a second wait for it gives false.
    bool wait(std::int32_t processId, std::int32_t milliseconds) override;

    ProcessReport lastReport() const override { return lastReport_; }

private:
    ProcessReport nextReport_;
    ProcessReport lastReport_;
    std::function<void(const std::string&)> program_;
    int fault_ = 0;
    std::map<std::string, RunTimeError> refusals_; ///< by program, folded
    std::int32_t lastId_ = 1000;
    std::set<std::int32_t> running_;
    std::vector<std::string> commandLines_;
    std::vector<WindowStyle> windows_;
    std::vector<std::pair<std::int32_t, std::int32_t>> waits_;
};
