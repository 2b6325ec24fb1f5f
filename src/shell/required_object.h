#pragma once

#include "runtime/run_time_error.h"

/// The object that a variable holds. Raises 91 when it holds none.
template <typename Object>
Object& required(Object* object)
{
    if (!object) throw RunTimeError(runTimeErrors::objectVariableNotSet);
    return *object;
}
