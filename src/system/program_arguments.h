#pragma once

#include <string>
#include <vector>

/// What the program was started with, in UTF-8, its own name first. `count` and `arguments` are
/// those of `main`.
std::vector<std::string> programArguments(int count, const char* const* arguments);
