#pragma once

#include "runtime/run_time_error.h"

#include <concepts>
#include <exception>

/// Runs statements that all have to run, and raises the first error at the end.
class FirstFailure {
public:
    template <std::invocable Statement>
    void attempt(Statement&& statement)
    {
        try {
            statement();
        } catch (const RunTimeError&) {
            if (!first_) first_ = std::current_exception();
        }
    }

    /// Raises what the first failed statement raised; does nothing when none failed.
    void raise() const
    {
        if (first_) std::rethrow_exception(first_);
    }

private:
    std::exception_ptr first_;
};
