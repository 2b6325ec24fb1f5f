#pragma once

#include "timeline/sources/source.h"

#include <thread>

namespace cli {

/// Shows on a terminal how far a long reading is, while it lives.
class ReadingProgress {
public:
    /// `progress` outlives it.
    explicit ReadingProgress(const timeline::Progress& progress);
    ~ReadingProgress();
    ReadingProgress(const ReadingProgress&) = delete;
    ReadingProgress& operator=(const ReadingProgress&) = delete;

private:
    std::jthread thread_;
};

} // namespace cli
