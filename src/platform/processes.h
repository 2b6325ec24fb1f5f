#pragma once

#include <cstdint>
#include <string>

enum class WindowStyle { hidden, normal };

/// What is known of a process that was waited for to its end.
struct ProcessReport {
    std::string failure;   ///< why it failed, in its own words without a point; empty: it did not
    bool replaced = false; ///< the installed program ran in place of another one of its name
};

/// Other programs.
class Processes {
public:
    virtual ~Processes() = default;

    /// Starts a command line, split by the platform's quoting rules, in the current folder; a
    /// program name without an ending also finds `NAME.exe`. Gives the process id. Raises 53
    /// (program not found), 5 (it does not start), 70 (also for one that may not be run: the
    /// description then says so).
    virtual std::int32_t start(const std::string& commandLine, WindowStyle window) = 0;

    /// Waits for a process, -1 for as long as it takes. True when the wait ended or timed out,
    /// false for a process that is not there.
    virtual bool wait(std::int32_t processId, std::int32_t milliseconds) = 0;

    /// Of the process that was last waited for to its end; an empty one where nothing is known,
    /// and once another start was tried.
    virtual ProcessReport lastReport() const { return {}; }
};
