#pragma once

#include <string>

/// Makes a folder for temporary files, which no other user can look into, and gives its path of the
/// machine. Its name begins with `start`. Raises 76, 70, 61, 57.
std::string makeTemporaryFolder(const std::string& start);
