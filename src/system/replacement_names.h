#pragma once

#include "system/file_descriptor.h"

#include <functional>
#include <string>
#include <utility>

/// Makes a file under a name of a `ReplacementFile` that nobody else has. `make` makes one of the
/// name and opens it, or gives one that is not open, with the system's error number in `errno`.
/// Raises 76, 70, 61, 57.
std::pair<std::string, FileDescriptor>
makeReplacement(const std::function<FileDescriptor(const std::string& name)>& make);
