#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace timeline {

/// Finds the logs that come into folders while others are followed there: the server begins new
/// ones, with names of their own.
class NewLogs {
public:
    /// Watches for every log that comes into a folder from now on.
    void watchFolder(const std::string& folder);

    /// Watches for further logs of the process that a log's name tells, in the folder where it
    /// lies. Nothing for a name that tells none.
    void watchProcessOf(const std::string& log);

    /// The paths of those that came since the last call, sorted by name. Links are none of them,
    /// nor are formatted copies. A folder that is not there has none.
    std::vector<std::string> come();

private:
    struct Folder {
        std::set<std::string> known; ///< names that were there before
        bool takesAll = false;
        std::set<std::string> processes; ///< in one case of their letters
    };

    Folder& watched(const std::string& path);

    std::map<std::string, Folder> folders_;
};

} // namespace timeline
