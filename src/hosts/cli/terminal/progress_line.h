#pragma once

#include <chrono>
#include <string>

namespace cli {

/// A progress bar on standard error, drawn only when that is a terminal, and at most some ten times
/// a second.
class ProgressLine {
public:
    ProgressLine();
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// `done` is 0 to 1; `caption` tells what is being done.
    void show(double done, const std::string& caption);

    /// Takes the bar away, so that a line of text can be written.
    void clear();

private:
    bool terminal_;
    bool drawn_ = false;
    int width_ = 80;
    std::chrono::steady_clock::time_point last_;
};

} // namespace cli
