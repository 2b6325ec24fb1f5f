#include "support/error_of.h"

#include "runtime/run_time_error.h"

int errorOf(const std::function<void()>& statement)
{
    try {
        statement();
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

std::string errorTextOf(const std::function<void()>& statement)
{
    try {
        statement();
    } catch (const RunTimeError& error) {
        return error.description();
    }
    return "";
}
