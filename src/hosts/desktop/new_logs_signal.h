#pragma once

#include <QElapsedTimer>

#include <cstdint>
#include <optional>
#include <vector>

struct ToolContext;

namespace desktop {

/// Watches whether a command gave the server the signal to start new log files: the tool takes it
/// for given.
class NewLogsSignal {
public:
    /// To be called before the command.
    void look(ToolContext& tool) { before_ = stored(tool); }

    /// Whether the signal is another one now. That of the same second is the same one: it counts as
    /// given when the command before gave it.
    bool given(ToolContext& tool);

private:
    using Bytes = std::optional<std::vector<std::uint8_t>>;

    /// The signal as the server sees it; none when the registry has none.
    static Bytes stored(ToolContext& tool);

    Bytes before_;
    QElapsedTimer sinceGiven_;
};

} // namespace desktop
