#pragma once

#include "core/tool_context.h"
#include "runtime/run_time_error.h"

#include <concepts>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

/// What follows a failed statement.
enum class Resume {
    asUsual, ///< log it; retry in the development host, else go on
    logged,  ///< the same, but it has been logged already
    next,    ///< go on with the next statement
    retry,   ///< run the same statement again
};

/// What sets one routine's trap apart.
struct TrapKind {
    bool counted = false;   ///< the eleventh error of a call leaves the routine
    bool tellsLine = false; ///< the logged text ends in " Line: " and the statement's line
};

/// The number under which a host hears that a counted trap has left its routine.
constexpr int errorCountExceeded = 0;

constexpr TrapKind plainTrap{};
constexpr TrapKind countedTrap{true, false};
constexpr TrapKind countedTrapWithLine{true, true};

/// Leaves a routine whose trap has counted too many errors; caught by `ErrorTrap::body` alone.
struct ForcedExit {
    const void* trap;
};

/// Carries a routine past a failed statement: one trap a routine, one step a statement.
///
/// A run-time error is logged at level 2 under "[module]routine", and the next step runs; in the
/// development host the same one runs again. A log that can't be made, for want of a folder, holds
/// no routine up. Anything else thrown is our own fault and goes up.
/// Making a trap allocates nothing, so that a routine of the hot path may have one.
///
///     ErrorTrap step{tool, "mdlTraces", "initMacroTraces", countedTrap};
///     step.body([&] {
///         step.enterProc();
///         step([&] { ... });
///     });
class ErrorTrap {
public:
    /// `module` and `routine` outlive the trap: they are literals.
    ErrorTrap(ToolContext& tool, std::string_view module, std::string_view routine,
              TrapKind kind = plainTrap)
        : tool_(tool), module_(module), routine_(routine), kind_(kind)
    {}

    ErrorTrap(const ErrorTrap&) = delete;
    ErrorTrap& operator=(const ErrorTrap&) = delete;

    /// Runs one statement. `line` is where it stands; leave it to the compiler.
    template <std::invocable Statement>
    void operator()(Statement&& statement, int line = __builtin_LINE())
    {
        for (int failures = 1;; ++failures) {
            try {
                statement();
                return;
            } catch (const RunTimeError& error) {
                if (!retriesAfter(error, line, failures)) return;
            }
        }
    }

    /// Runs one statement that computes a value; where it fails the value is `fallback`.
    ///
    ///     const bool exists = step.value(false, [&] { return files.folderExists(path); });
    template <std::invocable Statement,
              typename Value = std::remove_cvref_t<std::invoke_result_t<Statement>>>
    Value value(std::type_identity_t<Value> fallback, Statement&& statement,
                int line = __builtin_LINE())
    {
        operator()([&] { fallback = statement(); }, line);
        return fallback;
    }

    /// Runs the routine's statements; the eleventh error of a counted trap ends them here. What the
    /// routine returns by then is for the caller of `body` to keep.
    template <std::invocable Routine>
    void body(Routine&& routine)
    {
        try {
            routine();
        } catch (const ForcedExit& exit) {
            if (exit.trap != this) throw;
        }
    }

    /// A look at each error before the common policy, after a counted trap has counted it.
    void specialCase(std::function<Resume(const RunTimeError&)> handler)
    {
        specialCase_ = std::move(handler);
    }

    /// Log lines of the routine's entry and exit; each is a step of its own.
    void enterProc();
    void exitProc();

    /// "[module]routine".
    std::string procName() const;

    /// A line of the routine in the tool's log. It is lost where no log can be made.
    void log(std::string_view message, std::int32_t level);

    int errors() const { return errors_; }

private:
    /// Counts, logs, and tells whether the statement, which has failed so often in a row, runs
    /// again. Throws ForcedExit.
    bool retriesAfter(const RunTimeError& error, int line, int failures);

    /// Logs an error and tells whoever asked to hear of it.
    void report(const RunTimeError& error, std::string_view text);

    ToolContext& tool_;
    std::string_view module_;
    std::string_view routine_;
    TrapKind kind_;
    int errors_ = 0;
    std::function<Resume(const RunTimeError&)> specialCase_;
};

/// "Err.Number = ", the number, " Err.Description = " and the description.
std::string errorText(const RunTimeError& error);
