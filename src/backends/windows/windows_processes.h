#pragma once

#include "platform/processes.h"
#include "system/windows/windows_calls.h"

#include <map>

/// Programs of the machine itself. A process is held until it was waited for to its end, so that
/// its number means no other one, and how it ended is known.
class WindowsProcesses final : public Processes {
public:
    std::int32_t start(const std::string& commandLine, WindowStyle window) override;

    /// Windows of the caller's thread go on to get what other threads and programs send them.
    bool wait(std::int32_t processId, std::int32_t milliseconds) override;

    ProcessReport lastReport() const override { return lastReport_; }

private:
    std::map<std::int32_t, OwnedHandle> started_;
    ProcessReport lastReport_;
};
