#pragma once

#include <string>

namespace jet {

/// Raises 3343 for a file that is no Jet 4 database, or a damaged one; `what` tells where it broke.
[[noreturn]] void raiseUnknownFormat(const std::string& what);

/// Raises 3024.
[[noreturn]] void raiseFileNotFound(const std::string& path);

/// Raises 3051.
[[noreturn]] void raiseCannotOpen(const std::string& path);

/// Raises 3026.
[[noreturn]] void raiseDiskFull();

/// Raises 3183.
[[noreturn]] void raiseDatabaseFull();

/// Raises 3047.
[[noreturn]] void raiseRowTooLarge();

/// Raises 3027 for a table that holds what this writer does not keep up, such as an index.
[[noreturn]] void raiseReadOnly(const std::string& table);

} // namespace jet
