#pragma once

#include "core/error_trap.h"
#include "platform/file_system.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

class Label;
class ProgressBar;

/// A server log that an importer reads line by line, with the progress it shows.
///
/// Each statement runs through the importer's own trap.
class LogReading {
public:
    LogReading(ToolContext& tool, ErrorTrap& step, ProgressBar& progressCurrent, Label& label);
    ~LogReading();

    /// Opens a log of the server's log folder by its bare name and readies the progress bar.
    /// False, with a message box, when it is not there; then nothing else is to be done.
    bool open(const std::string& fileName);

    /// Reads and counts the next line; false at the end. A line that can't be read leaves the one
    /// before it; a log that is not open, or a device that keeps failing, is at its end.
    bool nextLine();

    /// The log's facts when it was opened. Raises 91 when they could not be had.
    const FileInfo& file() const;

    /// The line without its line end.
    const std::string& line() const { return line_; }

    /// Lets the server have the processor now and then, shows how far the reading is, and lets the
    /// person's events in. True when the person wants to cancel.
    bool cancelledAtProgressPoint();

    /// Puts the caption back, fills the bar and closes the log.
    void finish();

private:
    void showProgress();
    std::int64_t size() const { return file_ ? file_->size : 0; }

    ToolContext& tool_;
    ErrorTrap& step_;
    ProgressBar& progressCurrent_;
    Label& label_;
    std::string savedCaption_;
    std::optional<FileInfo> file_;
    std::unique_ptr<TextReader> reader_;
    std::string line_;
    std::int32_t lineCount_ = 0;
    std::int32_t charactersRead_ = 0;
    int failuresInARow_ = 0;
};
