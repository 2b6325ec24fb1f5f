#pragma once

#include "platform/processes.h"

#include <functional>
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

    /// A command line that begins with this program, quoted or not, raises 53.
    FakeProcesses& missing(const std::string& program);

    /// A process that a test pretends is running.
    FakeProcesses& running(std::int32_t processId);

    /// What is known of the process that was waited for.
    FakeProcesses& reporting(ProcessReport report);

    const std::vector<std::string>& commandLines() const { return commandLines_; }
    const std::vector<WindowStyle>& windows() const { return windows_; }

    /// Process id and milliseconds of each wait.
    const std::vector<std::pair<std::int32_t, std::int32_t>>& waits() const { return waits_; }

    std::int32_t start(const std::string& commandLine, WindowStyle window) override;

    /// A process ends with its wait, so that a second wait for it gives false.
    bool wait(std::int32_t processId, std::int32_t milliseconds) override;

    ProcessReport lastReport() const override { return report_; }

private:
    ProcessReport report_;
    std::function<void(const std::string&)> program_;
    int fault_ = 0;
    std::set<std::string> missing_;
    std::int32_t lastId_ = 1000;
    std::set<std::int32_t> running_;
    std::vector<std::string> commandLines_;
    std::vector<WindowStyle> windows_;
    std::vector<std::pair<std::int32_t, std::int32_t>> waits_;
};
