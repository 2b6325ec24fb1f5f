#pragma once

#include "hosts/common/sentence.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// What a run of the gather pipeline left, and what it left undone.
struct GatherOutcome {
    std::string destination;             ///< as a path of this machine
    bool destinationThere = false;       ///< whether a folder is there now
    bool destinationSwapped = false;     ///< whether it is another one than when the run began
    std::vector<std::string> files;      ///< names of what this run wrote there, sorted
    std::optional<std::string> database; ///< paths of this machine; none when it was not made
    std::optional<std::string> cabinet;  ///< the first one of a set
    bool cabinetMakerReplaced = false;   ///< the installed one ran, and the site's is another one
    bool cancelled = false;
    std::map<std::string, std::int64_t, std::less<>> rows; ///< of the database, by process
    bool emptyFrame = false; ///< a database was made, and no line lies in the time frame

    /// What was asked for and is not there as a whole, and why. Empty when the gather brought all.
    std::vector<Sentence> missing;

    /// What to tell the person beside the tool's own texts: a cancel, what is missing, an empty
    /// time frame, another cabinet maker, and where the rest is kept. Empty when there is nothing
    /// to add.
    std::vector<Sentence> sentences() const;
};
