#pragma once

#include "hosts/common/logs/log_opener.h"
#include "hosts/viewer/document/shared_timeline.h"
#include "timeline/sources/macro_trace_definitions.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <stop_token>
#include <string>
#include <thread>
#include <vector>

namespace viewer {

/// Where a source is.
struct SourceHome {
    std::string name; ///< as a person knows it: a file's, or a cabinet's and its member's
    std::string file; ///< of the machine that has it, which may be a cabinet; empty for a pipe
};

/// What opening a path came to.
struct OpenedPath {
    std::string path;
    std::size_t sources = 0;
    std::size_t firstSource = 0;                             ///< the number of the first one
    std::vector<SourceHome> homes;                           ///< of its sources
    std::vector<std::string> troubles;                       ///< sentences of what can't be read
    std::vector<timeline::MacroTraceDefinition> macroTraces; ///< of its trace databases
    std::vector<std::string> notes; ///< the same of what was passed over, or guessed
};

/// Opens paths one after the other on a thread of its own, and adds what they lead to to a
/// timeline.
class SourceOpening {
public:
    /// Are called on the opening's thread: with each path before it is opened, and once it is.
    struct Told {
        std::function<void(const std::string&)> before;
        std::function<void(OpenedPath)> opened;
    };

    /// The timeline outlives it.
    SourceOpening(SharedTimeline& timeline, Told told);
    ~SourceOpening();

    /// Opens a path of the machine, or standard input for "-", behind those before it.
    void open(const std::string& path);

    /// Gives up what is being opened, which is still told of, and what waits: the number of those
    /// paths.
    std::size_t cancel();

private:
    void run(const std::stop_token& stop);
    OpenedPath openNow(const std::string& path);

    SharedTimeline& timeline_;
    Told told_;
    LogOpener opener_;
    timeline::Progress progress_;
    std::mutex asking_; ///< of the paths
    std::condition_variable_any asked_;
    std::deque<std::string> paths_;
    bool opens_ = false; ///< the first of them
    std::jthread thread_;
};

} // namespace viewer
