#pragma once

#include <string>

/// A path of `name` in `folder`; the other one where one of them is empty.
std::string joinedPath(const std::string& folder, const std::string& name);
