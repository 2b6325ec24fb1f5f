#pragma once

#include <ctime>

/// A moment as the clocks of the machine's zone tell it; the beginning of 1900 for one that the
/// machine can't tell.
std::tm localTimeOf(std::time_t moment);
