#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "cabmaker/cabinet_writer.h"

namespace cabmaker {

/// What the reports tell. Names are UTF-8.
struct ReportSubject {
    struct Cabinet {
        std::string name; ///< without folders
        std::string diskFolder;
        std::size_t firstMember = 0; ///< that begins in it
    };

    std::vector<Cabinet> cabinets{}; ///< each on a disk of its own; one at least
    std::uint64_t bytes = 0;         ///< of all of them
    Compression compression = Compression::mszip;
    const PackedCabinet& packed;
};

/// The report for set-up programs: the disks, the cabinets, and a line for each member with the
/// cabinet that it begins in.
std::string setupInf(const ReportSubject& subject);

/// The report for people: how much went in, how much came out.
std::string setupRpt(const ReportSubject& subject);

} // namespace cabmaker
