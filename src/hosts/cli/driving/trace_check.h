#pragma once

#include "core/trapped_error_listener.h"
#include "hosts/cli/driving/trace_expectation.h"
#include "hosts/cli/open_tool.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace cli {

/// Looks at what a trace operation left, as its wizard tells of no failure; and lets nobody try
/// without a database.
class TraceCheck {
public:
    /// Raises CommandFailure when the tool has no connection, or the flags can't be read.
    explicit TraceCheck(OpenTool& tool);
    ~TraceCheck();
    TraceCheck(const TraceCheck&) = delete;
    TraceCheck& operator=(const TraceCheck&) = delete;

    /// The flag words before the operation.
    const std::vector<FlagWords>& present() const { return present_; }

    /// To be called right before the operation is applied. What no server can give is a warning
    /// on standard error.
    void expect(TraceExpectation expected);

    /// One level that the person asked for: off, it may stay on by default. To be called after
    /// `expect`.
    void expectLevel(const std::string& component, int level, bool on);

    /// Reads back flags, records and events. Raises CommandFailure when one of them is not as
    /// expected, or the registry refused the signal to the server.
    void requireSuccess();

private:
    struct Level {
        std::string component;
        int level;
        bool on;
    };

    void compareWords(std::vector<std::string>& wrong);
    void compareRecords(std::vector<std::string>& wrong);
    void compareEvents(std::vector<std::string>& wrong) const;

    OpenTool& tool_;
    std::vector<FlagWords> present_;
    TraceExpectation expected_;
    std::vector<Level> levels_;
    std::int64_t eventsBefore_ = 0; ///< where they ended before the operation
    std::string firstError_;        ///< that the operation logged and went on after
    std::optional<TrappedErrorListener> listener_;
};

} // namespace cli
