#pragma once

#include "runtime/run_time_error.h"

#include <concepts>
#include <string>

/// The number of the run-time error that `statement` raises; 0 for none.
template <std::invocable Statement>
int errorOf(Statement&& statement)
{
    try {
        statement();
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

/// The description of that error; the empty text for none.
template <std::invocable Statement>
std::string errorTextOf(Statement&& statement)
{
    try {
        statement();
    } catch (const RunTimeError& error) {
        return error.description();
    }
    return "";
}
