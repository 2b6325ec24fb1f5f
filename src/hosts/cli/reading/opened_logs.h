#pragma once

#include "hosts/common/logs/log_opener.h"
#include "timeline/timeline.h"

#include <memory>
#include <string>
#include <vector>

namespace cli {

/// Logs that `read` was given, opened: whatever a path leads to that has rows.
class OpenedLogs {
public:
    explicit OpenedLogs(timeline::SourceOptions options) : opener_(std::move(options)) {}

    /// Opens what a path of the machine leads to, or standard input for "-", and adds it to the
    /// others. A single file that is nothing known is taken for a log of lines without a form.
    void open(const std::string& path);

    /// The source of one log at a path, as `open` makes it. Raises what opening it raises.
    std::unique_ptr<timeline::Source> openLog(const std::string& path)
    {
        return opener_.openLog(path);
    }

    timeline::Timeline& timeline() { return timeline_; }
    const timeline::Timeline& timeline() const { return timeline_; }

    /// Sentences of what could not be opened, or not all of it.
    const std::vector<std::string>& failures() const { return failures_; }

    /// Sentences of what has no rows, and was passed over.
    const std::vector<std::string>& passedOver() const { return passedOver_; }

    /// Sentences of what is there twice, and was read in one place.
    const std::vector<std::string>& readElsewhere() const { return readElsewhere_; }

    /// Sentences of what was guessed, one for all logs of which the same was.
    std::vector<std::string> guesses() const;

private:
    LogOpener opener_;
    timeline::Timeline timeline_;
    std::vector<std::string> failures_;
    std::vector<std::string> passedOver_;
    std::vector<std::string> readElsewhere_;
};

} // namespace cli
