#pragma once

#include "system/system_error.h"

#include <string>

namespace cabmaker {

/// Gives what `act` gives. A run-time error of it goes on as `cannot`, such as "cannot read", the
/// name by which messages call the file, and what went wrong.
template <typename Act>
auto tellingFailure(const char* cannot, const std::string& file, Act&& act)
{
    try {
        return act();
    } catch (const RunTimeError& error) {
        throw toldWith(std::string(cannot) + ' ' + file, error);
    }
}

} // namespace cabmaker
