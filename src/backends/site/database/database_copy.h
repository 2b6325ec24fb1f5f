#pragma once

#include <string>

/// A copy of an SQLite database with what its writers have left beside it, in a folder of its own
/// below the machine's temporary folder. The folder goes with the object; a program that has the
/// copy open keeps it.
class DatabaseCopy {
public:
    /// Raises 53, 70, 61, 57.
    explicit DatabaseCopy(const std::string& file);
    ~DatabaseCopy();
    DatabaseCopy(const DatabaseCopy&) = delete;
    DatabaseCopy& operator=(const DatabaseCopy&) = delete;

    const std::string& path() const { return path_; }

private:
    std::string folder_;
    std::string path_;
};
