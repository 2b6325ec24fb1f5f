#pragma once

#include "runtime/run_time_error.h"

#include <concepts>

/// The number of the run-time error that a statement raises; 0 when it raises none.
template <std::invocable Statement>
int errorNumberOf(Statement&& statement)
{
    try {
        statement();
        return 0;
    } catch (const RunTimeError& error) {
        return error.number();
    }
}
