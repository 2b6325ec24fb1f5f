#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace cabmaker {

/// What a run is given besides its directive file.
struct Surroundings {
    std::string workingFolder; ///< of the machine, absolute
    std::string drives;        ///< folder that stands for the drives; empty: there are none
    unsigned threads = 1;
    std::function<void()> checkpoint = [] {}; ///< called now and then; what it throws ends the run
};

/// What a run made.
struct MadeCabinet {
    std::string path; ///< of the machine; of the first one
    std::size_t members = 0;
    std::uint64_t plainBytes = 0;
    std::uint64_t bytes = 0; ///< of all cabinets
    std::size_t cabinets = 1;
};

/// Makes the cabinet, or a set of them where one would be too large, and the reports that the
/// directive file at `directivePath` asks for.
///
/// `directivePath` and the paths in the file are understood as by `SitePaths`. The cabinet's name
/// is relative to the disk folder, which is made in the working folder. Cabinets and reports appear
/// whole or not at all, and none of them in the place of a file that is packed, and a disk folder
/// made by a run that fails is gone again. Raises a run-time error whose description is a whole
/// message: what a line of the directive file is to blame for begins with the file's name and the
/// line's number.
MadeCabinet makeCabinet(const std::string& directivePath, const Surroundings& surroundings);

} // namespace cabmaker
