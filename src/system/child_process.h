#pragma once

#include "system/file_descriptor.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// What a program is started with.
struct ChildProcessPlan {
    std::string program;                ///< its file, a path of the machine
    std::vector<std::string> arguments; ///< without the program's own name
    std::string folder;                 ///< where it begins, a path of the machine

    /// What it finds in its environment besides what is in ours, or in place of it.
    std::map<std::string, std::string> variables;

    /// Where its standard error goes: an open file, or -1 for nowhere.
    int standardError = -1;
};

/// How a program has ended.
struct ChildProcessEnd {
    int status = 0; ///< what it gave; 0 for success
    int signal = 0; ///< what ended it, or 0
};

/// Starts a program without a shell, with nothing to read and its output thrown away, in a process
/// group of its own, so that Ctrl-C does not reach it. Gives its number. Raises 53 for what is no
/// file, 70 for one that may not be run, and 5 where the machine can't start it.
std::int32_t startChildProcess(const ChildProcessPlan& plan);

/// What became of a program that was started and not waited for to its end yet.
enum class ChildProcessState {
    runs,
    ended,
    unknown, ///< nobody can tell any more
};

/// Looks whether a program has ended, or waits for its end. `end` is set where the state is
/// `ended`, after which its number means nothing.
ChildProcessState lookAtChildProcess(std::int32_t process, bool waits, ChildProcessEnd& end);

/// A file of the program's own, which is gone once nobody has it open, in memory where the system
/// has such: to be read and written. Not open where there is none to be had.
FileDescriptor makeMemoryFile();
