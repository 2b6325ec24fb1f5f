#pragma once

#include <functional>
#include <string>

/// The number of the run-time error that `statement` raises; 0 for none.
int errorOf(const std::function<void()>& statement);

/// The description of that error; the empty text for none.
std::string errorTextOf(const std::function<void()>& statement);
