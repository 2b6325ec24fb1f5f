#pragma once

#include "runtime/run_time_error.h"

#include <memory>

/// The object that a statement before was to set. Raises 91 when it could not.
template <typename Object>
Object& objectOf(const std::unique_ptr<Object>& reference)
{
    if (!reference) throw RunTimeError(runTimeErrors::objectVariableNotSet);
    return *reference;
}
