#pragma once

#include "core/error_trap.h"
#include "runtime/integer16.h"

#include <concepts>

/// Calls `body` with each number from `first` to `last`, as a 16-bit counter of `step`'s routine
/// runs through them: past 32,767 the overflow goes to the trap and the walk ends.
template <std::invocable<int> Body>
void countedWalk(ErrorTrap& step, int first, int last, Body&& body)
{
    Integer16 number = first;
    bool more = number <= last;
    while (more) {
        body(number.value());
        more = false;
        step([&] {
            ++number;
            more = number <= last;
        });
    }
}
