#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace cabmaker {

/// Finds the files that directive files name, on a machine where a folder stands for each drive.
///
/// `C:\x\y` is `drive_c/x/y` in the folder of the drives, and a path that begins with `/` is the
/// machine's own. `\` and `/` both separate. Where a name is absent as written, one that differs in
/// case alone is taken. A `..` at the top of a drive stays there.
class SitePaths {
public:
    /// `drives` holds `drive_c` and its like, empty when there are none. Relative paths start at
    /// `workingFolder`, a path of the machine: inside a drive they stay in that drive.
    SitePaths(const std::string& drives, const std::string& workingFolder);

    /// The machine's path of `path` (UTF-8), which need not exist. Raises 76 (path not found) for a
    /// drive that isn't there and for a form of path that has no place on this machine.
    std::string machinePath(std::string_view path) const;

private:
    // A place that `..` can't leave, and the names on the way from there.
    struct Way {
        std::filesystem::path top;
        std::vector<std::string> names;
    };

    Way wayOf(std::string_view path) const;
    std::filesystem::path driveTop(std::string_view path) const;

    std::filesystem::path drives_;
    Way working_;
};

} // namespace cabmaker
