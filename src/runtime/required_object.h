#pragma once

#include "runtime/run_time_error.h"

/// The object that a variable holds: any kind of pointer, or an optional, which a statement before
/// was to set. Raises `error` when it holds none.
template <typename Variable>
auto& required(const Variable& variable, int error = runTimeErrors::objectVariableNotSet)
{
    if (!variable) throw RunTimeError(error);
    return *variable;
}
