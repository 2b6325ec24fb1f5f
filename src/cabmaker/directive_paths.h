#pragma once

#include <string>
#include <string_view>

#include "drives/site_paths.h"

namespace cabmaker {

/// Finds the files that directive files name, by the rules of a site's paths (`SitePaths`), on a
/// machine where a folder stands for each drive.
///
/// Who writes a directive file may name any file of the machine by a path that begins with `/`. But
/// where there are drives, the work is done for a site: then no link leads out of a drive, nor out
/// of the working folder. A machine that has drives of its own, and is given none, is the server
/// itself: there a path means what it means to every program.
class DirectivePaths {
public:
    /// `drives` holds `drive_c` and its like, empty when there are none. Relative paths start at
    /// `workingFolder`, a path of the machine: inside a drive they stay in that drive. Raises 76
    /// where the working folder is none, 70; that `drives` is none is told by `machinePath`.
    DirectivePaths(const std::string& drives, const std::string& workingFolder);

    /// The machine's path of `path` (UTF-8), which need not exist; a link in its last name is not
    /// resolved. Raises 76 (path not found) for a drive that isn't there, be it that the folder of
    /// the drives is no folder, and for a form of path that has no place on this machine; 70 for
    /// what leads out.
    std::string machinePath(std::string_view path) const;

private:
    std::string whyNoDrives_; ///< empty where there can be some
    std::string ownFolder_;   ///< the working folder where paths are the machine's own, else empty
    SitePaths paths_;
};

} // namespace cabmaker
