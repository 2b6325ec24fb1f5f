#pragma once

#include <string>
#include <vector>

/// Names sorted without regard to case, each of them once. A name with a backslash, which no
/// Windows path reaches, is left out.
std::vector<std::string> sortedNames(std::vector<std::string> names);
