#pragma once

#include "support/temporary_folder.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// A folder of its own for one test, gone with the object.
class ScratchFolder {
public:
    const std::filesystem::path& path() const { return path_; }

    /// The machine path of `name` in the folder.
    std::string at(const std::string& name) const { return (path_ / name).string(); }

    /// Writes a file and the folders on the way to it. Returns its machine path.
    std::string write(const std::string& name, std::string_view contents) const;

    /// Contents of a file; fails the test if there is none.
    std::string read(const std::string& name) const;

    /// Everything in the folder and beneath it, sorted, folders with a `/` behind them.
    std::vector<std::string> listing() const;

private:
    TemporaryFolder folder_;
    std::filesystem::path path_{folder_.path()};
};

/// What a command did.
struct CommandResult {
    int status = -1; ///< exit status; 128 and the number for an end by signal
    std::string output;
    std::string errors;
};

/// Runs a shell command in `folder`. Not on Windows, which has none.
CommandResult runCommand(const std::filesystem::path& folder, const std::string& command);

/// `size` bytes that look like trace texts: they deflate well, and refer far back.
std::string traceText(std::size_t size);

/// `size` bytes that don't deflate; the same ones for the same `seed`.
std::string noise(std::size_t size, std::uint32_t seed = 1);
