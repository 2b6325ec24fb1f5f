#include "core/error_trap.h"

#include "core/trapped_error_listener.h"
#include "runtime/numbers.h"

namespace {
constexpr int errorsAllowed = 10;
}

bool ErrorTrap::retriesAfter(const RunTimeError& error, int line, int failures)
{
    if (kind_.counted && ++errors_ > errorsAllowed) {
        report(error, errorText(error));
        const std::string exceeded = "Error count exceeded, forcing exit from " + procName();
        report(RunTimeError(errorCountExceeded, exceeded), exceeded);
        throw ForcedExit{this};
    }
    const Resume resume = specialCase_ ? specialCase_(error) : Resume::asUsual;
    if (resume == Resume::next || resume == Resume::retry) return resume == Resume::retry;
    if (resume == Resume::asUsual) {
        std::string text = errorText(error);
        if (kind_.tellsLine) text += " Line: " + numberText(std::int64_t{line});
        report(error, text);
    }
    return tool_.g_log.exists() && tool_.g_log->DebugMode(failures);
}

void ErrorTrap::report(const RunTimeError& error, std::string_view text)
{
    log(text, logLevel::error);
    if (tool_.trappedErrorListener) TrappedErrorListener::tell(tool_, error, procName());
}

void ErrorTrap::enterProc()
{
    operator()([&] { tool_.g_log->enterProc(procName()); });
}

void ErrorTrap::exitProc()
{
    operator()([&] { tool_.g_log->exitProc(procName()); });
}

void ErrorTrap::log(std::string_view message, std::int32_t level)
{
    try {
        tool_.g_log->log(message, level, procName());
    } catch (const RunTimeError&) {
        // The log itself can't be made: a routine does its work without one.
    }
}

std::string ErrorTrap::procName() const
{
    std::string name;
    name.reserve(module_.size() + routine_.size() + 2);
    name.append("[").append(module_).append("]").append(routine_);
    return name;
}

std::string errorText(const RunTimeError& error)
{
    return "Err.Number = " + numberText(std::int64_t{error.number()}) +
           " Err.Description = " + error.description();
}
