#pragma once

#include "runtime/run_time_error.h"

#include <functional>
#include <string_view>

struct ToolContext;

/// Hears of each error that a routine's trap has logged, as long as it lives: a host tells the
/// person by it.
///
/// Of several the one made last hears alone, since it knows best what the error means for what goes
/// on just then; when it ends the one before it hears again, in whatever order they end. The tool
/// outlives them.
class TrappedErrorListener {
public:
    /// `procName` is "[module]routine"; the number `errorCountExceeded` tells that a counted trap
    /// has left its routine.
    using Hear = std::function<void(const RunTimeError& error, std::string_view procName)>;

    TrappedErrorListener(ToolContext& tool, Hear hear);
    ~TrappedErrorListener();

    TrappedErrorListener(const TrappedErrorListener&) = delete;
    TrappedErrorListener& operator=(const TrappedErrorListener&) = delete;

    /// Tells the listener made last; nobody, where there is none.
    static void tell(ToolContext& tool, const RunTimeError& error, std::string_view procName);

private:
    ToolContext& tool_;
    Hear hear_;
    TrappedErrorListener* before_;
};
