#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

class TextWriter;

/// Keeps the tool's own log within bounds, and hears when it can't be written: the tool goes on
/// without it, and tells nobody.
///
/// Every line is written as the tool gives it, up to the bound of a file; a last line tells of the
/// bound. A line that tells of a full disk is written once: the tool gives one for each line of a
/// log that it can't copy. How often such a line came again is told when the file is let go.
class ToolLogGuard {
public:
    /// Bytes that one file may take.
    static constexpr std::int64_t bound = 50'000'000;

    /// Hears of the first failure, with its reason.
    using Listener = std::function<void(const std::string& why)>;

    /// `toolFolder` is that of the tool's module; its log lies below it.
    explicit ToolLogGuard(const std::string& toolFolder);

    void onFailure(Listener listener) { listener_ = std::move(listener); }

    /// Whether a path is the log's folder, or lies in it.
    bool guards(const std::string& path) const;

    /// The log could not be made or written. Only the first one is told.
    void failed(const std::string& why);

    /// A writer of the log that keeps to the bound. The guard outlives it.
    std::unique_ptr<TextWriter> guarded(std::unique_ptr<TextWriter> writer);

private:
    std::string folder_;
    Listener listener_;
    bool told_ = false;
};
