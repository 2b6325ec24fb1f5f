#pragma once

#include "system/file_descriptor.h"
#include "system/file_opening.h"

#include <string>

namespace jet {

/// Opens the file of a database by its path of the machine. Raises 3024 where nothing is there, and
/// 3051 for what can't be opened or is no plain file.
FileDescriptor openDatabaseFile(const std::string& path, const FileOpening& opening);

} // namespace jet
